#include "engine/foundation/TempodialStrings.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

struct Word
{
    std::string TempodialStrings::*member;
    const char* value;
};

constexpr Word Words[] = {
    { &TempodialStrings::mLogName, "Tempodial" },
    { &TempodialStrings::mLogNameAccessible, "&Tempodial" },
    { &TempodialStrings::mCalendarName, "Tempodial" },
    { &TempodialStrings::mFolderName, "Tempodial" },
    { &TempodialStrings::mFolderTail, " Folder" },
    { &TempodialStrings::mProjectListFileName, "TempodialProjectList.out" },
    { &TempodialStrings::mHistoryFile, "TempodialHistory.out" },
    { &TempodialStrings::mFormName, "WorkLogForm.oft" },
    { &TempodialStrings::mFormClass, "IPM.Appointment.TDActivity1" },
    { &TempodialStrings::mTableView, "WorkLogCategoryView.xml" },
    { &TempodialStrings::mTableViewName, "Tempodial List" },
    { &TempodialStrings::mCalendarViewName, "Tempodial Calendar" },
    { &TempodialStrings::mFAQName, "FAQ.html" },
    { &TempodialStrings::mUserGuideName, "userguide.html" },
    { &TempodialStrings::mNoProject, "No Project" },
    { &TempodialStrings::mUnknownString, "None" },
    { &TempodialStrings::mNoValue, "<None>" },
    { &TempodialStrings::mSelectAKeyword, "<word or phrase to match an activity to this project>" },
    { &TempodialStrings::mSameAsThisItem, "This description" },
    { &TempodialStrings::mSelectAll, "Select All" },
    { &TempodialStrings::mDetailStart, "Your activities include: " },
    { &TempodialStrings::mDetailEnd, "(end of list)" },
    { &TempodialStrings::mMinShort, "min" },
    { &TempodialStrings::mOutboxname, "Outbox" },
    { &TempodialStrings::mComposing, "Composed" },
    { &TempodialStrings::mSelectAProject, "Select A Project..." },
    { &TempodialStrings::mCancel, "Cancel" },
    { &TempodialStrings::mDescriptionVarious, "Various" },
    { &TempodialStrings::mDescriptionVariousIncluding, "including: " },
    { &TempodialStrings::mDescriptionURLIncluded, "(see url...)" },
    { &TempodialStrings::VARIOUS_SEP, ", " },
    { &TempodialStrings::mAddNewProject, "<New project..>" },
    { &TempodialStrings::mAllProjects, "All Projects" },
    { &TempodialStrings::mPrecedenceHigh, "High" },
    { &TempodialStrings::mPrecedenceMedium, "Medium" },
    { &TempodialStrings::mPrecedenceLow, "Low" },
    { &TempodialStrings::mProjectSubjectText, "Project:" },
    { &TempodialStrings::mOurSaveAndCloseButton, "Save a&nd Close" },
    { &TempodialStrings::mOurViewProjectsButton, "Pro&ject Settings..." },
    { &TempodialStrings::mOurSaveButton, "&Save" },
    { &TempodialStrings::mOutlookStandardToolbarName, "Standard" },
    { &TempodialStrings::mOutlookSaveAndCloseButton, "&Save and Close" },
    { &TempodialStrings::mOutlookDeleteButton, "&Delete" },
    { &TempodialStrings::mOutlookPrintButton, "&Print" },
    { &TempodialStrings::mOutlookHelpButton, "Microsoft Office Outlook &Help" },
    { &TempodialStrings::mMainPageName, "Activity" },
    { &TempodialStrings::mProjectPageName, "Project Keywords" },
    { &TempodialStrings::mIfSubjectBox, "IfSubjectBox" },
    { &TempodialStrings::mProjectComboBox, "ProjectComboBox" },
    { &TempodialStrings::mApplicationPPT, "Microsoft Powerpoint" },
    { &TempodialStrings::mApplicationExcel, "Microsoft Excel" },
    { &TempodialStrings::mApplicationIE, "Microsoft Internet Explorer" },
    { &TempodialStrings::mApplicationWord, "Microsoft Word" },
    { &TempodialStrings::mApplicationOutlookread, "Microsoft Outlook (reading)" },
    { &TempodialStrings::mApplicationOutlookwrote, "Microsoft Outlook (writing)" },
    { &TempodialStrings::mApplicationOutlook, "Microsoft Outlook" },
    { &TempodialStrings::mApplicationOutlookRoot, "Outlook" },
    { &TempodialStrings::mApplicationFirefox, "Mozilla Firefox" },
    { &TempodialStrings::mApplicationNotes, "Lotus Notes" },
    { &TempodialStrings::mApplicationNotepad, "Notepad" },
    { &TempodialStrings::mApplicationExplorer, "Windows Explorer" },
    { &TempodialStrings::mReportText, "Tempodial Report" },
    { &TempodialStrings::mReportTailInitString, "Total time at PC: " },
    { &TempodialStrings::mReportDetailText, "\r\n\r\nDetailed activities grouped by project\r\n" },
    { &TempodialStrings::mReportRecip, "support@tempodial.example" },
    { &TempodialStrings::mReportCSVHeader,
        "Project,Application,Description,People,Day,Start time,End time,Duration (minutes)" },
    { &TempodialStrings::mReportProgress1, "Creating report.." },
    { &TempodialStrings::mReportProgress2, "Gathering data for: " },
    { &TempodialStrings::mReportHour, "hour" },
    { &TempodialStrings::mReportHours, "hours" },
    { &TempodialStrings::mReportMinutes, "minutes" },
    { &TempodialStrings::mReportMins, "mins" },
    { &TempodialStrings::mReportActivityList, "Activity List" },
    { &TempodialStrings::mReportBy, "By" },
    { &TempodialStrings::mReportProject, "Project" },
    { &TempodialStrings::mReportApplication, "Application" },
    { &TempodialStrings::mReportDescription, "Description" },
    { &TempodialStrings::mReportDate, "Date" },
    { &TempodialStrings::mReportDateInversion, "The end date you entered occurs before the start date." },
    { &TempodialStrings::mReport2002header, "Please send this problem report to: support@tempodial.example\r\n" },
    { &TempodialStrings::mToolbarGoTDCalendar, "View Activities in a &Calendar" },
    { &TempodialStrings::mToolbarTableView, "View Activities in a &List" },
    { &TempodialStrings::mToolbarTriggerSync, "Refre&sh Tempodial" },
    { &TempodialStrings::mToolbarViewSettings, "Pro&ject Settings..." },
    { &TempodialStrings::mToolbarTriggerReport, "Create Activity &Report..." },
    { &TempodialStrings::mToolbarTriggerProblemReport, "&Report a Problem" },
    { &TempodialStrings::mToolbarSetProject, "Set Project for &Activities..." },
    { &TempodialStrings::mToolbarHelp, "&Help" },
    { &TempodialStrings::mToolbarFAQ, "Tempodial &Help" },
    { &TempodialStrings::mToolbarFAQ2, "&Tempodial Help" },
    { &TempodialStrings::mToolbarUpdates, "&Check for Updates" },
    { &TempodialStrings::mToolbarAbout, "&About Tempodial" },
    { &TempodialStrings::mErrorBadProjectName, "Invalid project selected" },
    { &TempodialStrings::mErrorInvalidProjectChar, "Project names may not include the | character." },
    { &TempodialStrings::mErrorSaveFirst, "You must save or cancel your last change." },
    { &TempodialStrings::mErrorBadPrecedence, "Invalid precedence selected" },
    { &TempodialStrings::mRegistryValueInstall, "Install Directory" },
    { &TempodialStrings::mRegistryValueOLFolder, "Outlook Folder" },
    { &TempodialStrings::mRegistryValueOLFolderID, "Outlook Folder Unique ID" },
    { &TempodialStrings::mRegistryValueOLFolderName, "Outlook Folder Display Name" },
    { &TempodialStrings::mRegistryValueProjectList, "Project List" },
    { &TempodialStrings::mRegistryValueVersion, "CurrentVersion" },
    { &TempodialStrings::mRegistryValueProjectXML, "ProjectXML" },
};

std::string DefaultProject(const std::string& name)
{
    return "<project><name>" + name
        + "</name><subjrules></subjrules><peoplerules></peoplerules><notsubjrules></notsubjrules><precedence>2"
          "</precedence></project>|";
}

}

TEST(TempodialStringsTest, Initialize_FillsEachWord)
{
    TempodialStrings strings;
    strings.Initialize();
    for (const auto& [member, value] : Words) {
        EXPECT_EQ(strings.*member, value);
    }
    EXPECT_EQ(strings.mTraceInfo, "");
}

TEST(TempodialStringsTest, Initialize_DefaultProjects_AreFiveRecordsInTheirOrder)
{
    TempodialStrings strings;
    strings.Initialize();
    EXPECT_EQ(strings.mRegistryValueDefaultProjects,
        DefaultProject("Critical") + DefaultProject("Supportive") + DefaultProject("Wish") + DefaultProject("Personal")
            + DefaultProject("Other"));
}

TEST(TempodialStringsTest, BeforeInitialize_EachWordIsEmpty)
{
    const TempodialStrings strings;
    for (const auto& [member, value] : Words) {
        EXPECT_EQ(strings.*member, "") << value;
    }
}

}
