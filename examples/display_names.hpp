/// The real texts of the demo: ICU's names of countries and languages, in the locales listed here.
#pragma once

#include <string>
#include <vector>

namespace demo {

/// A translation: the directory that its catalogs lie in, and a locale for which they answer.
struct translation {
    char const* directory;
    char const* locale;
};

/// The locales of the generated catalogs.
std::vector<translation> const& translations();

/// One message: its key and its text.
struct message {
    std::string key;
    std::u16string text;
};

/// The names of all ISO 3166 countries in a language; keys are the country codes ("DE").
std::vector<message> country_names(std::string const& language);

/// The names of all ISO 639 languages in a language; keys are the language codes ("de").
std::vector<message> language_names(std::string const& language);

} // namespace demo
