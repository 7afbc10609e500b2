#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// What people read of texts that are written from right to left, or that hold marks of direction.
using ForeignTextTest = ProgramFixture;

constexpr auto HebrewName = "שלום";
constexpr auto IsolatedName = "\u2068שלום\u2069";

}

TEST_F(ForeignTextTest, Messages_OfAProject_IsolateItsName)
{
    EXPECT_EQ(Run({ "projects", "set", HebrewName }).out, std::string("The project ") + IsolatedName + " is kept.\n");
    EXPECT_EQ(
        Run({ "projects", "remove", HebrewName }).out, std::string("The project ") + IsolatedName + " is removed.\n");
    EXPECT_EQ(Run({ "assign", HebrewName, "--from", "2006-10-10T09:00", "--to", "2006-10-10T10:00" }).error,
        std::string("Added: the project ") + IsolatedName + "\n");
    EXPECT_THAT(Refusal({ "list", "--project", "שלוםם" }, 1),
        HasSubstr(
            std::string("there is no project \"\u2068שלוםם\u2069\": did you mean \"") + IsolatedName + "\"? Else"));
    EXPECT_THAT(Refusal({ "apply", "a\u202Eb" }, 1), HasSubstr("there is no project \"\u2068ab\u2069\""));
}

TEST_F(ForeignTextTest, Messages_OfRulesAndArguments_IsolateThem)
{
    const auto kept = Run({ "projects", "set", "Plan", "--subject", "שלום; a, b" });
    EXPECT_THAT(kept.error, HasSubstr("in the rule \"\u2068שלום; a, b\u2069\" commas part"));
    EXPECT_THAT(kept.error, HasSubstr("read as \u2068שלום; a\u2069 | b\n"));
    EXPECT_THAT(Refusal({ "list", HebrewName }, 2), HasSubstr(std::string("can't be \"") + IsolatedName + "\":"));
    EXPECT_THAT(Refusal({ HebrewName }, 2), HasSubstr(std::string("there is no command \"") + IsolatedName + "\""));
    EXPECT_THAT(Refusal({ "projects", "set", "Plan", "--subject", "a|שלום" }, 1),
        HasSubstr("leave it out of \"\u2068a|שלום\u2069\"\n"));
}

TEST_F(ForeignTextTest, Messages_OfAFile_IsolateItsPath)
{
    Json({ "projects" });
    const auto path = mFolder.Path("שלום.csv");
    EXPECT_EQ(Run({ "export", "--out", path }).out, "Written: \u2068" + path + "\u2069\n");
    EXPECT_THAT(Refusal({ "export", "--format", "csv", "--out", mFolder.Path("no/שלום.csv") }, 1),
        HasSubstr("שלום.csv\u2069 couldn't be written: "));
}

TEST_F(ForeignTextTest, Report_ForPeople_IsolatesNamesAndTexts)
{
    WriteTracker("20061010", { WordLine(32400, 32700, "אב").Node("Project", HebrewName).Text() });
    Json({ "sync" });
    const auto text = Run({ "report", "--text", "--by", "project" }).out;
    EXPECT_THAT(text, StartsWith(std::string(IsolatedName) + " - 0 hours 05 minutes (100%)\r\n"));
    EXPECT_THAT(text, HasSubstr("(05 mins)    \u2068Microsoft Word, \"אב\"\u2069\r\n"));
    const auto page = Run({ "report", "--by", "project" }).out;
    EXPECT_THAT(page, HasSubstr("<bdi>שלום</bdi> - 0 hours 05 minutes"));
    EXPECT_THAT(page, HasSubstr("&nbsp;<bdi>Microsoft Word, \"אב\"</bdi><br>"));
    const auto path = mFolder.Path("a.html");
    Run({ "report", "--by", "project", "--json", "--out", path });
    EXPECT_THAT(mFolder.Read("a.html"), HasSubstr("<bdi>שלום</bdi> - 0 hours 05 minutes"));
    EXPECT_EQ(Json({ "report", "--by", "project" }).at("body").get<std::string>().find("<bdi>שלום</bdi> -"),
        std::string::npos);
}

TEST_F(ForeignTextTest, Json_AndTables_AreNotTouched)
{
    WriteTracker("20061010", { WordLine(32400, 32700, "a\u202E שלום").Node("Project", HebrewName).Text() });
    Json({ "sync" });
    EXPECT_EQ(Json({ "list" }).at(0).at("properties").at("Project"), HebrewName);
    for (const auto& arguments : { Arguments { "list", "--json" }, Arguments { "export", "--format", "csv" },
             Arguments { "export", "--format", "ics" }, Arguments { "report", "--json" },
             Arguments { "projects", "match", "a" } }) {
        EXPECT_EQ(Run(arguments).out.find("\u2068"), std::string::npos) << arguments.front();
    }
    EXPECT_THAT(Run({ "list" }).out, HasSubstr("  \u2068["));
}

}
