#include "support/threads.hpp"

#include <fl/i18n/lc_status.hpp>

#include <gtest/gtest.h>

using namespace fl::i18n::lcmgmt;

TEST(LcStatus, WarningsAreWholeWhoeverSetsThem) {
    LcStatusCtx status;
    EXPECT_EQ(std::to_string(status.code()) + status.warning(), "2");
    fl::testing::run_in_threads(8, [&](int thread) {
        for (int round = 0; round < 200; ++round) {
            status.set(thread, std::string(64, static_cast<char>('a' + thread)));
            std::string const seen = status.warning();
            EXPECT_TRUE(seen.size() == 64 && seen == std::string(64, seen[0])) << seen;
        }
    });
    status.set_code(0);
    EXPECT_EQ(status.code(), 0);
    EXPECT_EQ(status.warning().size(), 64) << "the code alone has changed";
}
