#include "support/LongTests.h"
#include "support/ProgramFixture.h"

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
    for (std::int64_t call = 1; call <= whole->systemCalls; call += ShortOrLong(23, 1)) {
        SCOPED_TRACE("killed at system call " + std::to_string(call) + " of " + std::to_string(whole->systemCalls));
        std::filesystem::remove_all(mProfile);
        killed += RunTempodialKilledAt(command, call)->status == 128 + 9 ? 1 : 0;
        EXPECT_EQ(Json({ "projects" }), expected);
    }
    EXPECT_GT(killed, 20);
}

}
