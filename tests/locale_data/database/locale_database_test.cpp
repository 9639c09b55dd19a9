#include "locale_data/database/changes.hpp"
#include "support/rows.hpp"

#include <gtest/gtest.h>

#include <climits>

using namespace fl::i18n::lcmgmt;

static long allocations_left = LONG_MAX; ///< the one at 0 fails, and no other

// Not inlined, or the compiler takes the calls of free() for mismatched with the calls of operator new.
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* const memory = allocations_left-- == 0 ? nullptr : std::malloc(size > 0 ? size : 1);
    return memory != nullptr ? memory : throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

static locale_database const& database() {
    static locale_database const instance;
    return instance;
}

// Canonical name, default encoding, XPG name.
TEST(LocaleDatabase, ResolvesLocales) {
    for (auto const& [name, canonical, encoding, xpg_name] : fl::testing::rows<4>(R"(
        ~ ~ (null) (null)                             xx_YY ~ UTF-8 (null)
        C en_US_POSIX US-ASCII C                      C.UTF-8 ~ UTF-8 (null)
        de de_DE ISO-8859-1 de_DE.ISO8859-1           iw he_IL UTF-8 he_IL.UTF-8
        CS-cs cs_CZ ISO-8859-2 cs_CZ.ISO8859-2        en_UK en_GB ISO-8859-1 en_GB.ISO8859-1
        in id_ID ISO-8859-1 (null)                    hy_AM_REVISED hy_AM UTF-8 hy_AM.UTF-8
        tzm_DZ tzm-Latn_DZ windows-1252 (null)        zh ~ UTF-8 (null)
        zh-Hans-CN zh_CN GB2312 zh_CN.GB2312          sr_Latn sr-Latn_BA windows-1250 (null)
        ja ja_JP Shift_JIS ja_JP.SJIS                 de_AT.UTF-8@euro de_AT ISO-8859-1 de_AT.ISO8859-1
        ach ach_UG UTF-8 (null)                       ee ee_EE ISO-8859-4 (null)
        ny ny_NO ISO-8859-1 (null)                    ! ~ UTF-8 (null)
        en_US_POSIX en_US_POSIX US-ASCII C            en_AI en_AI ISO-8859-1 (null))"))
        EXPECT_EQ(ask_locale(database(), name.c_str()), canonical + ' ' + encoding + ' ' + xpg_name) << name;
}

TEST(LocaleDatabase, IsWholeAndAsksSingleMaps) {
    EXPECT_EQ(dump(database()).size(), 616) << "no row is missing; that they are right shows above and below";
    EXPECT_EQ(shown(database().fetch_default_encoding_name("de")), "(null)") << "this map alone is asked";
    EXPECT_EQ(database().fetch_language_data_map("zh_TW.x").locale_name(), "zh_TW.Big5");
}

TEST(LocaleDatabase, EncodingNames) {
    for (auto const& [name, standard, jvm] : fl::testing::rows<3>(R"(
        UTF8 UTF-8 UTF-8  Sjis Shift_JIS MS932  MS932 Shift_JIS MS932  no-such (null) (null)
        Big5 Big5 MS950  EUC-JP EUC-JP EUC-JP  ~ (null) (null)  CP1252 windows-1252 Cp1252
        949 windows-949 MS949)"))
        EXPECT_EQ(ask_encoding(database(), name.c_str()), standard + ' ' + jvm + " (null)") << name;
}

// Whichever allocation fails, the object is built, says so, and answers.
TEST(LocaleDatabase, FailedLoadIsAStatus) {
    int status = 5;
    for (long refused = 0; status != 0; refused = refused * 2 + 1) {
        allocations_left = refused;
        locale_database const incomplete;
        allocations_left = LONG_MAX;
        status = incomplete.get_init_status();
        EXPECT_TRUE(status == 5 || (status == 0 && refused > 255)) << refused;
        EXPECT_EQ(incomplete.get_init_status_log(), status == 0 ? "" : "std::bad_alloc");
        EXPECT_EQ(shown(incomplete.get_default_encoding_name("xx_YY")), "UTF-8");
    }
}
