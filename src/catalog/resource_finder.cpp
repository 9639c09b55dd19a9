#include "support/ascii.hpp"

#include <fl/filesystem/file_status.hpp>
#include <fl/i18n/locale_fallback.hpp>
#include <fl/i18n/resource_finder.hpp>

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>

namespace fl::i18n {

namespace {

using filesystem::upath;
namespace upath_constant = filesystem::upath_constant;

constexpr char16_t default_marker[] = u"%S";

/// The names to try, in order. Without the fallback to the classic language, the file without a locale comes
/// last: its name is empty.
std::vector<ustring> make_locale_list(QnLocale const& locale, bool use_fallback) {
    return use_fallback ? get_fallback_locales(locale) : get_fallback_locales_with_empty_default(locale);
}

ustring marker_or_default(ustring const& marker) {
    return marker.empty() ? ustring(default_marker) : marker;
}

/// Whether a name stays one component of the path that it becomes part of: it may come from outside.
bool is_path_component(ustring const& locale) {
    return locale.find(upath_constant::PATHNAME_SEPARATOR) == ustring::npos &&
           locale.find(u'\0') == ustring::npos;
}

/// A pattern cut at its marker, ready to take one locale after the other.
class marked_pattern {
public:
    static std::optional<marked_pattern> parse(std::u16string_view pattern, std::u16string_view marker) {
        std::size_t const place = pattern.find(marker);
        if (pattern.empty() || place == pattern.npos)
            return std::nullopt;
        return marked_pattern(pattern.substr(0, place), pattern.substr(place + marker.size()));
    }

    ustring file_name(ustring const& locale) const {
        std::u16string_view before = before_;
        if (locale.empty() && before.ends_with(u'_'))
            before.remove_suffix(1);
        return ustring(before).append(locale).append(after_);
    }

private:
    marked_pattern(std::u16string_view before, std::u16string_view after) : before_(before), after_(after) {}

    std::u16string_view before_;
    std::u16string_view after_;
};

upath existing(ustring const& name) {
    upath path(filesystem::detail::make_native_form(name));
    return filesystem::exists(path) ? path : upath();
}

/// First directory of `base_paths` that holds `file_name`.
struct below {
    std::vector<upath> const& base_paths;

    upath operator()(ustring const& file_name) const {
        for (upath const& base : base_paths) {
            ustring candidate = base.string();
            candidate += upath_constant::PATHNAME_SEPARATOR;
            upath found = existing(candidate += file_name);
            if (!found.empty())
                return found;
        }
        return upath();
    }
};

/// Tries the locales in order. `index` counts on from its present value to the locale that matched, becomes
/// -1 if none did, and stays as it is where the pattern cannot match at all.
template <class Locate>
upath search(ustring const& pattern, ustring const& marker, std::vector<ustring> const& locales,
             Locate const& locate, std::int32_t& index) {
    std::optional<marked_pattern> const parsed = marked_pattern::parse(pattern, marker);
    if (!parsed)
        return upath();
    for (ustring const& locale : locales) {
        upath found = is_path_component(locale) ? locate(parsed->file_name(locale)) : upath();
        if (!found.empty())
            return found;
        if (index <
            std::numeric_limits<std::int32_t>::max()) // `find` with all arguments never starts again at 0
            ++index;
    }
    index = -1;
    return upath();
}

template <class Locate>
upath search_for(QnLocale const& locale, bool use_fallback, ustring const& pattern, ustring const& marker,
                 Locate const& locate, std::string& found_locale) {
    std::vector<ustring> const locales = make_locale_list(locale, use_fallback);
    std::int32_t index = 0;
    upath found = search(pattern, marker, locales, locate, index);
    found_locale =
        found.empty() ? std::string() : support::narrowed(locales[static_cast<std::size_t>(index)]);
    return found;
}

} // namespace

char16_t const* const resource_finder::default_formatter = default_marker;

resource_finder::resource_finder(std::vector<upath> const& basePaths, QnLocale const& locale,
                                 bool useFallback, ustring const& formatter)
    : formatter_(marker_or_default(formatter)),
      base_paths_(basePaths),
      current_locale_(locale.shortName(QnLocale::messages)),
      locale_list_(make_locale_list(locale, useFallback)),
      use_fallback_(useFallback) {}

bool resource_finder::add_base_path(upath const& path) const {
    if (std::find(base_paths_.begin(), base_paths_.end(), path) != base_paths_.end())
        return false;
    base_paths_.push_back(path);
    return true;
}

bool resource_finder::remove_base_path(upath const& path) const {
    auto const place = std::find(base_paths_.begin(), base_paths_.end(), path);
    if (place == base_paths_.end())
        return false;
    base_paths_.erase(place);
    return true;
}

std::vector<upath> resource_finder::get_base_path_list() const {
    return base_paths_;
}

std::string resource_finder::get_current_locale() const {
    return current_locale_;
}

upath resource_finder::find(ustring const& pattern) const {
    return find(pattern, formatter_);
}

upath resource_finder::find(ustring const& pattern, ustring const& formatter) const {
    found_index_ = 0;
    return search(pattern, formatter, locale_list_, below{base_paths_}, found_index_);
}

upath resource_finder::find(ustring const& pattern, QnLocale const& locale, std::string& foundLocale) const {
    return search_for(locale, use_fallback_, pattern, formatter_, below{base_paths_}, foundLocale);
}

upath resource_finder::find(ustring const& pattern, QnLocale const& locale, ustring const& formatter,
                            std::string& foundLocale) const {
    std::vector<ustring> const locales = make_locale_list(locale, use_fallback_);
    upath found = search(pattern, formatter, locales, below{base_paths_}, found_index_);
    foundLocale = found.empty() ? std::string() : support::narrowed(locales.front());
    return found;
}

std::string resource_finder::get_locale() const {
    auto const index = static_cast<std::size_t>(found_index_);
    return found_index_ >= 0 && index < locale_list_.size() ? support::narrowed(locale_list_[index])
                                                            : std::string();
}

upath resource_finder::find_resource(std::vector<upath> const& basePaths, ustring const& pattern,
                                     QnLocale const& locale, bool useFallback, ustring const& formatter) {
    std::string found_locale;
    return find_resource(basePaths, pattern, found_locale, locale, useFallback, formatter);
}

upath resource_finder::find_resource(std::vector<upath> const& basePaths, ustring const& pattern,
                                     std::string& foundLocale, QnLocale const& locale, bool useFallback,
                                     ustring const& formatter) {
    return search_for(locale, useFallback, pattern, marker_or_default(formatter), below{basePaths},
                      foundLocale);
}

upath resource_finder::find_resource(ustring const& pattern, QnLocale const& locale, bool useFallback,
                                     ustring const& formatter) {
    std::string found_locale;
    return find_resource(pattern, found_locale, locale, useFallback, formatter);
}

upath resource_finder::find_resource(ustring const& pattern, std::string& foundLocale, QnLocale const& locale,
                                     bool useFallback, ustring const& formatter) {
    return search_for(locale, useFallback, pattern, marker_or_default(formatter), existing, foundLocale);
}

} // namespace fl::i18n
