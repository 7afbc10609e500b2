#include "support/DriverFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

}

class DriverTest : public DriverFixture
{
protected:
    Json Answered(const std::string& line) { return Json::parse(mDriver->Answer(line)); }
    std::string ErrorOf(const std::string& line)
    {
        const auto answer = Answered(line);
        EXPECT_EQ(answer.at("ok"), false) << line;
        EXPECT_EQ(answer.at("messages"), Json::array()) << line;
        return answer.value("error", "");
    }
};

TEST_F(DriverTest, Answer_GoodLine_IsOneLineWithoutMessages)
{
    EXPECT_EQ(mDriver->Answer(R"({"do":"shell"})"), R"({"ok":true,"opened":[],"messages":[]})");
    EXPECT_EQ(mDriver->Answer(" {\"do\" : \"shell\"}\r"), R"({"ok":true,"opened":[],"messages":[]})");
}

TEST_F(DriverTest, Answer_BadLines_SayWhatIsWrong)
{
    EXPECT_THAT(ErrorOf(""), HasSubstr("no JSON"));
    EXPECT_THAT(ErrorOf("{\"do\":\"shell\""), HasSubstr("no JSON"));
    EXPECT_THAT(ErrorOf("\xff\xfe"), HasSubstr("no JSON"));
    EXPECT_THAT(ErrorOf(std::string("{\"do\":\"\0\"}", 10)), HasSubstr("no JSON"));
    EXPECT_THAT(ErrorOf("[]"), HasSubstr("object"));
    EXPECT_THAT(ErrorOf("\"shell\""), HasSubstr("object"));
    EXPECT_THAT(ErrorOf("{}"), HasSubstr("\"do\" is missing"));
    EXPECT_THAT(ErrorOf(R"({"do":7})"), HasSubstr("\"do\" must be a text"));
    EXPECT_THAT(ErrorOf(R"({"do":"dance"})"), HasSubstr("no command \"dance\""));
    EXPECT_THAT(ErrorOf(R"({"do":"clock","advance":"1"})"), HasSubstr("\"advance\" must be a whole number"));
    EXPECT_THAT(ErrorOf(R"({"do":"clock","advance":4294967296})"), HasSubstr("\"advance\" must be a whole number"));
    EXPECT_THAT(ErrorOf(R"({"do":"clock","advance":1.5})"), HasSubstr("\"advance\" must be a whole number"));
    EXPECT_THAT(ErrorOf(R"({"do":"start","logon":"yes"})"), HasSubstr("\"logon\" must be true or false"));
    EXPECT_THAT(ErrorOf(R"({"do":"answers","answers":"yes"})"), HasSubstr("\"answers\" must be a list"));
    EXPECT_THAT(ErrorOf(R"({"do":"answers","answers":[1]})"), HasSubstr("\"answers\" must be a list"));
    EXPECT_THAT(ErrorOf(std::string(1'000'000, '[')), HasSubstr("too deeply"));
    EXPECT_THAT(ErrorOf(std::string(1'000'000, 'x')), HasSubstr("no JSON"));
    EXPECT_EQ(Answered(R"({"do":"shell"})").at("ok"), true);
}

TEST_F(DriverTest, Answer_NoJson_SaysWhereInOurWords)
{
    EXPECT_EQ(ErrorOf("{\"do\":\"shell\"]"), "the line is no JSON from its byte 14 on");
    EXPECT_EQ(ErrorOf(R"({"do":"clock","advance":1e999})"), "the line is no JSON: a number in it is too large");
    for (const auto* line : { "", "{", "{\"do\":tru}", "{\"do\":\"\xff\"}", "{\"do\":\"\\u12\"}", "1 2" }) {
        EXPECT_THAT(ErrorOf(line), testing::MatchesRegex("the line is no JSON from its byte [0-9]+ on")) << line;
    }
}

TEST_F(DriverTest, Answer_NullField_CountsAsAbsent)
{
    EXPECT_EQ(Answered(R"({"do":"trace","since":null})").at("ok"), true);
    EXPECT_THAT(ErrorOf(R"({"do":"folder.add","path":null})"), HasSubstr("\"path\" is missing"));
}

TEST_F(DriverTest, Answer_TextsWithOddCharacters_ComeBackAsTheyWent)
{
    Do({ { "do", "registry" }, { "action", "set" }, { "hive", "HKCU" }, { "key", "" }, { "value", "Odd" },
        { "text", "\u00e9\U0001f600\"\\" } });
    EXPECT_EQ(Do({ { "do", "registry" }, { "action", "get" }, { "hive", "HKCU" }, { "key", "" }, { "value", "Odd" } })
                  .at("text"),
        "\u00e9\U0001f600\"\\");
}

TEST_F(DriverTest, Refuse_AnswersWithTheError)
{
    EXPECT_EQ(mDriver->Refuse("the line is too long"), R"({"ok":false,"error":"the line is too long","messages":[]})");
}

TEST_F(DriverTest, OnPump_BadCommands_AreRefusedAtOnce)
{
    EXPECT_THAT(
        Refused({ { "do", "onPump" }, { "at", 0 }, { "then", { { "do", "shell" } } } }), HasSubstr("at least 1"));
    EXPECT_THAT(Refused({ { "do", "onPump" }, { "at", 1 } }), HasSubstr("\"then\" is missing"));
    EXPECT_THAT(Refused({ { "do", "onPump" }, { "at", 1 }, { "then", "shell" } }), HasSubstr("object"));
    EXPECT_THAT(Refused({ { "do", "onPump" }, { "at", 1 }, { "then", { { "do", "dance" } } } }), HasSubstr("dance"));
}

TEST_F(DriverTest, OnPump_Commands_RunAtTheirMomentsInOrder)
{
    auto& pump = mDriver->Host().EventPump();
    pump.ProcessPending();
    Do({ { "do", "onPump" }, { "at", 2 }, { "then", { { "do", "answers" }, { "answers", Json::array() } } } });
    Do({ { "do", "onPump" }, { "at", 1 }, { "then", { { "do", "folder.add" }, { "path", "Inbox/A" } } } });
    Do({ { "do", "onPump" }, { "at", 1 }, { "then", { { "do", "folder.add" }, { "path", "Inbox/A" } } } });
    pump.ProcessPending();
    auto pumped = Do({ { "do", "shell" } }).at("pumped");
    ASSERT_EQ(pumped.size(), 2);
    EXPECT_EQ(pumped[0], Json::parse(R"({"ok":true,"messages":[]})"));
    EXPECT_EQ(pumped[1].at("ok"), false);
    EXPECT_FALSE(Do({ { "do", "shell" } }).contains("pumped"));
    pump.ProcessPending();
    EXPECT_EQ(Do({ { "do", "shell" } }).at("pumped").size(), 1);
    pump.ProcessPending();
    EXPECT_FALSE(Do({ { "do", "shell" } }).contains("pumped"));
}

}
