#include "support/failure.hpp"

#include <fl/i18n/character_handling_mode.hpp>
#include <fl/i18n/natural_sort_exception.hpp>
#include <fl/i18n/regex_exception.hpp>

#include <gtest/gtest.h>

#include <memory>

using namespace fl::i18n;

TEST(CharacterHandlingMode, EachMaskAnswersByItsBits) {
    for (unsigned int mask = 0; mask < 32; ++mask) {
        character_handling_mode_context const mode(mask);
        EXPECT_EQ(mode.is_case_sensitive_mode(), mask % 2 == 0) << mask;
        EXPECT_EQ(mode.is_normalized_compose_mode(), mask % 8 / 2 == 1) << mask;
        EXPECT_EQ(mode.is_normalized_decompose_mode(), mask % 8 / 2 == 3) << mask;
        EXPECT_EQ(mode.is_locale_dependent_mode(), mask % 16 >= 8) << mask;
        EXPECT_EQ(mode.is_normalization_insensitive_mode(), mask >= 16) << mask;
    }
    auto const make = [](unsigned int mask) { character_handling_mode_context const refused(mask); };
    EXPECT_EQ(fl::testing::failure<CtypeInvalidArgument>(make, 32u), "Invalid argument error.");
    EXPECT_EQ(fl::testing::failure<CtypeInvalidArgument>(make, ~0u), "Invalid argument error.");
}

// -1 for a class without kinds.
static int kind_of(std::exception const& failure) {
    if (auto const* const ctype = dynamic_cast<foundation::ustring::CtypeExceptionBase const*>(&failure))
        return ctype->kind();
    auto const* const regex = dynamic_cast<RegexExceptionBase const*>(&failure);
    return regex ? regex->kind() : -1;
}

TEST(CharacterHandlingMode, ExceptionsSayWhatFailed) {
    struct {
        std::shared_ptr<std::exception> object;
        int kind;
        std::string what;
    } const rows[] = {
        {std::make_shared<CtypeSizeTooLarge>(), 0, "Data size too large."},
        {std::make_shared<CtypeTransformFailure>(7), 1, "Transformation failure."},
        {std::make_shared<CtypeStrCompFailure>(7), 2, "String comparison failure."},
        {std::make_shared<foundation::ustring::CtypeInvalidCharacter>(), 3, "Invalid character error."},
        {std::make_shared<CtypeInvalidArgument>(), 4, "Invalid argument error."},
        {std::make_shared<RegexInvalidArgument>(), 2, "fl:i18n:RegexInvalidArgument"},
        {std::make_shared<RegexInvalidObject>(), 3, "fl:i18n:RegexInvalidObject"},
        {std::make_shared<RegexFailedObjectCreation>(), 4, "fl:i18n:RegexFailedObjectCreation"},
        {std::make_shared<RegexFailedMatchOperation>(), 5, "fl:i18n:RegexFailedMatchOperation"},
        {std::make_shared<RegexFailedNormalization>(), 6, "fl:i18n:RegexFailedNormalization"},
        {std::make_shared<NaturalSortCollatorException>("7"), -1,
         "Failed to create ICU Collator. Following error code received: 7"},
        {std::make_shared<NaturalSortCompareException>("7"), -1,
         "ICU Collator's compare operation failed. Following error code received: 7"},
    };
    for (auto const& row : rows) {
        EXPECT_EQ(row.object->what(), row.what);
        EXPECT_EQ(kind_of(*row.object), row.kind) << row.what;
    }
}
