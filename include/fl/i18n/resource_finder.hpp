/// @file
/// Finds the file that serves a resource for a locale.
///
/// A resource is named by a pattern: a relative path with a marker, "%S", where the name of the locale goes.
/// The finder puts the names of the locale's fallback list (see <fl/i18n/locale_fallback.hpp>) in place of
/// the marker, one after the other, and returns the first file that exists below one of its base directories:
///
///     auto const locale = fl::i18n::QnLocale::createLocale("de_AT");
///     fl::i18n::resource_finder finder({fl::filesystem::upath(u"/opt/app/help")}, *locale, true, u"");
///     fl::filesystem::upath const page = finder.find(u"%S/start.html"); // de/start.html if de_AT has none
///     std::string const language = finder.get_locale();                 // "de"
///
/// The locale is the outer loop: a `de` file in the last directory wins over an `en` file in the first. Only
/// the first marker of a pattern is replaced. "Not found" is the empty path. A locale name that holds a path
/// separator or a zero unit names no file. Exceptions of `fl::filesystem::exists` (a directory that may not
/// be searched, say) reach the caller.
#pragma once

#include <fl/filesystem/path.hpp>
#include <fl/i18n/export.hpp>
#include <fl/i18n/locale.hpp>
#include <fl/i18n/ustring.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace fl::i18n {

/// Searches one list of directories for one locale, both given at construction.
///
/// One thread at a time: the operations are `const`, yet `find` records its match and the list may change.
/// The locale list is made at construction; a later change of the global locale is not seen.
class FL_I18N_EXPORT resource_finder {
public:
    /// The marker in force where an empty one is given: "%S", zero-terminated.
    static char16_t const* const default_formatter;

    /// `useFallback`: try the classic locale's language ("en") last; if false, the file without a locale is
    /// tried last instead (the pattern without its marker, and without a "_" that stands before the marker).
    /// `formatter` is the marker; empty means `default_formatter`.
    resource_finder(std::vector<filesystem::upath> const& basePaths, QnLocale const& locale, bool useFallback,
                    ustring const& formatter);

    /// Appends a directory; false, and nothing changes, if one with the same text is in the list.
    bool add_base_path(filesystem::upath const& path) const;

    /// Removes the first directory with the same text; false if there is none.
    bool remove_base_path(filesystem::upath const& path) const;

    [[nodiscard]] std::vector<filesystem::upath> get_base_path_list() const;

    /// Short name of the messages category of the constructor's locale.
    [[nodiscard]] std::string get_current_locale() const;

    /// Searches for the constructor's locale with the constructor's marker. A pattern without the marker
    /// finds nothing, without a look at the disk.
    [[nodiscard]] filesystem::upath find(ustring const& pattern) const;

    /// The same with another marker. An empty one puts the locale in front of the pattern.
    [[nodiscard]] filesystem::upath find(ustring const& pattern, ustring const& formatter) const;

    /// Searches for another locale; `foundLocale` gets the name that matched, or becomes empty. What
    /// `get_locale` answers stays as it was.
    [[nodiscard]] filesystem::upath find(ustring const& pattern, QnLocale const& locale,
                                         std::string& foundLocale) const;

    /// Searches for another locale with another marker. Two things differ from the form above: `foundLocale`
    /// gets the first name of the locale's list, whichever name matched, or becomes empty; and what
    /// `get_locale` answers afterwards has no meaning.
    [[nodiscard]] filesystem::upath find(ustring const& pattern, QnLocale const& locale,
                                         ustring const& formatter, std::string& foundLocale) const;

    /// The locale name that the last `find` of the first two forms matched; empty before the first search and
    /// behind a vain one. Test the path that `find` returned as well: a pattern that names nothing to search,
    /// being empty or without the marker, gives the first name of the list.
    [[nodiscard]] std::string get_locale() const;

    /// One search without an object: as a finder made of the same arguments would do it.
    [[nodiscard]] static filesystem::upath find_resource(std::vector<filesystem::upath> const& basePaths,
                                                         ustring const& pattern, QnLocale const& locale,
                                                         bool useFallback, ustring const& formatter);

    /// The same; `foundLocale` gets the name that matched, or becomes empty.
    [[nodiscard]] static filesystem::upath find_resource(std::vector<filesystem::upath> const& basePaths,
                                                         ustring const& pattern, std::string& foundLocale,
                                                         QnLocale const& locale, bool useFallback,
                                                         ustring const& formatter);

    /// One search where the pattern is itself the whole path.
    [[nodiscard]] static filesystem::upath find_resource(ustring const& pattern, QnLocale const& locale,
                                                         bool useFallback, ustring const& formatter);

    /// The same; `foundLocale` gets the name that matched, or becomes empty.
    [[nodiscard]] static filesystem::upath find_resource(ustring const& pattern, std::string& foundLocale,
                                                         QnLocale const& locale, bool useFallback,
                                                         ustring const& formatter);

private:
    ustring formatter_;
    mutable std::vector<filesystem::upath> base_paths_;
    std::string current_locale_;
    std::vector<ustring> locale_list_;
    mutable std::int32_t found_index_ = -1;
    bool use_fallback_;
};

} // namespace fl::i18n
