#pragma once

#include "base/OrderedCollection.h"
#include "base/Watched.h"
#include "engine/foundation/TracedObject.h"
#include "platform/Platform.h"
#include "platform/objectmodel/Application.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tempodial {

class AboutBoxForm;
class ProjectSettingsForm;
class ReportForm;
class TempodialAnalyser;
class TempodialCommonUtils;
class TempodialConfig;
class TempodialDataHandler;
class TempodialExplorer;
class TempodialInspector;
class TempodialProjectManager;
class TempodialReport;
class TempodialStrings;
class TempodialToolbarUtils;
class TempodialUtils;
class TempodialWorkLog;

/// The hub: it makes and owns all other objects, and they reach each other through its members, which guard each call.
class TempodialMain final : public TracedObject, public std::enable_shared_from_this<TempodialMain>
{
public:
    explicit TempodialMain(Ref<const Platform> platform);
    ~TempodialMain() override;

    Ref<TempodialDebugLog> mTempodialDebugLog;
    Ref<TempodialReport> mTempodialReport;
    Ref<TempodialStrings> mStrings;
    Ref<TempodialConfig> mConfig;
    Ref<TempodialUtils> mUtils;
    Ref<TempodialCommonUtils> mCommonUtils;
    Ref<TempodialToolbarUtils> mToolbarUtils;
    Ref<Picture> mTempodialIcon;
    Ref<Picture> mTempodialIconMask;
    Ref<Picture> mTempodialRefreshIcon;
    Ref<Picture> mTempodialRefreshMaskIcon;
    /// False when Outlook's major version is 8, 9 or 10 or can't be read.
    bool mOutlook2003orLater = false;
    /// True when the use of e-mail objects would raise the security prompt; never goes back to false.
    bool mSecurityPopups = false;
    /// True when the version in the registry differed as this run started.
    bool mNewVersion = false;
    /// The name of the work log's first ordinary calendar view, empty when there is none.
    std::string mDefaultCalendarView;
    Ref<NameSpace> mNamespace;
    Watched<Application> mApplication;

    /// Makes all objects and starts the trace; doesn't touch the mailbox.
    void Initialize(const std::string& progID, const Ref<Application>& application);
    /// Sets up the work log, the form, the projects and the icons.
    void TempodialMain_Run();
    /// Ends everything, workers first; a second call is harmless.
    void Terminate();
    void ZeroReferences();
    void mApplication_MapiLogonComplete();
    void mApplication_Quit();

    /// Takes a window's wrapper out of the register, dead ones first; the host's last explorer gone ends the add-in.
    /// The caller's reference is cleared.
    void RemoveExplorer(Ref<TempodialExplorer>& explorer);
    /// Takes the wrappers of windows that are gone out of the register.
    void RemoveDeadExplorers();
    /// Takes all wrappers of an item's windows out of the register, unless the one given has left it before: its
    /// window's place may have been taken since. The caller's reference is cleared.
    void RemoveInspector(Ref<TempodialInspector>& inspector);
    void RemoveInspectorByEntryID(const std::string& entryID);
    /// Keeps a wrapper that has left the register, since its window has still to close.
    void KeepUntilClosed(const Ref<TempodialInspector>& inspector);
    /// Lets go of a wrapper whose window has closed, whether it was kept or not.
    void LetGoOfClosed(const Ref<TempodialInspector>& inspector);
    /// Ends the wrappers of inspectors whose item has gone.
    void RegularCleanUp();
    void mExplorers_NewExplorer(const Ref<Explorer>& explorer);
    void mInspectors_NewInspector(const Ref<Inspector>& inspector);
    /// True when an inspector is open on that item.
    bool IsInspector(const Ref<AppointmentItem>& item);

