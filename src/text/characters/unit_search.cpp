// A fast search for ordinary text, which hands over to a steady one where the text turns out hostile.

#include "text/characters/unit_search.hpp"

#include "text/characters/unit_run.hpp"

#include <algorithm>
#include <array>
#include <memory>

namespace fl::i18n::detail {

namespace {

using view = std::u16string_view;

constexpr std::size_t short_pattern_units = 1024;

/// For each prefix of the pattern, the length of its longest proper prefix that is also its suffix.
void fill_borders(view pattern, std::size_t* borders) noexcept {
    std::size_t length = 0;
    borders[0] = 0;
    for (std::size_t i = 1; i < pattern.size(); ++i) {
        while (length > 0 && pattern[i] != pattern[length])
            length = borders[length - 1];
        length += pattern[i] == pattern[length] ? 1 : 0;
        borders[i] = length;
    }
}

/// The search of Knuth, Morris and Pratt: never looks back in the text.
std::size_t find_with_borders(view text, view pattern, std::size_t const* borders) noexcept {
    std::size_t matched = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        while (matched > 0 && text[i] != pattern[matched])
            matched = borders[matched - 1];
        matched += text[i] == pattern[matched] ? 1 : 0;
        if (matched == pattern.size())
            return i + 1 - matched;
    }
    return view::npos;
}

[[gnu::noinline]] std::size_t find_in_hostile(view text, view pattern) {
    std::array<std::size_t, short_pattern_units> short_borders;
    std::unique_ptr<std::size_t[]> long_borders;
    std::size_t* borders = short_borders.data();
    if (pattern.size() > short_pattern_units) {
        long_borders = std::make_unique_for_overwrite<std::size_t[]>(pattern.size());
        borders = long_borders.get();
    }
    fill_borders(pattern, borders);
    return find_with_borders(text, pattern, borders);
}

/// The search on ordinary text, a block of places at a time. A place where the first and the last unit of the
/// pattern both match is a candidate; only there the rest is compared.
class block_search {
public:
    block_search(view text, view pattern) noexcept
        : first_(text.data()),
          last_(text.data() + pattern.size() - 1),
          pattern_(pattern) {}

    /// Whether any of `block_units` places from `at` is a candidate: one loop without an exit.
    bool has_candidate(std::size_t at) const noexcept {
        char16_t const front = pattern_.front();
        char16_t const back = pattern_.back();
        unsigned int candidates = 0;
        for (std::size_t i = at; i < at + block_units; ++i)
            candidates |=
                static_cast<unsigned int>(first_[i] == front) & static_cast<unsigned int>(last_[i] == back);
        return candidates != 0;
    }

    /// The first place from `at` on, before `end`, where the pattern stands; `end` if there is none.
    std::size_t find_in(std::size_t at, std::size_t end) noexcept {
        char16_t const front = pattern_.front();
        char16_t const back = pattern_.back();
        std::size_t const next = std::min<std::size_t>(1, pattern_.size() - 1);
        char16_t const second = pattern_[next];
        for (; at < end; ++at)
            if (first_[at] == front && first_[at + next] == second && last_[at] == back && matches(at))
                break;
        return at;
    }

    /// Units compared at candidates so far.
    std::size_t compared() const noexcept { return compared_; }

private:
    bool matches(std::size_t at) noexcept {
        std::size_t const equal = common_run(first_ + at, pattern_.data(), pattern_.size());
        compared_ += equal;
        return equal == pattern_.size();
    }

    char16_t const* first_;
    char16_t const* last_;
    view pattern_;
    std::size_t compared_ = 0;
};

} // namespace

// Where comparisons at candidates come to several times the way made, the text is not an ordinary one.
std::size_t find_units(view text, view pattern) {
    if (pattern.empty())
        return 0;
    if (pattern.size() > text.size())
        return view::npos;
    std::size_t const places = text.size() - pattern.size() + 1;
    block_search search(text, pattern);
    for (std::size_t at = 0, end = 0; at < places; at = end) {
        end = at + block_units;
        if (end <= places && !search.has_candidate(at))
            continue;
        // One candidate is seldom alone: some more places are looked at one by one.
        end = std::min(at + 4 * block_units, places);
        std::size_t const found = search.find_in(at, end);
        if (found != end)
            return found;
        if (search.compared() > 4 * end + 4 * short_pattern_units) {
            std::size_t const rest = find_in_hostile(text.substr(end), pattern);
            return rest == view::npos ? rest : rest + end;
        }
    }
    return view::npos;
}

} // namespace fl::i18n::detail
