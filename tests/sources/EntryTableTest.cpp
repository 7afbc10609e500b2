#include "sources/SourceTest.h"

namespace tempodial {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

constexpr auto TogglHead
    = "\xef\xbb\xbfUser,Email,Client,Project,Task,Description,Billable,Start date,Start time,End date,End "
      "time,Duration,Tags\r\n";
constexpr auto ClockifyHead
    = "\"Project\",\"Description\",\"Task\",\"Start Date\",\"Start Time\",\"End Date\",\"End Time\","
      "\"Duration (h)\"\n";

std::string Repeated(const std::string& text, std::size_t count)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i) {
        all += text;
    }
    return all;
}

std::string Toggl(
    const std::string& project, const std::string& task, const std::string& text, const std::string& times)
{
    return "Ann,ann@example.com,," + project + "," + task + "," + text + ",No," + times + ",,\r\n";
}

}

class EntryTableTest : public SourceTest
{
};

TEST_F(EntryTableTest, Toggl_Rows_AreEntriesWithTheirProjects)
{
    const auto data = Read("toggl",
        TogglHead
            + Toggl("Riverside", "Plan", "\"Call, with \"\"Ann\"\"\nagain\"", "2026-11-02,09:00:30,2026-11-02,09:45:00")
            + Toggl("", "", "", "2026-11-02,23:30:00,2026-11-03,00:30:00"));
    EXPECT_THAT(Told(data),
        ElementsAre("20261102 09:00 20261102 09:45 Toggl|Call, with \"Ann\" again, Plan|Riverside",
            "20261102 23:30 20261103 00:30 Toggl||"));
    EXPECT_TRUE(data.skipped.Counts().empty());
}

TEST_F(EntryTableTest, Toggl_BadRows_AreCounted)
{
    const auto data = Read("toggl",
        TogglHead + Toggl("", "", "x", "2026-11-02,09:00,2026-11-02,09:00")
            + Toggl("", "", "x", "2026-11-02,9,2026-11-02,10:00")
            + Toggl("", "", "x", "2026-11-02,10:00,2026-11-02,09:00")
            + Toggl("", "", "x", "2026-11-02,10:00,2026-11-05,09:00") + "\r\n");
    EXPECT_TRUE(data.entries.empty());
    EXPECT_EQ(data.skipped.Count(Skipped::ZeroLength), 1);
    EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 2);
    EXPECT_EQ(data.skipped.Count(Skipped::TooLong), 1);
}

TEST_F(EntryTableTest, Toggl_OtherColumns_AreRefused)
{
    EXPECT_THAT(Refusal("toggl", "a,b\n1,2\n"), HasSubstr("Start date"));
    EXPECT_EQ(Refusal("toggl", TogglHead), "");
}

TEST_F(EntryTableTest, Clockify_DateOrder_IsToldFromTheFile)
{
    const auto row
        = [](const std::string& day) { return "P,x,," + day + ",09:00:00 AM," + day + ",10:30:00 AM,01:30:00\n"; };
    EXPECT_THAT(Told(Read("clockify", ClockifyHead + row("11/02/2026") + row("11/13/2026"))),
        ElementsAre("20261102 09:00 20261102 10:30 Clockify|x|P", "20261113 09:00 20261113 10:30 Clockify|x|P"));
    EXPECT_THAT(Told(Read("clockify", ClockifyHead + row("02/11/2026") + row("13/11/2026"))),
        ElementsAre("20261102 09:00 20261102 10:30 Clockify|x|P", "20261113 09:00 20261113 10:30 Clockify|x|P"));
    EXPECT_THAT(Told(Read("clockify", ClockifyHead + row("2026-11-02"))),
        ElementsAre("20261102 09:00 20261102 10:30 Clockify|x|P"));
    EXPECT_THAT(Told(Read("clockify", ClockifyHead + row("11/11/2026"))),
        ElementsAre("20261111 09:00 20261111 10:30 Clockify|x|P"));
    EXPECT_THAT(Refusal("clockify", ClockifyHead + row("11/02/2026")), HasSubstr("--dates"));
    EXPECT_THAT(Refusal("clockify", ClockifyHead + row("13/02/2026") + row("02/13/2026")), HasSubstr("--dates"));
}

