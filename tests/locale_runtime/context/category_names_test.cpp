#include "locale_runtime/context/category_names.hpp"

#include <gtest/gtest.h>

namespace fl::i18n::lcmgmt {
namespace {

TEST(CategoryNames, AnswerWhateverTheCaseOfAName) {
    struct row {
        int value;
        char const* category;
        char const* optional_data;
    };
    row const rows[] = {
        {0, "ctype", "jvmencoding"},      {1, "COLLATE", "TermEncoding"},
        {2, "time", "terminputencoding"}, {3, "Numeric", "termOUTPUTencoding"},
        {4, "monetary", "papersize"},     {5, "messages", "unittype"},
    };
    category_names names;
    EXPECT_THROW(names.category("ctype"), QnLcDataNotFound) << "not filled yet";
    names.fill();
    for (auto const& [value, category, optional_data] : rows) {
        auto const known = static_cast<QnLocale::LcCategory>(value);
        EXPECT_EQ(names.category(category), known) << category;
        EXPECT_EQ(names.category(names.category_name(known)), known) << category;
        EXPECT_EQ(names.optional_data(optional_data), value) << optional_data;
    }
    EXPECT_EQ(names.category_name(QnLocale::collate), "collate");
    EXPECT_THROW(names.category("message"), QnLcDataNotFound);
    EXPECT_THROW(names.category_name(static_cast<QnLocale::LcCategory>(6)), QnLcDataNotFound);
    EXPECT_THROW(names.optional_data("paper"), QnLcDataNotFound);
}

} // namespace
} // namespace fl::i18n::lcmgmt
