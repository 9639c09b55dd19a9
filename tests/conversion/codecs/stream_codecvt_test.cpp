#include "support/failure.hpp"

#include <fl/i18n/codecvt.hpp>
#include <fl/i18n/cvt_exceptions.hpp>
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
    auto const whole = [](auto const& cvt, auto const& input) { return cvt.convert(input); };
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

/// Fails on the text, and is clean then.
template <class Failure, class To, class From>
static void expect(stream_converter<To, From> const& strict, From const* text) {
    SCOPED_TRACE(testing::PrintToString(text) + typeid(strict).name());
    std::basic_string<From> const bad = text, good(2, 'b');
    std::basic_string<To> before, after;
    auto const whole = [&] { convert(strict, bad, true, 2, before); };
    EXPECT_EQ(Failure().what(), fl::testing::failure<Failure>(whole));
    convert(strict, good, true, 1, after);
    EXPECT_EQ(std::basic_string<To>(2, 'b'), after);
}

TEST(StreamCodecvt, StrictObjectsRaiseAndStartAnew) {
    using bad = CvtInvalidCharacter;
    using cut = CvtConversionFailure;
    expect<bad>(stream_codecvt_ustring_to_string("ISO-8859-1", false), u"aa\u20ac");
    expect<cut>(stream_codecvt_ustring_to_string("UTF-8", false), u"a\xD83D");
    expect<bad>(stream_codecvt_string_to_ustring("UTF-8", false), "a\xE3z");
    expect<cut>(stream_codecvt_string_to_ustring("ISO-2022-JP", false), "a\x1B$X");
    expect<bad>(stream_codecvt_utf8string_to_string("ISO-8859-1", false), "a\u20ac");
    expect<cut>(stream_codecvt_utf8string_to_string("ISO-8859-1", false), "a\xE3\x81");
    expect<bad>(stream_codecvt_string_to_utf8string("Shift_JIS", false), "aa\xFF");
}

TEST(StreamCodecvt, SizesAndNullRanges) {
    EXPECT_EQ(4u, stream_codecvt_utf8string_to_string("UTF-8", true).do_max_char_size()); // ICU counts 3

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
    char16_t unit = u'a', *units = &unit;
    char16_t const* from = &unit;
    stream_codecvt_string_to_ustring const to_text("UTF-8", true);
    stream_codecvt_ustring_to_string const to_bytes("UTF-8", true);
    EXPECT_THROW(to_text.do_convert(nullptr, nullptr, &none, nullptr, true), CvtConversionFailure);
    EXPECT_THROW(to_text.do_convert(&units, units + 1, nullptr, nullptr, true), CvtConversionFailure);
    EXPECT_THROW(to_bytes.do_convert(nullptr, nullptr, &from, from, true), CvtConversionFailure);
}
