#include "filesystem/directory/wildcard.hpp"

#include "text/characters/unit_search.hpp"

#include <unicode/utf16.h>

namespace fl::filesystem::detail {
namespace {

using view = std::u16string_view;

/// Any character of a name. Not a dot, which takes a carriage return and a line feed together.
constexpr view any_character = u"[^\\x00]";

/// True for the ASCII characters that mean something in a regular expression.
bool is_reserved(char16_t unit) noexcept {
    static constexpr view reserved = u"$()*+.?[\\^{|}";
    return reserved.find(unit) != view::npos;
}

bool is_well_formed(view text) noexcept {
    for (std::size_t i = 0; i < text.size(); ++i)
        if (U16_IS_SURROGATE(text[i])) {
            if (!U16_IS_LEAD(text[i]) || i + 1 == text.size() || !U16_IS_TRAIL(text[i + 1]))
                return false;
            ++i;
        }
    return true;
}

/// True if `text` begins with `prefix`, which is then taken off.
bool consume(view& text, view prefix) noexcept {
    if (!text.starts_with(prefix))
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// literal = "\" reserved | unit that is not reserved
std::optional<char16_t> consume_literal(view& text) noexcept {
    bool const escaped = consume(text, u"\\");
    if (text.empty() || is_reserved(text.front()) != escaped)
        return std::nullopt;
    char16_t const unit = text.front();
    text.remove_prefix(1);
    return unit;
}

void append_literals(ustring& expression, view text) {
    for (char16_t const unit : text)
        append_literal(expression, unit);
}

} // namespace

void append_literal(ustring& expression, char16_t unit) {
    if (is_reserved(unit))
        expression += u'\\';
    expression += unit;
}

/// expression = "^" { star | literal } "$" | "^.*$"; star = "(.|\r)*"
std::optional<wildcard> wildcard::parse(view expression) {
    wildcard result;
    if (expression == all_expression) {
        result.parts_.emplace_back();
        return result;
    }
    if (!is_well_formed(expression) || !consume(expression, u"^"))
        return std::nullopt;
    while (expression != u"$")
        if (consume(expression, star_expression))
            result.parts_.emplace_back();
        else if (auto const literal = consume_literal(expression))
            result.parts_.back() += *literal;
        else
            return std::nullopt;
    return result;
}

bool wildcard::matches(view name) const {
    if (parts_.size() == 1)
        return name == parts_.front();
    if (!consume(name, parts_.front()) || !name.ends_with(parts_.back()))
        return false;
    name.remove_suffix(parts_.back().size());
    for (std::size_t i = 1; i + 1 < parts_.size(); ++i) {
        std::size_t const place = fl::i18n::detail::find_units(name, parts_[i]);
        if (place == view::npos)
            return false;
        name.remove_prefix(place + parts_[i].size());
    }
    return true;
}

ustring wildcard::bounded_expression() const {
    ustring result = u"^";
    append_literals(result, parts_.front());
    for (std::size_t i = 1; i < parts_.size(); ++i) {
        bool const is_last = i + 1 == parts_.size();
        result.append(is_last ? u"" : u"(?>").append(any_character).append(is_last ? u"*" : u"*?");
        append_literals(result, parts_[i]);
        result.append(is_last ? u"" : u")");
    }
    return result += u'$';
}

} // namespace fl::filesystem::detail
