/// The built-in texts that only the database hands out, by the indices in the row tables; without a range
/// check.
#pragma once

namespace fl::i18n::lcmgmt {

/// The index that stands for no name, in every column of every row table.
inline constexpr unsigned short no_name = 0xFFFF;

char const* encoding_alias_name(unsigned short index) noexcept;
char const* locale_value_name(unsigned short index) noexcept;
char const* xpg_value_name(unsigned short index) noexcept;

} // namespace fl::i18n::lcmgmt
