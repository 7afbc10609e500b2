#include "driver/remote/ChildProcess.h"

#include "wire/WireFailure.h"

#include <gtest/gtest.h>

#include <array>
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
