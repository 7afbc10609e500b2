#include "support/ProgramFixture.h"

#include <map>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

class SummaryCommandTest : public ProgramFixture
{
protected:
    /// Activities on Saturday the 7th, Monday the 9th and Tuesday the 10th.
    void Import()
    {
        WriteTracker("20061010",
            { WordSlot(32400, 34200, "a.doc"), WordLine(36000, 39900, "b.doc").Node("Project", "Plan").Text() });
        WriteTracker("20061009", { WordLine(32400, 32700, "=y.doc").Node("Project", "Plan").Text() });
        WriteTracker("20061007", { WordLine(32400, 32700, "s.doc").Node("Project", "Zebra, Inc.").Text() });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
    static nlohmann::json Parsed(const char* text) { return nlohmann::json::parse(text); }
};

}

TEST_F(SummaryCommandTest, Summary_NewProfile_IsEmpty)
{
    Run({ "projects" });
    EXPECT_EQ(Json({ "summary", "today" }), Parsed(R"({ "from": "2006-10-10", "to": "2006-10-10",
        "columns": [{ "from": "2006-10-10", "to": "2006-10-10" }], "rows": [], "totals": [0], "total": 0 })"));
    EXPECT_EQ(Run({ "summary" }).out, "No activities.\n");
    EXPECT_EQ(Run({ "summary", "--quiet" }).out, "");
    EXPECT_EQ(Run({ "summary", "today", "--csv" }).out, "project,2006-10-10,total\r\ntotal,0:00,0:00\r\n");
}

TEST_F(SummaryCommandTest, Summary_UsualRange_IsTheWeekByProjectAndDay)
{
    Import();
    const auto summary = Json({ "summary" });
    EXPECT_EQ(summary.at("from"), "2006-10-08");
    EXPECT_EQ(summary.at("to"), "2006-10-14") << "days yet to come are part of a week";
    EXPECT_EQ(summary.at("columns").size(), 7U);
    EXPECT_EQ(summary.at("rows"), Parsed(R"([
        { "name": "Plan", "minutes": [0, 5, 65, 0, 0, 0, 0], "total": 70 },
        { "name": "No Project", "minutes": [0, 0, 30, 0, 0, 0, 0], "total": 30 } ])"));
    EXPECT_EQ(summary.at("totals"), Parsed("[0, 5, 95, 0, 0, 0, 0]"));
    EXPECT_EQ(summary.at("total"), 100);
}

