#include "support/failure.hpp"

#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/cvt_exception.hpp>
#include <fl/i18n/stream_codecvt.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;

/// Converts one piece, `room` units at a time. The piece lies in a block of its exact size, and canaries lie
/// behind the room: nothing else may be read or written.
template <class To, class From>
static void convert(stream_converter<To, From> const& cvt, std::basic_string<From> const& piece, bool flush,
                    std::size_t room, std::basic_string<To>& result) {
    std::vector<From> const block(piece.begin(), piece.end());
    From const *src = block.data(), *const end = src + block.size();
    bool more = true;
    for (std::size_t calls = 0; more && calls < 99 * (piece.size() + 1); ++calls) {
        std::basic_string<To> buffer(room + 8, To('#'));
        To* dst = buffer.data();
        more = cvt.do_convert(&dst, dst + room, &src, end, flush);
        ASSERT_EQ(std::basic_string<To>(8, To('#')), buffer.substr(room));
        result.append(buffer.data(), dst);
    }
    ASSERT_TRUE(!more && src == end) << "something is left";
}

/// Hands each of the four stream converters to `check`, with an input and what the conversion of the whole
/// gives.
static void check_each_stream(std::string const& name, fl::ustring const& text, auto const& check) {
    auto const whole = [](auto const& cvt, auto const& input) {
        return cvt.convert(input.data(), input.size());
    };
    codecvt_ustring_to_string const utf8("UTF-8", true), out(name, true);
    std::string const damage = "\x93\xFF\x1B$X\xE3", bytes = whole(out, text);
    std::string const bad_bytes = bytes.substr(0, 9) + damage + bytes.substr(9) + "\xE3\x81";
    std::string const bad_utf8 = whole(utf8, text) + damage + "\x81";
    fl::ustring const read = whole(codecvt_string_to_ustring(name, true), bad_bytes);
    fl::ustring const read_utf8 = whole(codecvt_string_to_ustring("UTF-8", true), bad_utf8);
    check(stream_codecvt_ustring_to_string(name, true), text, bytes);
    check(stream_codecvt_string_to_ustring(name, true), bad_bytes, read);
    check(stream_codecvt_string_to_utf8string(name, true), bad_bytes, whole(utf8, read));
    check(stream_codecvt_utf8string_to_string(name, true), bad_utf8,
          whole(codecvt_ustring_to_string(escape_xml_hex_call_back, name, ""), read_utf8));
}

// All ways to make three pieces of the text. One object serves them all, so that what one text leaves behind
// shows in the next.
TEST(StreamCodecvt, AnySplitGivesWhatTheWholeTextGives) {
    fl::ustring const text = u"a\u00e9\U0001F600\u65e5b\uac00\U00020000\uff71\u4e00~+&\xDC00z\xD83D";
    auto const expect_no_cuts = [](auto const& cvt, auto const& input, auto const& expected) {
        for (std::size_t const room : {1u, 2u, 3u, 7u, 900u})
            for (std::size_t i = 0; i <= input.size(); ++i)
                for (std::size_t j = i; j <= input.size(); ++j) {
                    auto result = expected.substr(0, 0);
                    convert(cvt, input.substr(0, i), false, room, result);
                    convert(cvt, input.substr(i, j - i), false, room, result);
                    convert(cvt, input.substr(j), true, room, result);
                    ASSERT_EQ(expected, result)
                        << i << ", " << j << ", room for " << room << typeid(cvt).name();
                }
    };
    for (char const* const name :
         {"UTF-8", "UTF-16", "UTF-32", "UTF-7", "IMAP-mailbox-name", "BOCU-1", "CESU-8", "GB18030",
          "Shift_JIS", "EUC-JP", "Big5-HKSCS", "ISO-2022-JP", "ISO-2022-KR", "ISO-2022-CN", "ibm-930",
          "ibm-1364", "ISO-8859-1", "windows-1251"}) {
        SCOPED_TRACE(name);
        check_each_stream(name, text, expect_no_cuts);
    }
}

/// Fails on the text, and is clean then: after a reset by itself, and after one by the caller in
/// mid-character.
template <class Stream, class To = char, class From = char>
static void expect_failure(char const* encoding, std::basic_string<From> const& text, auto const& expected) {
    Stream const strict(encoding, false);
    std::basic_string<To> before, after;
    auto const whole = [&] { convert(strict, text, true, 2, before); };
    EXPECT_EQ(expected.what(), fl::testing::failure<std::decay_t<decltype(expected)>>(whole)) << encoding;
    convert(strict, std::basic_string<From>(2, 'b'), true, 1, after);
    convert(strict, text.substr(0, 2), false, 1, before);
    strict.do_reset_state();
    convert(strict, std::basic_string<From>(2, 'b'), true, 1, after);
    EXPECT_EQ(std::basic_string<To>(4, 'b'), after) << encoding << testing::PrintToString(text);
}

TEST(StreamCodecvt, StrictObjectsRaiseAndStartAnew) {
    CvtInvalidCharacter const bad;
    CvtConversionFailure const cut;
    expect_failure<stream_codecvt_ustring_to_string>("ISO-8859-1", fl::ustring(u"aa\u20ac"), bad);
    expect_failure<stream_codecvt_ustring_to_string>("UTF-8", fl::ustring(u"a\xD83D"), cut);
    expect_failure<stream_codecvt_string_to_ustring, char16_t>("UTF-8", std::string("a\xE3z"), bad);
    expect_failure<stream_codecvt_string_to_ustring, char16_t>("ISO-2022-JP", std::string("a\x1B$X"), cut);
    expect_failure<stream_codecvt_utf8string_to_string>("ISO-8859-1", std::string("a\u20ac"), bad);
    expect_failure<stream_codecvt_utf8string_to_string>("ISO-8859-1", std::string("a\xE3\x81"), cut);
    expect_failure<stream_codecvt_string_to_utf8string>("Shift_JIS", std::string("aa\xFF"), bad);
    expect_failure<stream_codecvt_string_to_utf8string>("Shift_JIS", std::string("a\x93"), cut);
    EXPECT_THROW(stream_codecvt_utf8string_to_string("no-such-encoding", true), CvtInvalidEncodingName);
}

TEST(StreamCodecvt, SizesAndNullRanges) {
    EXPECT_EQ(2u, stream_codecvt_utf8string_to_string("Shift_JIS", true).do_max_char_size());

    // A reset forgets what waits in the converters and between them.
    stream_codecvt_utf8string_to_string const cvt("ISO-8859-1", true);
    std::string const text(9000, '\x80'), euro = "\u20ac";
    char room[9], *dst = room;
    char const *src = text.data(), *none = nullptr;
    EXPECT_TRUE(cvt.do_convert(&dst, room + 9, &src, src + text.size(), false));
    cvt.do_reset_state();
    EXPECT_TRUE(cvt.do_convert(&(dst = nullptr), nullptr, &(src = euro.data()), euro.data() + 3, false));
    EXPECT_FALSE(cvt.do_convert(&(dst = room), room + 9, &src, euro.data() + 3, false));
    EXPECT_FALSE(cvt.do_convert(&dst, room + 9, &none, nullptr, true));
    EXPECT_EQ("&#x20AC;", std::string(room, dst));
    EXPECT_THROW(cvt.do_convert(&dst, room + 9, &(src = euro.data()), nullptr, false), CvtConversionFailure);
}
