#pragma once

#include <string>

namespace tempodial {

/// The words: all that the user sees, and the names of things in Outlook, of files and of registry values. A word is
/// used for comparing as well as for showing. Every one is empty until `Initialize`.
class TempodialStrings
{
public:
    std::string mTraceInfo;

    // Names, files and folders.
    std::string mLogName;
    /// The log's name with an access key.
    std::string mLogNameAccessible;
    std::string mCalendarName;
    std::string mFolderName;
    std::string mFolderTail;
    std::string mProjectListFileName;
    /// The file that keeps the point reached in each day.
    std::string mHistoryFile;
    std::string mFormName;
    /// The message class of an activity.
    std::string mFormClass;
    std::string mTableView;
    std::string mTableViewName;
    std::string mCalendarViewName;
    std::string mFAQName;
    std::string mUserGuideName;

    // Words of the log and of descriptions.
    std::string mNoProject;
    /// The value of an absent thing.
    std::string mUnknownString;
    std::string mNoValue;
    std::string mSelectAKeyword;
    std::string mSameAsThisItem;
    std::string mSelectAll;
    std::string mDetailStart;
    std::string mDetailEnd;
    std::string mMinShort;
    std::string mOutboxname;
    std::string mComposing;
    std::string mSelectAProject;
    std::string mCancel;
    std::string mDescriptionVarious;
    std::string mDescriptionVariousIncluding;
    std::string mDescriptionURLIncluded;
    /// What stands between the parts of a description.
    std::string VARIOUS_SEP;
    std::string mAddNewProject;
    std::string mAllProjects;
    std::string mPrecedenceHigh;
    std::string mPrecedenceMedium;
    std::string mPrecedenceLow;
    std::string mProjectSubjectText;

    // Captions and control names of the activity page, and Outlook's own.
    std::string mOurSaveAndCloseButton;
    std::string mOurViewProjectsButton;
    std::string mOurSaveButton;
    std::string mOutlookStandardToolbarName;
    std::string mOutlookSaveAndCloseButton;
    std::string mOutlookDeleteButton;
    std::string mOutlookPrintButton;
    std::string mOutlookHelpButton;
    std::string mMainPageName;
    std::string mProjectPageName;
    std::string mIfSubjectBox;
    std::string mProjectComboBox;

    // Application names, as the import and the reports show them.
    std::string mApplicationPPT;
    std::string mApplicationExcel;
    std::string mApplicationIE;
    std::string mApplicationWord;
    std::string mApplicationOutlookread;
    std::string mApplicationOutlookwrote;
    std::string mApplicationOutlook;
    std::string mApplicationOutlookRoot;
    std::string mApplicationFirefox;
    std::string mApplicationNotes;
    std::string mApplicationNotepad;
    std::string mApplicationExplorer;

    // Reports.
    std::string mReportText;
    std::string mReportTailInitString;
    std::string mReportDetailText;
    /// The e-mail address of the support desk.
    std::string mReportRecip;
    std::string mReportCSVHeader;
    std::string mReportProgress1;
    std::string mReportProgress2;
    std::string mReportHour;
    std::string mReportHours;
    std::string mReportMinutes;
    std::string mReportMins;
    std::string mReportActivityList;
    std::string mReportBy;
    std::string mReportProject;
    std::string mReportApplication;
    std::string mReportDescription;
    std::string mReportDate;
    std::string mReportDateInversion;
    std::string mReport2002header;

    // Captions of the toolbar and the menu.
    std::string mToolbarGoTDCalendar;
    std::string mToolbarTableView;
    std::string mToolbarTriggerSync;
    std::string mToolbarViewSettings;
    std::string mToolbarTriggerReport;
    std::string mToolbarTriggerProblemReport;
    std::string mToolbarSetProject;
    std::string mToolbarHelp;
    std::string mToolbarFAQ;
    std::string mToolbarFAQ2;
    std::string mToolbarUpdates;
    std::string mToolbarAbout;

    // Messages.
    std::string mErrorBadProjectName;
    std::string mErrorInvalidProjectChar;
    std::string mErrorSaveFirst;
    std::string mErrorBadPrecedence;

    // Names of registry values.
    std::string mRegistryValueInstall;
    std::string mRegistryValueOLFolder;
    std::string mRegistryValueOLFolderID;
    std::string mRegistryValueOLFolderName;
    std::string mRegistryValueProjectList;
    std::string mRegistryValueVersion;
    std::string mRegistryValueProjectXML;
    /// The project list of a first run: records, each followed by a bar.
    std::string mRegistryValueDefaultProjects;

    /// Fills all words.
    void Initialize();
};

}
