#pragma once

#include "base/Date.h"
#include "base/Variant.h"
#include "base/Watched.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/TracedObject.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/Views.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tempodial {

/// The work log: its calendar folder, the activities in it, and the form and the views that show them.
class TempodialWorkLog final : public TracedObject, public std::enable_shared_from_this<TempodialWorkLog>
{
public:
    explicit TempodialWorkLog(Ref<const Platform> platform);

    void Initialize(const Ref<TempodialMain>& main, const Ref<Application>& application,
        const Ref<NameSpace>& nameSpace, const Ref<TempodialDebugLog>& log);
    /// Takes in a last change of the folder and lets everything go.
    void Terminate();

    /// The work log folder: found again wherever it was moved, made when it is absent and that is asked for; nothing
    /// when there is none.
    Ref<MAPIFolder> GetSyncedWorkLog(bool createIt);
    /// The folder at a path, whose levels stand between "\" or "/"; nothing when there is none.
    Ref<MAPIFolder> GetFolder(const std::string& strFolderPath);
    /// The folder of that identity at or below a folder, or anywhere when none is given; nothing when there is none.
    Ref<MAPIFolder> FindFolderByID(const std::string& id, const Ref<MAPIFolder>& folderToCheck);
    /// The identity of the work log folder, empty when there is none.
    std::string GetCalendarID();
    /// Keeps the saved name and path in step with the work log folder; another folder changes nothing, nothing stands
    /// for the work log folder.
    void HandleFolderChange(const Ref<MAPIFolder>& folder);

    /// A new activity, saved when asked; nothing when it couldn't be made or saved. The duration is in minutes.
    Ref<AppointmentItem> CreateCalendarItem(const std::string& project, const std::string& newDescription,
        const std::string& newApplication, const std::string& newContacts, std::int32_t newDuration, Date newStart,
        Date newEnd, const std::string& body, bool display, bool saveIt);
    /// Fills an activity anew, unless it is open and not new; 1 when it couldn't be saved, else 0.
    std::int32_t UpdateCalendarItem(const Ref<AppointmentItem>& item, const std::string& newProject,
        const std::string& newDescription, const std::string& newApplication, const std::string& newContacts,
        std::int32_t newDuration, Date newStart, Date newEnd, const std::string& body, bool newItem, bool closeIt,
        bool saveIt);
    /// True: any item can be continued.
    bool IsContinuable(const Ref<AppointmentItem>& item);
    /// Writes the list of details into an activity that isn't open; the first detail also replaces its description,
    /// adds the people and settles the project.
    void ExtraCalendarItemInfo(const Ref<AppointmentItem>& item, const std::string& newDescription,
        const std::string& newApplication, const std::string& newProject, const std::string& newContacts, Date newStart,
        Date newEnd, const std::string& newBody);
    /// Makes an activity's subject follow its description and, unless only the subject is meant, its project.
    void RefreshCalendarItem(const Ref<AppointmentItem>& item, const std::string& newProject,
        const std::string& newDescription, bool subjectOnly);
    /// The item's text; empty when reading it is refused, which is remembered, or fails.
    std::string GetBody(const Ref<AppointmentItem>& item);
    /// Gives the item the project when the project's rules match it; true when they did. Saves nothing.
    bool ApplyProjectToItem(const std::string& project, const Ref<AppointmentItem>& item);
    /// Makes an activity of another item's subject, times and text.
    void CreateCalendarDuplicate(const Ref<AppointmentItem>& item, bool display, bool save);
    /// An item has arrived in the folder: one that is no activity is replaced by its duplicate.
    void mLogItems_ItemAdd(const Ref<OutlookItem>& item);

    /// True when the item is an activity.
    bool IsOurItem(const Ref<OutlookItem>& itemToCheck);
    /// The value of a user property, nothing when it can't be read.
    Variant GetAttribute(const std::string& attrib, const Ref<AppointmentItem>& item);
    /// The subject of an activity: "[project] application, description", each part only when there is one.
    std::string CreateSubject(
        const std::string& project, const std::string& application, const std::string& description);
    /// A duration in minutes as hours and half hours, such as "(1.5 min)"; kept: nothing calls it, and the unit is
    /// wrong.
    std::string CreateDurationString(std::int32_t duration);

    /// Publishes the form of activities and watches the folder for new items.
    void LoadForms();
    /// Makes the folder and its views where they are absent; the first run of a new version renews the table view.
    void TempodialWorkLog_CreateWorkLog(bool newVersion);
    /// True when the folder has a view of that name.
    bool CheckView(const Ref<MAPIFolder>& worklogfolder, const std::string& view);
    /// Makes the table and the calendar view where they are absent.
    void CreateViews(const Ref<MAPIFolder>& worklogfolder);
    /// Makes a view unless there is one of that name, with the definition of an installed file unless that is empty.
    void CreateMyView(
        const Ref<Views>& objviews, const std::string& myName, const std::string& filename, ViewType myType);
    /// Shows the folder in the explorer in front; the argument has no effect.
    void GoToLog(bool override);
    /// The user has come to the folder: applies the view asked for last.
    void SwitchingToTasklog();
    void SetTableView();
    void SetCalendarView();

private:
    Ref<MAPIFolder> FolderNearCalendar(const Ref<MAPIFolder>& calendar, const std::string& id);
    Ref<MAPIFolder> FolderMadeFromScratch(const Ref<MAPIFolder>& calendar, bool createIt);
    std::string FolderValue(const Attempt& attempt, const std::string& value);
    void SetFolderValue(const std::string& value, const std::string& text);

    void WriteProperties(const Attempt& attempt, const Ref<UserProperties>& properties, const std::string& project,
        const std::string& newDescription, const std::string& newApplication, const std::string& newContacts,
        Date newStart);
    Ref<UserProperty> GetOrAdd(
        const Attempt& attempt, const Ref<UserProperties>& properties, const char* name, PropertyType type);
    void HandleSecurityException(std::string_view words, const Failure& failure);

    Ref<TextStream> OpenInstallFile(const Attempt& attempt, const std::string& filename);
    std::string ReadToEnd(const Attempt& attempt, const Ref<TextStream>& stream);
    void UpdateXml(const Attempt& attempt, const Ref<View>& view, const std::string& text);
    void UpdateTimeScale(const Attempt& attempt, const Ref<View>& view);
    void RefreshTableView(const Attempt& attempt, const Ref<MAPIFolder>& folder);
    void ChangeView(std::string viewName);

    Ref<TempodialMain> mMain;
    Ref<Application> mApplication;
    Ref<NameSpace> mNamespace;
    Watched<Items> mLogItems;
    Ref<MAPIFolder> mFolder;
    /// The full path of `mFolder`.
    std::string mFolderPath;
    bool mCreated = false;
    /// The name of the view asked for last.
    std::string mCurrentView;
};

}
