/// What the steps of discovery share: the steps themselves, and the six categories and eight variables of the
/// C library with the members of the record that belong to them.
#pragma once

#include <fl/i18n/discovery_record.hpp>

#include <array>
#include <clocale>
#include <cstddef>
#include <cstdint>

namespace fl::i18n::lcmgmt {

class locale_database;

/// The values of `locale_context::l10n_control`: whether messages are translated.
enum : std::int32_t { l10n_unspecified = 0, l10n_on = 1, l10n_off = 2 };

/// First step: what the system says, as it is. Reads preferences, C library locale and environment into the
/// record. Afterwards the C library is in the locale that the environment names, as far as that exists.
void capture_system(locale_context& found);

/// Second step: which locale this shall be, and which names and variables of the C library. Decides from what
/// `capture_system` has found, and writes into the same record. Returns whether the user's locale is usable;
/// if not, the record holds the built-in locale.
bool decide_locale(locale_context& found, locale_database const& database);

/// An entry in the record, and the name under which it is reported.
struct record_field {
    char const* name;
    std::string locale_context::*member;
};

struct category_fields {
    int c_category;
    record_field initial; ///< before the environment was asked
    record_field current; ///< as the environment wants it
};

/// In the order of `QnLocale::LcCategory`.
inline constexpr std::array<category_fields, 6> category_table = {{
    {LC_CTYPE,
     {"InitialXpgLcCtype", &locale_context::InitialXpgLcCtype},
     {"XpgLcCtype", &locale_context::XpgLcCtype}},
    {LC_COLLATE,
     {"InitialXpgLcCollate", &locale_context::InitialXpgLcCollate},
     {"XpgLcCollate", &locale_context::XpgLcCollate}},
    {LC_TIME,
     {"InitialXpgLcTime", &locale_context::InitialXpgLcTime},
     {"XpgLcTime", &locale_context::XpgLcTime}},
    {LC_NUMERIC,
     {"InitialXpgLcNumeric", &locale_context::InitialXpgLcNumeric},
     {"XpgLcNumeric", &locale_context::XpgLcNumeric}},
    {LC_MONETARY,
     {"InitialXpgLcMonetary", &locale_context::InitialXpgLcMonetary},
     {"XpgLcMonetary", &locale_context::XpgLcMonetary}},
    {LC_MESSAGES,
     {"InitialXpgLcMessages", &locale_context::InitialXpgLcMessages},
     {"XpgLcMessages", &locale_context::XpgLcMessages}},
}};

struct variable_fields {
    char const* variable;
    record_field on_entry;
};

/// The variables of the six categories in the same order, then these two.
inline constexpr std::array<variable_fields, 8> variable_table = {{
    {"LC_CTYPE", {"XpgEnvLcCtype", &locale_context::XpgEnvLcCtype}},
    {"LC_COLLATE", {"XpgEnvLcCollate", &locale_context::XpgEnvLcCollate}},
    {"LC_TIME", {"XpgEnvLcTime", &locale_context::XpgEnvLcTime}},
    {"LC_NUMERIC", {"XpgEnvLcNumeric", &locale_context::XpgEnvLcNumeric}},
    {"LC_MONETARY", {"XpgEnvLcMonetary", &locale_context::XpgEnvLcMonetary}},
    {"LC_MESSAGES", {"XpgEnvLcMessages", &locale_context::XpgEnvLcMessages}},
    {"LC_ALL", {"XpgEnvLcAll", &locale_context::XpgEnvLcAll}},
    {"LANG", {"XpgEnvLang", &locale_context::XpgEnvLang}},
}};

/// Places in `variable_table` and in the arrays of the record.
enum : std::size_t {
    place_ctype = 0,
    place_numeric = 3,
    place_messages = 5,
    place_lang = 7,
};

} // namespace fl::i18n::lcmgmt
