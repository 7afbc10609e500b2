#include "engine/import/TempodialDataHandler.h"
#include "host/system/ExpatXml.h"
#include "support/AddInFixture.h"

namespace tempodial {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

}

/// What a tracker line says, taken from its nodes.
class TempodialDataHandlerExtractTest : public AddInFixture
{
protected:
    TempodialDataHandlerExtractTest()
    {
        mHandler->Initialize(mAddIn.main, nullptr, nullptr, mAddIn.main->mTempodialDebugLog);
        mAddIn.Trace();
    }

    SlotActivity Extract(const std::string& nodes)
    {
        return ExtractLine("<slot><StartTime>36000</StartTime><EndTime>36300</EndTime>" + nodes + "</slot>");
    }
    SlotActivity ExtractLine(const std::string& line)
    {
        const auto document = mAddIn.platform->xml->NewDocument();
        document->LoadXML(line);
        SlotActivity activity;
        mHandler->ExtractData(document, mDay, activity);
        return activity;
    }

    Date mDay = Date::FromYearMonthDay(2006, 10, 10);
    Ref<TempodialDataHandler> mHandler = MakeRef<TempodialDataHandler>(mAddIn.platform);
};

TEST_F(TempodialDataHandlerExtractTest, Wrapped_PutsQuotesUnlessThereIsNothing)
{
    EXPECT_EQ(mHandler->wrapped("Plan"), "\"Plan\"");
    EXPECT_EQ(mHandler->wrapped("none"), "\"none\"");
    EXPECT_EQ(mHandler->wrapped(" "), "\" \"");
    EXPECT_EQ(mHandler->wrapped("None"), "None");
    EXPECT_EQ(mHandler->wrapped(""), "");
}

