#include "terminal/ProfileProgram.h"

#include "terminal/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

namespace tempodial {

namespace {

using testing::HasSubstr;

/// A program that tells which profile it got, and fails when it is told to.
class SmallProgram final : public ProfileProgram
{
public:
    SmallProgram(std::ostream& out, std::ostream& error)
        : ProfileProgram({ "small", "Says a little.\n", "An example.\n\n" }, out, error)
    {
    }

protected:
    void Declare(ArgumentList& arguments) override { arguments.Optional("--fail WHY", mWhy, "Why it fails"); }
    ExitStatus Work(const ProfileOptions& options) override
    {
        if (mWhy) {
            throw UsageError(*mWhy);
        }
        options.warn("a warning");
        Out() << *options.profile;
        return ExitStatus::Done;
    }

private:
    std::optional<std::string> mWhy;
};

}

class ProfileProgramTest : public testing::Test
{
protected:
    ExitStatus Run(const std::vector<std::string>& arguments) { return SmallProgram(mOut, mError).Run(arguments); }

    std::ostringstream mOut;
    std::ostringstream mError;
};

TEST_F(ProfileProgramTest, Run_WithAProfile_DoesTheWork)
{
    EXPECT_EQ(Run({ "--profile", "/p" }), ExitStatus::Done);
    EXPECT_EQ(mOut.str(), "/p");
    EXPECT_EQ(mError.str(), "small: a warning\n");
}

TEST_F(ProfileProgramTest, Run_ItsOwnArgument_IsTaken)
{
    EXPECT_EQ(Run({ "--fail", "so it is" }), ExitStatus::Usage);
    EXPECT_EQ(mOut.str(), "");
    EXPECT_EQ(mError.str(), "small: so it is\n");
}

TEST_F(ProfileProgramTest, Run_Help_TellsOfArgumentsAndExitStatuses)
{
    EXPECT_EQ(Run({ "--help" }), ExitStatus::Done);
    EXPECT_THAT(mOut.str(), HasSubstr("--profile"));
    EXPECT_THAT(mOut.str(), HasSubstr("--fail"));
    EXPECT_THAT(mOut.str(), HasSubstr("An example.\n\nExit status: 0 done"));
}

TEST_F(ProfileProgramTest, Run_UnusableArguments_AreRefused)
{
    EXPECT_EQ(Run({ "--locale", "xx_YY" }), ExitStatus::Usage);
    EXPECT_THAT(mError.str(), HasSubstr("xx_YY"));
}

}
