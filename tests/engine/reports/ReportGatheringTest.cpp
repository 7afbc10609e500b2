#include "engine/reports/ReportGathering.h"

#include "engine/reports/ReportFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSubsetOf;
using testing::Not;
using testing::StartsWith;

namespace tempodial {

namespace {

/// What closes a plain report.
std::string Tail(const std::string& time)
{
    return "\r\n***Total time at PC: " + time + " ***\r\n";
}

class ReportGatheringTest : public ReportFixture
{
protected:
    /// The plain activity list of one activity from 9:00 to 9:05, without the group's title.
    std::string DetailLine(std::int32_t type)
    {
        const auto report = Plain(10, 10, type, true);
        const auto begin = report.find("Activity List\r\n") + 15;
        return report.substr(begin, report.size() - begin - 2);
    }
};

TEST_F(ReportGatheringTest, GetReportInfo_Day_IsTracedWithItsFilter)
{
    Add(Moment(10, 9, 0), 5, "R&D", "Notepad", "x");
    Plain(10, 10, mReport->mProject);
    EXPECT_THAT(mAddIn.Trace(), Contains("TDReport start: 10/10/2006 12:00 AM end: 10/10/2006 11:59 PM"));
}

TEST_F(ReportGatheringTest, GetReportInfo_Groups_ComeInTheOrderOfTheirFirstActivities)
{
    Add(Moment(10, 11, 0), 10, "Alpha", "Notepad", "x");
    Add(Moment(10, 9, 0), 5, "Beta", "Notepad", "x");
    Add(Moment(10, 10, 0), 15, "Alpha", "Notepad", "y");
    EXPECT_EQ(Plain(10, 10, mReport->mProject),
        "Beta - 0 hours 05 minutes (17%)\r\nAlpha - 0 hours 25 minutes (83%)\r\n" + Tail("0 hours 30 minutes"));
}

TEST_F(ReportGatheringTest, GetReportInfo_ManyGroups_EachKeepsItsOwnTotal)
{
    for (int index = 0; index < 40; ++index) {
        Add(Moment(10, 8 + index % 10, index), 1, "P" + std::to_string(index % 20), "Notepad", "x");
    }
    const auto report = Plain(10, 10, mReport->mProject);
    for (int index = 0; index < 20; ++index) {
        EXPECT_THAT(report, HasSubstr("P" + std::to_string(index) + " - 0 hours 02 minutes (5%)\r\n"));
    }
}

TEST_F(ReportGatheringTest, GetReportInfo_CaseDiffers_MakesTwoGroups)
{
    Add(Moment(10, 9, 0), 5, "Alpha", "Notepad", "x");
    Add(Moment(10, 10, 0), 5, "alpha", "Notepad", "x");
    EXPECT_EQ(Plain(10, 10, mReport->mProject),
        "Alpha - 0 hours 05 minutes (50%)\r\nalpha - 0 hours 05 minutes (50%)\r\n" + Tail("0 hours 10 minutes"));
}

struct SpanCase
{
    const char* name;
    int day;
    int hour;
    int minute;
    std::int32_t minutes;
    /// Minutes that a report over 10 and 11 October counts.
    std::int32_t counted;
};

class ReportGatheringSpanTest : public ReportGatheringTest, public testing::WithParamInterface<SpanCase>
{
};

TEST_P(ReportGatheringSpanTest, GetReportInfo_Overlap_CountsWholeOnEachDay)
{
    const auto& span = GetParam();
    Add(Moment(span.day, span.hour, span.minute), span.minutes, "A", "Notepad", "x");
    Plain(10, 11, mReport->mProject);
    EXPECT_THAT(mAddIn.Trace(), Contains("TDReport new totaltime: " + std::to_string(span.counted)));
    EXPECT_EQ(Csv(10, 11).size(), static_cast<std::size_t>(1 + (span.minutes ? span.counted / span.minutes : 0)));
}

INSTANTIATE_TEST_SUITE_P(Spans, ReportGatheringSpanTest,
    testing::Values(SpanCase { "WithinADay", 10, 9, 0, 5, 5 }, SpanCase { "OverMidnight", 10, 23, 50, 20, 40 },
        SpanCase { "FromTheDayBefore", 9, 23, 50, 20, 20 }, SpanCase { "ToTheDayAfter", 11, 23, 50, 20, 20 },
        SpanCase { "UpToMidnight", 10, 23, 55, 5, 5 }, SpanCase { "AllDay", 9, 12, 0, 4320, 8640 },
        SpanCase { "NothingAtMidnight", 10, 0, 0, 0, 0 }, SpanCase { "DayBefore", 9, 9, 0, 5, 0 },
        SpanCase { "DayAfter", 12, 0, 0, 5, 0 }),
    NameOf<SpanCase>);

struct WorkDayCase
{
    const char* name;
    int hour;
    int minute;
    std::int32_t minutes;
    bool isTaken;
};

class ReportGatheringWorkDayTest : public ReportGatheringTest, public testing::WithParamInterface<WorkDayCase>
{
};

TEST_P(ReportGatheringWorkDayTest, GetReportInfo_WorkDay_TakesWhatOverlapsIt)
{
    constexpr auto key = R"(Software\Microsoft\Office\16.0\Outlook\Options\Calendar)";
    mAddIn.registry->Write(Hive::CurrentUser, key, "CalDefStart", "540");
    Add(Moment(10, GetParam().hour, GetParam().minute), GetParam().minutes, "A", "Notepad", "x");
    Plain(10, 10, mReport->mProject, false, true);
    const auto trace = mAddIn.Trace();
    EXPECT_THAT(trace, Contains("TDReport restrict to times [540,1020) on days 124"));
    EXPECT_THAT(trace, Contains("TDReport start: 10/10/2006 9:00 AM end: 10/10/2006 4:59 PM"));
    EXPECT_THAT(
        trace, Contains("TDReport new totaltime: " + std::to_string(GetParam().isTaken ? GetParam().minutes : 0)));
}

INSTANTIATE_TEST_SUITE_P(Spans, ReportGatheringWorkDayTest,
    testing::Values(WorkDayCase { "UpToTheStart", 8, 0, 60, false }, WorkDayCase { "IntoTheStart", 8, 0, 61, true },
        WorkDayCase { "FromTheEnd", 17, 0, 60, false }, WorkDayCase { "LastMinute", 16, 59, 61, true },
        WorkDayCase { "Within", 12, 0, 30, true }, WorkDayCase { "AllOfIt", 8, 0, 720, true }),
    NameOf<WorkDayCase>);

TEST_F(ReportGatheringTest, GetReportInfo_NonWorkingDay_IsSkipped)
{
    Plain(8, 14, mReport->mProject, false, true);
    const auto trace = mAddIn.Trace();
    std::vector<std::string> told;
    for (const auto& line : trace) {
        if (line.find("skipping") != std::string::npos || line.find("start: ") != std::string::npos) {
            told.push_back(line.substr(0, 30));
        }
    }
    EXPECT_THAT(told,
        ElementsAre("TDReport skipping 10/8/2006 as", "TDReport start: 10/9/2006 8:00",
            "TDReport start: 10/10/2006 8:0", "TDReport start: 10/11/2006 8:0", "TDReport start: 10/12/2006 8:0",
            "TDReport start: 10/13/2006 8:0", "TDReport skipping 10/14/2006 a"));
    EXPECT_THAT(trace, Contains("TDReport skipping 10/8/2006 as it looks to be non-working day"));
}

struct NameCase
{
    const char* name;
    std::string description;
    std::string group;
};

class ReportGatheringNameTest : public ReportGatheringTest, public testing::WithParamInterface<NameCase>
{
};

TEST_P(ReportGatheringNameTest, GetReportInfo_Description_IsCutBeforeTheApplicationIsPutInFront)
{
    Add(Moment(10, 9, 0), 5, "A", "Notepad", GetParam().description);
    EXPECT_THAT(Plain(10, 10, mReport->mDescription), StartsWith(GetParam().group + " - 0 hours 05 minutes (100%)"));
}

INSTANTIATE_TEST_SUITE_P(Names, ReportGatheringNameTest,
    testing::Values(NameCase { "Short", "x", "Notepad, x" },
        NameCase { "Of35", std::string(35, 'x'), "Notepad, " + std::string(35, 'x') },
        NameCase { "Of36", std::string(36, 'x'), "Notepad, " + std::string(35, 'x') + "..." },
        NameCase { "Of35OtherLetters", std::string(34, 'x') + "\xe7\x94\xbb",
            "Notepad, " + std::string(34, 'x') + "\xe7\x94\xbb" },
        NameCase { "Of36OtherLetters", std::string(34, 'x') + "\xe7\x94\xbb\xe7\x94\xbb",
            "Notepad, " + std::string(34, 'x') + "\xe7\x94\xbb..." }),
    NameOf<NameCase>);

TEST_F(ReportGatheringTest, GetReportInfo_FirstLettersAlike_MakesOneGroup)
{
    Add(Moment(10, 9, 0), 5, std::string(35, 'x') + "first", "Notepad", "x");
    Add(Moment(10, 10, 0), 5, std::string(35, 'x') + "second", "Notepad", "x");
    EXPECT_EQ(Plain(10, 10, mReport->mProject),
        std::string(35, 'x') + "... - 0 hours 10 minutes (100%)\r\n" + Tail("0 hours 10 minutes"));
}

TEST_F(ReportGatheringTest, GetReportInfo_ByDate_AllOfADayIsOneGroup)
{
    Add(Moment(10, 0, 0), 5, "A", "Notepad", "x");
    Add(Moment(10, 9, 30), 5, "B", "Notepad", "x");
    Add(Moment(11, 9, 30), 10, "B", "Notepad", "x");
    EXPECT_EQ(Plain(10, 11, mReport->mDate),
        "Tuesday, October 10, 2006 - 0 hours 10 minutes (50%)\r\n"
        "Wednesday, October 11, 2006 - 0 hours 10 minutes (50%)\r\n"
            + Tail("0 hours 20 minutes"));
}

TEST_F(ReportGatheringTest, GetReportInfo_UnknownType_PutsAllIntoTheFirstElement)
{
    Add(Moment(10, 9, 0), 5, "A", "Notepad", "x");
    Add(Moment(10, 10, 0), 5, "A", "Notepad", "y");
    EXPECT_EQ(Plain(10, 10, 9, true),
        " - 0 hours 10 minutes (100%)\r\n" + Tail("0 hours 10 minutes") + "\r\n\r\n(None) Activity List\r\n"
            + "\r\n10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    [A] Notepad, x"
              "\r\n10-Oct-06  10:00 AM - 10:05 AM  (05 mins)    [A] Notepad, y\r\n");
}

TEST_F(ReportGatheringTest, ToDetailString_ByProject_TellsApplicationAndDescription)
{
    Add(Moment(10, 9, 0), 5, "R&D", "Notepad", "x");
    EXPECT_EQ(DetailLine(mReport->mProject), "10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    Notepad, x");
    EXPECT_THAT(
        mAddIn.Trace(), Contains("TDReport ToDetailString: 10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    Notepad, x"));
}

TEST_F(ReportGatheringTest, ToDetailString_ByApplication_TellsProjectAndDescription)
{
    Add(Moment(10, 9, 0), 5, "R&D", "Notepad", "x");
    EXPECT_EQ(DetailLine(mReport->mApplication), "10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    [R&D] x");
}

TEST_F(ReportGatheringTest, ToDetailString_NoProject_TellsTheDescriptionAlone)
{
    Add(Moment(10, 9, 0), 5, "No Project", "Notepad", "x");
    EXPECT_EQ(DetailLine(mReport->mApplication), "10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    x");
}

TEST_F(ReportGatheringTest, ToDetailString_ByDescription_TellsTheSubject)
{
    Add(Moment(10, 9, 0), 125, "R&D", "Notepad", "x");
    EXPECT_EQ(DetailLine(mReport->mDescription), "10-Oct-06  9:00 AM - 11:05 AM  (125 mins)    [R&D] Notepad, x");
}

TEST_F(ReportGatheringTest, ToDetailString_ByDate_LeavesTheDateOut)
{
    Add(Moment(10, 9, 0), 5, "R&D", "Notepad", "x");
    EXPECT_EQ(DetailLine(mReport->mDate), "9:00 AM - 9:05 AM  (05 mins)    [R&D] Notepad, x");
}

TEST_F(ReportGatheringTest, ToDetailString_Html_EscapesTheTextAlone)
{
    Add(Moment(10, 9, 0), 5, "R&D", "Notepad", "<b>x</b>");
    EXPECT_THAT(Html(10, mReport->mProject, true),
        HasSubstr("10-Oct-06&nbsp;&nbsp;9:00 AM - 9:05 AM&nbsp;&nbsp;(05 mins)&nbsp;&nbsp;&nbsp;&nbsp;Notepad, "
                  "&lt;b&gt;x&lt;/b&gt;<br>"));
}

TEST_F(ReportGatheringTest, ToCSVLine_Item_HasEightFields)
{
    Add(Moment(10, 9, 0), 5, "R&D", "Notepad", "a \"b\", c", "Ann;Bob");
    const std::string line
        = R"("R&D","Notepad","a 'b', c","Ann;Bob","Tuesday, October 10, 2006","9:00 AM","9:05 AM",5)";
    EXPECT_THAT(Csv(10, 10), ElementsAre(CsvHeader, line));
    EXPECT_THAT(mAddIn.Trace(), Contains("TDReport ToCSVLine: " + line));
}

TEST_F(ReportGatheringTest, ToCSVLine_ItemOverMidnight_StandsThereTwice)
{
    Add(Moment(10, 23, 50), 20, "A", "Notepad", "x");
    const auto lines = Csv(10, 11);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[1], lines[2]);
}

TEST_F(ReportGatheringTest, GetReportInfo_CsvFileUnwritable_CostsOneLineAnItem)
{
    Add(Moment(10, 9, 0), 5, "A", "Notepad", "x");
    mAddIn.files->hook = [](const std::string&, const std::string& path) {
        if (path.ends_with(".csv")) {
            throw Failure(Error::PermissionDenied);
        }
    };
    const auto report = mReport->CreateReport(Day(10), Day(10), mReport->mProject, false, true, mCsvPath, true, false);
    EXPECT_EQ(report, "A - 0 hours 05 minutes (100%)\r\n" + Tail("0 hours 05 minutes"));
    const std::vector<std::string> lines = { "TDReport CreateReport :Permission denied",
        "TDReport CreateReport :Object variable or With block variable not set",
        "TDReport GetReportInfo :Object variable or With block variable not set" };
    EXPECT_THAT(lines, IsSubsetOf(mAddIn.Trace()));
}

TEST_F(ReportGatheringTest, GetReportInfo_NoWorkLogFolder_GivesAnEmptyDay)
{
    mAddIn.mailbox->DeleteFolder(mAddIn.main->GetWorkLog());
    mAddIn.main->mNamespace = nullptr;
    EXPECT_THAT(Plain(10, 10, mReport->mProject), Not(HasSubstr("minutes (")));
    EXPECT_THAT(mAddIn.Trace(), Contains(StartsWith("TDReport GetReportInfo :")));
}

}

}
