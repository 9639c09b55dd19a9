#include <fl/i18n/string_conversion.hpp>

#include <gtest/gtest.h>
#include <unicode/ustring.h>

#include <memory>
#include <random>

using namespace fl::i18n;

namespace {

/// `ours` against one bare ICU call, on random text of which `other` eighths are not ASCII.
template <class To, class From, class Call, class Ours>
void expect_as_icu(std::minstd_rand& random, std::size_t size, unsigned other, Call call, Ours ours) {
    auto const text = std::make_unique<From[]>(size); // of the exact size, for sanitizers
    for (std::size_t i = 0; i < size; ++i)
        text[i] = static_cast<From>(random() % 8 >= other ? 'a'
                                    : random() % 3        ? 0xD700 + random() % 0x900
                                                          : random());
    std::basic_string<To> expected(3 * size, To());
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    call(expected.data(), static_cast<std::int32_t>(3 * size), &length, text.get(),
         static_cast<std::int32_t>(size), 0xFFFD, nullptr, &status);
    expected.resize(static_cast<std::size_t>(length));
    EXPECT_TRUE(U_SUCCESS(status) && expected == ours(text.get(), size)) << size << " units, " << other;
}

TEST(Utf8Conversion, EqualsIcuOnAnyUnits) {
    std::minstd_rand random(7);
    for (std::size_t size : {1u, 5u, 63u, 64u, 340u, 1023u, 1024u, 1025u, 9000u, 32767u, 32769u, 70000u}) {
        for (unsigned other = 0; other <= 8; ++other) {
            expect_as_icu<char, char16_t>(random, size, other, u_strToUTF8WithSub,
                                          [](auto s, auto n) { return ustring_to_utf8(s, n); });
            expect_as_icu<char16_t, char>(random, size, other, u_strFromUTF8WithSub,
                                          [](auto s, auto n) { return utf8_to_ustring(s, n); });
        }
    }
}

TEST(Utf8Conversion, FormsAgree) {
    fl::ustring const text = u"\u00e9\U0001F600z\xDC00";
    std::string const bytes = "\xC3\xA9\xF0\x9F\x98\x80z\xEF\xBF\xBD";
    EXPECT_EQ(bytes, ustring_to_utf8(text));
    EXPECT_EQ(bytes, ustring_to_utf8(text.c_str()));
    EXPECT_EQ(bytes, ustring_to_utf8(std::basic_string_view<char16_t>(text)));
    EXPECT_EQ(u"\u00e9\U0001F600z\uFFFD", utf8_to_ustring(bytes));
    EXPECT_EQ(utf8_to_ustring(bytes), utf8_to_ustring(bytes.c_str()));
    EXPECT_EQ("", ustring_to_utf8(nullptr, 4) + ustring_to_utf8(static_cast<char16_t const*>(nullptr)));
    EXPECT_EQ(u"", utf8_to_ustring(nullptr, 4) + utf8_to_ustring(static_cast<char const*>(nullptr)));
}

} // namespace
