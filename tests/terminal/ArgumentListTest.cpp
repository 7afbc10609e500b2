#include "terminal/ArgumentList.h"

#include "terminal/ArgumentParser.h"
#include "terminal/UsageError.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace tempodial {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class ArgumentListTest : public testing::Test
{
protected:
    using Words = std::vector<std::string>;

    ArgumentListTest()
    {
        auto arguments = mParser.AddCommand({ "do", "Does it", "An end" });
        arguments.Required("NAME", mName, "The name");
        arguments.Required("--out FILE", mOut, "The file");
        arguments.Optional("TEXT", mText, "The text");
        arguments.Optional("--days N", mDays, "How many days");
        arguments.Repeated("--project NAME", mProjects, "A project");
        arguments.Flag("--all", mAll, "All of it");
    }

    /// Parses arguments behind the ones that are required.
    void Parse(const Words& more)
    {
        Words words { "do", "Name", "--out", "file" };
        words.insert(words.end(), more.begin(), more.end());
        std::ostringstream out;
        ASSERT_TRUE(mParser.Parse(words, out));
    }
    std::string Refusal(const Words& words)
    {
        std::ostringstream out;
        try {
            mParser.Parse(words, out);
        } catch (const UsageError& error) {
            return error.what();
        }
        ADD_FAILURE() << "nothing was refused";
        return "";
    }

    ArgumentParser mParser { { "prog", "A program", "" } };
    std::string mName;
    std::optional<std::string> mOut;
    std::optional<std::string> mText;
    std::string mDays = "7";
    Words mProjects;
    bool mAll = false;
};

TEST_F(ArgumentListTest, Required_Given_IsTaken)
{
    Parse({});
    EXPECT_EQ(mName, "Name");
    EXPECT_EQ(mOut, "file");
}

TEST_F(ArgumentListTest, Required_LeftOut_IsRefused)
{
    EXPECT_EQ(Refusal({ "do", "Name" }), "--out is required: see \"prog do --help\"");
    EXPECT_EQ(Refusal({ "do", "--out", "file" }), "NAME is required: see \"prog do --help\"");
}

TEST_F(ArgumentListTest, Optional_LeftOut_KeepsItsValue)
{
    Parse({});
    EXPECT_EQ(mText, std::nullopt);
    EXPECT_EQ(mDays, "7");
    EXPECT_THAT(mProjects, IsEmpty());
    EXPECT_FALSE(mAll);
}

TEST_F(ArgumentListTest, Optional_Given_IsTakenAsItIs)
{
    for (const auto* value : { "", "2", "a b", "[a,b]", "{}", "%%", "a=b" }) {
        Parse({ "--days", value, "--", value });
        EXPECT_EQ(mDays, value);
        EXPECT_EQ(mText, value);
        Parse({ "--days=" + std::string(value) });
        EXPECT_EQ(mDays, value);
    }
}

TEST_F(ArgumentListTest, Optional_Twice_IsRefused)
{
    EXPECT_EQ(Refusal({ "do", "Name", "--out", "file", "--days", "1", "--days", "2" }),
        "--days needs exactly one value: see \"prog do --help\"");
}

TEST_F(ArgumentListTest, Repeated_Given_TakesEachValueInOrder)
{
    Parse({ "--project", "b" });
    EXPECT_THAT(mProjects, ElementsAre("b"));
    Parse({ "--project", "b", "--all", "--project=a", "--project", "b" });
    EXPECT_THAT(mProjects, ElementsAre("b", "a", "b"));
}

TEST_F(ArgumentListTest, Repeated_ValuesThatLookLikeOthers_AreTakenAsTheyAre)
{
    for (const auto* value : { "", "[a,b]", "a,b", "{}", "%%", "-x", "--", "do", "a=b" }) {
        Parse({ "--project=" + std::string(value) });
        EXPECT_THAT(mProjects, ElementsAre(value));
    }
    Parse({ "--project", "[a,b]", "--project", "", "--project", "--all" });
    EXPECT_THAT(mProjects, ElementsAre("[a,b]", "", "--all"));
    EXPECT_FALSE(mAll);
}

TEST_F(ArgumentListTest, Repeated_Given_LeavesWhatFollows)
{
    Parse({ "--project", "a", "text" });
    EXPECT_THAT(mProjects, ElementsAre("a"));
    EXPECT_EQ(mText, "text");
}

TEST_F(ArgumentListTest, Repeated_WithoutValue_IsRefused)
{
    EXPECT_EQ(Refusal({ "do", "Name", "--out", "file", "--project" }),
        "--project needs exactly one value: see \"prog do --help\"");
}

TEST_F(ArgumentListTest, Flag_Given_IsSet)
{
    Parse({ "--all" });
    EXPECT_TRUE(mAll);
}

TEST_F(ArgumentListTest, Form_OfAnArgument_IsWhatTheHelpShows)
{
    std::ostringstream out;
    EXPECT_FALSE(mParser.Parse({ "do", "--help" }, out));
    for (const auto* line : { "Does it", "\n  NAME ", "\n  TEXT ", "\n  --out FILE ", "\n  --days N ",
             "\n  --project NAME ", "\n  --all ", "A project\n", "An end" }) {
        EXPECT_THAT(out.str(), HasSubstr(line));
    }
}

}