TEST_F(SummaryCommandTest, Summary_Columns_AreCutAtTheEnds)
{
    Import();
    const auto columns = [this](const Arguments& arguments) {
        Arguments whole { "summary", "--from", "2006-09-30", "--to", "2006-10-10" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        std::vector<std::string> spans;
        const auto summary = Json(whole);
        for (const auto& column : summary.at("columns")) {
            spans.push_back(column.at("from").get<std::string>() + " " + column.at("to").get<std::string>());
        }
        return spans;
    };
    EXPECT_THAT(columns({ "--columns", "week" }),
        ElementsAre("2006-09-30 2006-09-30", "2006-10-01 2006-10-07", "2006-10-08 2006-10-10"));
    EXPECT_THAT(columns({ "--columns", "month" }), ElementsAre("2006-09-30 2006-09-30", "2006-10-01 2006-10-10"));
    EXPECT_EQ(columns({ "--columns", "day" }).size(), 11U);
    const auto none = Json({ "summary", "2006", "--columns", "none" });
    EXPECT_EQ(none.at("columns"), nlohmann::json::array());
    EXPECT_EQ(none.at("totals"), nlohmann::json::array());
    EXPECT_EQ(none.at("rows").at(0), Parsed(R"({ "name": "Plan", "minutes": [], "total": 70 })"));
    EXPECT_EQ(none.at("total"), 105);
}

TEST_F(SummaryCommandTest, Summary_WeekStart_IsTheSettingElseTheLocales)
{
    Import();
    EXPECT_EQ(Json({ "summary", "week" }).at("from"), "2006-10-08");
    Run({ "registry", "set", "HKCU", "", "Week Start", "saturday" });
    EXPECT_EQ(Json({ "summary", "week" }).at("from"), "2006-10-07");
    EXPECT_EQ(Json({ "summary", "2006-10", "--columns", "week" }).at("columns").at(0).at("to"), "2006-10-06");
}

TEST_F(SummaryCommandTest, Summary_Rows_AreWhatIsAskedFor)
{
    Import();
    const auto names = [this](const Arguments& arguments) {
        Arguments whole { "summary", "month" };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        std::vector<std::string> found;
        const auto summary = Json(whole);
        for (const auto& row : summary.at("rows")) {
            found.push_back(row.at("name"));
        }
        return found;
    };
    EXPECT_THAT(names({}), ElementsAre("Plan", "Zebra, Inc.", "No Project"));
    EXPECT_THAT(names({ "--rows", "application" }), ElementsAre("Microsoft Word"));
    EXPECT_THAT(names({ "--rows", "description" }), ElementsAre("\"b.doc\"", "\"a.doc\"", "\"=y.doc\"", "\"s.doc\""));
    EXPECT_THAT(names({ "--project", "plan" }), ElementsAre("Plan"));
    EXPECT_THAT(names({ "--project", "no project", "--project", "PLAN" }), ElementsAre("Plan", "No Project"));
    EXPECT_THAT(names({ "--project", "Wish" }), ElementsAre());
}

TEST_F(SummaryCommandTest, Summary_Sums_AreThoseOfTheList)
{
    Import();
    std::map<std::string, std::int64_t> sums;
    for (const auto& item : Json({ "list", "year" })) {
        sums[item.at("properties").at("Project")] += item.at("duration").get<std::int64_t>();
    }
    std::map<std::string, std::int64_t> rows;
    const auto summary = Json({ "summary", "year" });
    for (const auto& row : summary.at("rows")) {
        rows[row.at("name")] = row.at("total");
        std::int64_t minutes = 0;
        for (const auto& number : row.at("minutes")) {
            minutes += number.get<std::int64_t>();
        }
        EXPECT_EQ(row.at("total"), minutes);
    }
    EXPECT_EQ(rows, sums);
}

TEST_F(SummaryCommandTest, Summary_ForPeople_IsATable)
{
    Import();
    EXPECT_EQ(Run({ "summary", "--from", "2006-10-09", "--to", "2006-10-10" }).out,
        "2006-10-09 to 2006-10-10\n"
        "\n"
        "PROJECT     Mon 09  Tue 10  TOTAL  SHARE\n"
        "Plan          0:05    1:05   1:10   70 %\n"
        "No Project            0:30   0:30   30 %\n"
        "TOTAL         0:05    1:35   1:40  100 %\n");
    EXPECT_EQ(Run({ "summary", "today", "--columns", "none", "--decimal" }).out,
        "2006-10-10\n"
        "\n"
        "PROJECT     TOTAL  SHARE\n"
        "Plan         1.08   68 %\n"
        "No Project   0.50   32 %\n"
        "TOTAL        1.58  100 %\n");
    EXPECT_THAT(Run({ "summary", "year", "--columns", "month" }).out, HasSubstr("  2006-09  2006-10  2006-11  "));
    EXPECT_THAT(Run({ "summary", "month" }).out, HasSubstr("  2006-10-01  2006-10-02  "));
}

TEST_F(SummaryCommandTest, Summary_Csv_HasHoursAndNoFormulas)
{
    Import();
    EXPECT_EQ(Run({ "summary", "-2d", "--csv" }).out,
        "project,2006-10-09,2006-10-10,total\r\n"
        "Plan,0:05,1:05,1:10\r\n"
        "No Project,0:00,0:30,0:30\r\n"
        "total,0:05,1:35,1:40\r\n");
    EXPECT_EQ(Run({ "summary", "month", "--csv", "--columns", "none", "--decimal", "--project", "zebra, inc." }).out,
        "project,total\r\n\"Zebra, Inc.\",0.08\r\ntotal,0.08\r\n");
    EXPECT_THAT(Run({ "summary", "--csv", "--rows", "application" }).out, StartsWith("application,2006-10-08,"));
}

TEST_F(SummaryCommandTest, Summary_BadArguments_AreRefused)
{
    Import();
    EXPECT_THAT(Refusal({ "summary", "--rows", "day" }, 2), HasSubstr("give project, application or description"));
    EXPECT_THAT(Refusal({ "summary", "--columns", "year" }, 2), HasSubstr("give day, week, month or none"));
    EXPECT_THAT(Refusal({ "summary", "2006-13" }, 2), HasSubstr("RANGE can't be"));
    EXPECT_THAT(Refusal({ "summary", "--project", "Plam" }, 1), HasSubstr("did you mean \"Plan\"?"));
    EXPECT_THAT(Refusal({ "summary", "--project", " " }, 2), HasSubstr("can't be blank"));
    EXPECT_THAT(Refusal({ "summary", "--from", "0100-01-01", "--to", "9999-12-31" }, 2), HasSubstr("fewer days"));
    EXPECT_EQ(Json({ "summary", "--from", "0100-01-01", "--to", "9999-12-31", "--columns", "none" }).at("total"), 105);
}

}
