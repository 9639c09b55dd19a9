/// A locale name given by a caller, taken apart and checked against the database.
#pragma once

#include <fl/i18n/locale_name.hpp>

#include <string>

namespace fl::i18n::lcmgmt {

class locale_database;

struct resolved_locale_setting {
    std::string short_name;      // canonical
    std::string encoding;        // standard name in the database
    std::string modifier;        // with its signs, "@euro"
    locale_name_element element; // the name as it was given, taken apart
};

/// Looks `name` up whole, so an alias of the database is known only without encoding and modifiers. Throws
/// `QnLcInvLcArgument` for an empty name, `QnLcInvLcName` for an unknown name or encoding part.
resolved_locale_setting resolve_locale_setting(locale_database const& database, std::string const& name);

/// The standard name of an encoding that both ICU and the database know; otherwise throws `QnLcInvLcName`.
std::string checked_encoding_name(locale_database const& database, std::string const& encoding);

} // namespace fl::i18n::lcmgmt
