/// @file
/// Questions about locale and encoding names that need no locale object.
///
/// The encoding functions ask the locale database of the process (<fl/i18n/locale_context.hpp>), so they know
/// what an installed XML database added to the built-in encodings. Names of encodings compare without ASCII
/// case.
///
///     using fl::i18n::lcmgmt::LcData;
///     LcData::extract_short_name("de_AT.UTF-8@euro"); // "de_AT"
///     LcData::getEncodingFromAlias("sjis");           // "Shift_JIS"
///     LcData::getQnStandardEncodingName("no-such");   // ""
#pragma once

#include <fl/i18n/export.hpp>

#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

/// Look-ups on the process-wide locale database, and the text rule for short names.
class FL_I18N_EXPORT LcData {
public:
    /// The text before the first "." or "@": a locale name without encoding and modifiers. Nothing is
    /// checked; a text that has neither character is returned whole.
    static std::string extract_short_name(std::string_view name);

    /// True if the name or alias of an encoding is known. An empty name isn't.
    static bool checkEncoding(std::string_view name);

    /// The standard name of an encoding; the text as given if it is unknown.
    static std::string getEncodingFromAlias(std::string_view name);

    /// The standard name of an encoding; empty if it is unknown.
    static std::string getQnStandardEncodingName(std::string_view name);
};

} // namespace fl::i18n::lcmgmt
