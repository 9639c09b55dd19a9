// Patterns and the names of their holes, by ICU, which is kept from patterns that would outgrow the stack.

#include "catalog/message_format.hpp"

#include "conversion/codecs/ascii_text.hpp"
#include "support/icu_length.hpp"
#include "support/raise.hpp"

#include <fl/i18n/message_catalog.hpp>

#include <boost/numeric/conversion/converter_policies.hpp>
#include <unicode/fieldpos.h>
#include <unicode/fmtable.h>
#include <unicode/locid.h>
#include <unicode/strenum.h>
#include <unicode/uchar.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace fl::i18n::detail {
namespace {

void check(UErrorCode status) {
    if (U_FAILURE(status))
        support::raise(MessageCatalog::MessageFormatIncorrect());
}

[[noreturn]] void raise_overflow() {
    support::raise(boost::numeric::positive_overflow());
}

std::int32_t in_icu_range(std::size_t value) {
    return support::to_icu_length(value, raise_overflow);
}

/// Limit on arguments with patterns of their own ("{0,select,other{...}}"). ICU follows them by recursion, at
/// some kilobytes of stack a level: this many fit a thread with a stack of 256 KB, and no real message comes
/// near.
constexpr int most_complex_arguments = 50;

/// True if one of the words for an argument with patterns in it stands at the start of `text`.
/// "selectordinal" begins with one of them.
bool is_complex_type(icu::UnicodeString const& text) {
    static constexpr std::u16string_view words[] = {u"select", u"plural", u"choice"};
    return std::any_of(std::begin(words), std::end(words), [&](std::u16string_view word) {
        auto const length = static_cast<std::int32_t>(word.size());
        return text.caseCompare(0, length, word.data(), 0, length, U_FOLD_CASE_DEFAULT) == 0;
    });
}

bool is_white_space(char16_t unit) {
    return u_hasBinaryProperty(unit, UCHAR_PATTERN_WHITE_SPACE);
}

bool is_in_name(char16_t unit) {
    return !is_white_space(unit) && !u_hasBinaryProperty(unit, UCHAR_PATTERN_SYNTAX);
}

/// True if the comma at `comma` is the first of an argument:
///
///     argument := "{" [ white-space ] name [ white-space ] "," ...
bool ends_argument_name(icu::UnicodeString const& pattern, std::int32_t comma) {
    std::int32_t i = comma - 1;
    while (i >= 0 && is_white_space(pattern[i]))
        --i;
    while (i >= 0 && is_in_name(pattern[i]))
        --i;
    while (i >= 0 && is_white_space(pattern[i]))
        --i;
    return i >= 0 && pattern[i] == u'{';
}

bool begins_complex_argument(icu::UnicodeString const& pattern, std::int32_t comma) {
    if (!ends_argument_name(pattern, comma))
        return false;
    std::int32_t word = comma + 1;
    while (word < pattern.length() && is_white_space(pattern[word]))
        ++word;
    return is_complex_type(pattern.tempSubString(word, 6));
}

/// Refuses a pattern with too many complex arguments. They are counted side by side too, and in quotes: only
/// ICU knows what is quoted.
void check_complexity(icu::UnicodeString const& pattern) {
    int count = 0;
    for (std::int32_t comma = pattern.indexOf(u','); comma >= 0; comma = pattern.indexOf(u',', comma + 1))
        if (begins_complex_argument(pattern, comma) && ++count > most_complex_arguments)
            support::raise(MessageCatalog::MessageFormatIncorrect());
}

/// The number at the start of a name; what follows the digits is not looked at, but has to be ASCII.
std::size_t leading_number(char16_t const* name, std::int32_t length) {
    return std::stoul(to_ascii({name, static_cast<std::size_t>(length)}));
}

hole_names names_in_pattern(icu::MessageFormat& format) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::StringEnumeration> const names(format.getFormatNames(status));
    check(status);
    UErrorCode count_status = U_ZERO_ERROR;
    auto const count = names->count(count_status);
    check(count_status);
    hole_names result;
    result.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) {
        UErrorCode next_status = U_ZERO_ERROR;
        icu::UnicodeString const* const name = names->snext(next_status);
        check(next_status);
        result.push_back(*name);
    }
    return result;
}

