#include <fl/i18n/cvt_ctx.hpp>
#include <fl/i18n/cvt_exceptions.hpp>

#include <gtest/gtest.h>
#include <unicode/ucnv.h>

using namespace fl::i18n;

// The bytes of a short text, or ICU's name of the failure.
static std::string encode(CvtCtx const& ctx, char16_t const* text) {
    char bytes[200];
    UErrorCode status = U_ZERO_ERROR;
    ucnv_fromUChars(ctx.handle(), bytes, 200, text, -1, &status);
    return U_FAILURE(status) ? u_errorName(status) : bytes;
}

// The kind of the exception, 0 for none.
static int refusal(auto const& call) try {
    call();
    return 0;
} catch (CvtExceptionBase const& e) {
    return e.kind();
}

TEST(CvtCtx, EachModeIsInForceOrRefused) {
    CvtCtx ctx("US-ASCII");
    // The kinds: 1 CvtInvalidArgument, 4 CvtNonSupportedMode.
    auto const expect_mode = [&](unsigned int value, int from_kind, int to_kind, std::string const& bytes) {
        SCOPED_TRACE(value);
        codecvt_call_back_mode const mode{value};
        ctx.change_from_call_back(stop_call_back, "");
        ctx.change_to_call_back(stop_call_back);
        EXPECT_EQ(refusal([&] { ctx.change_from_call_back(mode, ""); }), from_kind);
        EXPECT_EQ(refusal([&] { ctx.change_to_call_back(mode); }), to_kind);
        EXPECT_EQ(ctx.get_to_call_back_mode(), to_kind == 0 ? mode : no_call_back);
        // The soft hyphen is default-ignorable: ICU's own call-backs drop it.
        EXPECT_EQ(encode(ctx, u"\u4E2D") + encode(ctx, u"\U0001F600") + encode(ctx, u"\u00AD"), bytes);
    };
    std::string const stopped = "U_INVALID_CHAR_FOUND";
    expect_mode(1, 0, 0, stopped + stopped + stopped);
    expect_mode(256, 0, 4, "%U4E2D%UD83D%UDE00%U00AD");
    expect_mode(512, 0, 4, "\\u4E2D\\uD83D\\uDE00\\u00AD");
    expect_mode(1024, 0, 4, "\\u4E2D\\U0001F600\\u00AD");
    expect_mode(2048, 0, 4, "&#20013;&#128512;&#173;");
    expect_mode(4096, 0, 4, "&#x4E2D;&#x1F600;&#xAD;");
    expect_mode(8192, 0, 4, "{U+4E2D}{U+1F600}{U+00AD}");
    expect_mode(16384, 0, 4, "\\4E2D \\1F600 \\AD ");
    expect_mode(0xC000, 0, 4, "%U4E2D%UD83D%UDE00%U00AD");
    expect_mode(0, 0, 0, "\x1A\x1A");
    expect_mode(16, 1, 4, "\x1A\x1A"); // an empty substitution
    expect_mode(32, 4, 4, "\x1A\x1A");
    for (unsigned int const value : {2u, 17u, 64u, 128u, 0x8000u, 0x80000000u})
        expect_mode(value, 1, 1, "\x1A\x1A");
}

TEST(CvtCtx, SubstitutionIsBoundedNeedsTheDefaultAndOutlivesIt) {
    CvtCtx ctx("US-ASCII");
    EXPECT_THROW(ctx.change_from_substitution(""), CvtInvalidArgument);
    EXPECT_THROW(ctx.change_from_substitution(std::string(128, '?')), CvtSizeTooLarge);
    EXPECT_THROW(ctx.change_from_substitution(std::string(127, '?')), CvtCallBackSettingFailure);
    ctx.enable_from_invalid_check();
    ctx.enable_from_invalid_check(); // does nothing, so that the default stays saved
    EXPECT_THROW(ctx.change_from_substitution("?"), CvtInvalidArgument);
    ctx.change_from_call_back(substitute_call_back, "?");
    EXPECT_EQ(encode(ctx, u"\u00E9"), "?");
    ctx.enable_escape_mode(escape_c_call_back);
    ctx.enable_from_invalid_check();
    ctx.reset_from_call_back(); // puts back what the last one replaced
    EXPECT_EQ(encode(ctx, u"\u00E9"), "\\u00E9");
}

TEST(CvtCtx, ReopeningForgetsModesAndKeepsTheNamesIfItSucceeds) {
    CvtCtx ctx("latin1");
    EXPECT_EQ(ctx.get_encoding(), "ISO-8859-1");
    ctx.change_from_call_back(stop_call_back, "");
    ctx.open_converter("US-ASCII");
    EXPECT_EQ(encode(ctx, u"\u00E9"), "\x1A");
    ctx.enable_from_invalid_check(); // with the mode still recorded, this would do nothing
    EXPECT_EQ(encode(ctx, u"\u00E9"), "U_INVALID_CHAR_FOUND");
    EXPECT_EQ(ctx.get_encoding(), "ISO-8859-1");
    CvtCtx gone("UTF-8");
    for (std::string const& unknown : {std::string("no-such-encoding"), std::string("UTF-8\0x", 7)})
        EXPECT_THROW(gone.open_converter(unknown), CvtInvalidEncodingName) << unknown;
    EXPECT_THROW(gone.change_from_call_back(stop_call_back, ""), CvtCallBackSettingFailure);
    EXPECT_THROW(gone.change_to_call_back(stop_call_back), CvtCallBackSettingFailure);
    EXPECT_EQ(gone.get_encoding(), "");
}
