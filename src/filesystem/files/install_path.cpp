#include "filesystem/files/install_path_bytes.hpp"
#include "filesystem/files/volume_rules.hpp"
#include "filesystem/primitives/name_conversion.hpp"
#include "platform/platform.hpp"
#include "support/ascii.hpp"
#include "support/once_value.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/file_status.hpp>
#include <fl/filesystem/install_path.hpp>
#include <fl/filesystem/path.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <string_view>

namespace fl::filesystem {
namespace {

using narrow = detail::path_traits<char, char>;

constexpr std::string_view binary_directory = "bin";
constexpr std::string_view platform_directory = FL_I18N_PLATFORM_DIR;

/// Without links, so that a link to the library from elsewhere tells the tree of the real file.
std::string canonical_or_native(std::string const& path) {
    try {
        return detail::to_filesystem(canonical(detail::from_filesystem(path), ustring()));
    } catch (FsysExceptionBase const&) { // gone from the disk, or a name that is not UTF-8
        return narrow::make_native_form(path);
    }
}

bool ignores_case(std::string const& path) {
    try {
        return (detail::read_volume_flags(path) & platform::volume_case_insensitive) != 0;
    } catch (FsysExceptionBase const&) {
        return true;
    }
}

/// The part of `path` above the last "bin/PLATFORM" in it, or empty.
std::string tree_root(std::string path, bool ignore_case) {
    auto const matches = [ignore_case](std::string_view component, std::string_view name) {
        return ignore_case ? support::ascii_lower_copy(component) == support::ascii_lower_copy(name)
                           : component == name;
    };
    for (;;) {
        std::string const component = narrow::extract_filename(path);
        if (component.empty())
            return {};
        path = narrow::remove_filename(path);
        if (matches(component, platform_directory) &&
            matches(narrow::extract_filename(path), binary_directory))
            return narrow::remove_filename(path);
    }
}

ustring find_install_path() {
    return detail::name_from_utf8(detail::install_path_bytes(), support::replacement_character);
}

} // namespace

std::string detail::install_path_bytes() {
    static char const in_this_library = 0;
    return get_base_path(const_cast<char*>(&in_this_library));
}

std::string get_base_path(void* address) {
    std::string const module = platform::current().module_path(address);
    if (module.empty())
        return {};
    std::string const path = canonical_or_native(module);
    return tree_root(narrow::make_native_form(path), ignores_case(path));
}

ustring get_install_path() {
    static constinit support::once_value<ustring> install_path;
    return install_path.get(find_install_path);
}

} // namespace fl::filesystem

namespace fl::i18n::detail {

ustring get_module_path_from_address(void* address) {
    return address ? utf8_to_ustring(platform::current().module_path(address)) : ustring();
}

} // namespace fl::i18n::detail
