// transform.hpp: the removal of diacritics.
//
// ICU has a transliterator for this. It is made anew from the identifier in each process, which takes about
// 30 ms, may serve one thread only, and moves the rest of the text at every mark, so that its time grows with
// the square of the length. Its three steps taken here one by one (NFD, drop what is Mn, NFC) give the same
// text in linear time.

#include "text/characters/normalization.hpp"
#include "text/characters/transform_by_icu.hpp"
#include "text/characters/unit_run.hpp"

#include <fl/i18n/transform.hpp>

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <algorithm>

namespace fl::i18n::detail {

namespace {

bool is_mark(char32_t c) noexcept {
    return c >= joining_limit && u_charType(static_cast<UChar32>(c)) == U_NON_SPACING_MARK;
}

/// Shifts what stays of the units to their front, and returns its length.
std::size_t drop_marks(char16_t* units, std::size_t size) noexcept {
    std::size_t kept = 0;
    for (std::size_t next = 0; next < size;) {
        std::size_t const start = next;
        UChar32 c = 0;
        U16_NEXT(units, next, size, c);
        if (!is_mark(static_cast<char32_t>(c)))
            kept = static_cast<std::size_t>(std::copy(units + start, units + next, units + kept) - units);
    }
    return kept;
}

/// A text without its marks, in two parts: `prefix` is of the source, which had no marks there.
class plain_text {
public:
    explicit plain_text(std::u16string_view source) {
        checked_length(source.size());
        // What follows the prefix composes with nothing in it, marks or not.
        std::size_t const size = normalized_prefix(normal_form::nfd, source);
        prefix = source.substr(0, size);
        source.remove_prefix(size);
        rest = normalized(normal_form::nfc, decomposed_without_marks(source), composed_);
        if (rest.size() > source.size())
            support::raise(CtypeTransformFailure(U_BUFFER_OVERFLOW_ERROR));
    }

    std::u16string_view prefix;
    std::u16string_view rest;

private:
    std::u16string_view decomposed_without_marks(std::u16string_view source) {
        auto const decompose = [&](char16_t* dst, std::size_t capacity) {
            std::size_t const size = normalize(normal_form::nfd, dst, capacity, source.data(), source.size());
            return size > capacity ? size : drop_marks(dst, size);
        };
        if (source.empty())
            return source;
        return decomposed_.fill(likely_size(normal_form::nfd, source.size()), decompose);
    }

    text_buffer decomposed_;
    text_buffer composed_;
};

} // namespace

ustring& do_transform(ustring& text, to_no_diacritics const&) {
    plain_text const plain(text);
    text.replace(plain.prefix.size(), ustring::npos, plain.rest); // no longer than what stood there
    return text;
}

ustring do_transform(char16_t const* src, unsigned long len, to_no_diacritics const&) {
    if (!src)
        return ustring();
    plain_text const plain(std::u16string_view(src, len));
    ustring result;
    result.reserve(plain.prefix.size() + plain.rest.size());
    return result.append(plain.prefix).append(plain.rest);
}

unsigned long transform(char16_t* dst, unsigned long dst_len, char16_t const* src, unsigned long src_len,
                        to_no_diacritics const&) {
    if (!src)
        return 0;
    plain_text const plain(std::u16string_view(src, src_len));
    std::size_t const capacity = dst ? dst_len : 0;
    std::size_t const start = std::min(plain.prefix.size(), capacity);
    std::char_traits<char16_t>::move(dst, plain.prefix.data(), start);
    std::char_traits<char16_t>::copy(dst + start, plain.rest.data(),
                                     std::min(plain.rest.size(), capacity - start));
    return std::max(plain.prefix.size() + plain.rest.size(), capacity);
}

} // namespace fl::i18n::detail
