#include "faults/UndoneWork.h"

#include <gtest/gtest.h>

#include <array>

namespace tempodial {

namespace {

constexpr std::array<std::string_view, 1> FileClasses { "FileSystem" };

std::string_view UndoneBy(std::string_view member, bool opensForWriting = false, Error error = Error::PermissionDenied)
{
    return UndoneWork(
        { .classes = FileClasses, .member = member, .key = {}, .path = "/a", .opensForWriting = opensForWriting },
        Failure(error));
}

}

TEST(UndoneWorkTest, Failed_SaysWhatIsUndone)
{
    EXPECT_EQ(UndoneBy("OpenTextFile"), "read");
    EXPECT_EQ(UndoneBy("OpenTextFile", true), "written");
    EXPECT_EQ(UndoneBy("CopyFile"), "copied");
    EXPECT_EQ(UndoneBy("Close"), "written");
}

TEST(UndoneWorkTest, QuestionAbsenceAndNoFile_AreNothing)
{
    EXPECT_EQ(UndoneBy("FileExists"), "");
    for (const auto error : { Error::FileNotFound, Error::PathNotFound, Error::InputPastEnd }) {
        EXPECT_EQ(UndoneBy("OpenTextFile", false, error), "");
    }
    EXPECT_EQ(UndoneWork({ .classes = FileClasses, .member = "ReadLine" }, Failure(Error::PermissionDenied)), "");
}

}
