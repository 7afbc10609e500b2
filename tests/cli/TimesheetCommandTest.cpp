#include "support/ProgramFixture.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace tempodial {

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

class TimesheetCommandTest : public ProgramFixture
{
protected:
    void Import()
    {
        WriteTracker("20061010",
            { WordLine(32400, 32880, "b.doc").Node("Project", "Plan").Text(),
                WordLine(33000, 33300, "=a.doc").Node("Project", "Plan").Text(),
                WordLine(36000, 36600, "secret.doc").Node("Project", "Zebra").Text(),
                WordSlot(39600, 40200, "private.doc") });
        WriteTracker("20061002", { WordLine(32400, 33600, "c.doc").Node("Project", "Plan").Text() });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
    std::string Written(const std::string& name) const
    {
        std::ostringstream text;
        text << std::ifstream(mFolder.Path(name), std::ios::binary).rdbuf();
        return text.str();
    }
    static nlohmann::json Parsed(const char* text) { return nlohmann::json::parse(text); }
};

}

TEST_F(TimesheetCommandTest, Timesheet_UsualRange_IsTheMonth)
{
    Import();
    EXPECT_EQ(Json({ "timesheet", "plan" }), Parsed(R"({ "project": "Plan", "from": "2006-10-01", "to": "2006-10-31",
        "days": [
            { "day": "2006-10-02", "minutes": 20, "billedMinutes": 20, "what": ["\"c.doc\""] },
            { "day": "2006-10-10", "minutes": 13, "billedMinutes": 13, "what": ["\"b.doc\"", "\"=a.doc\""] } ],
        "minutes": 33, "billedMinutes": 33, "amount": null })"))
        << "the project is spelled as in the list";
    EXPECT_EQ(Json({ "timesheet", "Plan", "today" }).at("days").size(), 1U);
    EXPECT_EQ(Json({ "timesheet", "Wish" }).at("days"), nlohmann::json::array());
    EXPECT_EQ(Json({ "timesheet", "no project" }).at("project"), "No Project");
}

TEST_F(TimesheetCommandTest, Timesheet_Terms_SayWhatIsBilled)
{
    Import();
    const auto sheet = [this](const Arguments& arguments) {
        Arguments whole { "timesheet", "Plan" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        return Json(whole);
    };
    const auto byDay = sheet({ "--round", "15", "--rate", "82.50" });
    EXPECT_EQ(byDay.at("billedMinutes"), 45);
    EXPECT_EQ(byDay.at("minutes"), 33);
    EXPECT_EQ(byDay.at("amount"), 61.88) << "61.875";
    EXPECT_EQ(sheet({ "--round", "15", "--round-by", "entry" }).at("billedMinutes"), 60);
    const auto total = sheet({ "--round", "15", "--round-by", "total" });
    EXPECT_EQ(total.at("billedMinutes"), 45);
    EXPECT_EQ(total.at("days").at(0).at("billedMinutes"), 20) << "only the sum goes up";
    EXPECT_EQ(sheet({ "--what", "applications" }).at("days").at(1).at("what"), Parsed(R"(["Microsoft Word"])"));
    EXPECT_EQ(sheet({ "--what", "none" }).at("days").at(1).at("what"), nlohmann::json::array());
}

TEST_F(TimesheetCommandTest, Timesheet_ForPeople_IsATable)
{
    Import();
    Run({ "registry", "set", "HKCU", "", "Author", "Zoë Müller" });
    EXPECT_EQ(Run({ "timesheet", "Plan", "--round", "15", "--rate", "100", "--currency", "EUR" }).out,
        "Plan, 2006-10-01 to 2006-10-31\n"
        "Zoë Müller\n"
        "\n"
        "DAY         MEASURED  BILLED  WHAT\n"
        "2006-10-02      0:20    0:30  \"c.doc\"\n"
        "2006-10-10      0:13    0:15  \"b.doc\"; \"=a.doc\"\n"
        "TOTAL           0:33    0:45\n"
        "\n"
        "Amount: 75.00 EUR\n");
    EXPECT_THAT(Run({ "timesheet", "Plan", "today" }).out, testing::StartsWith("Plan, 2006-10-10\nZoë"));
}

TEST_F(TimesheetCommandTest, Timesheet_Files_AreOfTheFormOfTheirEnd)
{
    Import();
    for (const auto* end : { "html", "txt", "csv", "json", "eml" }) {
        const auto name = std::string("sheet.") + end;
        const auto result = Run({ "timesheet", "Plan", "--out", mFolder.Path(name) });
        EXPECT_EQ(result.out, "Written: " + mFolder.Path(name) + "\n");
        EXPECT_EQ(result.status, 0) << result.error;
    }
    EXPECT_EQ(Written("sheet.csv"),
        "day,minutes,hours,billed hours,what\r\n"
        "2006-10-02,20,0.33,0.33,\"\"\"c.doc\"\"\"\r\n"
        "2006-10-10,13,0.22,0.22,\"\"\"b.doc\"\"; \"\"=a.doc\"\"\"\r\n");
    EXPECT_EQ(nlohmann::json::parse(Written("sheet.json")), Json({ "timesheet", "Plan" }));
    EXPECT_EQ(Written("sheet.txt"), Run({ "timesheet", "Plan" }).out);
    EXPECT_THAT(Written("sheet.html"), AllOf(HasSubstr("<!DOCTYPE html>"), EndsWith("</html>\n")));
    EXPECT_THAT(Written("sheet.eml"), HasSubstr("Subject: Plan, 2006-10-01 to 2006-10-31\r\n"));
    for (const auto* name : { "sheet.html", "sheet.txt", "sheet.csv", "sheet.json", "sheet.eml" }) {
        for (const auto* word : { "Zebra", "secret", "private", "No Project" }) {
            EXPECT_THAT(Written(name), Not(HasSubstr(word))) << name;
        }
    }
    const auto both = Run({ "--json", "timesheet", "Plan", "--out", mFolder.Path("sheet.html") });
    EXPECT_EQ(nlohmann::json::parse(both.out), Json({ "timesheet", "Plan" }));
}

TEST_F(TimesheetCommandTest, Timesheet_BadArguments_AreRefused)
{
    Import();
    const auto refusal = [this](const Arguments& arguments, int status) {
        Arguments whole { "timesheet" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        return Refusal(whole, status);
    };
    EXPECT_THAT(refusal({}, 2), HasSubstr("PROJECT is required"));
    EXPECT_THAT(refusal({ "Plam" }, 1), HasSubstr("did you mean \"Plan\"?"));
    EXPECT_THAT(refusal({ "" }, 2), HasSubstr("can't be blank"));
    EXPECT_THAT(refusal({ "Plan", "--round", "0" }, 2), HasSubstr("from 1 to 1440"));
    EXPECT_THAT(refusal({ "Plan", "--round", "1441" }, 2), HasSubstr("from 1 to 1440"));
    EXPECT_THAT(refusal({ "Plan", "--round-by", "week" }, 2), HasSubstr("give day, entry or total"));
    EXPECT_THAT(refusal({ "Plan", "--what", "all" }, 2), HasSubstr("give descriptions, applications or none"));
    EXPECT_THAT(refusal({ "Plan", "--rate", "9,5" }, 2), HasSubstr("--rate can't be"));
    EXPECT_THAT(refusal({ "Plan", "--out", "sheet.pdf" }, 2), HasSubstr(".html, .txt, .csv, .json or .eml"));
}

}
