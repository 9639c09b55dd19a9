/// Tables of test cases as one text: fields separated by blanks, "~" for an empty field.
#pragma once

#include <array>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace fl::testing {

template <std::size_t Columns>
std::vector<std::array<std::string, Columns>> rows(char const* text) {
    std::vector<std::array<std::string, Columns>> result;
    std::istringstream stream(text);
    std::size_t count = 0;
    for (std::string field; stream >> field; ++count) {
        if (count % Columns == 0)
            result.emplace_back();
        result.back()[count % Columns] = field == "~" ? "" : field;
    }
    if (count == 0 || count % Columns != 0)
        throw std::invalid_argument(text);
    return result;
}

} // namespace fl::testing
