#include "driver/remote/ChildProcess.h"

#include "wire/WireFailure.h"

#include <gtest/gtest.h>

#include <array>
#include <sched.h>
#include <string>

namespace tempodial {

namespace {

using std::chrono::seconds;

std::string Read(ChildProcess& process)
{
    std::array<char, 100> buffer {};
    return { buffer.data(), process.Read(buffer.data(), buffer.size()) };
}

}

TEST(ChildProcessTest, Bytes_GoThroughAndEnd)
{
    ChildProcess process({ "cat" }, seconds(20));
    process.Write("some bytes");
    EXPECT_EQ(Read(process), "some bytes");
    EXPECT_EQ(process.Finish(), 0);
    EXPECT_EQ(Read(process), "");
}

TEST(ChildProcessTest, BothEnds_StayOnOneProcessor)
{
    cpu_set_t before;
    ASSERT_EQ(sched_getaffinity(0, sizeof before, &before), 0);
    {
        ChildProcess process({ "nproc" }, seconds(20));
        cpu_set_t during;
        sched_getaffinity(0, sizeof during, &during);
        EXPECT_EQ(CPU_COUNT(&during), 1);
        EXPECT_EQ(Read(process), "1\n");
    }
    // The other tests of this program may have them all again.
    sched_setaffinity(0, sizeof before, &before);
}

TEST(ChildProcessTest, Finish_TellsHowItEnded)
{
    EXPECT_EQ(ChildProcess({ "sh", "-c", "exit 7" }, seconds(20)).Finish(), 7);
    EXPECT_EQ(ChildProcess({ "sh", "-c", "kill -9 $$" }, seconds(20)).Finish(), -1);
    EXPECT_NE(ChildProcess({ "/no/such/program" }, seconds(20)).Finish(), 0);
}

TEST(ChildProcessTest, Program_ThatNeverAnswers_IsGivenUp)
{
    ChildProcess process({ "sleep", "100" }, seconds(1));
    EXPECT_THROW(Read(process), WireBroken);
    EXPECT_EQ(process.Finish(), -1);
}

TEST(ChildProcessTest, Program_ThatDoesNotEnd_IsEndedByForce)
{
    EXPECT_EQ(ChildProcess({ "sh", "-c", "trap '' HUP TERM; exec sleep 100" }, seconds(1)).Finish(), -1);
}

}
