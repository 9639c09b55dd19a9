#include "filesystem/primitives/utf8_name.hpp"

#include <unicode/ustring.h>

namespace fl::filesystem::detail {

std::string name_to_utf8(std::u16string_view name, std::int32_t substitution) {
    return converted_name<char>(name, [substitution](char* dst, std::int32_t capacity, char16_t const* src,
                                                     std::int32_t length, UErrorCode* status) {
        std::int32_t size = 0;
        u_strToUTF8WithSub(dst, capacity, &size, src, length, substitution, nullptr, status);
        return size;
    });
}

ustring name_from_utf8(std::string_view name, std::int32_t substitution) {
    return converted_name<char16_t>(name, [substitution](char16_t* dst, std::int32_t capacity,
                                                         char const* src, std::int32_t length,
                                                         UErrorCode* status) {
        std::int32_t size = 0;
        u_strFromUTF8WithSub(dst, capacity, &size, src, length, substitution, nullptr, status);
        return size;
    });
}

} // namespace fl::filesystem::detail
