/// @file
/// `boost::filesystem::path` as `ustring`.
///
///     fl::ustring const name = fl::filesystem::to_ustring(boost::filesystem::path("/tmp"));
#pragma once

#include <fl/i18n/converter.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <boost/filesystem/path.hpp>

namespace fl::filesystem {

/// The native name of the path, read as UTF-8. Bytes that are not UTF-8 become U+FFFD; a name longer than a
/// signed 32-bit integer counts throws `FileNameTooLarge`.
[[nodiscard]] FL_I18N_EXPORT ustring to_ustring(boost::filesystem::path const& path);

/// The same for the path's generic form, with "/" as separator.
[[nodiscard]] FL_I18N_EXPORT ustring to_generic_ustring(boost::filesystem::path const& path);

/// The generic form, converted by `from_bytes`, whose exceptions pass through. An empty path gives an empty
/// result without asking it.
[[nodiscard]] FL_I18N_EXPORT ustring to_generic_ustring(
    boost::filesystem::path const& path, fl::i18n::converter<char16_t, char> const& from_bytes);

} // namespace fl::filesystem
