#include "locale_runtime/context/locale_slots.hpp"

#include <fl/i18n/locale_database.hpp>
#include <fl/i18n/locale_impl.hpp>

#include <gtest/gtest.h>

namespace fl::i18n::lcmgmt {
namespace {

TEST(LocaleSlots, ListGrowsByAppendingAndKeepsWhatIsReplaced) {
    locale_database const database;
    auto const slot_for = [&](char const* name) {
        auto locale = std::make_unique<QnLocaleImpl>(database);
        locale->setLcName(name, "");
        return std::make_unique<global_locale_slot>(std::move(locale));
    };
    struct step {
        char const* name;
        bool replaces;
        std::size_t size;
    };
    step const steps[] = {
        {"en_US_POSIX", false, 1}, {"de_DE", true, 2}, // the first one is not replaced
        {"fr_FR", true, 2},        {"ja_JP", false, 3}, {"it_IT", true, 3},
    };
    locale_slots slots;
    EXPECT_FALSE(slots.current());
    std::vector<QnLocale const*> seen;
    for (auto const& [name, replaces, size] : steps) {
        replaces ? slots.replace_last(slot_for(name)) : slots.append(slot_for(name));
        EXPECT_EQ(slots.size(), size) << name;
        seen.push_back(&slots.current()->locale());
    }
    for (std::size_t i = 0; i < seen.size(); ++i)
        EXPECT_EQ(seen[i]->shortName(QnLocale::time), steps[i].name);
}

} // namespace
} // namespace fl::i18n::lcmgmt
