/// Between `errno` values and exceptions, in both directions.
#pragma once

#include <string>

namespace fl::filesystem::detail {

/// Throws the exception of the `errno` value, with up to two names in the bytes of the file system. A name
/// that is not UTF-8 is shown with each byte as one character.
[[noreturn]] void throw_errno(int error, std::string const& path = {}, std::string const& second_path = {});

/// The `errno` value for the exception in flight; to be called in a handler. Rethrows an exception that has
/// none, as some of this library have.
int errno_of_current_exception();

} // namespace fl::filesystem::detail
