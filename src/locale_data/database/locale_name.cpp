#include <fl/i18n/locale_name.hpp>

#include <utility>

namespace fl::i18n::lcmgmt {
namespace {

void append(std::string& text, char separator, std::string_view part) {
    text += separator;
    text += part;
}

/// An empty part leaves no separator behind: what is rendered can be parsed again.
void append_unless_empty(std::string& text, char separator, std::string_view part) {
    if (!part.empty())
        append(text, separator, part);
}

void append_each(std::string& text, char separator, std::vector<std::string> const& parts) {
    for (std::string const& part : parts)
        append(text, separator, part);
}

} // namespace

language_extension_context::language_extension_context(char singleton_key, std::string text)
    : singleton(singleton_key),
      extension(std::move(text)) {}

locale_name_element::locale_name_element(std::string language_name, std::string script_name,
                                         std::string region_name, std::string encoding_name)
    : language(std::move(language_name)),
      script(std::move(script_name)),
      region(std::move(region_name)),
      encoding(std::move(encoding_name)) {}

std::string locale_name_element::language_name_without_script() const {
    return language;
}

std::string locale_name_element::language_name_with_script() const {
    std::string name = language;
    append_unless_empty(name, '-', script);
    return name;
}

std::string locale_name_element::short_locale_name_without_script() const {
    std::string name = language;
    append_unless_empty(name, '_', region);
    return name;
}

std::string locale_name_element::short_locale_name() const {
    std::string name = language_name_with_script();
    append_unless_empty(name, '_', region);
    return name;
}

std::string locale_name_element::locale_name() const {
    std::string name = short_locale_name();
    append_unless_empty(name, '.', encoding);
    return name;
}

std::string locale_name_element::full_locale_name() const {
    std::string name = locale_name();
    append_each(name, '@', modifier_list);
    return name;
}

std::string locale_name_element::modifiers() const {
    std::string text;
    append_each(text, '@', modifier_list);
    return text;
}

std::string locale_name_element::variants() const {
    std::string text;
    append_each(text, '-', variant_list);
    return text;
}

std::string locale_name_element::language_tag() const {
    std::string tag = language_name_with_script();
    append_unless_empty(tag, '-', region);
    append_each(tag, '-', variant_list);
    for (language_extension_context const& extension : extension_list) {
        append(tag, '-', {&extension.singleton, 1});
        append(tag, '-', extension.extension);
    }
    if (!private_use_list.empty()) {
        append(tag, '-', private_use_prefix);
        append_each(tag, '-', private_use_list);
    }
    return tag;
}

} // namespace fl::i18n::lcmgmt
