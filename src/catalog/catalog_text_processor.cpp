#include <fl/i18n/catalog_text_processor.hpp>

#include <algorithm>

namespace fl::i18n::detail {
namespace {

/// Blank, tab, line feed, vertical tab, form feed, carriage return.
constexpr bool is_white_space(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// A vertical tab ends no line.
constexpr bool is_line_break(char c) noexcept {
    return c == '\n' || c == '\f' || c == '\r';
}

std::string_view trimmed(std::string_view text) noexcept {
    while (!text.empty() && is_white_space(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && is_white_space(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

// Each byte is searched for a break once, and only when it matters: when more text follows it. The complete
// text never has white space at its ends, so it is only appended to.

void MessageCatalogTextProcessor::add_chunk(std::string_view chunk) {
    if (chunk.empty())
        return;
    if (std::any_of(pending_.begin() + searched_, pending_.end(), is_line_break))
        fold_pending();
    searched_ = static_cast<std::ptrdiff_t>(pending_.size());
    pending_.append(chunk);
}

void MessageCatalogTextProcessor::fold_pending() {
    if (std::string_view const line = trimmed(pending_); !line.empty()) {
        if (!complete_.empty())
            complete_ += ' ';
        complete_.append(line);
    }
    pending_.clear();
    searched_ = 0;
}

std::string MessageCatalogTextProcessor::extract_complete_message() {
    std::string message;
    extract_complete_message(message);
    return message;
}

void MessageCatalogTextProcessor::extract_complete_message(std::string& message) {
    fold_pending();
    message.swap(complete_);
    complete_.clear();
}

} // namespace fl::i18n::detail
