// Any bytes as UTF-8, and any units as UTF-16: the quick conversions give what ICU gives, and what they give
// is well-formed, so that a second round changes nothing.

#include "fuzz.hpp"

#include <fl/i18n/string_conversion.hpp>

#include <unicode/ustring.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

fl::ustring by_icu(char const* bytes, std::size_t size) {
    std::vector<char16_t> buffer(size + 1);
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(buffer.data(), static_cast<std::int32_t>(buffer.size()), &length, bytes,
                         static_cast<std::int32_t>(size), 0xFFFD, nullptr, &status);
    require(U_SUCCESS(status));
    return fl::ustring(buffer.data(), static_cast<std::size_t>(length));
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    using namespace fl::i18n;
    char const* const bytes = reinterpret_cast<char const*>(data);
    fl::ustring const text = utf8_to_ustring(bytes, size);
    require(text == by_icu(bytes, size));
    require(utf8_to_ustring(ustring_to_utf8(text)) == text);

    std::vector<char16_t> units(size / 2 + 1);
    std::memcpy(units.data(), data, size / 2 * 2);
    std::string const utf8 = ustring_to_utf8(units.data(), size / 2);
    require(ustring_to_utf8(utf8_to_ustring(utf8)) == utf8);
    return 0;
}
