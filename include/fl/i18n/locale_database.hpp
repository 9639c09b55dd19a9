/// @file
/// What the library knows about locales and encodings, in hash maps.
///
/// A `locale_database` begins with the built-in tables; an installation's corrections are written over them
/// before the first reader comes, so a map holds the merged truth and there is one value for each key. It
/// answers what a locale is properly called, which encoding goes with it, and what an encoding is called
/// elsewhere.
///
///     fl::i18n::lcmgmt::locale_database const database;
///     database.get_locale_name("iw");                 // "he_IL"
///     database.get_default_encoding_name("ja_JP");    // "Shift_JIS"
///     database.get_xpg_name("ja");                    // "ja_JP.SJIS"
///     database.get_jvm_encoding_name("SJIS");         // "MS932"
///
/// Two kinds of key exist. A locale key is a name in ASCII lower case with "-" for every "_", so that
/// "zh_TW", "ZH-tw" and "zh-tw" are one key. An encoding key is a name in ASCII lower case. Other bytes count
/// as they are.
///
/// A question without an answer gives an empty text, a null pointer or an empty record, never an exception.
/// Each `char const*` is NUL-terminated and stays valid as long as the database, whatever changes in it.
/// Thread-compatible: reading from several threads is safe once nothing writes any more.
///
/// The operations `modify_...` and `remove_...` change a database; its own texts are the only ones that they
/// keep. The database of the process is changed during start-up alone, from an installation's XML file
/// (<fl/i18n/lc_data_xml.hpp>).
#pragma once

#include <fl/i18n/export.hpp>
#include <fl/i18n/language_context.hpp>
#include <fl/i18n/locale_name.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace fl::i18n::lcmgmt {

/// The names of one encoding, shared by all keys that lead to it. Both texts are owned by somebody else: the
/// built-in tables, or the pool of the database.
struct encoding_entry_context {
    encoding_entry_context(char const* standard, char const* jvm) noexcept
        : standard_name(standard),
          jvm_name(jvm) {}

    char const* standard_name;
    char const* jvm_name; ///< null if a Java VM uses the standard name
};

/// The value of an option of one locale, as narrow and as UTF-16 text; either may be empty.
struct locale_optional_data {
    /// Option types: localised resources, or the user's locale, are switched off.
    static constexpr char const* disable_l10n = "disable_l10n";
    static constexpr char const* disable_user_locale = "disable_user_locale";

    locale_optional_data() = default;
    locale_optional_data(std::string narrow, ustring wide)
        : value(std::move(narrow)),
          wide_value(std::move(wide)) {}

    std::string value;
    ustring wide_value;
};

/// What the changing operations of a `locale_database` report.
namespace change_status {
inline constexpr int done = 0;           ///< changed, or as it should be already
inline constexpr int already_there = 1;  ///< the alias leads to that name as it is
inline constexpr int empty_argument = 2; ///< a required argument is empty; nothing has changed
inline constexpr int not_found = 3;      ///< there is no such entry to change or to remove
inline constexpr int refused = 4; ///< a canonical name is not removed, an unknown locale has no options
} // namespace change_status

/// The key of an option: the locale as it is given, ":", the option's type.
[[nodiscard]] FL_I18N_EXPORT std::string make_optional_data_key(std::string_view locale,
                                                                std::string_view type);

/// Lets the maps be searched by `std::string_view`, so that a look-up makes no string.
struct name_hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const noexcept {
        return std::hash<std::string_view>()(name);
    }
};

/// A hash map with narrow text as its key; its maximum load factor is the standard's default, 1.0.
template <class T>
using name_map = std::unordered_map<std::string, T, name_hash, std::equal_to<>>;

/// The maps behind a `locale_database`.
///
/// The texts that values point to are constant: they live in the built-in tables or in `character_data_map`,
/// which is never cleared. Movable; a copy would point into the pool of its original.
struct FL_I18N_EXPORT locale_database_context {
    /// The rows of a language by its lower-case name, in the order of the table. (A hash multimap promises no
    /// order for what is inserted under one key, and this order decides which row a name means.)
    name_map<std::vector<language_context>> language_map;
    name_map<unsigned short> script_map; ///< lower-case row of the script names, lists included, to its index
    name_map<unsigned short> region_map; ///< lower-case row of the region names, lists included, to its index
    name_map<std::shared_ptr<encoding_entry_context>> encoding_entry_map; ///< by encoding key, aliases too
    name_map<char const*> locale_map;                                     ///< locale key to canonical name
    name_map<char const*> region_locale_map;                              ///< locale key to locale name
    name_map<char const*> locale_encoding_map;                            ///< locale key to encoding name
    name_map<char const*> locale_xpg_name_map;                            ///< locale key to XPG name
    name_map<char const*> encoding_compat_map;        ///< encoding key to compatible encoding's name
    name_map<locale_optional_data> optional_data_map; ///< by `make_optional_data_key`
    name_map<std::unique_ptr<char const[]>> character_data_map; ///< the pool: a text to its owned copy