TEST_F(TempodialDataHandlerExtractTest, StripAppInfo_TakesTheApplicationOutOfACaption)
{
    struct Row
    {
        const char* caption;
        const char* application;
        const char* result;
    };
    const Row rows[] = {
        { "Report - Lotus Notes - Inbox", "Lotus Notes", "Report - Inbox" },
        { "Report - Lotus Notes (old) - Inbox", "Lotus Notes", "Report - Inbox" },
        { "Report - Lotus Notes", "Lotus Notes", "Report" },
        { "Notepad - notes.txt", "Notepad", "notes.txt" },
        { "My Notepad - notes.txt", "Notepad", "My Notepad - notes.txt" },
        { "Notepad - Notepad - notes.txt", "Notepad", "Notepad - notes.txt" },
        { "Notepad - a.txt Notepad - b.txt", "Notepad", "a.txt b.txt" },
        { "Notepad - ", "Notepad", "" },
        { " - Notepad", "Notepad", "" },
        { "a.txt - notepad", "Notepad", "a.txt - notepad" },
        { "a - Notepad - b - Notepad - c", "Notepad", "a - b - Notepad - c" },
        { "A - B - C", "", "A - C" },
        { "x - None", "None", "x" },
        { "", "Notepad", "" },
        { "\xC3\xA4 - Notepad - \xC3\xB6", "Notepad", "\xC3\xA4 - \xC3\xB6" },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(mHandler->StripAppInfo(row.caption, row.application), row.result) << row.caption;
    }
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_EachApplication_HasItsNameTraceAndDescription)
{
    struct Row
    {
        const char* nodes;
        const char* trace;
        const char* application;
        const char* description;
    };
    const Row rows[] = {
        { "<AppType>0</AppType><AppName>Paint</AppName><WindowText>a.bmp - Paint</WindowText>", "SyncData: Unknown app",
            "Paint", "\"a.bmp\"" },
        { "<AppType>2</AppType><WordDocName>plan.doc</WordDocName>", "SyncData: Word", "Microsoft Word",
            "\"plan.doc\"" },
        { "<AppType>3</AppType><ExcelDocName>sums.xls</ExcelDocName>", "SyncData: Excel", "Microsoft Excel",
            "\"sums.xls\"" },
        { "<AppType>4</AppType><PPTDocName>talk.ppt</PPTDocName>", "SyncData: PPT", "Microsoft Powerpoint",
            "\"talk.ppt\"" },
        { "<AppType>5</AppType><OutlookSubject>Plan</OutlookSubject>", "SyncData: Outlook",
            "Microsoft Outlook (reading)", "\"Plan\"" },
        { "<AppType>6</AppType>", "SyncData: Firefox", "Mozilla Firefox", "Various" },
        { "<AppType>7</AppType><WindowText>Report - Lotus Notes - Inbox</WindowText>", "SyncData: Notes", "Lotus Notes",
            "\"Report - Inbox\"" },
        { "<AppType>8</AppType><WindowText>a.txt - Notepad</WindowText>", "SyncData: Notepad", "Notepad", "\"a.txt\"" },
        { "<AppType>9</AppType><WindowText>My Documents</WindowText>", "SyncData: Explorer", "Windows Explorer",
            "\"My Documents\"" },
        { "<AppType>10</AppType><AppName>Paint</AppName>", "SyncData: unrecognised AppIdx 10", "Paint", "Various" },
        { "<AppType>-1</AppType>", "SyncData: unrecognised AppIdx -1", "Various", "Various" },
        { "<AppType>2.5</AppType>", "SyncData: Word", "Microsoft Word", "Various" },
    };
    for (const auto& row : rows) {
        const auto activity = Extract(row.nodes);
        EXPECT_EQ(activity.application, row.application) << row.nodes;
        EXPECT_EQ(activity.description, row.description) << row.nodes;
        EXPECT_EQ(activity.contacts, "") << row.nodes;
        EXPECT_EQ(activity.body, "") << row.nodes;
        EXPECT_THAT(mAddIn.Trace(),
            ElementsAre(std::string("TDDataHandler ") + row.trace,
                "TDDataHandler start: 10/10/2006 10:00:00 AM End: 10/10/2006 10:05:00 AM Override: "))
            << row.nodes;
    }
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_NoApplicationType_IsUnknownWithALine)
{
    const auto activity = Extract("<WindowText>A - B - C</WindowText><AppName></AppName>");
    EXPECT_EQ(activity.application, "Various");
    // An application name that is there, but empty, cuts the caption at its first separator.
    EXPECT_EQ(activity.description, "\"A - C\"");
    EXPECT_THAT(mAddIn.TraceTexts(),
        ElementsAre("ExtractData error Type mismatch ", "SyncData: Unknown app",
            "start: 10/10/2006 10:00:00 AM End: 10/10/2006 10:05:00 AM Override: "));
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_UnknownApplication_HasASecondChance)
{
    EXPECT_EQ(Extract("<AppType>0</AppType><OwnedWindowText>owner</OwnedWindowText>").description, "\"owner\"");
    EXPECT_EQ(Extract("<AppType>99</AppType><AppName>Paint</AppName><WindowText> - Paint</WindowText>"
                      "<OwnedWindowText>a.bmp - Paint</OwnedWindowText>")
                  .description,
        "\"a.bmp\"");
    EXPECT_EQ(Extract("<AppType>8</AppType><OwnedWindowText>owner</OwnedWindowText>").description, "Various");
    // "None" is used as it stands before it becomes "Various".
    const auto activity = Extract("<AppType>0</AppType><WindowText>x - None</WindowText>");
    EXPECT_EQ(activity.description, "\"x\"");
    EXPECT_EQ(activity.application, "Various");
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_NothingButTheApplicationInTheCaption_IsVarious)
{
    for (const auto* const caption : { "Notepad - ", " - Notepad", "None", "" }) {
        const auto text = std::string("<AppType>8</AppType><WindowText>") + caption + "</WindowText>";
        EXPECT_EQ(Extract(text).description, "Various") << caption;
    }
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_Browser_FollowsUrlThenBaseThenNothing)
{
    struct Row
    {
        const char* nodes;
        const char* description;
        const char* body;
    };
    const Row rows[] = {
        { "<URL>http://a/b</URL><WindowText>News - Mozilla Firefox</WindowText>", "\"News\" (http://a/b)",
            "http://a/b" },
        { "<URL>http://a/b</URL><BaseURL>a</BaseURL>", " (http://a/b)", "http://a/b" },
        { "<URL></URL><WindowText>News</WindowText>", "\"News\" ()", "" },
        { "<BaseURL>a.com</BaseURL><WindowText>News</WindowText>", "\"a.com\"", "" },
        { "<BaseURL></BaseURL>", "Various", "" },
        { "<WindowText>News</WindowText>", "Various", "" },
    };
    for (const auto& row : rows) {
        const auto activity = Extract(std::string("<AppType>6</AppType>") + row.nodes);
        EXPECT_EQ(activity.description, row.description) << row.nodes;
        EXPECT_EQ(activity.body, row.body) << row.nodes;
    }
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_FirstBrowser_TracesWhatItUses)
{
    EXPECT_EQ(
        Extract("<AppType>1</AppType><URL>u</URL><BaseURL>b</BaseURL>").application, "Microsoft Internet Explorer");
    auto lines = mAddIn.TraceTexts();
    EXPECT_EQ(lines[0], "SyncData: IE, URL: ubase: b");
    EXPECT_EQ(lines[1], "Use URL");

    Extract("<AppType>1</AppType><BaseURL>b</BaseURL>");
    lines = mAddIn.TraceTexts();
    EXPECT_EQ(lines[0], "SyncData: IE, URL: Nonebase: b");
    EXPECT_EQ(lines[1], "Use base");

    Extract("<AppType>1</AppType>");
    lines = mAddIn.TraceTexts();
    EXPECT_EQ(lines[0], "SyncData: IE, URL: Nonebase: None");
    EXPECT_THAT(lines[1], HasSubstr("start: "));
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_Mail_IsWrittenReadOrAFolder)
{
    struct Row
    {
        const char* nodes;
        const char* application;
        const char* description;
        const char* contacts;
    };
    constexpr auto Reading = "Microsoft Outlook (reading)";
    constexpr auto Writing = "Microsoft Outlook (writing)";
    const Row rows[] = {
        { "<OutlookSubject>Plan</OutlookSubject><OutlookDirection>composed</OutlookDirection><OutlookTo>Ann</"
          "OutlookTo>",
            Writing, "\"Plan\" - Ann", "Ann" },
        { "<OutlookDirection>composed</OutlookDirection><OutlookTo>Ann</OutlookTo>", Writing, "None - Ann", "Ann" },
        { "<OutlookSubject>Plan</OutlookSubject><OutlookDirection>composed</OutlookDirection><OutlookTo></OutlookTo>",
            Writing, "\"Plan\"", "" },
        { "<OutlookSubject>Plan</OutlookSubject><OutlookDirection>composed</OutlookDirection>", Writing, "\"Plan\"",
            "" },
        { "<OutlookDirection>composed</OutlookDirection>", Writing, "Various", "" },
        { "<OutlookSubject>Plan</OutlookSubject><OutlookFrom>Ann</OutlookFrom><OutlookFolder>Inbox</OutlookFolder>",
            Reading, "\"Plan\" (Inbox Folder) - Ann", "Ann" },
        { "<OutlookSubject>Plan</OutlookSubject>", Reading, "\"Plan\"", "" },
        { "<OutlookSubject>Plan</OutlookSubject><OutlookTo>Bob</OutlookTo>", Reading, "\"Plan\"", "" },
        { "<OutlookSubject>Plan</OutlookSubject><OutlookDirection>Composed</OutlookDirection><OutlookTo>Ann</"
          "OutlookTo>",
            Reading, "\"Plan\"", "" },
        { "<OutlookFrom>Ann</OutlookFrom><WindowText>C</WindowText><OutlookFolder>Inbox</OutlookFolder>", Reading,
            "Inbox Folder, \"C\"", "" },
        { "<OutlookFolder>Outbox</OutlookFolder>", Reading, "Composed, Various", "" },
        { "<OutlookFolder>outbox</OutlookFolder><WindowText>x</WindowText>", Reading, "outbox Folder, \"x\"", "" },
        { "<OutlookSubject></OutlookSubject><OutlookFrom>Ann</OutlookFrom><OutlookFolder>Inbox</OutlookFolder>",
            Reading, " (Inbox Folder) - Ann", "Ann" },
        // The caption is used whole.
        { "<WindowText>Inbox - Microsoft Outlook</WindowText>", Reading, "\"Inbox - Microsoft Outlook\"", "" },
        { "", Reading, "Various", "" },
    };
    for (const auto& row : rows) {
        const auto activity = Extract(std::string("<AppType>5</AppType>") + row.nodes);
        EXPECT_EQ(activity.application, row.application) << row.nodes;
        EXPECT_EQ(activity.description, row.description) << row.nodes;
        EXPECT_EQ(activity.contacts, row.contacts) << row.nodes;
    }
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_Project_OverridesAndShowsInTheTrace)
{
    EXPECT_EQ(Extract("<AppType>2</AppType>").project, "");
    mAddIn.Trace();
    EXPECT_EQ(Extract("<AppType>2</AppType><Project>Alpha</Project>").project, "Alpha");
    EXPECT_THAT(
        mAddIn.TraceTexts(), Contains("start: 10/10/2006 10:00:00 AM End: 10/10/2006 10:05:00 AM Override: Alpha"));
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_Duration_CountsMinuteBoundaries)
{
    const auto duration = [&](int start, int end) { return ExtractLine(SlotLine(start, end).Text()).duration; };
    EXPECT_EQ(duration(36000, 36300), 5);
    EXPECT_EQ(duration(36030, 36329), 5);
    EXPECT_EQ(duration(36059, 36061), 1);
    EXPECT_EQ(duration(36000, 36059), 0);
    EXPECT_EQ(duration(36061, 36059), -1);
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_EndCannotBeRead_StaysAndTheDurationFollows)
{
    const auto activity = ExtractLine("<slot><StartTime>36000</StartTime><EndTime>x</EndTime></slot>");
    EXPECT_EQ(activity.endTime, Date());
    EXPECT_EQ(activity.duration, -56160600);
    EXPECT_THAT(mAddIn.Trace(), Contains("TDUtils GetGetFromXML error Type mismatch SelectSingleNode slot/EndTime"));
}

TEST_F(TempodialDataHandlerExtractTest, ExtractData_NothingCanBeRead_LeavesTheTimesOfTheCaller)
{
    SlotActivity activity;
    activity.startTime = mDay;
    activity.endTime = mDay.AddMinutes(3);
    activity.contacts = "left over";
    activity.body = "left over";
    const auto document = mAddIn.platform->xml->NewDocument();
    document->LoadXML("<slot/>");
    mHandler->ExtractData(document, mDay, activity);
    EXPECT_EQ(activity.startTime, mDay);
    EXPECT_EQ(activity.duration, 3);
    EXPECT_EQ(activity.contacts, "");
    EXPECT_EQ(activity.body, "");
    EXPECT_THAT(mAddIn.TraceTexts(), Contains("start: 10/10/2006 End: 10/10/2006 12:03:00 AM Override: "));
}

}
