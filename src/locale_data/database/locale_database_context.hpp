/// What several of the operations that change a database begin with.
#pragma once

#include <fl/i18n/locale_database.hpp>

#include <memory>
#include <string>
#include <string_view>

namespace fl::i18n::lcmgmt {

using encoding_entry = std::shared_ptr<encoding_entry_context>;

/// The locale key under which values of a locale are filed. What resolves to a known locale is filed under
/// that one's canonical name; a name that doesn't resolve is entered as a locale.
std::string writable_locale_key(locale_database_context& context, std::string_view locale);

/// The entry that a name leads to; a new one with this standard name if there is none. The reference lives as
/// long as the key.
encoding_entry const& find_or_create_encoding(locale_database_context& context, std::string_view name);

} // namespace fl::i18n::lcmgmt
