#include "catalog/resource_locations.hpp"

#include <fl/filesystem/file_status.hpp>

namespace fl::i18n {

filesystem::upath resource_directory(ustring const& root) {
    ustring base = root.empty() ? root : filesystem::detail::make_native_form(root, 1);
    return filesystem::upath(filesystem::detail::concatenate_pathname(std::move(base), u"resources", 1));
}

bool is_directory(filesystem::upath const& path) {
    return filesystem::status(path).kind() == filesystem::file_status::directory_file;
}

} // namespace fl::i18n
