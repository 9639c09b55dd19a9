#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/cvt_exception.hpp>
#include <fl/i18n/ustring.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

#include <array>

namespace fl::i18n {
namespace {

codecvt_call_back_mode mode(unsigned int value) {
    return static_cast<codecvt_call_back_mode>(value);
}

// The bytes of a short text, or ICU's name of the failure.
std::string encode(CvtCtx const& ctx, ustring const& text) {
    std::array<char, 200> bytes;
    UErrorCode status = U_ZERO_ERROR;
    int32_t const size = ucnv_fromUChars(ctx.handle(), bytes.data(), 200, text.data(),
                                         static_cast<int32_t>(text.size()), &status);
    return U_FAILURE(status) ? u_errorName(status)
                             : std::string(bytes.data(), static_cast<std::size_t>(size));
}

// Whether a byte that no UTF-8 text has stops the conversion into Unicode.
bool stops_at_bad_byte(CvtCtx const& ctx) {
    std::array<char16_t, 20> units;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUChars(ctx.handle(), units.data(), 20, "a\xFF", 2, &status);
    return U_FAILURE(status);
}

TEST(CvtCtx, EachFromModeTreatsWhatTheEncodingLacks) {
    // The soft hyphen is default-ignorable: ICU's own call-backs drop it.
    struct {
        unsigned int mode;
        char const *han, *emoji, *soft_hyphen;
    } const rows[] = {
        {0, "\x1A", "\x1A", ""},
        {1, "U_INVALID_CHAR_FOUND", "U_INVALID_CHAR_FOUND", "U_INVALID_CHAR_FOUND"},
        {256, "%U4E2D", "%UD83D%UDE00", "%U00AD"},
        {512, "\\u4E2D", "\\uD83D\\uDE00", "\\u00AD"},
        {1024, "\\u4E2D", "\\U0001F600", "\\u00AD"},
        {2048, "&#20013;", "&#128512;", "&#173;"},
        {4096, "&#x4E2D;", "&#x1F600;", "&#xAD;"},
        {8192, "{U+4E2D}", "{U+1F600}", "{U+00AD}"},
        {16384, "\\4E2D ", "\\1F600 ", "\\AD "},
        {0x300, "%U4E2D", "%UD83D%UDE00", "%U00AD"},
    };
    CvtCtx ctx("US-ASCII");
    for (auto const& row : rows) {
        SCOPED_TRACE(row.mode);
        ctx.change_from_call_back(mode(row.mode), "?");
        EXPECT_EQ(ctx.get_from_call_back_mode(), mode(row.mode));
        EXPECT_EQ(encode(ctx, u"\u4E2D"), row.han);
        EXPECT_EQ(encode(ctx, u"\U0001F600"), row.emoji);
        EXPECT_EQ(encode(ctx, u"\u00AD"), row.soft_hyphen);
    }
    ctx.reset_from_call_back();
    EXPECT_EQ(encode(ctx, u"\u4E2D"), "\x1A");
}

// The kind of the exception, 0 for none.
template <class Call>
int refusal(Call call) {
    try {
        call();
        return 0;
    } catch (CvtExceptionBase const& e) {
        return e.kind();
    }
}

TEST(CvtCtx, RefusedModesLeaveTheDefault) {
    struct {
        unsigned int mode;
        int from_kind, to_kind; // 1 CvtInvalidArgument, 4 CvtNonSupportedMode
    } const rows[] = {{2, 1, 1},  {17, 1, 1}, {64, 1, 1},  {128, 1, 1},   {0x8000, 1, 1}, {0x80000000, 1, 1},
                      {16, 1, 4}, {32, 4, 4}, {256, 0, 4}, {0x300, 0, 4}, {0xC000, 0, 4}};
    CvtCtx ctx("UTF-8");
    for (auto const& row : rows) {
        SCOPED_TRACE(row.mode);
        ctx.change_from_call_back(stop_call_back, "");
        ctx.change_to_call_back(stop_call_back);
        EXPECT_TRUE(stops_at_bad_byte(ctx));
        EXPECT_EQ(refusal([&] { ctx.change_from_call_back(mode(row.mode), ""); }), row.from_kind);
        EXPECT_EQ(refusal([&] { ctx.change_to_call_back(mode(row.mode)); }), row.to_kind);
        EXPECT_EQ(ctx.get_from_call_back_mode(), mode(row.from_kind == 0 ? row.mode : 0));
        EXPECT_EQ(ctx.get_to_call_back_mode(), no_call_back);
        EXPECT_FALSE(stops_at_bad_byte(ctx));
    }
}

TEST(CvtCtx, SubstitutionIsBoundedNeedsTheDefaultAndOutlivesIt) {
    CvtCtx ctx("US-ASCII");
    EXPECT_THROW(ctx.change_from_substitution(""), CvtInvalidArgument);
    EXPECT_THROW(ctx.change_from_substitution(std::string(128, '?')), CvtSizeTooLarge);
    EXPECT_THROW(ctx.change_from_substitution(std::string(127, '?')), CvtCallBackSettingFailure);
    ctx.enable_from_invalid_check();
    EXPECT_THROW(ctx.change_from_substitution("?"), CvtInvalidArgument);
    ctx.change_from_call_back(substitute_call_back, "?");
    EXPECT_EQ(ctx.get_from_call_back_mode(), no_call_back);
    ctx.enable_from_invalid_check();
    ctx.enable_from_invalid_check(); // does nothing, so that the default stays saved
    ctx.reset_from_call_back();
    EXPECT_EQ(encode(ctx, u"\u00E9"), "?");
    ctx.enable_escape_mode(escape_c_call_back);
    ctx.enable_from_invalid_check();
    ctx.reset_from_call_back(); // puts back what the last one replaced
    EXPECT_EQ(encode(ctx, u"\u00E9"), "\\u00E9");
}

TEST(CvtCtx, NamesOfEveryConverter) {
    ASSERT_GT(ucnv_countAvailable(), 100);
    for (int i = 0; i < ucnv_countAvailable(); ++i) {
        std::string const name = ucnv_getAvailableName(i);
        SCOPED_TRACE(name);
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<UConverter, lcctype::converter_close> handle(ucnv_open(name.c_str(), &status));
        CvtCtx const ctx(handle);
        EXPECT_FALSE(handle);
        std::string icu_name;
        std::string expected = ctx.get_cvt_name(icu_name);
        for (char const* const standard : {"WINDOWS", "IANA", "MIME"}) // the last to answer wins
            if (char const* const answer = ucnv_getStandardName(icu_name.c_str(), standard, &status))
                expected = answer;
        EXPECT_EQ(ctx.get_encoding(), expected);
        int const max_size = ucnv_getMaxCharSize(ctx.handle());
        EXPECT_EQ(ctx.get_max_byte_size(), static_cast<unsigned long>(name == "UTF-8" ? 4 : max_size));
    }
}

TEST(CvtCtx, ReopeningForgetsModesAndKeepsTheNames) {
    CvtCtx ctx("latin1");
    EXPECT_EQ(ctx.get_encoding(), "ISO-8859-1");
    ctx.change_from_call_back(stop_call_back, "");
    ctx.change_to_call_back(stop_call_back);
    ctx.open_converter("US-ASCII");
    EXPECT_EQ(ctx.get_to_call_back_mode(), no_call_back);
    EXPECT_EQ(encode(ctx, u"\u00E9"), "\x1A");
    ctx.enable_from_invalid_check(); // with the mode still recorded, this would do nothing
    EXPECT_EQ(encode(ctx, u"\u00E9"), "U_INVALID_CHAR_FOUND");
    EXPECT_EQ(ctx.get_encoding(), "ISO-8859-1");
}

TEST(CvtCtx, FailedReopeningLeavesNoConverter) {
    CvtCtx ctx("UTF-8");
    ctx.change_from_call_back(stop_call_back, "");
    try {
        ctx.open_converter("no-such-encoding");
        FAIL() << "opened";
    } catch (CvtInvalidEncodingName const& e) {
        EXPECT_EQ(e.encoding(), "no-such-encoding");
    }
    EXPECT_THROW(ctx.change_from_call_back(stop_call_back, ""), CvtCallBackSettingFailure);
    EXPECT_THROW(ctx.change_from_substitution("?"), CvtCallBackSettingFailure);
    EXPECT_THROW(ctx.change_to_call_back(stop_call_back), CvtCallBackSettingFailure);
    EXPECT_EQ(ctx.get_encoding(), "");
    EXPECT_EQ(ctx.get_max_byte_size(), 0u);
    std::string name = "kept";
    EXPECT_EQ(ctx.get_cvt_name(name), "kept");
}

} // namespace
} // namespace fl::i18n
