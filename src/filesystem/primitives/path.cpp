#include "filesystem/primitives/name_conversion.hpp"
#include "filesystem/primitives/path_text.hpp"
#include "support/raise.hpp"

#include <fl/filesystem/exceptions.hpp>
#include <fl/filesystem/path.hpp>

namespace fl::filesystem {

namespace upath_constant {
ustring const PATHNAME_SEPARATOR = u"/";
ustring const CURRENT_DIRECTORY = u".";
ustring const PARENT_DIRECTORY = u"..";
} // namespace upath_constant

namespace detail {

ustring make_native_form(ustring name, int) {
    return native_form(std::move(name));
}

ustring concatenate_pathname(ustring first, std::u16string_view second, int) {
    return joined(std::move(first), second);
}

ustring extract_filename(std::u16string_view name) {
    return ustring(last_component(name));
}

ustring extract_stem(std::u16string_view name) {
    auto const component = last_component(name);
    return ustring(component.substr(0, extension_start(component)));
}

ustring extract_extension(std::u16string_view name) {
    auto const component = last_component(name);
    return ustring(component.substr(extension_start(component)));
}

bool is_absolute(std::u16string_view name) noexcept {
    return !name.empty() && name.front() == separator<char16_t>;
}

std::string to_filesystem(std::u16string_view name) {
    return name_to_utf8(name, no_substitution);
}

ustring from_filesystem(std::string_view name) {
    return name_from_utf8(name, no_substitution);
}

std::string make_access_form(std::string name) {
    if (name.find('\0') != name.npos)
        support::raise(InvalidArgument("Zero unit not permitted in a path", shown(name)));
    return name;
}

std::string make_native_access_form(ustring name, int form) {
    return make_access_form(to_filesystem(make_native_form(std::move(name), form)));
}

std::string make_native_access_form_with_cleanup(ustring const& name, int) {
    return make_access_form(to_filesystem(resolved_form<char16_t>(name)));
}

std::string make_native_access_form_i18n(ustring name) {
    return make_native_access_form(std::move(name));
}

std::string make_native_access_form_with_cleanup_i18n(ustring const& name) {
    return make_native_access_form_with_cleanup(name);
}

void throw_invalid_operation_exception() {
    support::raise(InvalidArgument("Iterator used past its end"));
}

std::string path_traits<char, char>::make_native_form(std::string name, int) {
    return native_form(std::move(name));
}

std::string path_traits<char, char>::concatenate_pathname(std::string first, std::string_view second, int) {
    return joined(std::move(first), second);
}

std::string path_traits<char, char>::extract_filename(std::string_view name) {
    return std::string(last_component(name));
}

std::string path_traits<char, char>::remove_filename(std::string_view name) {
    return std::string(without_last_component(name));
}

} // namespace detail
} // namespace fl::filesystem