    /// The pooled, NUL-terminated copy of a text. Equal texts give the same pointer, which stays valid as
    /// long as the context.
    char const* store_character_data(std::string_view text);
};

/// The locale knowledge of a process, or of a caller who wants one of his own.
class FL_I18N_EXPORT locale_database {
public:
    /// Loads the built-in tables. If that fails with an exception derived from `std::exception`, the object
    /// holds what was loaded before, and `get_init_status()` tells; other exceptions pass.
    locale_database();
    ~locale_database();
    locale_database(locale_database const&) = delete;
    locale_database& operator=(locale_database const&) = delete;

    [[nodiscard]] locale_database_context const& get_locale_database_context() const noexcept {
        return context_;
    }

    /// 0, or 5 if loading failed; then the log is the text of what went wrong.
    [[nodiscard]] int get_init_status() const noexcept { return init_status_; }
    [[nodiscard]] std::string const& get_init_status_log() const noexcept { return init_status_log_; }

    /// @name Raw look-ups
    /// The value of one key in one map, null if it isn't there. The name is brought into the form of the
    /// map's keys and not interpreted any further.
    /// @{
    [[nodiscard]] char const* fetch_locale_map(std::string_view name) const;
    [[nodiscard]] char const* fetch_region_locale_map(std::string_view name) const;
    [[nodiscard]] char const* fetch_locale_encoding_map(std::string_view name) const;
    [[nodiscard]] char const*
    fetch_default_encoding_name(std::string_view name) const; ///< as `fetch_locale_encoding_map`
    [[nodiscard]] char const* fetch_locale_xpg_name_map(std::string_view name) const;
    [[nodiscard]] std::shared_ptr<encoding_entry_context>
    fetch_encoding_entry_map(std::string_view name) const;
    [[nodiscard]] char const* fetch_encoding_compat_map(std::string_view name) const;
    /// What the language data says about a name: `get_locale_name_element` on this database. No map is asked.
    [[nodiscard]] locale_name_element fetch_language_data_map(std::string_view name) const;
    /// @}

    /// The canonical name of a locale: the value in the locale map, or else the short name of what the
    /// language data finds. Empty for an unknown name: "de_AT.UTF-8@euro" gives "de_AT", "C" gives
    /// "en_US_POSIX", "xx_YY" gives "".
    [[nodiscard]] std::string get_locale_name(std::string_view name) const;

    /// The locale that a region's name leads to, or an empty text.
    [[nodiscard]] std::string get_region_locale_name(std::string_view name) const;

    /// The encoding that goes with a locale; null only for an empty name.
    ///
    /// A name that the locale map knows is replaced by its canonical name. Then the table of locale encodings
    /// is asked for the name, then for the name as the language data resolves it; then the encoding of the
    /// language data itself counts. "UTF-8" serves where all of these are silent, also for an unknown locale.
    [[nodiscard]] char const* get_default_encoding_name(std::string_view name) const;

    /// The XPG name of a locale, or of what `get_locale_name` makes of it; null if it has none.
    [[nodiscard]] char const* get_xpg_name(std::string_view name) const;

    /// The entry that a name or alias of an encoding leads to, or null. The entry is shared and
    /// may outlive its place in the map; its texts live as long as the database.
    [[nodiscard]] std::shared_ptr<encoding_entry_context> get_encoding_context(std::string_view name) const;

    /// The standard name of an encoding, null if it is unknown: "UTF8" gives "UTF-8".
    /// <fl/i18n/string_conversion.hpp> has a table of who else names encodings, and which to ask.
    [[nodiscard]] char const* get_standard_encoding_name(std::string_view name) const;

    /// The name that a Java VM has for an encoding, null if it is unknown: "Big5" gives "MS950", and
    /// "EUC-JP", which has no other name there, "EUC-JP".
    [[nodiscard]] char const* get_jvm_encoding_name(std::string_view name) const;

