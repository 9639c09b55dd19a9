// Any name with any wildcard: the iterator's own matcher, and the expression that it gives to ICU in its
// place, say what the wildcard's regular expression says.

#include "filesystem/directory/wildcard.hpp"
#include "fuzz.hpp"
#include "text/matching/match_limit.hpp"

#include <fl/filesystem/directory_pattern.hpp>
#include <fl/i18n/string_conversion.hpp>

#include <algorithm>
#include <optional>

namespace {

using namespace fl::i18n;

/// Nothing where ICU gives up.
std::optional<bool> by_icu(fl::ustring const& expression, unsigned int mask, fl::ustring const& name) {
    simple_pattern_match matcher;
    require(matcher.open(expression, mask) == regex_success);
    detail::limit_match_time(matcher, 20);
    regex_excp_id status = regex_success;
    bool const result = matcher.match(name, status);
    return status == regex_success ? std::optional(result) : std::nullopt;
}

} // namespace

/// The first byte is a mode, the rest name and wildcard with a zero between.
int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 3)
        return 0;
    char const* const text = reinterpret_cast<char const*>(data) + 1;
    char const* const end = reinterpret_cast<char const*>(data) + size;
    char const* const gap = std::find(text, end, '\0');
    fl::ustring const name = utf8_to_ustring(std::string(text, gap));
    fl::ustring const filename = utf8_to_ustring(std::string(gap, end).substr(gap == end ? 0 : 1));
    fl::ustring const expression = fl::filesystem::detail::generate_pattern_from_filename(filename);
    auto const wildcard = fl::filesystem::detail::wildcard::parse(expression);
    require(wildcard.has_value());
    unsigned int const mask = (data[0] & 17u) | ((data[0] & 2u) != 0 ? 6u : 0u);
    if (auto const expected = by_icu(expression, mask, name); expected && !name.empty()) {
        require(by_icu(wildcard->bounded_expression(), mask, name) == expected);
        require(mask != 0 || wildcard->matches(name) == *expected);
    }
    return 0;
}
