#include "conversion/codecs/charset_rules.hpp"

#include "conversion/codecs/ascii_scan.hpp"

#include <unicode/ustring.h>

#include <algorithm>
#include <cstdint>

namespace fl::i18n::detail {

namespace {

bool is_utf8_trail(char c) noexcept {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// The largest prefix of at most `size` bytes that ends between characters. In a run of too many trail bytes
/// it ends anywhere: what follows begins with a trail byte and is ill-formed, as the whole is.
std::size_t whole_characters(std::string_view text, std::size_t size) noexcept {
    if (text.size() <= size)
        return text.size();
    std::size_t cut = size;
    while (cut > size - 3 && is_utf8_trail(text[cut]))
        --cut;
    return cut;
}

bool is_utf8_slice(std::string_view text) {
    std::int32_t units = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, &units, text.data(), static_cast<std::int32_t>(text.size()), &status);
    return status != U_INVALID_CHAR_FOUND;
}

/// The first byte that is NUL or not ASCII.
std::size_t first_unusual(std::string_view text) noexcept {
    auto const is_unusual = [](char c) { return c == '\0' || !is_ascii_unit(c); };
    std::size_t const block = first_block_where(text.data(), text.size(), is_unusual);
    auto const found =
        std::find_if(text.begin() + static_cast<std::ptrdiff_t>(block), text.end(), is_unusual);
    return static_cast<std::size_t>(found - text.begin());
}

} // namespace

std::string_view telling_part(std::string_view text) noexcept {
    std::size_t const place = first_unusual(text);
    if (place == text.size())
        return {};
    if (text[place] != '\0')
        return text.substr(place);
    return place + 1 == text.size() ? std::string_view() : text;
}

bool is_utf8(std::string_view text, std::size_t slice) {
    while (!text.empty()) {
        std::size_t const size = whole_characters(text, slice);
        if (!is_utf8_slice(text.substr(0, size)))
            return false;
        text.remove_prefix(size);
    }
    return true;
}

} // namespace fl::i18n::detail