TEST_F(EntryTableTest, Clockify_DatesGiven_WinAndCountTheOthers)
{
    mDates = DateOrder::DayFirst;
    const auto data = Read("clockify",
        std::string("Project;Description;Start Date;Start Time;Duration (h)\nP;x;11/02/2026;09:00;00:30:00\n"
                    "P;y;02/13/2026;09:00;00:30:00\n"));
    EXPECT_THAT(Told(data), ElementsAre("20260211 09:00 20260211 09:30 Clockify|x|P"));
    EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 1);
}

TEST_F(EntryTableTest, Csv_MomentsWithOffset_BecomeLocal)
{
    const auto data = Read("csv",
        "end\tstart\tPROGRAM\ttitle\turl\tproject\n2026-11-02T10:00:00Z\t2026-11-02T09:30:00+00:00\tfirefox\tPlan\t"
        "https://ann@wiki.example.com:80/x?y\tRiverside\n2026-11-02 12:00\t2026-11-02 11:00\tatlas\t\t\t\n");
    EXPECT_THAT(Told(data),
        ElementsAre("20261102 10:30 20261102 11:00 firefox|Plan|Riverside", "20261102 11:00 20261102 12:00 atlas||"));
    EXPECT_EQ(data.entries[0].words.host, "wiki.example.com");
}

TEST_F(EntryTableTest, Csv_DatesWithoutTheYearInFront_AreReadAsTheFileTells)
{
    const std::string head = "start;end;program\n";
    EXPECT_THAT(
        Told(Read("csv", head + "02.11.2026 09:00;02.11.2026 09:30:00;a\n13.11.2026 9:00 ;13.11.2026 10:15;b\n")),
        ElementsAre("20261102 09:00 20261102 09:30 a||", "20261113 09:00 20261113 10:15 b||"));
    EXPECT_THAT(
        Told(Read("csv", head + "11/02/2026, 9:00 AM;11/02/2026, 1:30 PM;a\n11/13/2026 9:00;11/13/2026 21:00;b\n")),
        ElementsAre("20261102 09:00 20261102 13:30 a||", "20261113 09:00 20261113 21:00 b||"));
    EXPECT_THAT(Told(Read("csv", head + "2026-11-2T9:00;2026-11-02T09:30;a\n2026-11-02 1:00 pm;2026-11-02 14:00;b\n")),
        ElementsAre("20261102 09:00 20261102 09:30 a||", "20261102 13:00 20261102 14:00 b||"));
    EXPECT_THAT(Refusal("csv", head + "02.11.2026 09:00;02.11.2026 09:30;a\n"), HasSubstr("--dates"));
    EXPECT_THAT(Refusal("csv", head + "02.13.2026 09:00;02.13.2026 09:30;a\n13.02.2026 09:00;13.02.2026 09:30;a\n"),
        HasSubstr("--dates"));
}

TEST_F(EntryTableTest, Csv_DatesGiven_WinAndCountTheOthers)
{
    mDates = DateOrder::MonthFirst;
    const auto data = Read("csv",
        "start,end,program\n11/02/2026 09:00,11/02/2026 10:00,a\n13/11/2026 09:00,13/11/2026 10:00,b\n"
        "2026-11-03 09:00,2026-11-03 10:00,c\n");
    EXPECT_THAT(Told(data), ElementsAre("20261103 09:00 20261103 10:00 c||", "20261102 09:00 20261102 10:00 a||"));
    EXPECT_THAT(data.skipped.UnreadableLines(), ElementsAre(3));
}

TEST_F(EntryTableTest, Csv_MomentsThatAreNone_AreUnreadable)
{
    const auto data = Read("csv",
        "start,end,program\n2026-11-02T09:00Z,2026-11-02T09:30,a\n13.11.2026,13.11.2026 10:00,b\n"
        "13.11.2026 09:00,13.11.26 10:00,c\n,2026-11-02T09:30,d\n13.11.2026 25:00,13.11.2026 26:00,e\n");
    EXPECT_TRUE(data.entries.empty());
    EXPECT_THAT(data.skipped.UnreadableLines(), ElementsAre(2, 3, 4, 5, 6));
}

