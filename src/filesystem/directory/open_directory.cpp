#include "filesystem/directory/open_directory.hpp"

#include "filesystem/primitives/name_conversion.hpp"
#include "platform/posix.hpp"
#include "support/ascii.hpp"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <unistd.h>

namespace fl::filesystem::detail {
namespace {

constexpr std::size_t longest_path = PATH_MAX - 1;

/// As many components from the beginning of `path` as a system call takes.
std::string_view first_part(std::string_view path) noexcept {
    if (path.size() <= longest_path)
        return path;
    return path.substr(0, path.rfind('/', longest_path)); // names are much shorter
}

file_descriptor open_part(int base, std::string_view part) {
    file_descriptor opened(platform::open_directory_without_links(base, std::string(part).c_str()));
    if (!opened.is_open() && errno == ELOOP)
        errno = ENOTDIR;
    return opened;
}

} // namespace

directory_node::directory_node(std::string absolute_path) : name(std::move(absolute_path)) {
    if (name.ends_with('/')) // as "/" does
        name.pop_back();
}

// By a loop: a tree may be deeper than the stack.
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

file_descriptor& file_descriptor::operator=(file_descriptor other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
}

file_descriptor::~file_descriptor() {
    if (is_open())
        ::close(descriptor_);
}

int file_descriptor::release() noexcept {
    return std::exchange(descriptor_, -1);
}

ustring const& open_directory::text() const {
    if (!text_)
        text_ = name_from_utf8(node->path(), support::replacement_character);
    return *text_;
}

directory_handle open_by_path(std::string const& path) noexcept {
    return directory_handle(::opendir(path.c_str()));
}

file_descriptor open_below(int root, std::string_view path) {
    file_descriptor directory;
    do {
        std::string_view const part = first_part(path);
        path.remove_prefix(std::min(part.size() + 1, path.size()));
        directory = open_part(directory.is_open() ? directory.get() : root, part);
    } while (directory.is_open() && !path.empty());
    return directory;
}

directory_handle to_handle(file_descriptor directory) noexcept {
    directory_handle handle(directory.is_open() ? ::fdopendir(directory.get()) : nullptr);
    if (handle)
        directory.release();
    return handle;
}

} // namespace fl::filesystem::detail
