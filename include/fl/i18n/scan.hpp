/// @file
/// Walks UTF-16 text by code points, to the first one in a class or outside it.
///
/// The last argument picks the sense: `is_posix` looks for a member of any class of the mask, `is_not_posix`
/// for a character that is in none of them. Skipping leading blanks:
///
///     auto const first = detail::scan(class_space, text.begin(), text.end(), is_not_posix());
///
/// The result is the position of the first code unit of the character found, or `end`. A `begin` that is not
/// before `end` gives `end`. A surrogate without its partner inside the range is a character of its own.
///
/// Over reverse iterators the pairing rule is applied in the order of iteration: a lead surrogate and a trail
/// surrogate *behind* it on the way form a pair. Text stores pairs lead first, so a supplementary character
/// is seen as two lone surrogates there, which are in no class of letters.
///
/// The functions read nothing outside the range, and may be called from any thread.
#pragma once

#include <fl/i18n/character_class.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <iterator>

namespace fl::i18n {

struct is_posix {};     ///< look for a member of the classes
struct is_not_posix {}; ///< look for a character outside the classes

namespace detail {

using ustring_reverse_iterator = std::reverse_iterator<ustring::iterator>;
using ustring_const_reverse_iterator = std::reverse_iterator<ustring::const_iterator>;

[[nodiscard]] FL_I18N_EXPORT char16_t* scan(unsigned int mask, char16_t* begin, char16_t* end,
                                            is_posix) noexcept;
[[nodiscard]] FL_I18N_EXPORT char16_t* scan(unsigned int mask, char16_t* begin, char16_t* end,
                                            is_not_posix) noexcept;

[[nodiscard]] FL_I18N_EXPORT char16_t const* scan(unsigned int mask, char16_t const* begin,
                                                  char16_t const* end, is_posix) noexcept;
[[nodiscard]] FL_I18N_EXPORT char16_t const* scan(unsigned int mask, char16_t const* begin,
                                                  char16_t const* end, is_not_posix) noexcept;

[[nodiscard]] FL_I18N_EXPORT ustring::iterator scan(unsigned int mask, ustring::iterator begin,
                                                    ustring::iterator end, is_posix) noexcept;
[[nodiscard]] FL_I18N_EXPORT ustring::iterator scan(unsigned int mask, ustring::iterator begin,
                                                    ustring::iterator end, is_not_posix) noexcept;

[[nodiscard]] FL_I18N_EXPORT ustring::const_iterator scan(unsigned int mask, ustring::const_iterator begin,
                                                          ustring::const_iterator end, is_posix) noexcept;
[[nodiscard]] FL_I18N_EXPORT ustring::const_iterator scan(unsigned int mask, ustring::const_iterator begin,
                                                          ustring::const_iterator end, is_not_posix) noexcept;

[[nodiscard]] FL_I18N_EXPORT ustring_reverse_iterator scan(unsigned int mask, ustring_reverse_iterator begin,
                                                           ustring_reverse_iterator end, is_posix) noexcept;
[[nodiscard]] FL_I18N_EXPORT ustring_reverse_iterator scan(unsigned int mask, ustring_reverse_iterator begin,
                                                           ustring_reverse_iterator end,
                                                           is_not_posix) noexcept;

[[nodiscard]] FL_I18N_EXPORT ustring_const_reverse_iterator scan(unsigned int mask,
                                                                 ustring_const_reverse_iterator begin,
                                                                 ustring_const_reverse_iterator end,
                                                                 is_posix) noexcept;
[[nodiscard]] FL_I18N_EXPORT ustring_const_reverse_iterator scan(unsigned int mask,
                                                                 ustring_const_reverse_iterator begin,
                                                                 ustring_const_reverse_iterator end,
                                                                 is_not_posix) noexcept;

} // namespace detail
} // namespace fl::i18n
