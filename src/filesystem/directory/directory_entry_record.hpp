/// What a directory entry shows.
#pragma once

#include "filesystem/directory/open_directory.hpp"

namespace fl::filesystem::detail {

/// Filled by the iterator. The strings grow to the longest name once and are then reused.
struct directory_entry_record {
    std::shared_ptr<open_directory const> directory;
    std::string name;
    ustring text; ///< the name as text
    unsigned char type = DT_UNKNOWN;
};

} // namespace fl::filesystem::detail
