/// @file
/// Strips units from the ends of a text.
///
///     ustring line = u"  key = value \r\n";
///     trim(line, u" \r\n"); // line is u"key = value"
///
/// `chars` is a set: a unit is stripped when it equals any unit of it. Units stand for themselves, so that a
/// supplementary character in `chars` strips its two surrogates wherever either stands. Nothing is stripped
/// for an empty `chars`; a text of nothing but members becomes empty.
///
/// All may be called from any thread. The forms that change `s` keep its storage, and
/// `chars` may be `s` itself; the copies leave `s` alone and may throw `std::bad_alloc`.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

namespace fl::i18n {

/// In place: both ends, the front, the back. They return `s`.
/// @{
FL_I18N_EXPORT ustring& trim(ustring& s, ustring const& chars) noexcept;
FL_I18N_EXPORT ustring& trim_left(ustring& s, ustring const& chars) noexcept;
FL_I18N_EXPORT ustring& trim_right(ustring& s, ustring const& chars) noexcept;
/// @}

/// A stripped copy: both ends, the front, the back.
/// @{
[[nodiscard]] FL_I18N_EXPORT ustring trim_copy(ustring const& s, ustring const& chars);
[[nodiscard]] FL_I18N_EXPORT ustring trim_copy_left(ustring const& s, ustring const& chars);
[[nodiscard]] FL_I18N_EXPORT ustring trim_copy_right(ustring const& s, ustring const& chars);
/// @}

} // namespace fl::i18n
