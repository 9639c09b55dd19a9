/// Locales with a facet that writes or reads times.
///
/// Making a facet takes longer than writing a time with it, and some forty times as long as reading one, as
/// it builds search trees of all names. So each thread keeps the locales that it has made.
#pragma once

#include <fl/i18n/std_locale.hpp>

#include <locale>
#include <string>

namespace fl::i18n::detail {

inline constexpr char utc_stamp_format[] = "%Y-%m-%dT%H:%M:%SZ";

/// A new locale with a facet for the format, of whichever type the facet takes it.
template <class Facet, class Format>
std::locale make_locale(Format const& format) {
    return std::locale(facet::get_global_std_locale(), new Facet(format));
}

template <class Facet>
std::locale const& utc_stamp_locale() {
    thread_local std::locale const locale = make_locale<Facet>(utc_stamp_format);
    return locale;
}

/// The locale for a format, which `key` stands for. Kept until another one is asked for.
template <class Facet, class Format>
std::locale const& locale_for(std::string const& key, Format const& format) {
    thread_local std::string last_key;
    thread_local std::locale last_locale;
    if (key != last_key) {
        std::string copy = key; // whatever fails leaves both as they were
        last_locale = make_locale<Facet>(format);
        last_key.swap(copy);
    }
    return last_locale;
}

} // namespace fl::i18n::detail
