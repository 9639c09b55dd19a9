/// @file
/// Locale names as text, and the record that they are parsed into.
///
/// A locale is written in one of three forms, and one parser reads them all:
///
///     XPG form    language_region.encoding@modifier        "en_US.UTF-8@euro"
///     short form  language-script_region                   "sr-Latn_BA"
///     tag form    language-script-region-variant-...       "zh-Hant-TW", "de-a-bc-x-priv"
///
/// Behind the language, "-" and "_" mean the same. Parsing looks at the form only: whether a well-formed name
/// stands for a known locale is for `get_language_context` (<fl/i18n/language_context.hpp>) to say. Letter
/// case is kept as written; all classes of characters are ASCII, and a byte above 0x7F belongs to none.
///
///     auto const name = fl::i18n::lcmgmt::decompose_locale_name("sr_Latn_BA.UTF-8@euro");
///     name.short_locale_name(); // "sr-Latn_BA"
///     name.language_tag();      // "sr-Latn-BA"
///     name.modifiers();         // "@euro"
///
/// Everything here is stateless and may be called from any thread.
#pragma once

#include <fl/i18n/export.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace fl::i18n::lcmgmt {

/// One extension of a language tag: in "de-a-bc", the singleton 'a' with the text "bc".
struct FL_I18N_EXPORT language_extension_context {
    language_extension_context(char singleton, std::string extension);

    char singleton;
    std::string extension;
};

/// A locale name in its parts. An element with an empty `language` is the empty element: no locale name.
struct FL_I18N_EXPORT locale_name_element {
    locale_name_element() = default;

    /// Leaves the lists empty; the texts are taken as they are, without a check.
    locale_name_element(std::string language, std::string script, std::string region, std::string encoding);

    std::string language;                                   ///< 2 or 3 letters
    std::string script;                                     ///< 4 letters, or empty
    std::string region;                                     ///< 2 letters or 3 digits, or empty
    std::string encoding;                                   ///< what follows the first ".", unchecked
    std::vector<std::string> modifier_list;                 ///< the pieces behind each "@", unchecked
    std::vector<std::string> variant_list;                  ///< in order of appearance
    std::vector<language_extension_context> extension_list; ///< in order of appearance
    std::string private_use_prefix;                         ///< "x" or "X" as written, or empty
    std::vector<std::string> private_use_list;              ///< the subtags behind the prefix

    /// The language alone: "sr".
    [[nodiscard]] std::string language_name_without_script() const;
    /// Language and script: "sr-Latn".
    [[nodiscard]] std::string language_name_with_script() const;
    /// Language and region: "sr_BA".
    [[nodiscard]] std::string short_locale_name_without_script() const;
    /// Language, script and region, the key of a locale throughout the library: "sr-Latn_BA".
    [[nodiscard]] std::string short_locale_name() const;
    /// `short_locale_name()` and the encoding: "sr-Latn_BA.UTF-8".
    [[nodiscard]] std::string locale_name() const;
    /// `locale_name()` and `modifiers()`. Variants, extensions and private-use subtags aren't part of it.
    [[nodiscard]] std::string full_locale_name() const;
    /// Each modifier with an "@" before it: "@euro@phonebook".
    [[nodiscard]] std::string modifiers() const;
    /// Each variant with a "-" before it: "-POSIX".
    [[nodiscard]] std::string variants() const;
    /// The language tag, joined by "-" throughout: "de-AT-1996x-a-bc-x-priv". Encoding and modifiers aren't
    /// part of it.
    [[nodiscard]] std::string language_tag() const;
};

/// Two or three letters.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_language_name(std::string_view text) noexcept;
/// Four letters.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_script_name(std::string_view text) noexcept;
/// Two letters. Numeric regions are for `is_valid_area_code`.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_region_name(std::string_view text) noexcept;
/// Three digits, the form of a UN M.49 area.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_area_code(std::string_view text) noexcept;
/// Five to eight letters or digits.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_variant(std::string_view text) noexcept;
/// One letter or digit, but neither 'x' nor 'X', which open the private-use part.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_singleton(char character) noexcept;
/// Two to eight letters or digits.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_extension(std::string_view text) noexcept;
/// One to eight letters or digits.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_private_use(std::string_view text) noexcept;
/// True if every member is a valid private-use subtag, and so for an empty list.
[[nodiscard]] FL_I18N_EXPORT bool is_valid_private_use_list(std::vector<std::string> const& list) noexcept;

/// Parses a locale name of any of the three forms; the empty element if it isn't well formed.
///
/// The first "@" is looked for before the first ".": "de_DE@euro.UTF-8" has one modifier, "euro.UTF-8", and
/// no encoding. Modifiers keep empty pieces, so "en_US@" has a list of one empty text. "C" and "POSIX" aren't
/// well formed; `locale_database::get_locale_name` knows them. Takes time linear in the length of the name.
[[nodiscard]] FL_I18N_EXPORT locale_name_element decompose_locale_name(std::string_view name);

/// The text before the first "." or "@": a locale name without encoding and modifiers. Nothing is checked; a
/// text that has neither character is returned whole. A part of `name`, and valid as long as it is.
[[nodiscard]] FL_I18N_EXPORT std::string_view extract_short_name(std::string_view name) noexcept;

/// Parses the part of a name before encoding and modifiers into an element, and returns whether it is well
/// formed.
///
/// This is a narrower grammar than BCP 47: a singleton takes exactly one subtag, three-letter subtags behind
/// the language are refused, the order of script, region and variants is free, and a later script or region
/// replaces an earlier one. Private use begins at "-x-" or, if the tag has none, at "-X-"; "_x_" doesn't open
/// it.
///
/// `encoding` and `modifier_list` are left alone, and so are fields of which the tag says nothing: pass a
/// fresh element. On false the element holds whatever was read before the fault.
FL_I18N_EXPORT bool decompose_language_tag(locale_name_element& element, std::string_view tag);

} // namespace fl::i18n::lcmgmt