TEST_F(EntryTableTest, Csv_ClockPutForward_KeepsTheTrueLength)
{
    const auto data = Read("csv",
        "start,end,program\n2026-03-29T00:30Z,2026-03-29T01:30Z,a\n2026-03-29T01:30,2026-03-29T03:30,b\n"
        "2026-10-25T02:30,2026-10-25T03:30,c\n");
    EXPECT_THAT(Told(data),
        ElementsAre("20260329 01:30 20260329 02:30 a||", "20260329 01:30 20260329 02:30 b||",
            "20261025 02:30 20261025 04:30 c||"));
}

TEST_F(EntryTableTest, Csv_AsSightings_AreWindows)
{
    const auto data = Read("csv",
        "start,end,program,title\n2026-11-02T09:00,2026-11-02T09:30,a,x\n2026-11-02T09:30,2026-11-02T09:40,a,x\n",
        true);
    EXPECT_EQ(data.windows.size(), 2U);
    EXPECT_EQ(data.sightings.size(), 1U);
    EXPECT_EQ(data.computers.size(), 1U);
    EXPECT_TRUE(data.entries.empty());
}

TEST_F(EntryTableTest, Csv_SightingsWithoutALength_AreCounted)
{
    const auto data = Read("csv",
        "start,end,program\n2026-11-02T09:00,2026-11-02T09:00,a\n2026-11-02T09:00,2026-11-02T08:00,a\n"
        "2026-11-02T09:00Z,2026-11-02T09:00Z,a\n2026-11-02T09:00Z,2026-11-02T08:00Z,a\n"
        "2026-11-02T09:00Z,4052-11-02T08:00Z,a\n",
        true);
    EXPECT_EQ(data.windows.size(), 1U);
    EXPECT_EQ(data.skipped.Count(Skipped::ZeroLength), 2);
    EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 2);
}

TEST_F(EntryTableTest, Csv_OtherEncodingAndLongFields_AreTaken)
{
    const auto data = Read("csv",
        "start,end,program,title\n2026-11-02T09:00,2026-11-02T09:30,a,B\xfcro\n2026-11-02T09:00,2026-11-02T09:30,a,"
            + std::string(70000, 'x') + "\n");
    EXPECT_EQ(data.entries.at(0).words.title, "<B\xfcro>");
    EXPECT_EQ(data.entries.at(1).words.title.size(), MostFieldBytes);
    EXPECT_EQ(data.skipped.Count(Skipped::TooBig), 1);
}

TEST_F(EntryTableTest, RescueTime_FiveMinuteRows_AreSlots)
{
    const auto data = Read("rescuetime",
        "Date,Time Spent (seconds),Number of "
        "People,Activity,Category,Productivity\n2026-11-02T09:00:00,200,1,youtube.com,"
        "Video,-2\n2026-11-02T09:00:00,150,1,atlas,Maps,2\n2026-11-02T09:05:00,x,1,atlas,Maps,2\n");
    ASSERT_EQ(data.windows.size(), 2U);
    EXPECT_EQ(data.windows[1].end - data.windows[1].begin, 100);
    EXPECT_EQ(data.sightings[0].title, "Video");
    EXPECT_EQ(data.computers[0].presence.Seconds(), 300);
    EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 1);
}

TEST_F(EntryTableTest, RescueTime_HoursOrDays_AreRefused)
{
    EXPECT_THAT(Refusal("rescuetime", "Date,Time Spent (seconds),Activity\n2026-11-02T09:00:00,1200,atlas\n"),
        HasSubstr("resolution_time=minute"));
    EXPECT_THAT(Refusal("rescuetime",
                    "Date,Time Spent (seconds),Activity\n2026-11-02T09:00:00,20,a\n2026-11-02T10:00:00,20,a\n"
                    "2026-11-02T11:00:00,20,a\n"),
        HasSubstr("resolution_time=minute"));
    EXPECT_THAT(
        Refusal("rescuetime", "Rank,Time Spent (seconds),Activity\n1,20,a\n"), HasSubstr("resolution_time=minute"));
    EXPECT_THAT(Refusal("rescuetime", "a,b\n"), HasSubstr("must name"));
}

