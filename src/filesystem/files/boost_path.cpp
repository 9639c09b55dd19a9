#include "filesystem/primitives/name_conversion.hpp"
#include "support/ascii.hpp"

#include <fl/filesystem/boost_path.hpp>

namespace fl::filesystem {

ustring to_ustring(boost::filesystem::path const& path) {
    return detail::name_from_utf8(path.native(), support::replacement_character);
}

ustring to_generic_ustring(boost::filesystem::path const& path) {
    return detail::name_from_utf8(path.generic_string(), support::replacement_character);
}

ustring to_generic_ustring(boost::filesystem::path const& path,
                           fl::i18n::converter<char16_t, char> const& from_bytes) {
    std::string const& name = path.generic_string();
    return name.empty() ? ustring() : from_bytes.convert(name);
}

} // namespace fl::filesystem
