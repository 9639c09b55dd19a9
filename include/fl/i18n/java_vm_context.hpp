/// @file
/// Language settings for a Java virtual machine in this process.
///
/// A host that starts a virtual machine after `initialize` passes these on as system properties, so that
/// both sides speak the same language:
///
///     auto const java = fl::i18n::get_javavm_init_context();
///     option("-Duser.language=" + java.language);
///     if (!java.display_language.empty())
///         option("-Duser.language.display=" + java.display_language);
#pragma once

#include <fl/i18n/export.hpp>

#include <string>

namespace fl::i18n {

/// Settings for a Java virtual machine. The optional ones are empty where the machine's own rule, to take
/// `language` and `region`, is right.
struct javavm_init_context {
    std::string language;         ///< of the system's locale, by its messages: "de", "sr-Latn"
    std::string region;           ///< of the same locale: "AT", or empty
    std::string display_language; ///< of the global locale's messages; empty while messages may be localised
    std::string display_region;   ///< goes with `display_language`
    std::string format_language;  ///< of the global locale's category ctype, where it says something new
    std::string format_region;    ///< goes with `format_language`
    std::string encoding;         ///< of the global locale, by its Java name: "UTF-8", "MS932"
};

/// The settings for the locales of this moment. The display pair is filled once
/// `get_l10n_resource_status()` is false; the format pair then too, and where it differs from `language` and
/// `region`. Thread-safe; the several questions it asks are not one step, so call it while nobody changes the
/// global locale.
[[nodiscard]] FL_I18N_EXPORT javavm_init_context get_javavm_init_context();

} // namespace fl::i18n
