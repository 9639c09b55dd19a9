#include "filesystem/files/volume_rules.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/path_compare.hpp>

namespace fl::filesystem {
namespace {

using fl::i18n::character_handling_mode_context;

void require_absolute(ustring const& name) {
    if (!name.empty() && !detail::is_absolute(name))
        support::raise(InvalidArgument("Path must be absolute", name));
}

std::int32_t compare_by_volume(ustring const& a, ustring const& b) {
    require_absolute(a);
    require_absolute(b);
    if (a.empty() || b.empty())
        return detail::compare_names(a, b, character_handling_mode_context::default_mode);
    return detail::compare_names(a, b, detail::read_volume_rules(detail::make_native_access_form(a)));
}

} // namespace

std::int32_t compare(ustring const& a, ustring const& b) {
    return compare_by_volume(detail::make_native_form(a), detail::make_native_form(b));
}

std::int32_t compare(upath const& a, upath const& b) {
    return compare_by_volume(a.string(), b.string());
}

std::int32_t compare(ustring const& a, ustring const& b, character_handling_mode_context const& mode) {
    return detail::compare_names(a, b, mode);
}

std::int32_t compare(upath const& a, upath const& b, character_handling_mode_context const& mode) {
    return detail::compare_names(a.string(), b.string(), mode);
}

character_handling_mode_context generate_character_handling_mask_from_volume(upath const& path) {
    if (path.empty())
        support::raise(InvalidArgument("Empty Path not permitted"));
    return detail::read_volume_rules(detail::make_native_access_form(path.string()));
}

ustring get_pathname_from_volume(ustring const& path, ustring const& base) {
    return path.empty() ? ustring() : detail::make_native_form(canonical(path, base));
}

upath get_pathname_from_volume(upath const& path, upath const& base) {
    return upath(get_pathname_from_volume(path.string(), base.string()));
}

} // namespace fl::filesystem
