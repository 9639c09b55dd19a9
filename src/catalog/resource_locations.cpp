// The directories of resources on the disk, and the publication of lists of them.

#include "catalog/resource_locations.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>

#include <algorithm>
#include <utility>

namespace fl::i18n::detail {

filesystem::upath resource_directory(ustring const& root) {
    ustring base = root.empty() ? root : filesystem::detail::make_native_form(root);
    return filesystem::upath(filesystem::detail::concatenate_pathname(std::move(base), u"resources"));
}

bool is_directory(filesystem::upath const& path) {
    try {
        return filesystem::status(path).kind() == filesystem::file_status::directory_file;
    } catch (filesystem::FsysExceptionBase const&) {
        return false;
    }
}

std::optional<resource_location> find_resource_directory(ustring const& root, bool additional) {
    filesystem::upath path = resource_directory(root);
    if (!is_directory(path))
        return std::nullopt;
    return resource_location{std::move(path), additional};
}

void resource_locations::publish(std::vector<resource_location> list) {
    auto version =
        std::find_if(versions_.begin(), versions_.end(), [&](auto const& former) { return *former == list; });
    if (version == versions_.end())
        version = versions_.insert(version,
                                   std::make_unique<std::vector<resource_location> const>(std::move(list)));
    current_.store(version->get(), std::memory_order_release);
}

} // namespace fl::i18n::detail
