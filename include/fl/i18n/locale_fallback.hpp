/// @file
/// The names under which a locale's resources are looked for, in order.
///
/// A resource of locale "de_AT" may exist for "de_AT", for "de" only, or just in the product's own language.
/// A fallback list holds these names from the most specific to the fallback; a caller takes the first under
/// which something is found:
///
///     for (ustring const& name : get_fallback_locales(QnLocale::global())) // "de_AT", "de", "en"
///         if (exists(directory_of(name)))
///             return directory_of(name);
///
/// The rule: the name (also an empty one), then the name up to its last "_" if it has one, then the fallback
/// unless the list's last element is already equal to it. There is one cut only ("en_US_POSIX" gives "en_US"
/// and no "en"), and "-" is no place to cut. Comparison is exact, and looks at the last element alone.
///
/// Thread-safe.
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/ustring.hpp>

#include <string>
#include <vector>

namespace fl::i18n {

class QnLocale;

/// Appends the names for `name` to `list`; what `list` holds already stays, and doesn't count as its last
/// element, since `name` is always appended.
/// @{
FL_I18N_EXPORT void make_locale_fallback_list(std::vector<std::string>& list, std::string const& name,
                                              std::string const& fallback);
FL_I18N_EXPORT void make_locale_fallback_list(std::vector<ustring>& list, ustring const& name,
                                              ustring const& fallback);
/// @}

/// The same for the locale's name of category messages. In the form for `ustring` each byte of the name
/// becomes one code unit.
/// @{
FL_I18N_EXPORT void make_locale_fallback_list(std::vector<std::string>& list, QnLocale const& locale,
                                              std::string const& fallback);
FL_I18N_EXPORT void make_locale_fallback_list(std::vector<ustring>& list, QnLocale const& locale,
                                              ustring const& fallback);
/// @}

/// The list for the locale's messages that ends with the language of `QnLocale::classic()`, "en".
[[nodiscard]] FL_I18N_EXPORT std::vector<ustring> get_fallback_locales(QnLocale const& locale);

/// The list for the locale's messages that ends with "", which stands for resources without a locale.
[[nodiscard]] FL_I18N_EXPORT std::vector<ustring>
get_fallback_locales_with_empty_default(QnLocale const& locale);

} // namespace fl::i18n
