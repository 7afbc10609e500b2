#include "driver/StartedDriver.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>

namespace tempodial {

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::MatchesRegex;

constexpr auto MessageForm = "tempodial-drive: [^\n]+: [^\n]+\n";

}

class DriverProgramTest : public testing::Test
{
protected:
    std::vector<std::string> Arguments() const
    {
        return { "--profile", mFolder.Path("profile"), "--locale", "de_DE", "--now", "2006-10-10T09:00:00" };
    }
    /// Runs with arguments that are refused, and answers the message.
    static std::string Refusal(const std::vector<std::string>& arguments, int status)
    {
        StartedDriver driver(arguments);
        EXPECT_EQ(driver.Answer(), "");
        EXPECT_EQ(driver.End(), status);
        EXPECT_THAT(driver.Error(), MatchesRegex(MessageForm));
        return driver.Error();
    }

    TempFolder mFolder;
};

TEST_F(DriverProgramTest, Run_Lines_AreAnsweredOneByOne)
{
    StartedDriver driver(Arguments());
    EXPECT_EQ(json::parse(driver.Say(R"({"do":"start"})")).at("ok"), true);
    EXPECT_EQ(json::parse(driver.Say("no JSON")).at("ok"), false);
    EXPECT_EQ(json::parse(driver.Say(R"({"do":"windows"})")).at("explorers"), json::parse("[1]"));
    EXPECT_EQ(driver.End(), 0);
    EXPECT_EQ(driver.Error(), "");
    EXPECT_EQ(driver.Answer(), "");
}

TEST_F(DriverProgramTest, Run_NoInput_EndsWell)
{
    StartedDriver driver(Arguments());
    EXPECT_EQ(driver.End(), 0);
}

TEST_F(DriverProgramTest, Run_LastLineWithoutEnd_IsAnswered)
{
    StartedDriver driver(Arguments());
    driver.Write("{\"do\":\"shell\"}\n\n{\"do\":\"shell\"}");
    EXPECT_EQ(driver.End(), 0);
    EXPECT_EQ(json::parse(driver.Answer()).at("ok"), true);
    EXPECT_EQ(json::parse(driver.Answer()).at("ok"), false);
    EXPECT_EQ(json::parse(driver.Answer()).at("ok"), true);
    EXPECT_EQ(driver.Answer(), "");
}

TEST_F(DriverProgramTest, Run_HugeLineAndNulBytes_AreAnswered)
{
    StartedDriver driver(Arguments());
    driver.Write(std::string(std::size_t { 65 } * 1024 * 1024, '[') + "\n");
    EXPECT_THAT(driver.Answer(), HasSubstr("too long"));
    EXPECT_EQ(json::parse(driver.Say(std::string("{\"do\":\0}", 8))).at("ok"), false);
    EXPECT_EQ(json::parse(driver.Say(R"({"do":"shell"})")).at("ok"), true);
    EXPECT_EQ(driver.End(), 0);
}

TEST_F(DriverProgramTest, Run_ProfileInUse_IsStatusThree)
{
    StartedDriver first(Arguments());
    EXPECT_EQ(json::parse(first.Say(R"({"do":"shell"})")).at("ok"), true);
    EXPECT_THAT(Refusal(Arguments(), 3), HasSubstr("in use by tempodial-drive (process "));
    EXPECT_EQ(first.End(), 0);
}

TEST_F(DriverProgramTest, Run_BadProfile_IsStatusOne)
{
    std::filesystem::create_directories(mFolder.Path("profile"));
    mFolder.Write("profile/mailbox.db", "no mailbox");
    EXPECT_THAT(Refusal(Arguments(), 1), HasSubstr("mailbox.db"));
    EXPECT_EQ(mFolder.Read("profile/mailbox.db"), "no mailbox");
}

TEST_F(DriverProgramTest, Run_BadArguments_AreStatusTwo)
{
    EXPECT_THAT(Refusal({ "--locale", "xx_YY" }, 2), HasSubstr("no locale \"xx_YY\""));
    EXPECT_THAT(Refusal({ "--now", "noon" }, 2), HasSubstr("YYYY-MM-DDTHH:MM:SS"));
    EXPECT_THAT(Refusal({ "--profile", "" }, 2), HasSubstr("--profile"));
    EXPECT_THAT(Refusal({ "--profile" }, 2), HasSubstr("exactly one value"));
    EXPECT_THAT(Refusal({ "start" }, 2), HasSubstr("\"start\" isn't expected here: see \"tempodial-drive --help\""));
    EXPECT_THAT(Refusal({ "--json" }, 2), HasSubstr("\"--json\" isn't expected here"));
    EXPECT_THAT(Refusal({ "--addin", "outlook" }, 2), HasSubstr("no add-in \"outlook\": give wine or wine-shipped"));
}

TEST_F(DriverProgramTest, Run_HelpAndVersion_ArePrinted)
{
    StartedDriver version({ "--version" });
    EXPECT_EQ(version.Answer(), "tempodial-drive 1.2.0");
    EXPECT_EQ(version.End(), 0);
    StartedDriver help({ "--help" });
    std::string text;
    for (auto line = help.Answer(); text.find("Exit status") == std::string::npos && text.size() < 10'000;
         line = help.Answer()) {
        text += line + "\n";
    }
    EXPECT_EQ(help.End(), 0);
    EXPECT_THAT(text, HasSubstr("--profile"));
}

TEST_F(DriverProgramTest, Run_ReaderGoesAway_EndsAsAtTheEnd)
{
    StartedDriver driver(Arguments());
    EXPECT_EQ(json::parse(driver.Say(R"({"do":"start"})")).at("ok"), true);
    driver.CloseOutput();
    driver.Write("{\"do\":\"shell\"}\n");
    EXPECT_EQ(driver.End(), 1);
    EXPECT_THAT(driver.Error(), MatchesRegex(MessageForm));
    StartedDriver next(Arguments());
    EXPECT_EQ(json::parse(next.Say(R"({"do":"start"})")).at("ok"), true);
    EXPECT_THAT(next.Say(R"({"do":"trace"})"), HasSubstr("Toolbars cleanup: 1"));
    EXPECT_EQ(next.End(), 0);
}

TEST_F(DriverProgramTest, Run_Locale_IsThatOfTheArguments)
{
    StartedDriver driver(Arguments());
    driver.Say(R"({"do":"start"})");
    driver.Say(R"({"do":"stop"})");
    EXPECT_THAT(driver.Say(R"({"do":"trace"})"), HasSubstr("10.10.2006 09:00:"));
    EXPECT_EQ(driver.End(), 0);
}

}
