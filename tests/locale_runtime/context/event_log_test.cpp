#include "locale_runtime/context/event_log.hpp"
#include "support/threads.hpp"

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(EventLog, LosesNoEntryOfManyThreads) {
    event_log log;
    testing::run_in_threads(8, [&](int number) {
        for (int entry = 0; entry < 100; ++entry)
            log.add_entry(std::to_string(number) + ':' + std::to_string(entry));
    });
    auto entries = log.entries();
    std::sort(entries.begin(), entries.end());
    EXPECT_EQ(std::unique(entries.begin(), entries.end()) - entries.begin(), 800);
}

} // namespace
} // namespace fl::i18n::lcmgmt
