#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/natural_sort_exceptions.hpp>
#include <fl/i18n/regex_exceptions.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n;

TEST(CharacterHandlingMode, ExceptionsSayWhatFailed) {
    auto const shown = [](auto const& e) { return std::to_string(e.kind()) + " " + e.what(); };
    EXPECT_EQ(shown(CtypeSizeTooLarge()), "0 Data size too large.");
    EXPECT_EQ(shown(CtypeTransformFailure(7)), "1 Transformation failure.");
    EXPECT_EQ(shown(CtypeStrCompFailure(7)), "2 String comparison failure.");
    EXPECT_EQ(shown(foundation::ustring::CtypeInvalidCharacter()), "3 Invalid character error.");
    EXPECT_EQ(shown(CtypeInvalidArgument()), "4 Invalid argument error.");
    EXPECT_EQ(shown(RegexInvalidArgument()), "2 fl:i18n:RegexInvalidArgument");
    EXPECT_EQ(shown(RegexInvalidObject()), "3 fl:i18n:RegexInvalidObject");
    EXPECT_EQ(shown(RegexFailedObjectCreation()), "4 fl:i18n:RegexFailedObjectCreation");
    EXPECT_EQ(shown(RegexFailedMatchOperation()), "5 fl:i18n:RegexFailedMatchOperation");
    EXPECT_EQ(shown(RegexFailedNormalization()), "6 fl:i18n:RegexFailedNormalization");
    EXPECT_THROW(character_handling_mode_context(32), CtypeInvalidArgument);
    EXPECT_STREQ(NaturalSortCollatorException("7").what(),
                 "Failed to create ICU Collator. Following error code received: 7");
    EXPECT_STREQ(NaturalSortCompareException("7").what(),
                 "ICU Collator's compare operation failed. Following error code received: 7");
}
