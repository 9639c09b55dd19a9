#include "filesystem/directory/tree_walk.hpp"

#include "filesystem/primitives/error_number.hpp"
#include "filesystem/primitives/stat_record.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <utility>

namespace fl::filesystem::detail {
namespace {

constexpr std::size_t most_held = 16;

file_descriptor duplicate(open_directory const& directory) noexcept {
    return file_descriptor(::fcntl(::dirfd(directory.handle.get()), F_DUPFD_CLOEXEC, 0));
}

treatment by_type(std::uint32_t type) noexcept {
    switch (type) {
    case file_status::file_type_unknown:
        return treatment::drop;
    case file_status::directory_file:
        return treatment::show_and_visit;
    default:
        return treatment::show;
    }
}

} // namespace

treatment treatment_of(unsigned char type, int directory, char const* name) noexcept {
    if (type != DT_DIR && type != DT_UNKNOWN)
        return treatment::show;
    struct stat status;
    if (::fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0)
        return by_type(type_of(status.st_mode));
    if (is_missing(errno))
        return treatment::drop;
    return type == DT_DIR ? treatment::show_and_visit : treatment::show;
}

directory_queue::directory_queue(open_directory const& root) : root_{root.node, duplicate(root)} {
    if (!root_.descriptor.is_open())
        throw_errno(errno, root.node->path());
}

void directory_queue::push(open_directory const& parent, std::string_view name) {
    hold(parent);
    items_.push_back({parent.node, std::string(name)});
}

// Without a descriptor to spare, the parent will be opened again.
void directory_queue::hold(open_directory const& parent) {
    bool const is_held = parent.node == root_.node || (!held_.empty() && held_.back().node == parent.node);
    if (is_held || held_.size() >= most_held)
        return;
    if (file_descriptor descriptor = duplicate(parent); descriptor.is_open())
        held_.push_back({parent.node, std::move(descriptor)});
}

void directory_queue::release(std::shared_ptr<directory_node> const& parent) noexcept {
    if (!held_.empty() && held_.front().node == parent)
        held_.pop_front();
}

/// -1 with `errno` if the parent has to be opened again and can't.
int directory_queue::descriptor_of(std::shared_ptr<directory_node> const& parent) {
    if (parent == root_.node)
        return root_.descriptor.get();
    if (held_.empty() || held_.front().node != parent) {
        file_descriptor opened = open_below(root_.descriptor.get(), parent->path_below(root_.node.get()));
        if (!opened.is_open())
            return -1;
        held_.push_front({parent, std::move(opened)});
    }
    return held_.front().descriptor.get();
}

directory_handle directory_queue::open(std::shared_ptr<directory_node> const& parent,
                                       std::string const& name) {
    int const base = descriptor_of(parent);
    return base >= 0 ? to_handle(open_below(base, name)) : nullptr;
}

std::shared_ptr<open_directory> directory_queue::open_next() {
    item const next = std::move(items_.front());
    items_.pop_front();
    directory_handle handle = open(next.parent, next.name);
    int const error = errno;
    if (items_.empty() || items_.front().parent != next.parent)
        release(next.parent);
    if (!handle)
        throw_errno(error, next.parent->path_of(next.name));
    return std::make_shared<open_directory>(std::make_shared<directory_node>(next.parent, next.name),
                                            std::move(handle));
}

void directory_queue::close() noexcept {
    held_.clear();
    root_ = {};
}

bool directory_queue::operator==(directory_queue const& other) const {
    return std::equal(
        items_.begin(), items_.end(), other.items_.begin(), other.items_.end(),
        [](item const& a, item const& b) { return a.parent->path_of(a.name) == b.parent->path_of(b.name); });
}

} // namespace fl::filesystem::detail
