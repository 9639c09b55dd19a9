/// Names that the C library really takes for a locale of the database.
///
/// Each of these calls `setlocale` for its candidates and leaves the C library in "C" if one was taken. The
/// result is empty where none is, and for an empty locale, of which the C library isn't asked.
#pragma once

#include <string>

namespace fl::i18n::lcmgmt {

class locale_database;

/// A name without an encoding, or the one that the system needs one for.
std::string tested_xpg_name(locale_database const& database, std::string const& locale);

/// A name with `encoding` if there is one, otherwise with "UTF-8" or without an encoding.
std::string tested_xpg_name(locale_database const& database, std::string const& locale,
                            std::string const& encoding);

} // namespace fl::i18n::lcmgmt
