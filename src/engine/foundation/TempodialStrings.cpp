#include "engine/foundation/TempodialStrings.h"

#include "engine/core/ProductWords.h"
#include "engine/foundation/ActivitySubject.h"

namespace tempodial {

namespace {

/// The project list of a first run.
std::string DefaultProjects()
{
    std::string records;
    for (const auto* const name : { "Critical", "Supportive", "Wish", "Personal", "Other" }) {
        records += std::string("<project><name>") + name
            + "</name><subjrules></subjrules><peoplerules></peoplerules><notsubjrules></notsubjrules>"
              "<precedence>2</precedence></project>|";
    }
    return records;
}

}

void TempodialStrings::Initialize()
{
    mLogName = ProductName;
    mLogNameAccessible = "&Tempodial";
    mCalendarName = mLogName;
    mFolderName = mLogName;
    mFolderTail = " Folder";
    mProjectListFileName = "TempodialProjectList.out";
    mHistoryFile = HistoryFileName;
    mFormName = "WorkLogForm.oft";
    mFormClass = ActivityClass;
    mTableView = "WorkLogCategoryView.xml";
    mTableViewName = mLogName + " List";
    mCalendarViewName = mLogName + " Calendar";
    mFAQName = "FAQ.html";
    mUserGuideName = "userguide.html";

    mNoProject = NoProject;
    mUnknownString = UnknownText;
    mNoValue = "<None>";
    mSelectAKeyword = "<word or phrase to match an activity to this project>";
    mSameAsThisItem = "This description";
    mSelectAll = "Select All";
    mDetailStart = "Your activities include: ";
    mDetailEnd = "(end of list)";
    mMinShort = "min";
    mOutboxname = "Outbox";
    mComposing = "Composed";
    mSelectAProject = "Select A Project...";
    mCancel = "Cancel";
    mDescriptionVarious = "Various";
    mDescriptionVariousIncluding = "including: ";
    mDescriptionURLIncluded = "(see url...)";
    VARIOUS_SEP = ", ";
    mAddNewProject = "<New project..>";
    mAllProjects = "All Projects";
    mPrecedenceHigh = "High";
    mPrecedenceMedium = "Medium";
    mPrecedenceLow = "Low";
    mProjectSubjectText = "Project:";

    mOurSaveAndCloseButton = "Save a&nd Close";
    mOurViewProjectsButton = "Pro&ject Settings...";
    mOurSaveButton = "&Save";
    mOutlookStandardToolbarName = "Standard";
    mOutlookSaveAndCloseButton = "&Save and Close";
    mOutlookDeleteButton = "&Delete";
    mOutlookPrintButton = "&Print";
    mOutlookHelpButton = "Microsoft Office Outlook &Help";
    mMainPageName = "Activity";
    mProjectPageName = "Project Keywords";
    mIfSubjectBox = "IfSubjectBox";
    mProjectComboBox = "ProjectComboBox";

    mApplicationPPT = "Microsoft Powerpoint";
    mApplicationExcel = "Microsoft Excel";
    mApplicationIE = "Microsoft Internet Explorer";
    mApplicationWord = "Microsoft Word";
    mApplicationOutlook = "Microsoft Outlook";
    mApplicationOutlookRoot = "Outlook";
    mApplicationFirefox = "Mozilla Firefox";
    mApplicationNotes = "Lotus Notes";
    mApplicationNotepad = "Notepad";
    mApplicationExplorer = "Windows Explorer";
    mApplicationOutlookread = mApplicationOutlook + " (reading)";
    mApplicationOutlookwrote = mApplicationOutlook + " (writing)";

    mReportText = mLogName + " Report";
    mReportTailInitString = "Total time at PC: ";
    mReportDetailText = "\r\n\r\nDetailed activities grouped by project\r\n";
    mReportRecip = "support@tempodial.example";
    mReportCSVHeader = "Project,Application,Description,People,Day,Start time,End time,Duration (minutes)";
    mReportProgress1 = "Creating report..";
    mReportProgress2 = "Gathering data for: ";
    mReportHour = "hour";
    mReportHours = "hours";
    mReportMinutes = "minutes";
    mReportMins = "mins";
    mReportActivityList = "Activity List";
    mReportBy = "By";
    mReportProject = "Project";
    mReportApplication = "Application";
    mReportDescription = "Description";
    mReportDate = "Date";
    mReportDateInversion = "The end date you entered occurs before the start date.";
    mReport2002header = "Please send this problem report to: " + mReportRecip + "\r\n";

    mToolbarGoTDCalendar = "View Activities in a &Calendar";
    mToolbarTableView = "View Activities in a &List";
    mToolbarTriggerSync = "Refre&sh " + mLogName;
    mToolbarViewSettings = "Pro&ject Settings...";
    mToolbarTriggerReport = "Create Activity &Report...";
    mToolbarTriggerProblemReport = "&Report a Problem";
    mToolbarSetProject = "Set Project for &Activities...";
    mToolbarHelp = "&Help";
    mToolbarFAQ = mLogName + " &Help";
    mToolbarFAQ2 = mLogNameAccessible + " Help";
    mToolbarUpdates = "&Check for Updates";
    mToolbarAbout = "&About " + mLogName;

    mErrorBadProjectName = "Invalid project selected";
    mErrorInvalidProjectChar = "Project names may not include the | character.";
    mErrorSaveFirst = "You must save or cancel your last change.";
    mErrorBadPrecedence = "Invalid precedence selected";

    mRegistryValueInstall = InstallFolderValue;
    mRegistryValueOLFolder = "Outlook Folder";
    mRegistryValueOLFolderID = WorkLogIdValue;
    mRegistryValueOLFolderName = "Outlook Folder Display Name";
    mRegistryValueProjectList = "Project List";
    mRegistryValueVersion = "CurrentVersion";
    mRegistryValueProjectXML = ProjectsValue;
    mRegistryValueDefaultProjects = DefaultProjects();
}

}
