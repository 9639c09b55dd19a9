#include <fl/i18n/character_class.hpp>

#include <gtest/gtest.h>
#include <unicode/uchar.h>

#include <cctype>

namespace fl::i18n {

static bool in_categories(UChar32 c, std::uint32_t mask) {
    return ((1u << u_charType(c)) & mask) != 0;
}

// The classes one after the other, with no short cut for ASCII.
static bool is_ctype_by_steps(unsigned int mask, UChar32 c) {
    auto const all = [mask](unsigned int classes) { return (mask & classes) == classes; };
    return (all(0x004) && u_iscntrl(c)) || (all(0x100) && u_isprint(c)) || (all(0x00B) && u_isgraph(c)) ||
           (all(0x008) && in_categories(c, 0x37F80000)) || (all(0x200) && u_isblank(c)) ||
           (all(0x010) && u_isUWhiteSpace(c)) || (all(0x003) && u_isalnum(c)) ||
           (all(0x001) && u_isalpha(c)) || (all(0x020) && u_digit(c, 16) >= 0) ||
           (all(0x002) && u_isdigit(c)) || (all(0x040) && u_islower(c)) || (all(0x080) && u_isupper(c));
}

TEST(CharacterClass, AnswersAsIcuAndTheCLocale) {
    using namespace lcctype;
    static constexpr bool (*ours[])(char32_t) noexcept = {iscntrl,  isspace, isbreakable_space, isblank,
                                                          isalpha,  isdigit, isalnum,           ispunct,
                                                          isxdigit, isprint, islower,           isupper};
    static constexpr UBool (*icu[])(UChar32) = {u_iscntrl,  u_isUWhiteSpace, u_isWhitespace, u_isblank,
                                                u_isalpha,  u_isdigit,       u_isalnum,      u_ispunct,
                                                u_isxdigit, u_isprint,       u_islower,      u_isupper};
    static constexpr bool (*ascii[])(char32_t) noexcept = {isspace_ascii, isblank_ascii,    isalpha_ascii,
                                                           isdigit_ascii, isalnum_ascii,    islower_ascii,
                                                           isupper_ascii, isascii_character};
    static constexpr int (*libc[])(int) = {std::isspace, std::isblank, std::isalpha, std::isdigit,
                                           std::isalnum, std::islower, std::isupper, isascii};
    // All code points, and numbers that are none.
    for (char32_t i = 0; i <= 0x110002 && !HasFailure(); ++i) {
        char32_t const c = i == 0x110001 ? 0x80000041 : i == 0x110002 ? 0xFFFFFFFF : i;
        auto const u = static_cast<UChar32>(c);
        SCOPED_TRACE(+c);
        for (std::size_t f = 0; f < std::size(ours); ++f)
            EXPECT_EQ(ours[f](c), icu[f](u) != 0) << "function " << f;
        for (std::size_t f = 0; f < std::size(ascii); ++f)
            EXPECT_EQ(ascii[f](c), c < 0x80 && libc[f](u) != 0) << "ASCII form " << f;
        EXPECT_EQ(lcctype::isgraph(c), in_categories(u, 0x7FF80FFE));
        EXPECT_EQ(lcctype::tolower(c), static_cast<char32_t>(u_tolower(u)));
        EXPECT_EQ(lcctype::toupper(c), static_cast<char32_t>(u_toupper(u)));
        // Every mask for ASCII; beyond it single classes, and those that count together.
        for (unsigned int mask = 0; mask <= 0x400; mask += c < 0x80 || mask < 0xC ? 1 : mask & (0u - mask)) {
            EXPECT_EQ(detail::is_ctype(mask, c), is_ctype_by_steps(mask, u)) << mask;
            EXPECT_NE(detail::do_not_ctype(mask, c), detail::is_ctype(mask, c)) << mask;
        }
    }
}

} // namespace fl::i18n