TEST_F(EntryTableTest, Csv_QuoteInTheMiddleOfAField_IsItself)
{
    const auto data = Read("csv",
        "start,end,program,title\n2026-11-02T09:00,2026-11-02T09:30,a,5\" disk\n"
        "2026-11-02T09:30,2026-11-02T09:40,b,\"x \"\"y\"\", z\"\n2026-11-02T09:40,2026-11-02T09:50,c,\"x\"y\"z\n");
    EXPECT_THAT(Told(data),
        ElementsAre("20261102 09:00 20261102 09:30 a|5\" disk|", "20261102 09:30 20261102 09:40 b|x \"y\", z|",
            "20261102 09:40 20261102 09:50 c|xy\"z|"));
    EXPECT_TRUE(data.skipped.Counts().empty());
}

TEST_F(EntryTableTest, Csv_QuoteThatIsNeverClosed_IsOneUnreadableRecord)
{
    const auto data = Read("csv",
        "start,end,program,title\n2026-11-02T09:00,2026-11-02T09:30,a,x\n2026-11-02T09:30,2026-11-02T09:40,b,\"y\n"
        "2026-11-02T09:40,2026-11-02T09:50,c,z\n");
    EXPECT_THAT(Told(data), ElementsAre("20261102 09:00 20261102 09:30 a|x|"));
    EXPECT_EQ(data.skipped.Count(Skipped::Unreadable), 1);
}

TEST_F(EntryTableTest, Csv_QuotesInTheFirstLine_AreReadAsInAllOthers)
{
    const auto row = ";2026-11-02T09:00;2026-11-02T09:30;a\n";
    EXPECT_EQ(Read("csv", std::string("5\" disk;start;end;program\n1") + row).entries.size(), 1U);
    EXPECT_EQ(Read("csv", std::string("\"a, b \"\"c\"\",\n,,\";start;end;program\n1") + row).entries.size(), 1U);
}

TEST_F(EntryTableTest, Csv_LongFieldCutInALetter_StaysUtf8)
{
    const auto data = Read(
        "csv", "start,end,program,title\n2026-11-02T09:00,2026-11-02T09:30,a,x" + Repeated("\u00fc", 40000) + "\n");
    EXPECT_EQ(data.entries.at(0).words.title, "x" + Repeated("\u00fc", (MostFieldBytes - 1) / 2));
    EXPECT_EQ(data.skipped.Count(Skipped::TooBig), 1);
}

TEST_F(EntryTableTest, Csv_AsSightings_KeepsTheProject)
{
    const auto data = Read("csv",
        "start,end,program,title,project\n2026-11-02T10:00,2026-11-02T10:30,b,y,Riverside\n"
        "2026-11-02T10:30Z,2026-11-02T10:40Z,b,y,Atlas\n2026-11-02T10:40,2026-11-02T10:50,b,y,\n",
        true);
    std::vector<std::string> projects;
    for (const auto& window : data.windows) {
        projects.push_back(data.sightings[window.sighting].project);
    }
    EXPECT_THAT(projects, ElementsAre("Riverside", "Atlas", ""));
}

TEST_F(EntryTableTest, Refusal_NamesMissingColumnsAndNothingOfTheFile)
{
    EXPECT_THAT(
        Refusal("csv", "start,my secret,2026\n"), AllOf(HasSubstr("missing: end, program"), Not(HasSubstr("secret"))));
    EXPECT_THAT(Refusal("toggl", "Start date,Start time\n"), HasSubstr("missing: End date, End time"));
    EXPECT_THAT(Refusal("clockify", "Start date,Duration\n"), HasSubstr("missing: Start time"));
}

}
