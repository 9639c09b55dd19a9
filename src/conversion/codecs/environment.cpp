#include <fl/i18n/environment.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <cerrno>
#include <cstdlib>

namespace fl::i18n {

namespace {

template <class Text>
bool has_zero_unit(Text const& text) {
    return text.find(typename Text::value_type()) != Text::npos;
}

/// Sets `errno` where the answer is no.
template <class Text>
bool is_usable_name(Text const& name) {
    if (!name.empty() && !has_zero_unit(name))
        return true;
    errno = EINVAL;
    return false;
}

} // namespace

bool isenv(std::string const& name) {
    return is_usable_name(name) && std::getenv(name.c_str()) != nullptr;
}

bool isenv(ustring const& name) {
    return isenv(ustring_to_utf8(name));
}

ustring getenv(std::string const& name) {
    if (!is_usable_name(name))
        return {};
    char const* const value = std::getenv(name.c_str());
    return value ? utf8_to_ustring(value) : ustring();
}

ustring getenv(ustring const& name) {
    return getenv(ustring_to_utf8(name));
}

std::int32_t setenv(std::string const& name, ustring const& value, int overwrite, bool allow_empty) {
    if (!is_usable_name(name))
        return -1;
    if ((value.empty() && !allow_empty) || has_zero_unit(value)) {
        errno = EINVAL;
        return -1;
    }
    return ::setenv(name.c_str(), ustring_to_utf8(value).c_str(), overwrite);
}

std::int32_t setenv(ustring const& name, ustring const& value, int overwrite, bool allow_empty) {
    return setenv(ustring_to_utf8(name), value, overwrite, allow_empty);
}

std::int32_t unsetenv(std::string const& name) {
    return is_usable_name(name) ? ::unsetenv(name.c_str()) : -1;
}

std::int32_t unsetenv(ustring const& name) {
    return unsetenv(ustring_to_utf8(name));
}

} // namespace fl::i18n
