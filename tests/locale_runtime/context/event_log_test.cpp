#include "locale_runtime/context/event_log.hpp"

#include <gtest/gtest.h>

namespace fl::i18n::lcmgmt {
namespace {

TEST(EventLog, GivesEntriesInTheOrderOfTheEvents) {
    event_log log;
    log.add("place", "What has happened.");
    log.add("place", "Failed", 7);
    auto const before = log.entries();
    log.add_entry("as it is");
    EXPECT_EQ(before, (std::vector<std::string>{"place - What has happened.", "place - Failed7"}));
    EXPECT_EQ(log.entries().back(), "as it is");
}

} // namespace
} // namespace fl::i18n::lcmgmt
