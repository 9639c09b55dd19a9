/// The install tree of this library in the bytes of the file system.
#pragma once

#include <string>

namespace fl::filesystem::detail {

/// What `get_install_path` is the text of: `get_base_path` for this library. For those who open files below
/// it: the text shows bytes that are not UTF-8 as U+FFFD, and then names no file. Looked up at each call.
std::string install_path_bytes();

} // namespace fl::filesystem::detail
