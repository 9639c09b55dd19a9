// The parser of locale names, which takes the three forms by one grammar.
#include <fl/i18n/locale_name.hpp>

#include <cstddef>
#include <optional>

namespace fl::i18n::lcmgmt {
namespace {

constexpr std::string_view delimiters = "-_";

/// The pieces between separators, empty ones included: an empty text is one empty piece.
std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> pieces;
    for (;;) {
        std::size_t const end = text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

/// The text behind the first separator, cut off `text` together with it; a null view if there is no
/// separator.
std::string_view cut_behind(std::string_view& text, char separator) {
    std::size_t const place = text.find(separator);
    if (place == std::string_view::npos)
        return {};
    std::string_view const behind = text.substr(place + 1);
    text = text.substr(0, place);
    return behind;
}

/// The subtags behind the language:
///
///     subtags = *(separator subtag)        ; the last one has at least two characters
///     subtag  = region / script / variant / singleton separator extension
class subtag_reader {
public:
    explicit subtag_reader(locale_name_element& element) noexcept : element_(element) {}

    bool read(std::string_view subtag) {
        if (subtag.size() == 1)
            return open_extension(subtag.front());
        return singleton_ ? read_extension(subtag) : read_plain(subtag);
    }

private:
    bool open_extension(char character) {
        if (singleton_ || !is_valid_singleton(character))
            return false;
        singleton_ = character;
        return true;
    }

    bool read_extension(std::string_view subtag) {
        if (!is_valid_extension(subtag))
            return false;
        element_.extension_list.emplace_back(*singleton_, std::string(subtag));
        singleton_.reset();
        return true;
    }

    bool read_plain(std::string_view subtag) {
        if (is_valid_region_name(subtag) || is_valid_area_code(subtag))
            element_.region = subtag;
        else if (is_valid_script_name(subtag))
            element_.script = subtag;
        else if (is_valid_variant(subtag))
            element_.variant_list.emplace_back(subtag);
        else
            return false;
        return true;
    }

    locale_name_element& element_;
    std::optional<char> singleton_;
};

/// private-use = "-x-" piece *("-" piece)
///
/// Cuts the private-use part off the tag. A lower-case marker wins over an upper-case one before it.
bool take_private_use(locale_name_element& element, std::string_view& tag) {
    std::size_t marker = tag.find("-x-");
    if (marker == std::string_view::npos)
        marker = tag.find("-X-");
    if (marker == std::string_view::npos)
        return true;
    element.private_use_list = split(tag.substr(marker + 3), '-');
    if (!is_valid_private_use_list(element.private_use_list))
        return false;
    element.private_use_prefix = tag[marker + 1];
    tag = tag.substr(0, marker);
    return true;
}

/// `rest` begins behind the separator that follows the language.
bool read_subtags(locale_name_element& element, std::string_view rest) {
    subtag_reader reader(element);
    for (std::size_t end; (end = rest.find_first_of(delimiters)) != std::string_view::npos;) {
        if (!reader.read(rest.substr(0, end)))
            return false;
        rest.remove_prefix(end + 1);
    }
    return rest.size() >= 2 && reader.read(rest);
}

} // namespace

/// tag = language [separator subtags] [private-use]        ; separator = "-" / "_"
bool decompose_language_tag(locale_name_element& element, std::string_view tag) {
    if (!take_private_use(element, tag))
        return false;
    std::size_t const end = tag.find_first_of(delimiters);
    std::string_view const language = tag.substr(0, end);
    if (!is_valid_language_name(language))
        return false;
    element.language = language;
    return end == std::string_view::npos || read_subtags(element, tag.substr(end + 1));
}

std::string_view extract_short_name(std::string_view name) noexcept {
    return name.substr(0, name.find_first_of(".@"));
}

/// name = tag ["." encoding] *("@" modifier)
locale_name_element decompose_locale_name(std::string_view name) {
    locale_name_element element;
    if (std::string_view const modifiers = cut_behind(name, '@'); modifiers.data())
        element.modifier_list = split(modifiers, '@');
    element.encoding = cut_behind(name, '.');
    if (!decompose_language_tag(element, name))
        return {};
    return element;
}

} // namespace fl::i18n::lcmgmt
