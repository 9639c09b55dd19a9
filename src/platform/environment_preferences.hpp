/// The user's locale and language as the POSIX environment tells them, for systems that keep no preferences
/// elsewhere.
///
/// Both come without the ".codeset" of the variable and with its "@modifier": "de_AT.UTF-8@euro" is read as
/// "de_AT@euro". They are empty if no variable says anything. The environment must not change meanwhile.
#pragma once

#include <string>

namespace fl::platform {

/// The first of LC_ALL and LANG that is set and not empty.
std::string locale_of_environment();

/// The first item of the list LANGUAGE; where that is missing the first of LC_ALL, LC_MESSAGES and LANG.
/// LANGUAGE does not count while these three give "C", "POSIX" or nothing, as with gettext; also for
/// "C.UTF-8", where gettext would use it.
std::string language_of_environment();

} // namespace fl::platform
