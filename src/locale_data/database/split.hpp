/// Cutting a text at a separator.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace fl::i18n::lcmgmt {

/// The pieces between separators, empty ones included: an empty text is one empty piece.
inline std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    for (;;) {
        std::size_t const end = text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

} // namespace fl::i18n::lcmgmt
