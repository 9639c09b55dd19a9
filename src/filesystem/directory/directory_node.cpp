#include "filesystem/directory/directory_node.hpp"

#include <algorithm>

namespace fl::filesystem::detail {

directory_node::directory_node(std::string absolute_path) : name(std::move(absolute_path)) {
    if (name.ends_with('/')) // as "/" does
        name.pop_back();
}

/// By a loop: a tree may be deeper than the stack.
directory_node::~directory_node() {
    while (parent && parent.use_count() == 1)
        parent = std::exchange(parent->parent, nullptr);
}

std::string directory_node::path() const {
    std::string result = path_below(nullptr);
    return result.empty() ? "/" : result;
}

std::string directory_node::path_of(std::string_view own_name) const {
    return path_below(nullptr).append(1, '/').append(own_name);
}

std::string directory_node::path_below(directory_node const* ancestor) const {
    std::size_t size = 0;
    for (directory_node const* node = this; node != ancestor; node = node->parent.get())
        size += node->name.size() + 1;
    std::string result(size - 1, '/');
    for (directory_node const* node = this; node != ancestor; node = node->parent.get()) {
        size -= node->name.size() + 1;
        std::copy(node->name.begin(), node->name.end(), result.begin() + static_cast<std::ptrdiff_t>(size));
    }
    return result;
}

} // namespace fl::filesystem::detail
