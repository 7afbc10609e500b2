#include "terminal/ProgramRun.h"

#include "base/Failure.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <sstream>
#include <string>
#include <vector>

namespace tempodial {

using testing::HasSubstr;
using testing::Not;

namespace {

/// What a program complains of when its work fails so.
std::string ComplaintOf(const Failure& failure)
{
    std::ostringstream error;
    EXPECT_EQ(RunProgram("prog", error, [&failure]() -> ExitStatus { throw failure; }), ExitStatus::NotDone);
    return error.str();
}

}

TEST(ProgramRunTest, RunProgram_FullDisk_AsksForRoomAndNotForACopy)
{
    EXPECT_EQ(ComplaintOf(Failure(Error::DiskFull, "the disk is full")),
        "prog: the disk is full: make room on the disk and run the command again\n");
    EXPECT_THAT(ComplaintOf(Failure(Error::DeviceError, "the disk fails")), HasSubstr("put a good copy in the place"));
    EXPECT_THAT(ComplaintOf(Failure(Error::OutOfMemory, "no memory")), Not(HasSubstr("disk")));
}

TEST(ProgramRunTest, RunMain_WorkThatCantBegin_IsToldWithoutMemory)
{
    std::string name = "prog";
    char* arguments[] { name.data() };
    const auto run = [&arguments] {
        return RunMain(
            "prog", 1, arguments, [](const std::vector<std::string>&) -> ExitStatus { throw std::bad_alloc(); });
    };
    EXPECT_EXIT(std::exit(run()), testing::ExitedWithCode(1), "^prog: there isn't enough memory: close other programs");
}

}
