#include "support/LongTests.h"
#include "support/ProgramFixture.h"

#include <algorithm>
#include <filesystem>

namespace tempodial {

namespace {

/// The first run over a new profile, ended at its system calls.
class FirstRunTest : public ProgramFixture
{
};

}

TEST_F(FirstRunTest, Projects_KilledAnywhere_AreAllThereInTheNextRun)
{
    const auto command = Whole({ "projects" });
    const auto whole = RunTempodialKilledAt(command, 0);
    if (!whole) {
        GTEST_SKIP() << "this system doesn't let a process be observed";
    }
    ASSERT_EQ(whole->status, 0) << whole->error;
    const auto expected = Json({ "projects" });
    ASSERT_EQ(expected.size(), 5U);
    int killed = 0;
    const auto points = std::min<std::int64_t>(whole->systemCalls, StopPoints(60, 10000));
    for (std::int64_t point = 0; point < points; ++point) {
        const auto call = 1 + whole->systemCalls * point / points;
        SCOPED_TRACE("killed at system call " + std::to_string(call) + " of " + std::to_string(whole->systemCalls));
        std::filesystem::remove_all(mProfile);
        killed += RunTempodialKilledAt(command, call)->status == 128 + 9 ? 1 : 0;
        EXPECT_EQ(Json({ "projects" }), expected);
    }
    EXPECT_EQ(killed, points);
}

}
