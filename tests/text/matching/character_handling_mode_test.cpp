#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/natural_sort_exception.hpp>
#include <fl/i18n/regex_exception.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;

TEST(CharacterHandlingMode, ExceptionsSayWhatFailed) {
    auto const expect_says = [](auto const& failure, int kind, std::string const& what) {
        EXPECT_EQ(failure.what(), what);
        EXPECT_EQ(failure.kind(), kind) << what;
    };
    expect_says(CtypeSizeTooLarge(), 0, "Data size too large.");
    expect_says(CtypeTransformFailure(7), 1, "Transformation failure.");
    expect_says(CtypeStrCompFailure(7), 2, "String comparison failure.");
    expect_says(foundation::ustring::CtypeInvalidCharacter(), 3, "Invalid character error.");
    expect_says(CtypeInvalidArgument(), 4, "Invalid argument error.");
    expect_says(RegexInvalidArgument(), 2, "fl:i18n:RegexInvalidArgument");
    expect_says(RegexInvalidObject(), 3, "fl:i18n:RegexInvalidObject");
    expect_says(RegexFailedObjectCreation(), 4, "fl:i18n:RegexFailedObjectCreation");
    expect_says(RegexFailedMatchOperation(), 5, "fl:i18n:RegexFailedMatchOperation");
    expect_says(RegexFailedNormalization(), 6, "fl:i18n:RegexFailedNormalization");
    EXPECT_THROW(character_handling_mode_context(32), CtypeInvalidArgument);
    EXPECT_EQ(character_handling_mode_context(31).mask(), 31);
    EXPECT_STREQ(NaturalSortCollatorException("7").what(),
                 "Failed to create ICU Collator. Following error code received: 7");
    EXPECT_STREQ(NaturalSortCompareException("7").what(),
                 "ICU Collator's compare operation failed. Following error code received: 7");
}