hole_names sorted_by_number(hole_names const& names) {
    // The numbers come first: a name without one has to be found also where there is nothing to compare.
    std::vector<std::pair<std::size_t, icu::UnicodeString>> numbered;
    numbered.reserve(names.size());
    for (icu::UnicodeString const& name : names)
        numbered.emplace_back(leading_number(name.getBuffer(), name.length()), name);
    std::stable_sort(numbered.begin(), numbered.end(),
                     [](auto const& a, auto const& b) { return a.first < b.first; });
    hole_names result;
    result.reserve(numbered.size());
    for (auto& [number, name] : numbered) {
        if (result.empty() || result.back() != name)
            result.push_back(std::move(name));
    }
    return result;
}

icu::Formattable to_formattable(long long value) {
    return icu::Formattable(static_cast<std::int64_t>(value));
}

icu::Formattable to_formattable(std::string const& value) {
    return icu::Formattable(
        icu::UnicodeString::fromUTF8(icu::StringPiece(value.data(), in_icu_range(value.size()))));
}

icu::Formattable to_formattable(ustring const& value) {
    return icu::Formattable(
        icu::UnicodeString(false, value.data(), in_icu_range(value.size()))); // copies the text
}

std::vector<icu::Formattable> to_formattables(std::vector<hole_value> const& holes) {
    std::vector<icu::Formattable> result;
    result.reserve(holes.size());
    for (hole_value const& hole : holes)
        result.push_back(std::visit([](auto const& value) { return to_formattable(value); }, hole));
    return result;
}

icu::UnicodeString format_values(icu::MessageFormat const& format,
                                 std::vector<icu::Formattable> const& values, hole_names const* names) {
    icu::UnicodeString result;
    UErrorCode status = U_ZERO_ERROR;
    if (names && !values.empty()) {
        // ICU reads as many names as it is given values.
        auto const count = in_icu_range(std::min(values.size(), names->size()));
        format.format(names->data(), values.data(), count, result, status);
    } else {
        icu::FieldPosition position;
        auto const* const first = values.empty() ? nullptr : values.data();
        format.format(first, in_icu_range(values.size()), result, position, status);
    }
    check(status);
    return result;
}

} // namespace

icu::MessageFormat makeMessageFormat(ustring const& message) {
    icu::UnicodeString const text(false, message.data(), in_icu_range(message.size()));
    UErrorCode quote_status = U_ZERO_ERROR;
    auto const pattern = icu::MessageFormat::autoQuoteApostrophe(text, quote_status);
    check(quote_status);
    check_complexity(pattern);
    UErrorCode status = U_ZERO_ERROR;
    icu::MessageFormat format(pattern, icu::Locale("en", "US", "POSIX"), status);
    check(status);
    return format;
}

bool is_word(icu::UnicodeString const& name) {
    return !name.isEmpty() && u_isalpha(name.char32At(0));
}

hole_names listHoleNames(icu::MessageFormat& format) {
    hole_names names = names_in_pattern(format);
    auto const words = std::count_if(names.begin(), names.end(), is_word);
    if (words == 0)
        return sorted_by_number(names);
    if (static_cast<std::size_t>(words) != names.size())
        support::raise(MessageCatalog::MessageFormatIncorrect());
    return names;
}

hole_name_info parseHoleName(icu::UnicodeString const& name) {
    auto const separator = name.indexOf(u'_');
    bool const is_custom = separator > 0;
    auto const number = leading_number(name.getBuffer(), is_custom ? separator : name.length());
    ustring custom_type;
    if (is_custom)
        custom_type.assign(name.getBuffer() + separator + 1, name.getBuffer() + name.length());
    return {std::move(custom_type), in_icu_range(number)};
}

ustring formatHoles(icu::MessageFormat const& format, std::vector<hole_value> const& holes,
                    hole_names const* names) {
    auto const result = format_values(format, to_formattables(holes), names);
    return {result.getBuffer(), static_cast<std::size_t>(result.length())};
}

} // namespace fl::i18n::detail