    void GoToTasklog(bool override);
    /// The identity of the work log folder, empty when there is none.
    std::string GetCalendarID();
    /// Imports the tracker's files of today and that many days before; unless forced only when the last import was long
    /// enough ago.
    void SyncData(std::int32_t numDays, bool forceSync);
    void ChangeViewToCalendar();
    void ChangeViewToTable();
    /// The work log folder, nothing when there is none.
    Ref<MAPIFolder> GetWorkLog();
    /// A new activity, saved; nothing when it couldn't be made or saved. The duration is in minutes.
    Ref<AppointmentItem> CreateCalendarItem(const std::string& project, const std::string& newDescription,
        const std::string& newApplication, const std::string& newContacts, std::int32_t newDuration, Date newStart,
        Date newEnd, const std::string& body, bool display);
    bool IsContinuable(const Ref<AppointmentItem>& item);
    /// Fills an activity anew and saves it; 0 when that went well.
    std::int32_t UpdateCalendarItem(const Ref<AppointmentItem>& item, const std::string& project,
        const std::string& newDescription, const std::string& newApplication, const std::string& newContacts,
        std::int32_t newDuration, Date newStart, Date newEnd, const std::string& body, bool newItem, bool closeIt);
    void ExtraCalendarItemInfo(const Ref<AppointmentItem>& item, const std::string& newDescription,
        const std::string& newApplication, const std::string& newProject, const std::string& newContacts, Date newStart,
        Date newEnd, const std::string& newBody);
    /// The item's text, empty when it is refused or can't be read.
    std::string GetBody(const Ref<AppointmentItem>& item);
    void CreateCalendarDuplicate(const Ref<AppointmentItem>& toDuplicate, bool display);
    void RefreshCalendarItem(const Ref<AppointmentItem>& item, const std::string& newProject,
        const std::string& newDescription, bool subjectOnly);
    /// Gives the item the project when the project's rules match it; true when they did. Saves nothing.
    bool ApplyProjectToItem(const std::string& project, const Ref<AppointmentItem>& item);
    /// True when the item is an activity.
    bool IsOurItem(const Ref<AppointmentItem>& itemToCheck);
    /// The value of a user property, nothing when it can't be read.
    Variant GetAttribute(const std::string& attrib, const Ref<AppointmentItem>& item);
    /// Fills the array with all project names and the special entries asked for; the result is its upper bound.
    Variant GetProjects(std::vector<std::string>& projArray, bool withAdd, bool withNoProject, bool withAllProjects);
    /// Adds or changes a project; the result is a message for the user, empty when it went well.
    std::string UpdateorAddProject(const std::string& project, const std::string& subRule,
        const std::string& notSubRule, const std::string& peopleRule, const std::string& precedence, bool addOnly);
    void UpdateorAddProjectRule(
        const std::string& project, const std::string& newSubRule, const std::string& newPeopleRule);
    void DeleteProject(const std::string& project);
    /// A message for the user when a project may not have that name, else empty.
    std::string ValidateProject(const std::string& project);
    /// The project that the rules give, "No Project" when none does.
    std::string WhatProject(const std::string& subject, const std::string& people);
    bool IsProject(const std::string& project, const std::string& subject, const std::string& people);
    std::string GetProjectPrecedence(const std::string& project);
    std::string GetProjectSubRule(const std::string& project);
    std::string GetProjectNotSubRule(const std::string& project);
    std::string GetProjectPeopleRule(const std::string& project);
    void ApplyProject(const std::string& project, std::int32_t numDays);
    /// The first item whose date property is that moment at minute grain, nothing when there is none.
    Ref<AppointmentItem> ReturnMatchingItem(const std::string& param, Date paramDate);
    /// Shows the project settings for a project; the activity window that asked for them may be nothing.
    void ShowSettingsForm(const std::string& project, const Ref<TempodialInspector>& owningInsp);
    void ShowReportForm();
    void ShowAboutForm();
    /// The user has come to the work log folder: applies the view and imports.
    void SwitchingToTasklog();
    /// Puts an e-mail with the diagnostic files of a day on the screen, for the user to send; nothing when cancelled.
    void ReportProblem(const std::string& body, Date day, bool all, bool cancelled);
    /// Puts an e-mail with a report over the days from start to end, both included, on the screen. True when the report
    /// has a text.
    bool CreateReport(Date startDate, Date endDate, std::int32_t reportType, bool detailed, bool createCSVFile,
        bool htmlFormat, bool workDayOnly);
    /// Sets a project on the selected items, on the items of a range, or both.
    void SetProjectForItems(
        const std::string& project, bool selected, bool range, Date fromDate, Date toDate, bool override);

private:
    /// Compares the version in the registry with this one, and writes this one when they differ.
    void CompareVersions();
    void ReadOutlookVersion();
    void AddExplorer(const Ref<Explorer>& explorer);
    void AddInspector(const Ref<Inspector>& inspector);
    bool IsRegistered(const Ref<TempodialInspector>& inspector) const;
    /// Takes the wrappers for which the test holds out of the register.
    void RemoveInspectors(const std::function<bool(const TempodialInspector&)>& test);
    void LoadIcons();
    /// Addresses the problem report's mail, or has its text ask the user to. Where the security guard refuses the
    /// recipient, e-mail objects are left alone from then on.
    void AddressProblemReport(const Ref<MailItem>& item, std::string& body);

    Ref<TempodialWorkLog> mWorkLog;
    Ref<TempodialDataHandler> mDataHandler;
    Ref<TempodialAnalyser> mAnalyser;
    Ref<TempodialProjectManager> mProjectManager;
    Ref<ProjectSettingsForm> mSettingsForm;
    Ref<ReportForm> mReportForm;
    Ref<AboutBoxForm> mAboutForm;
    Watched<Explorers> mExplorers;
    Watched<Inspectors> mInspectors;
    OrderedCollection<Ref<TempodialExplorer>> mExplorerList;
    OrderedCollection<Ref<TempodialInspector>> mInspectorList;
    /// Wrappers that have left the register, but whose windows are still closing.
    std::vector<Ref<TempodialInspector>> mClosingInspectors;
    std::int32_t mExplorerCount = 0;
    std::int32_t mInspectorCount = 0;
    Ref<FileSystemObject> mFileSystem;
};

}
