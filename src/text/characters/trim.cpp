#include <fl/i18n/trim.hpp>

#include <bitset>
#include <optional>
#include <string_view>

namespace fl::i18n {

namespace {

/// A set of units. A small one is searched unit by unit; for a large one that would cost the product of two
/// lengths.
class unit_set {
public:
    explicit unit_set(std::u16string_view units) noexcept : units_(units) {
        if (units.size() > 64)
            for (flags_.emplace(); char16_t const unit : units)
                flags_->set(unit);
    }

    bool contains(char16_t unit) const noexcept {
        return flags_ ? flags_->test(unit) : units_.find(unit) != std::u16string_view::npos;
    }

private:
    std::u16string_view units_;
    std::optional<std::bitset<0x10000>> flags_;
};

enum : unsigned int { front = 1, back = 2 };

/// What is left of the text when members of `chars` have gone from its ends.
std::u16string_view stripped(std::u16string_view text, std::u16string_view chars,
                             unsigned int ends) noexcept {
    unit_set const set(chars);
    while ((ends & front) != 0 && !text.empty() && set.contains(text.front()))
        text.remove_prefix(1);
    while ((ends & back) != 0 && !text.empty() && set.contains(text.back()))
        text.remove_suffix(1);
    return text;
}

ustring& strip(ustring& s, ustring const& chars, unsigned int ends) noexcept {
    // Both ends are known before the text changes: it may be its own set.
    std::u16string_view const left = stripped(s, chars, ends);
    std::size_t const size = left.size();
    s.erase(0, static_cast<std::size_t>(left.data() - s.data()));
    s.resize(size);
    return s;
}

} // namespace

ustring& trim(ustring& s, ustring const& chars) noexcept {
    return strip(s, chars, front | back);
}

ustring& trim_left(ustring& s, ustring const& chars) noexcept {
    return strip(s, chars, front);
}

ustring& trim_right(ustring& s, ustring const& chars) noexcept {
    return strip(s, chars, back);
}

ustring trim_copy(ustring const& s, ustring const& chars) {
    return ustring(stripped(s, chars, front | back));
}

ustring trim_copy_left(ustring const& s, ustring const& chars) {
    return ustring(stripped(s, chars, front));
}

ustring trim_copy_right(ustring const& s, ustring const& chars) {
    return ustring(stripped(s, chars, back));
}

} // namespace fl::i18n