    /// The option of a locale. The locale counts as given, so ask with its canonical name. An empty record if
    /// an argument is empty or nothing is stored; the reference lives as long as the database, unless
    /// `remove_locale_optdata_entry` removes what it refers to.
    [[nodiscard]] locale_optional_data const& get_optional_data_context(std::string_view locale,
                                                                        std::string_view type) const;

    /// @name Changes of locales
    ///
    /// Each returns a `change_status`: for bad data `empty_argument`, `not_found` or `refused`, never an
    /// exception. Unless said otherwise every argument is required, an empty one is refused with nothing
    /// changed, and success is `done`. Only memory that runs out throws; what was changed until then stays.
    ///
    /// Where a locale takes a new value, a name that the locale map has as a key counts as it is; another
    /// name that the language data knows stands for the canonical name found there ("de_AT.UTF-8" for
    /// "de_AT"); and a name unknown to both becomes a canonical name, so that new locales come into being.
    ///
    /// Language, script and region data are never changed, so `get_language_context` isn't either.
    /// @{

    /// Sets the default encoding and the XPG name of a locale. An empty `encoding` or `xpg_name` removes the
    /// present one. An unknown encoding is created, with the text as given as its standard name.
    int modify_locale_data_entry(std::string_view locale, std::string_view encoding,
                                 std::string_view xpg_name);
    int modify_default_encoding(std::string_view locale, std::string_view encoding);
    int modify_xpg_name(std::string_view locale, std::string_view xpg_name);

    /// Lets `alias` lead to `locale`, which becomes a canonical name where it wasn't. `already_there` if that
    /// is what `get_locale_name(alias)` says. Aliases don't chain: the alias keeps this target, whatever
    /// becomes of the target's own entry.
    int modify_locale_alias(std::string_view locale, std::string_view alias);
    /// The same for the names of regions, which `get_region_locale_name` answers.
    int modify_region_locale_alias(std::string_view locale, std::string_view alias);

    /// Removes a key of the locale map: `not_found` if there is none, `refused` if the name leads to itself,
    /// byte for byte.
    int remove_locale_alias(std::string_view alias);
    int remove_region_locale_alias(std::string_view alias);

    /// Remove the value of just this key; `done` also if there is none.
    int remove_default_encoding(std::string_view locale);
    int remove_xpg_name(std::string_view locale);

    /// Stores an option under the canonical name of the locale, in the place of an earlier value. One of the
    /// two values may be empty. `refused` if `get_locale_name` doesn't know the locale.
    int modify_locale_optdata_entry(std::string_view locale, std::string_view type, std::string_view value,
                                    std::u16string_view wide_value);
    /// Removes it: `refused` as above, `not_found` if nothing is stored.
    int remove_locale_optdata_entry(std::string_view locale, std::string_view type);
    /// @}

    /// @name Changes of encodings
    ///
    /// They report as the changes of locales do. An encoding that no key leads to is created under the
    /// encoding key of its name, which as given is its standard name. An entry is changed in place, for all
    /// keys that lead to it and for everybody who holds it.
    /// @{

    /// Sets the Java name and the compatible encoding; an empty `jvm_name` or `compatible` removes the
    /// present one. The Java name becomes a further key of the encoding, unless the key is taken.
    ///
    /// `compatible` counts by its standard name, byte for byte: an alias is made an encoding in its own
    /// right, and leads to its former target no more.
    int modify_encoding_data_entry(std::string_view encoding, std::string_view jvm_name,
                                   std::string_view compatible);
    int modify_jvm_encoding(std::string_view encoding, std::string_view jvm_name);
    int modify_compat_encoding(std::string_view encoding, std::string_view compatible);

    /// Lets `alias` lead to the entry of `encoding`, by whatever name that one is given; `already_there` if
    /// it leads to an entry with the standard name `encoding`, byte for byte.
    int modify_encoding_alias(std::string_view encoding, std::string_view alias);

    /// Removes one key of the encodings, be it an alias or the standard name itself; `not_found` without one.
    int remove_encoding_alias(std::string_view alias);
    /// The Java VM then uses the standard name; `not_found` for an unknown encoding.
    int remove_jvm_encoding(std::string_view encoding);
    /// Removes the compatible encoding; `done` also if there is none.
    int remove_compat_encoding(std::string_view encoding);
    /// @}

private:
    locale_database_context context_;
    int init_status_ = 0;
    std::string init_status_log_;
    locale_optional_data no_optional_data_;
};

} // namespace fl::i18n::lcmgmt
