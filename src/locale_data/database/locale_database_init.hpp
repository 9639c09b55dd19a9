/// Fills the maps of a database from the built-in tables.
#pragma once

#include <fl/i18n/locale_database.hpp>

namespace fl::i18n::lcmgmt {

/// Later rows of one key win over earlier ones, except in the language map, which keeps them all in order.
/// What was loaded before an exception stays.
void init_database_context(locale_database_context& context);

} // namespace fl::i18n::lcmgmt
