#include "engine/reports/TempodialReport.h"

#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/reports/ReportFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace tempodial {

namespace {

class TempodialReportTest : public ReportFixture
{
protected:
    /// Templates that show where everything goes.
    void UseSmallTemplates()
    {
        mFolder.Write("ReportHeaderTemplate.html", "<body>");
        mFolder.Write("ReportSummaryTemplate.html", "[#CRITERIA#|#SUMMARY#|#NUMROWS#|#TOTALTIME#]");
        mFolder.Write("ReportDetailsTemplate.html", "{#CRITERIA#:#DETAILS#}");
        mFolder.Write("ReportDetailLineTemplate.html", "#DETAILTITLE#<p>#DETAILLIST#");
        mFolder.Write("ReportLineTemplate.html", "#CONTENT#, #PERCENT#");
        UseInstallFolder(mFolder.Path());
    }
    /// The trace lines of the report itself, without those of its details.
    std::vector<std::string> ReportTrace()
    {
        std::vector<std::string> lines;
        for (auto& line : mAddIn.Trace()) {
            if (line.starts_with("TDReport ")) {
                lines.push_back(line.substr(9));
            }
        }
        return lines;
    }
};

struct HeaderCase
{
    const char* name;
    int to;
    std::int32_t type;
    const char* header;
};

class TempodialReportHeaderTest : public TempodialReportTest, public testing::WithParamInterface<HeaderCase>
{
};

TEST_P(TempodialReportHeaderTest, BuildHeader_TypeAndDays_AreNamed)
{
    EXPECT_EQ(mReport->BuildHeader(Day(10), Day(GetParam().to), GetParam().type), GetParam().header);
}

INSTANTIATE_TEST_SUITE_P(Headers, TempodialReportHeaderTest,
    testing::Values(HeaderCase { "Project", 10, 1, "Tempodial Report (By Project) Tuesday, October 10, 2006" },
        HeaderCase { "Application", 10, 2, "Tempodial Report (By Application) Tuesday, October 10, 2006" },
        HeaderCase { "Description", 10, 3, "Tempodial Report (By Description) Tuesday, October 10, 2006" },
        HeaderCase { "DateOverDays", 11, 4,
            "Tempodial Report (By Date) Tuesday, October 10, 2006 - Wednesday, October 11, 2006" },
        HeaderCase { "Unknown", 10, 9, "Tempodial Report Tuesday, October 10, 2006" }),
    NameOf<HeaderCase>);

TEST_F(TempodialReportTest, Initialize_Types_AreNumbered)
{
    EXPECT_EQ(mReport->mProject, 1);
    EXPECT_EQ(mReport->mApplication, 2);
    EXPECT_EQ(mReport->mDescription, 3);
    EXPECT_EQ(mReport->mDate, 4);
    EXPECT_EQ(mReport->mTraceInfo, "TDReport");
}

TEST_F(TempodialReportTest, Initialize_TracesItsRevision)
{
    mAddIn.Trace();
    mReport->Initialize(mAddIn.main, mAddIn.application, mAddIn.main->mTempodialDebugLog);
    EXPECT_THAT(mAddIn.Trace(), ElementsAre("TDReport revision 1 TempodialReport"));
}

TEST_F(TempodialReportTest, CreateReport_NoActivities_HasATailAlone)
{
    const std::string report = "\r\n***Total time at PC: 0 hours 00 minutes ***\r\n";
    EXPECT_EQ(Plain(10, 10, 1), report);
    EXPECT_THAT(ReportTrace(),
        ElementsAre("generate report on [10/10/2006,10/10/2006]", "start: 10/10/2006 12:00 AM end: 10/10/2006 11:59 PM",
            "new totaltime: 0", "Report: \r\n***Total time at PC: 0 hours 00 minutes ***"));
    EXPECT_EQ(Plain(10, 10, 1, true), report + "\r\n");
}

TEST_F(TempodialReportTest, CreateReport_EndBeforeStart_HasNoDay)
{
    Plain(10, 9, 1);
    EXPECT_THAT(ReportTrace(),
        ElementsAre(
            "generate report on [10/10/2006,10/9/2006]", "Report: \r\n***Total time at PC: 0 hours 00 minutes ***"));
}

TEST_F(TempodialReportTest, CreateReport_PlainWithDetails_ListsThemBehindTheTail)
{
    Add(Moment(10, 9, 0), 65, "A", "Notepad", "x");
    Add(Moment(10, 11, 0), 5, "B", "Notepad", "y");
    EXPECT_EQ(Plain(10, 10, 1, true),
        "A - 1 hour 05 minutes (93%)\r\nB - 0 hours 05 minutes (7%)\r\n"
        "\r\n***Total time at PC: 1 hour 10 minutes ***\r\n"
        "\r\n\r\nA Activity List\r\n10-Oct-06  9:00 AM - 10:05 AM  (65 mins)    Notepad, x\r\n"
        "\r\nB Activity List\r\n10-Oct-06  11:00 AM - 11:05 AM  (05 mins)    Notepad, y\r\n");
}

TEST_F(TempodialReportTest, CreateReport_Html_FillsTheTemplates)
{
    UseSmallTemplates();
    Add(Moment(10, 9, 0), 65, "R&D http://a", "Notepad", "x");
    Add(Moment(10, 11, 0), 5, "B", "Notepad", "y");
    const std::string summary = "<body>[Project|R&amp;D <a href='http://a'>http://a</a> - 1 hour 05 minutes, 93\r\n"
                                "B - 0 hours 05 minutes, 7\r\n|4|1 hour 10 minutes]";
    EXPECT_EQ(Html(10, 1, false), summary + "</body></html>");
    const std::string blanks = "&nbsp;&nbsp;&nbsp;&nbsp;";
    EXPECT_EQ(Html(10, 1, true),
        summary
            + "{Project:\r\n\r\nR&amp;D <a href='http://a'>http://a</a><p>"
              "10-Oct-06&nbsp;&nbsp;9:00 AM - 10:05 AM&nbsp;&nbsp;(65 mins)"
            + blanks + "Notepad, x<br>\r\n\r\nB<p>10-Oct-06&nbsp;&nbsp;11:00 AM - 11:05 AM&nbsp;&nbsp;(05 mins)"
            + blanks + "Notepad, y<br>\r\n}</body></html>");
}

TEST_F(TempodialReportTest, CreateReport_Html_TracesItsSteps)
{
    UseSmallTemplates();
    Html(10, 1, true);
    EXPECT_THAT(ReportTrace(),
        ElementsAre("generate report on [10/10/2006,10/10/2006]", "start: 10/10/2006 12:00 AM end: 10/10/2006 11:59 PM",
            "new totaltime: 0", "read header contents", "read summary contents", "read detail contents",
            "read detail contents", "read line contents", "set details", "build detail"));
}

struct RowsCase
{
    const char* name;
    std::vector<std::string> projects;
    std::string rows;
};

class TempodialReportRowsTest : public TempodialReportTest, public testing::WithParamInterface<RowsCase>
{
};

TEST_P(TempodialReportRowsTest, CreateReport_Rows_AreTheHighestIndexAndTwo)
{
    UseSmallTemplates();
    mFolder.Write("ReportSummaryTemplate.html", "#NUMROWS#");
    int hour = 9;
    for (const auto& project : GetParam().projects) {
        Add(Moment(10, hour++, 0), 5, project, "Notepad", "x");
    }
    // An unknown type leaves all activities without a name.
    EXPECT_EQ(Html(10, GetParam().name == std::string("NamelessGroup") ? 9 : 1, false),
        "<body>" + GetParam().rows + "</body></html>");
}

INSTANTIATE_TEST_SUITE_P(Rows, TempodialReportRowsTest,
    testing::Values(RowsCase { "Three", { "A", "B", "C", "A" }, "5" }, RowsCase { "None", {}, "2" },
        RowsCase { "NamelessGroup", { "A" }, "2" }),
    NameOf<RowsCase>);

TEST_F(TempodialReportTest, CreateReport_NoTemplates_UsesThePlainLineAlone)
{
    UseInstallFolder(mFolder.Path());
    Add(Moment(10, 9, 0), 5, "A", "Notepad", "x");
    EXPECT_EQ(Html(10, 1, true), "</body></html>");
    EXPECT_FALSE(mReport->HasText());
    const auto trace = ReportTrace();
    EXPECT_THAT(trace, Contains("default to plain per-line contents"));
    EXPECT_THAT(trace, Not(Contains("read line contents")));
    EXPECT_THAT(trace, Contains("CreateReport :File not found").Times(5));

    mFolder.Write("ReportSummaryTemplate.html", "#SUMMARY#");
    EXPECT_EQ(Html(10, 1, false), "A - 0 hours 05 minutes (100%)\r\n</body></html>");
}

TEST_F(TempodialReportTest, CreateReport_EmptyTemplates_GiveNothing)
{
    UseSmallTemplates();
    mFolder.Write("ReportHeaderTemplate.html", "");
    mFolder.Write("ReportLineTemplate.html", "");
    Add(Moment(10, 9, 0), 5, "A", "Notepad", "x");
    EXPECT_EQ(Html(10, 1, false), "[Project|\r\n|3|0 hours 05 minutes]</body></html>");
    EXPECT_TRUE(mReport->HasText());
    EXPECT_THAT(ReportTrace(), Contains("CreateReport :Input past end of file").Times(2));
}

TEST_F(TempodialReportTest, CreateReport_OwnTemplates_LeaveNoToken)
{
    Add(Moment(10, 9, 0), 65, "R&D <b>", "Notepad", "x");
    const auto report = Html(10, 1, true);
    EXPECT_THAT(report, StartsWith("<!DOCTYPE html>"));
    EXPECT_THAT(report, EndsWith("</body></html>"));
    EXPECT_THAT(report, HasSubstr("R&amp;D &lt;b&gt; - 1 hour 05 minutes"));
    EXPECT_THAT(report, HasSubstr("width=\"100%\" cellpadding=\"0\""));
    EXPECT_THAT(report, HasSubstr("data-rows=\"3\""));
    EXPECT_THAT(report, HasSubstr("Total time at PC: 1 hour 05 minutes"));
    for (const auto* token : { "#CRITERIA#", "#SUMMARY#", "#NUMROWS#", "#TOTALTIME#", "#DETAILS#", "#CONTENT#",
             "#PERCENT#", "#DETAILTITLE#", "#DETAILLIST#" }) {
        EXPECT_THAT(report, Not(HasSubstr(token)));
    }
    EXPECT_THAT(Html(10, 1, false), Not(HasSubstr("Activity List")));
}

TEST_F(TempodialReportTest, CreateReport_OwnTemplates_ReferToNothingOutside)
{
    const auto report = Html(10, 1, true);
    EXPECT_THAT(report,
        HasSubstr("<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
                  "'unsafe-inline';"));
    for (const auto* reference : { "http://", "https://", "src=", "url(", "@import", "<link", "<script" }) {
        EXPECT_THAT(report, Not(HasSubstr(reference)));
    }
}

TEST_F(TempodialReportTest, CreateReport_OneDay_NamesTheCsvFileByIt)
{
    EXPECT_THAT(Csv(10, 10), ElementsAre(CsvHeader));
    EXPECT_EQ(mCsvPath, mAddIn.main->mCommonUtils->GetDataFilePath("Tempodial Tuesday, October 10, 2006.csv"));
    EXPECT_THAT(ReportTrace(), Contains("csv file: " + mCsvPath));
}

TEST_F(TempodialReportTest, CreateReport_TwoDays_NamesTheCsvFileByBoth)
{
    mFolder.Write("Tempodial/Tempodial Tuesday, October 10, 2006 - Wednesday, October 11, 2006.csv", "older\r\n");
    EXPECT_THAT(Csv(10, 11), ElementsAre(CsvHeader));
    EXPECT_THAT(mCsvPath, EndsWith("Tempodial Tuesday, October 10, 2006 - Wednesday, October 11, 2006.csv"));
}

TEST_F(TempodialReportTest, CreateReport_NoCsvAskedFor_LeavesThePath)
{
    mCsvPath = "as it was";
    Plain(10, 10, 1);
    EXPECT_EQ(mCsvPath, "as it was");
}

TEST_F(TempodialReportTest, CreateReport_CancelOnTheFirstDay_IsEmptyAndKeepsTheCsvFile)
{
    Add(Moment(10, 9, 0), 5, "A", "Notepad", "x");
    Add(Moment(10, 10, 0), 5, "B", "Notepad", "x");
    Add(Moment(11, 9, 0), 5, "C", "Notepad", "x");
    mAddIn.eventPump->hook = [&] { mAddIn.ClickCancel(); };
    const auto report = mReport->CreateReport(Day(10), Day(11), 1, true, true, mCsvPath, false, false);
    EXPECT_EQ(report, "");
    EXPECT_FALSE(mReport->HasText());
    EXPECT_EQ(CsvLines().size(), 2U);
    EXPECT_THAT(ReportTrace(), Not(Contains(HasSubstr("read header"))));
}

TEST_F(TempodialReportTest, CreateReport_CancelAmongDaysWithoutActivities_IsHeard)
{
    mAddIn.eventPump->hook = [&] { mAddIn.ClickCancel(); };
    mAddIn.Trace();
    const auto report = mReport->CreateReport(Day(10), Day(10).AddDays(1000), 1, true, false, mCsvPath, true, false);
    EXPECT_EQ(report, "");
    EXPECT_EQ(ReportTrace().size(), 1 + 2 * 100U) << "a line for the report, two for each day until it was heard";
}

TEST_F(TempodialReportTest, CreateReport_AddInEndsMeanwhile_IsEmptyAndKeepsTheCsvFile)
{
    Add(Moment(10, 9, 0), 5, "A", "Notepad", "x");
    Add(Moment(10, 10, 0), 5, "B", "Notepad", "x");
    const auto main = mAddIn.main;
    mAddIn.eventPump->hook = [&] {
        mReport->Terminate();
        main->Terminate();
    };
    const auto report = mReport->CreateReport(Day(10), Day(11), 1, true, true, mCsvPath, false, false);
    EXPECT_EQ(report, "");
    EXPECT_EQ(CsvLines().size(), 2U);
}

TEST_F(TempodialReportTest, CreateReport_Progress_TellsTheDay)
{
    Add(Moment(10, 9, 0), 5, "A", "Notepad", "x");
    std::vector<std::string> texts;
    mAddIn.eventPump->hook = [&] {
        const auto form = mAddIn.forms->NewestVisible("ProgressBarForm");
        texts.push_back(form->Caption() + ": " + form->Control("Label1").As<Label>()->Caption() + " "
            + form->Control("Label2").As<Label>()->Caption());
    };
    Plain(10, 10, 1);
    EXPECT_THAT(texts, ElementsAre("Tempodial: Creating report.. Gathering data for: Tuesday, October 10, 2006"));
}

}

}
