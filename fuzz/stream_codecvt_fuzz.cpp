// Any text in any pieces, with any room: a stream gives what it gives for the text as one piece, and fails as
// it does. The first bytes of the input choose encoding, class, strictness, sizes of pieces and room.

#include "fuzz.hpp"

#include <fl/i18n/cvt_exceptions.hpp>
#include <fl/i18n/stream_codecvt.hpp>

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace fl::i18n;

// Encodings whose ICU converters give the same however a text is cut.
char const* const encodings[] = {"UTF-8",       "UTF-16",
                                 "UTF-32",      "UTF-7",
                                 "BOCU-1",      "CESU-8",
                                 "GB18030",     "Shift_JIS",
                                 "EUC-JP",      "Big5-HKSCS",
                                 "ISO-2022-JP", "ISO-2022-KR",
                                 "ISO-2022-CN", "IMAP-mailbox-name",
                                 "ibm-930",     "ISO-8859-1",
                                 "windows-1251"};

template <class To>
struct outcome {
    std::basic_string<To> text;
    int failure = 0;
    bool operator==(outcome const&) const = default;
};

/// In pieces of the given sizes, over and over; no sizes mean one piece.
template <class To, class From>
outcome<To> streamed(stream_converter<To, From> const& cvt, std::basic_string_view<From> text,
                     std::string_view sizes, std::size_t room) {
    outcome<To> result;
    std::vector<To> buffer(room);
    try {
        for (std::size_t number = 0;; ++number) {
            std::size_t const wanted =
                sizes.empty() ? text.size() : static_cast<unsigned char>(sizes[number % sizes.size()]) % 16;
            bool const is_stuck = number > 3 * (text.size() + sizes.size()) + 64; // sizes of zero alone
            std::size_t const size = is_stuck ? text.size() : std::min(wanted, text.size());
            From const* src = text.data();
            From const* const end = src + size;
            bool const is_last = size == text.size();
            for (bool more = true; more;) {
                To* dst = buffer.data();
                more = cvt.do_convert(&dst, buffer.data() + room, &src, end, is_last);
                require(dst != buffer.data() || src == end); // goes on
                result.text.append(buffer.data(), dst);
            }
            require(src == end);
            if (is_last)
                break;
            text.remove_prefix(size);
        }
    } catch (CvtExceptionBase const& failure) {
        // From bytes to bytes the reader runs ahead, so which of two faults is met first depends on the
        // pieces.
        result.failure = sizeof(To) == sizeof(From) ? 1 : failure.kind();
        result.text.clear(); // how much was written before depends on the pieces
    }
    return result;
}

template <class Stream, class To, class From>
void check(char const* encoding, bool tolerant, std::basic_string_view<From> text, std::string_view sizes,
           std::size_t room) {
    Stream const cvt(encoding, tolerant);
    auto const whole = streamed<To, From>(cvt, text, {}, 1 << 16);
    require(whole == streamed<To, From>(cvt, text, sizes, room));
    require(whole == streamed<To, From>(cvt, text, {}, 1 << 16)); // nothing is left behind
    require(!tolerant || whole.failure == 0);
}

} // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    if (size < 8)
        return 0;
    char const* const encoding = encodings[data[0] % std::size(encodings)];
    bool const tolerant = (data[1] & 4) != 0;
    std::size_t const room = 1 + data[2] % 8;
    std::string_view const bytes(reinterpret_cast<char const*>(data), size);
    std::string_view const sizes = bytes.substr(3, 1 + data[1] / 8 % 4), text = bytes.substr(7);
    std::u16string units(text.size() / 2, u'\0');
    std::memcpy(units.data(), text.data(), units.size() * 2);
    switch (data[1] & 3) {
    case 0:
        check<stream_codecvt_ustring_to_string, char, char16_t>(encoding, tolerant, units, sizes, room);
        break;
    case 1:
        check<stream_codecvt_string_to_ustring, char16_t, char>(encoding, tolerant, text, sizes, room);
        break;
    case 2:
        check<stream_codecvt_utf8string_to_string, char, char>(encoding, tolerant, text, sizes, room);
        break;
    default:
        check<stream_codecvt_string_to_utf8string, char, char>(encoding, tolerant, text, sizes, room);
    }
    return 0;
}
