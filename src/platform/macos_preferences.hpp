/// The user's preferences on macOS, as CoreFoundation keeps them.
///
/// Each read gives an empty text where the preference is absent, of another type than expected, or not to be
/// had.
#pragma once

#include <string>
#include <vector>

namespace fl::platform {

/// The canonical form of "AppleLocale" (`CFLocaleCreateCanonicalLocaleIdentifierFromString`).
std::string preferred_locale();

/// The first of "AppleLanguages" for all applications of the user, on any host.
std::string preferred_language();

/// The first of "AppleLanguages" as this application sees it.
std::string preferred_application_language();

/// Stores the list as "AppleLanguages" of this application, and writes it out. Nothing is stored unless all
/// names are ASCII.
void store_preferred_application_languages(std::vector<std::string> const& languages);

} // namespace fl::platform
