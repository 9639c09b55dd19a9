/// @file
/// How the text of an entry in a catalog file becomes a message: its lines are folded into one.
///
///     detail::MessageCatalogTextProcessor text;
///     for (std::string_view const chunk : {"  Total:", "\n", "   {0} Euro"})
///         text.add_chunk(chunk);
///     text.extract_complete_message(); // "Total: {0} Euro"
///
/// An object serves one thread.
#pragma once

#include <fl/i18n/export.hpp>

#include <cstddef>
#include <string>
#include <string_view>

namespace fl::i18n::detail {

/// Folds the text of an entry: each line is trimmed at both ends, empty lines vanish, and the others are
/// joined with one blank each.
///
/// Text comes in chunks, and a line ends with the chunk that holds a line feed, form feed or carriage return.
/// Breaks are expected to come as chunks of their own, as the XML parser delivers them; one in the middle of
/// a chunk stays in the text. White space is blank, tab, line feed, vertical tab, form feed and carriage
/// return. The cost is linear in the length of the text, however it is cut.
class FL_I18N_EXPORT MessageCatalogTextProcessor {
public:
    /// Appends a chunk; an empty one changes nothing.
    void add_chunk(std::string_view chunk);

    /// Ends the text and returns it; the processor is then empty, ready for the next one.
    std::string extract_complete_message();

    /// As `extract_complete_message`, into a string whose storage is reused.
    void extract_complete_message(std::string& message);

private:
    void fold_pending();

    std::string pending_;
    std::string complete_;
    std::ptrdiff_t searched_ = 0; // bytes of the pending text that are known to hold no break
};

} // namespace fl::i18n::detail
