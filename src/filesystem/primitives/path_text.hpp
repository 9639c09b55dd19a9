/// The path operations themselves, the same for UTF-16 and for narrow text.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace fl::filesystem::detail {

template <class Char>
inline constexpr Char separator = Char('/');

template <class Char>
std::basic_string_view<Char> without_trailing_separators(std::basic_string_view<Char> name) noexcept {
    return name.substr(0, name.find_last_not_of(separator<Char>) + 1); // npos + 1 is 0
}

template <class Char>
std::basic_string<Char> native_form(std::basic_string<Char> name) {
    auto const both_separators = [](Char left, Char right) {
        return left == separator<Char> && right == separator<Char>;
    };
    name.erase(std::unique(name.begin(), name.end(), both_separators), name.end());
    if (name.size() > 1 && name.back() == separator<Char>)
        name.pop_back();
    return name;
}

template <class Char>
std::basic_string<Char> joined(std::basic_string<Char> first, std::basic_string_view<Char> second) {
    if (first.empty())
        return std::basic_string<Char>(second);
    second.remove_prefix(std::min(second.find_first_not_of(separator<Char>), second.size()));
    if (second.empty())
        return first;
    first.resize(without_trailing_separators<Char>(first).size());
    first += separator<Char>;
    first += second;
    return first;
}

template <class Char>
std::basic_string_view<Char> last_component(std::basic_string_view<Char> name) noexcept {
    name = without_trailing_separators(name);
    return name.substr(name.find_last_of(separator<Char>) + 1);
}

template <class Char>
std::basic_string_view<Char> without_last_component(std::basic_string_view<Char> name) noexcept {
    name = without_trailing_separators(name);
    auto const end = name.find_last_of(separator<Char>);
    if (end == name.npos)
        return {};
    auto const parent = without_trailing_separators(name.substr(0, end));
    return parent.empty() ? name.substr(0, 1) : parent;
}

/// Where the extension begins in a last component, or its length if there is none.
template <class Char>
std::size_t extension_start(std::basic_string_view<Char> component) noexcept {
    bool const is_parent = component.size() == 2 && component[0] == Char('.') && component[1] == Char('.');
    auto const dot = component.rfind(Char('.'));
    return is_parent || dot == component.npos || dot == 0 ? component.size() : dot;
}

/// Without empty components, ".", and ".." where it has a component before it to cancel.
template <class Char>
std::vector<std::basic_string_view<Char>> resolved_components(std::basic_string_view<Char> name) {
    static constexpr Char dots[] = {Char('.'), Char('.')};
    static constexpr std::basic_string_view<Char> parent(dots, 2);
    bool const absolute = !name.empty() && name.front() == separator<Char>;
    std::vector<std::basic_string_view<Char>> result;
    while (!name.empty()) {
        auto const component = name.substr(0, name.find(separator<Char>));
        name.remove_prefix(std::min(component.size() + 1, name.size()));
        if (component.empty() || component == parent.substr(1))
            continue;
        bool const leads_up = component == parent;
        if (leads_up && !result.empty() && result.back() != parent)
            result.pop_back();
        else if (!leads_up || !absolute) // the root is its own parent
            result.push_back(component);
    }
    return result;
}

/// The native form with "." and ".." resolved as text.
template <class Char>
std::basic_string<Char> resolved_form(std::basic_string_view<Char> name) {
    std::basic_string<Char> result;
    if (name.empty())
        return result;
    if (name.front() == separator<Char>)
        result = separator<Char>;
    for (auto const component : resolved_components(name)) {
        if (!result.empty() && result.back() != separator<Char>)
            result += separator<Char>;
        result += component;
    }
    if (result.empty())
        result = Char('.');
    return result;
}

} // namespace fl::filesystem::detail
