#include "support/ascii.hpp"
#include "support/once_value.hpp"

#include <fl/i18n/locale.hpp>
#include <fl/i18n/locale_fallback.hpp>

namespace fl::i18n {

namespace {

template <class String>
void append_fallback_list(std::vector<String>& list, String const& name, String const& fallback) {
    // The arguments may be elements of the list, which an append moves.
    String const last = fallback; // NOLINT(performance-unnecessary-copy-initialization)
    list.push_back(String(name));
    typename String::size_type const cut = list.back().rfind('_');
    if (cut != String::npos)
        list.push_back(list.back().substr(0, cut));
    if (list.back() != last)
        list.push_back(last);
}

ustring const& classic_language() {
    constinit static support::once_value<ustring> language;
    return language.get([] {
        return support::widened(
            QnLocale::classic().language(QnLocale::messages, QnLocale::language_with_script));
    });
}

} // namespace

void make_locale_fallback_list(std::vector<std::string>& list, std::string const& name,
                               std::string const& fallback) {
    append_fallback_list(list, name, fallback);
}

void make_locale_fallback_list(std::vector<ustring>& list, ustring const& name, ustring const& fallback) {
    append_fallback_list(list, name, fallback);
}

void make_locale_fallback_list(std::vector<std::string>& list, QnLocale const& locale,
                               std::string const& fallback) {
    append_fallback_list(list, locale.shortName(QnLocale::messages), fallback);
}

void make_locale_fallback_list(std::vector<ustring>& list, QnLocale const& locale, ustring const& fallback) {
    append_fallback_list(list, support::widened(locale.shortName(QnLocale::messages)), fallback);
}

std::vector<ustring> get_fallback_locales(QnLocale const& locale) {
    std::vector<ustring> list;
    make_locale_fallback_list(list, locale, classic_language());
    return list;
}

std::vector<ustring> get_fallback_locales_with_empty_default(QnLocale const& locale) {
    std::vector<ustring> list;
    make_locale_fallback_list(list, locale, ustring());
    return list;
}

} // namespace fl::i18n
