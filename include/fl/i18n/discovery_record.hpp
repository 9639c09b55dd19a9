/// @file
/// What start-up found out about the user's system, and what it decided from it.
///
/// One `locale_context` belongs to the process-wide context and is filled once, by the discovery of
/// <fl/i18n/locale_discovery.hpp>; afterwards only its localisation control and the target of LC_MESSAGES
/// change. It is a plain record, so that a tool or a test may fill one of its own and look at what the parts
/// of discovery make of it:
///
///     fl::i18n::lcmgmt::locale_context found;
///     found.env_target[7] = "de_DE.UTF-8";                 // LANG
///     fl::i18n::lcmgmt::redefine_xpg_locale_env(found);    // the other seven are now unset
///
/// All texts are narrow: names as the system gave them, in ASCII wherever the system keeps its own rules.
/// Arrays by category have the order of `QnLocale::LcCategory`: ctype, collate, time, numeric, monetary,
/// messages. Thread-compatible.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace fl::i18n::lcmgmt {

/// The findings and decisions of one start-up.
struct locale_context {
    /// The library's environment variables, those that are set and not empty, as they stood when the context
    /// was built. Everything that asks for them reads here.
    std::map<std::string, std::string> snapshot;

    /// @name The user's preferences, empty where the system has none
    /// @{
    std::string NativeLocaleUser;   ///< locale, in the system's canonical form
    std::string NativeLanguageUser; ///< first preferred language for all applications
    std::string NativeLanguageAppl; ///< first preferred language for this application
    /// @}

    std::string Encoding; ///< of the locale chosen: "UTF-8" once discovery has run

    /// @name What `setlocale(category, "")` made of the environment, as `setlocale(category, NULL)` tells it
    /// @{
    std::string XpgLcCtype;
    std::string XpgLcCollate;
    std::string XpgLcTime;
    std::string XpgLcNumeric;
    std::string XpgLcMonetary;
    std::string XpgLcMessages;
    /// @}

    /// @name What `setlocale(category, NULL)` told before that
    /// @{
    std::string InitialXpgLcCtype;
    std::string InitialXpgLcCollate;
    std::string InitialXpgLcTime;
    std::string InitialXpgLcNumeric;
    std::string InitialXpgLcMonetary;
    std::string InitialXpgLcMessages;
    /// @}

    /// @name The environment on entry, empty for a variable that is unset
    /// @{
    std::string XpgEnvLcCtype;
    std::string XpgEnvLcCollate;
    std::string XpgEnvLcTime;
    std::string XpgEnvLcNumeric;
    std::string XpgEnvLcMonetary;
    std::string XpgEnvLcMessages;
    std::string XpgEnvLcAll;
    std::string XpgEnvLang;
    /// @}

    /// `nl_langinfo(CODESET)` once `setlocale(category, "")` has been called: the encoding of the terminal.
    std::string XpgEncoding;

    /// 0 once the user's locale has turned out to be unusable.
    std::int32_t user_locale_valid = 1;

    /// Name and modifier of each category, and the encodings, as they go into the system locale object.
    /// @{
    std::array<std::pair<std::string, std::string>, 6> category_decisions;
    std::string decided_encoding;
    std::string decided_terminal_encoding;
    /// @}

    /// @name The C library's locale
    /// @{
    bool single_name = true;                 ///< all categories follow `xpg_all`
    std::string xpg_all;                     ///< XPG name for all categories
    std::array<std::string, 6> xpg_category; ///< XPG name of a category, empty where `xpg_all` holds
    /// New values of LC_CTYPE, LC_COLLATE, LC_TIME, LC_NUMERIC, LC_MONETARY, LC_MESSAGES, LC_ALL and LANG, in
    /// this order; the variable of an empty one is unset.
    std::array<std::string, 8> env_target;
    /// @}

    std::vector<std::string> error_events; ///< what went wrong, one text each

    /// Whether messages are translated: 0 not specified, 1 on, 2 off.
    std::int32_t l10n_control = 0;
};

} // namespace fl::i18n::lcmgmt
