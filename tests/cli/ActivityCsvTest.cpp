#include "cli/ActivityCsv.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

constexpr auto Header = "start,end,duration,project,application,description,people,subject\r\n";
constexpr auto Times = "2006-10-10T10:00:00,2006-10-10T10:20:30,20";

ActivityRecord ActivityOf(const std::string& subject)
{
    return { .start = Date::FromParts({ 2006, 10, 10, 10, 0, 0 }),
        .end = Date::FromParts({ 2006, 10, 10, 10, 20, 30 }),
        .duration = 20,
        .subject = subject };
}

std::string SubjectField(const std::string& subject)
{
    const auto csv = ActivityCsv({ ActivityOf(subject) });
    const auto before = std::string(Header) + Times + ",,,,,";
    EXPECT_TRUE(csv.starts_with(before) && csv.ends_with("\r\n"));
    return csv.substr(before.size(), csv.size() - before.size() - 2);
}

}

TEST(ActivityCsvTest, ActivityCsv_None_IsTheHeader)
{
    EXPECT_EQ(ActivityCsv({}), Header);
}

TEST(ActivityCsvTest, ActivityCsv_Columns_StandInTheirOrder)
{
    auto activity = ActivityOf("s");
    activity.project = "p";
    activity.application = "a";
    activity.description = "d";
    activity.people = "x@y.example; z";
    activity.entryId = "unused";
    activity.body = "unused";
    EXPECT_EQ(ActivityCsv({ activity, ActivityOf("t") }),
        std::string(Header) + Times + ",p,a,d,x@y.example; z,s\r\n" + Times + ",,,,,t\r\n");
}

TEST(ActivityCsvTest, ActivityCsv_Texts_AreQuotedWhereNeeded)
{
    for (const auto& [text, field] : std::vector<std::pair<std::string, std::string>> { { "plain text", "plain text" },
             { "a,b", "\"a,b\"" }, { "say \"a\"", "\"say \"\"a\"\"\"" }, { "a\r\nb", "\"a\r\nb\"" },
             { "a\nb", "\"a\nb\"" }, { "M\u00fcller", "M\u00fcller" }, { "", "" } }) {
        EXPECT_EQ(SubjectField(text), field);
    }
}

TEST(ActivityCsvTest, ActivityCsv_TextsThatASpreadsheetWouldRun_GetAnApostrophe)
{
    for (const auto& [text, field] :
        std::vector<std::pair<std::string, std::string>> { { "=1+1", "'=1+1" }, { "+1", "'+1" }, { "-1", "'-1" },
            { "@SUM(A1)", "'@SUM(A1)" }, { "\t=1", "'\t=1" },
            { "=HYPERLINK(\"x\",\"y\")", "\"'=HYPERLINK(\"\"x\"\",\"\"y\"\")\"" }, { "1=1", "1=1" }, { "'a", "'a" } }) {
        EXPECT_EQ(SubjectField(text), field);
    }
}

}
