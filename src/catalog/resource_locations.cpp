#include "catalog/resource_locations.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>

namespace fl::i18n {

filesystem::upath resource_directory(ustring const& root) {
    ustring base = root.empty() ? root : filesystem::detail::make_native_form(root, 1);
    return filesystem::upath(filesystem::detail::concatenate_pathname(std::move(base), u"resources", 1));
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

} // namespace fl::i18n
