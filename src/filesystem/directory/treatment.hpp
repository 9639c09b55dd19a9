/// What a walk does with an entry.
#pragma once

namespace fl::filesystem::detail {

enum class treatment { drop, show, show_and_visit };

/// For the entry `name` of the open directory, whose `d_type` is `type`. Asks the disk about directories and
/// about entries of unknown type alone, since that takes longer than all the rest. An entry that is gone is
/// dropped. Where the disk doesn't answer for another reason, the name is shown; and what the directory calls
/// a directory is visited, so that the reason gets told.
treatment treatment_of(unsigned char type, int directory, char const* name) noexcept;

} // namespace fl::filesystem::detail
