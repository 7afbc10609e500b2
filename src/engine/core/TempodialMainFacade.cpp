#include "base/Number.h"
#include "engine/core/TempodialMain.h"
#include "engine/dialogs/AboutBoxForm.h"
#include "engine/dialogs/ProjectSettingsForm.h"
#include "engine/dialogs/ReportForm.h"
#include "engine/foundation/TempodialConfig.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/import/TempodialDataHandler.h"
#include "engine/projects/TempodialProjectManager.h"
#include "engine/reports/TempodialAnalyser.h"
#include "engine/worklog/TempodialWorkLog.h"

namespace tempodial {

// Each member takes a reference to its worker for the length of the call: the
// worker may be released during it, when a job lets messages be
// processed and the last window closes. Where that can be the end of this object
// too, the member holds it.

void TempodialMain::GoToTasklog(bool override)
{
    const auto self = shared_from_this();
    const auto attempt = Failing("GoTo error ", LineShape::TextColonStep);
    attempt.Say("Switch to the task log now");
    mStage = "switch";
    attempt([&, worker = mWorkLog] { worker->GoToLog(override); });
    attempt.Say("Switched");
}

std::string TempodialMain::GetCalendarID()
{
    return Failing("GetCalendarID error ", LineShape::TextColonStep).Get([worker = mWorkLog] {
        return worker->GetCalendarID();
    });
}

void TempodialMain::SyncData(std::int32_t numDays, bool forceSync)
{
    const auto self = shared_from_this();
    const auto attempt = Failing("sd error ", LineShape::TextColonStep);
    attempt.Say("load " + std::to_string(numDays) + " days");
    mStage = "sd";
    attempt([&, worker = mDataHandler] { worker->SyncData(numDays, forceSync); });
}

void TempodialMain::ChangeViewToCalendar()
{
    const auto attempt = Failing("CalView error ", LineShape::TextColonStep);
    attempt.Say("Switch to cal view now");
    mStage = "switch";
    attempt([worker = mWorkLog] { worker->SetCalendarView(); });
}

void TempodialMain::ChangeViewToTable()
{
    const auto attempt = Failing("tableview error ", LineShape::TextColonStep);
    attempt.Say("Switch to table view now");
    mStage = "switch";
    attempt([worker = mWorkLog] { worker->SetTableView(); });
}

Ref<MAPIFolder> TempodialMain::GetWorkLog()
{
    const auto attempt = Failing("getlog error ", LineShape::TextColonStep);
    attempt.Say("Get log");
    mStage = "getlog";
    return attempt.Get([worker = mWorkLog] { return worker->GetSyncedWorkLog(false); });
}

Ref<AppointmentItem> TempodialMain::CreateCalendarItem(const std::string& project, const std::string& newDescription,
    const std::string& newApplication, const std::string& newContacts, std::int32_t newDuration, Date newStart,
    Date newEnd, const std::string& body, bool display)
{
    const auto attempt = Failing("create item error ", LineShape::TextColonStep);
    attempt.Say("Create item");
    return attempt.Get([&, worker = mWorkLog] {
        return worker->CreateCalendarItem(
            project, newDescription, newApplication, newContacts, newDuration, newStart, newEnd, body, display, true);
    });
}

bool TempodialMain::IsContinuable(const Ref<AppointmentItem>& item)
{
    return Failing("IsContinuable error ", LineShape::TextColonStep).Get([&, worker = mWorkLog] {
        return worker->IsContinuable(item);
    });
}

std::int32_t TempodialMain::UpdateCalendarItem(const Ref<AppointmentItem>& item, const std::string& project,
    const std::string& newDescription, const std::string& newApplication, const std::string& newContacts,
    std::int32_t newDuration, Date newStart, Date newEnd, const std::string& body, bool newItem, bool closeIt)
{
    const auto attempt = Failing("", LineShape::Silent);
    const auto result = attempt.Get([&, worker = mWorkLog] {
        return worker->UpdateCalendarItem(item, project, newDescription, newApplication, newContacts, newDuration,
            newStart, newEnd, body, newItem, closeIt, true);
    });
    if (result != 0) {
        attempt.Say("Main update failed with error: " + std::to_string(result));
    }
    return result;
}

void TempodialMain::ExtraCalendarItemInfo(const Ref<AppointmentItem>& item, const std::string& newDescription,
    const std::string& newApplication, const std::string& newProject, const std::string& newContacts, Date newStart,
    Date newEnd, const std::string& newBody)
{
    Failing("", LineShape::Silent)([&, worker = mWorkLog] {
        worker->ExtraCalendarItemInfo(
            item, newDescription, newApplication, newProject, newContacts, newStart, newEnd, newBody);
    });
}

std::string TempodialMain::GetBody(const Ref<AppointmentItem>& item)
{
    return Failing("", LineShape::Silent).Get([&, worker = mWorkLog] { return worker->GetBody(item); });
}

void TempodialMain::CreateCalendarDuplicate(const Ref<AppointmentItem>& toDuplicate, bool display)
{
    Failing("", LineShape::Silent)(
        [&, worker = mWorkLog] { worker->CreateCalendarDuplicate(toDuplicate, display, true); });
}

void TempodialMain::RefreshCalendarItem(const Ref<AppointmentItem>& item, const std::string& newProject,
    const std::string& newDescription, bool subjectOnly)
{
    Failing("", LineShape::Silent)(
        [&, worker = mWorkLog] { worker->RefreshCalendarItem(item, newProject, newDescription, subjectOnly); });
}

bool TempodialMain::ApplyProjectToItem(const std::string& project, const Ref<AppointmentItem>& item)
{
    return Failing("", LineShape::Silent).Get([&, worker = mWorkLog] {
        return worker->ApplyProjectToItem(project, item);
    });
}

bool TempodialMain::IsOurItem(const Ref<AppointmentItem>& itemToCheck)
{
    return Failing("", LineShape::Silent).Get([&, worker = mWorkLog] { return worker->IsOurItem(itemToCheck); });
}

Variant TempodialMain::GetAttribute(const std::string& attrib, const Ref<AppointmentItem>& item)
{
    return Failing("", LineShape::Silent).Get([&, worker = mWorkLog] { return worker->GetAttribute(attrib, item); });
}

Variant TempodialMain::GetProjects(
    std::vector<std::string>& projArray, bool withAdd, bool withNoProject, bool withAllProjects)
{
    return Failing("", LineShape::Silent).Get([&, worker = mProjectManager] {
        return Variant(worker->GetProjects(projArray, withAdd, withNoProject, withAllProjects));
    });
}

std::string TempodialMain::UpdateorAddProject(const std::string& project, const std::string& subRule,
    const std::string& notSubRule, const std::string& peopleRule, const std::string& precedence, bool addOnly)
{
    return Failing("", LineShape::Silent).Get([&, worker = mProjectManager] {
        return worker->UpdateorAddProject(project, subRule, notSubRule, peopleRule, precedence, addOnly);
    });
}

void TempodialMain::UpdateorAddProjectRule(
    const std::string& project, const std::string& newSubRule, const std::string& newPeopleRule)
{
    Failing("", LineShape::Silent)(
        [&, worker = mProjectManager] { worker->UpdateorAddProjectRule(project, newSubRule, newPeopleRule); });
}

void TempodialMain::DeleteProject(const std::string& project)
{
    Failing("", LineShape::Silent)([&, worker = mProjectManager] { worker->DeleteProject(project); });
}

std::string TempodialMain::ValidateProject(const std::string& project)
{
    const auto attempt = Failing("validate proj error ", LineShape::TextColonStep);
    auto message = attempt.Get([&, worker = mProjectManager] { return worker->ValidateProject(project); });
    attempt.Say("validate error: " + message);
    return message;
}

std::string TempodialMain::WhatProject(const std::string& subject, const std::string& people)
{
    return Failing("What proj error ", LineShape::TextColonStep).Get([&, worker = mProjectManager] {
        return worker->WhatProject(subject, people);
    });
}

bool TempodialMain::IsProject(const std::string& project, const std::string& subject, const std::string& people)
{
    return Failing("Is proj error ", LineShape::TextColonStep).Get([&, worker = mProjectManager] {
        return worker->IsProject(project, subject, people);
    });
}

std::string TempodialMain::GetProjectPrecedence(const std::string& project)
{
    return Failing("get projectprecedence error ", LineShape::TextColonStep).Get([&, worker = mProjectManager] {
        return worker->GetProjectPrecedence(project);
    });
}

std::string TempodialMain::GetProjectSubRule(const std::string& project)
{
    return Failing("get projectsubrule error ", LineShape::TextColonStep).Get([&, worker = mProjectManager] {
        return worker->GetProjectSubRule(project);
    });
}

std::string TempodialMain::GetProjectNotSubRule(const std::string& project)
{
    return Failing("get projectnotsubrule error ", LineShape::TextColonStep).Get([&, worker = mProjectManager] {
        return worker->GetProjectNotSubRule(project);
    });
}

std::string TempodialMain::GetProjectPeopleRule(const std::string& project)
{
    return Failing("get projectpeoplerule error ", LineShape::TextColonStep).Get([&, worker = mProjectManager] {
        return worker->GetProjectPeopleRule(project);
    });
}

void TempodialMain::ApplyProject(const std::string& project, std::int32_t numDays)
{
    const auto self = shared_from_this();
    Failing("ApplyProject", LineShape::TextColonStep)(
        [&, worker = mAnalyser] { worker->ApplyProject(project, numDays); });
}

Ref<AppointmentItem> TempodialMain::ReturnMatchingItem(const std::string& param, Date paramDate)
{
    return Failing("ReturnMatchingItem", LineShape::TextColonStep).Get([&, worker = mAnalyser] {
        return worker->ReturnMatchingItem(param, paramDate);
    });
}

void TempodialMain::ShowSettingsForm(const std::string& project, const Ref<TempodialInspector>& owningInsp)
{
    Failing("Showform", LineShape::TextColonStep)([&, form = mSettingsForm] { form->ShowMe(project, owningInsp); });
}

void TempodialMain::ShowReportForm()
{
    Failing("Showreportform", LineShape::TextColonStep)([form = mReportForm] { form->ShowMe(); });
}

void TempodialMain::ShowAboutForm()
{
    Failing("Showaboutform", LineShape::TextColonStep)(
        [&, form = mAboutForm] { form->ShowMe(mConfig->mTDVersion, mStrings->mLogName); });
}

void TempodialMain::SwitchingToTasklog()
{
    const auto self = shared_from_this();
    const auto attempt = Failing("SwitchingTo error ", LineShape::TextColonStep);
    attempt.Say("User has switched to our folder");
    mStage = "call syncdata";
    attempt([worker = mWorkLog] { worker->SwitchingToTasklog(); });
    attempt([&, worker = mDataHandler] { worker->SyncData(mConfig->mSavedDataDays, false); });
    if (!mLog) {
        return; // The add-in was ended during it.
    }
    attempt([&] { RegularCleanUp(); });
    attempt([worker = mUtils] { worker->CleanUpOldFiles(); });
}

void TempodialMain::SetProjectForItems(
    const std::string& project, bool selected, bool range, Date fromDate, Date toDate, bool override)
{
    const auto self = shared_from_this();
    const auto attempt = Failing("setprojectforitems", LineShape::TextColonStep);
    attempt.Say("Set project to" + project);
    mStage = "setproject";
    attempt([&, worker = mProjectManager] { worker->UpdateorAddProject(project, "", "", "", "2", true); });
    if (selected) {
        attempt([&, worker = mAnalyser] { worker->SetProjectForSelectedItems(project, override); });
    }
    if (range) {
        attempt([&, worker = mAnalyser] { worker->SetProjectForRange(project, fromDate, toDate, override); });
    }
}

} // namespace tempodial
