/// @file
/// Whether two names mean one file, by the rules of their volume: case and normalisation follow the file
/// system.
///
///     auto const rules = generate_character_handling_mask_from_volume(upath(u"/data"));
///     compare(u"A.txt", u"a.txt", rules);      // 0 where case doesn't count
///     compare(u"/data/A.txt", u"/data/a.txt"); // the same, with the rules read from the volume
///
/// The bits of a mask that count here, 1 also together with one of the others:
///
/// | bits | a volume where                            | names are compared by               |
/// |------|-------------------------------------------|-------------------------------------|
/// | none | names are plain sequences of code units   | code unit                           |
/// | 1    | case doesn't count                        | `u_strCaseCompare`, default folding |
/// | 2, 6 | names are stored decomposed, as on HFS    | `unorm_compare`                     |
/// | 16   | equivalent names are the same, as on APFS | `unorm_compare`                     |
///
/// Results are negative, 0 or positive. Don't sort by them where normalisation counts: a name of at most 19
/// ASCII characters is told from a longer one by units, all others by letters, and so orders may run in a
/// circle.
///
/// Names are UTF-16, ill-formed text included. A name of 2^31 units or more throws `FileNameTooLarge`, a
/// failure of ICU `PathNameComparisonFailure`. Nothing is cached: every function may be called from any
/// thread.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>

namespace fl::filesystem {

/// Compares two absolute names by the rules of the volume of `a`; that of `b` is not asked. The `ustring`
/// form takes the native form of both first; a `upath` is compared as it stands.
///
/// An empty name stands before all others, and with one no volume is read. A relative name throws
/// `InvalidArgument` ("Path must be absolute"), a volume that can't be read the exception of its `errno`
/// value.
[[nodiscard]] FL_I18N_EXPORT std::int32_t compare(ustring const& a, ustring const& b);
[[nodiscard]] FL_I18N_EXPORT std::int32_t compare(upath const& a, upath const& b);

/// Compares two names of any kind as they stand, without a look at the disk. An empty name stands before all
/// others, whatever the mode. Otherwise throws `InvalidArgument` for a mode other than 0 with none of the
/// bits of the table ("Specified character handling mask not valid") and where 2 and 16 meet ("Invalid mask
/// specified").
[[nodiscard]] FL_I18N_EXPORT std::int32_t compare(ustring const& a, ustring const& b,
                                                  fl::i18n::character_handling_mode_context const& mode);
[[nodiscard]] FL_I18N_EXPORT std::int32_t compare(upath const& a, upath const& b,
                                                  fl::i18n::character_handling_mode_context const& mode);

/// The rules of the volume with the existing file `path`: 0, or made of 1, 6 and 16; on Linux, whose volumes
/// don't tell, 0. Throws `InvalidArgument` for an empty path ("Empty Path not permitted") and for a zero
/// unit, `CvtInvalidCharacter` for an unpaired surrogate, and the exception of the system's `errno` value.
[[nodiscard]] FL_I18N_EXPORT fl::i18n::character_handling_mode_context
generate_character_handling_mask_from_volume(upath const& path);

/// The name of the file as the volume spells it: `canonical(path, base)` in native form. An empty `path`
/// gives an empty result; otherwise throws what `canonical` throws, `PathNotFound` for a missing file.
[[nodiscard]] FL_I18N_EXPORT ustring get_pathname_from_volume(ustring const& path, ustring const& base);
[[nodiscard]] FL_I18N_EXPORT upath get_pathname_from_volume(upath const& path, upath const& base);

} // namespace fl::filesystem
