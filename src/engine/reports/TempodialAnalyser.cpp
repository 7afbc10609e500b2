#include "engine/reports/TempodialAnalyser.h"

#include "base/Text.h"
#include "engine/dialogs/ProgressBarForm.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialStrings.h"
#include "platform/objectmodel/Items.h"

#include <string_view>
#include <utility>

namespace tempodial {

TempodialAnalyser::TempodialAnalyser(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialAnalyser::Initialize(
    const Ref<TempodialMain>& main, const Ref<Application>& application, const Ref<TempodialDebugLog>& log)
{
    mMain = main;
    mApplication = application;
    mLog = log;
    mTraceInfo = "TDAnalyser";
    Trace("revision 1 TempodialAnalyser");
}

void TempodialAnalyser::Terminate()
{
    mMain = nullptr;
    mApplication = nullptr;
    mLog = nullptr;
    mStage.clear();
}

Ref<AppointmentItem> TempodialAnalyser::ReturnMatchingItem(const std::string& param, Date paramDate)
{
    const auto attempt = Failing("ReturnMatchingItem", LineShape::ColonText);
    const auto folder = attempt.Get([&] { return mMain->GetWorkLog(); });
    const auto filter
        = attempt.Get([&] { return "[" + param + "] = \"" + mPlatform->formats->Moment(paramDate) + "\""; });
    attempt.Say([&] {
        return "ReturnItem by " + param + ": " + mPlatform->formats->General(paramDate) + " search on: " + filter;
    });
    auto item = attempt.Get([&] { return folder->Items()->Find(filter).As<AppointmentItem>(); });
    Trace(item ? "found one" : "didn't find one");
    return item;
}

void TempodialAnalyser::ApplyProject(const std::string& project, std::int32_t numDays)
{
    const auto attempt = Failing("ApplyProject", LineShape::ColonText);
    attempt([&] { mMain->GoToTasklog(false); });
    mStage = "looping through days";
    const auto progress = attempt.Get([&] { return MakeRef<ProgressBarForm>(mPlatform); });
    Trace("ApplyProject called");
    const auto today = attempt.Get([&] { return mPlatform->clock->Now().Day(); });
    bool cancelled = false;
    for (std::int32_t offset = 0; offset < numDays && !cancelled; ++offset) {
        cancelled = ApplyProjectForDay(project, today.AddDays(-offset), progress);
    }
    attempt([&] { progress->Unload(); });
}

bool TempodialAnalyser::ApplyProjectForDay(const std::string& project, Date day, const Ref<ProgressBarForm>& progress)
{
    const auto attempt = Failing("ApplyProject", LineShape::ColonText);
    const auto folder = attempt.Get([&] { return mMain->GetWorkLog(); });
    mStage = "format start";
    const auto dayText = attempt.Get([&] { return mPlatform->formats->ShortDate(day); });
    const auto start = attempt.Get([&] { return mPlatform->formats->Moment(day.Day()); });
    const auto end = attempt.Get([&] { return mPlatform->formats->Moment(day.Day().AddMinutes(23 * 60 + 59)); });
    Trace("start: " + start + " end: " + end);
    const auto dayItems = attempt.Get(
        [&] { return folder->Items()->Restrict("[Start] >= \"" + start + "\" and [Start] <= \"" + end + "\""); });
    Trace("create dayitm");
    mStage = "iterate";
    Trace("init progress bar");
    attempt([&] {
        const auto& strings = *mMain->mStrings;
        progress->Initialise(strings.mLogName, "Updating items...", "updating " + dayText, strings.mCancel, 40, true);
    });
    Trace("show progress bar");
    attempt([&] { progress->Show(); });
    Trace("iterate");

    const auto count = attempt.Get([&] { return dayItems->Count(); });
    for (std::int32_t index = 1; index <= count; ++index) {
        const auto item = attempt.Get([&] { return dayItems->Item(index).As<AppointmentItem>(); });
        attempt.Say([&] { return "iterate item: " + item->Subject(); });
        if (!mMain->IsInspector(item)) {
            attempt.Say([&] { return "trying apply to item: " + item->Subject(); });
            if (mMain->ApplyProjectToItem(project, item)) {
                Trace("matched, save it");
                attempt([&] { item->Save(); });
                attempt([&] { item->Close(CloseMode::Discard); });
            }
        }
        Trace("checked getinspector");
        attempt([&] { progress->Update(index); });
        // The progress form lets events in, and they may have ended the add-in.
        if (!mMain || attempt.Get([&] { return progress->IsCancelled(); })) {
            return true;
        }
    }
    return false;
}

void TempodialAnalyser::SetProjectForSelectedItems(const std::string& project, bool override)
{
    const auto attempt = Failing("setprojectforitems", LineShape::ColonText);
    mStage = "setprojectsel";
    const auto selection = attempt.Get([&] { return mApplication->ActiveExplorer()->Selection(); });
    const auto count = attempt.Get([&] { return selection->Count(); });
    for (std::int32_t index = 1; index <= count; ++index) {
        const auto item = attempt.Get([&] { return selection->Item(index).As<AppointmentItem>(); });
        if (!item || !mMain->IsOurItem(item)) {
            continue;
        }
        if (attempt.Get([&] { return selection->Count() == 1; })) {
            mMain->GoToTasklog(false);
            SetProjectForItem(project, item, override);
            return;
        }
        Trace("Set selected item's project to" + project);
        SetProjectForItem(project, item, override);
    }
}

void TempodialAnalyser::SetProjectForRange(const std::string& project, Date fromdate, Date todate, bool override)
{
    const auto attempt = Failing("setprojectforitemrange", LineShape::ColonText);
    Trace("Set project range to " + project);
    mStage = "setprojectrange";
    const auto folder = attempt.Get([&] { return mMain->GetWorkLog(); });
    mStage = "format start";
    const auto start = attempt.Get([&] { return mPlatform->formats->Moment(fromdate); });
    const auto end = attempt.Get([&] { return mPlatform->formats->Moment(todate); });
    Trace("start: " + start + " end: " + end);
    mMain->GoToTasklog(false);
    // kept: the end is left out here, unlike that of a day
    const auto items = attempt.Get(
        [&] { return folder->Items()->Restrict("[Start] >= \"" + start + "\" and [Start] < \"" + end + "\""); });
    const auto count = attempt.Get([&] { return items->Count(); });
    for (std::int32_t index = 1; index <= count; ++index) {
        const auto item = attempt.Get([&] { return items->Item(index).As<AppointmentItem>(); });
        SetProjectForItem(project, item, override);
    }
}

void TempodialAnalyser::SetProjectForItem(const std::string& project, const Ref<AppointmentItem>& item, bool override)
{
    const auto attempt = Failing("setproject", LineShape::ColonText);
    Trace("Set project to " + project);
    mStage = "setprojec";
    const bool apply = override
        || attempt.Get([&] { return mMain->GetAttribute("Project", item).ToText() == mMain->mStrings->mNoProject; });
    if (!apply || mMain->IsInspector(item)) {
        return;
    }
    mStage = "UserProps";
    const auto properties = attempt.Get([&] { return item->UserProperties(); });
    mStage = "attrib";
    attempt([&] { properties->Item("Project")->SetValue(project); });
    mStage = "value";
    const auto description = attempt.Get([&] { return properties->Item("Description")->Value().ToText(); });
    mMain->RefreshCalendarItem(item, project, description, false);
    attempt([&] { item->Save(); });
    attempt([&] { item->Close(CloseMode::Discard); });
}

void TempodialAnalyser::DisplayAnalysis(const std::string& day, const std::string& startTime,
    const std::string& endTime, const std::string& timeAtPC, const std::string& timeInMeetings, std::int32_t numTasks,
    const std::string& alert, const std::string& feedback)
{
    const auto attempt = Failing("Display", LineShape::ColonText);
    mStage = "OpenDataFile";
    attempt.Say("display data");

    std::string page;
    const auto source = attempt.Get(
        [&] { return mMain->mCommonUtils->OpenDataFile("analysistemplate.html", false, OpenMode::Reading); });
    if (source) {
        attempt([&] { page = source->ReadAll(); });
        attempt.Say("read contents");
        const std::pair<std::string_view, std::string> figures[] = {
            { "#DAY#", day },
            { "#STARTTIME#", startTime },
            { "#ENDTIME#", endTime },
            { "#TIMEATPC#", timeAtPC },
            { "#TIMEINMEETINGS#", timeInMeetings },
            { "#NUMTASKS#", std::to_string(numTasks) },
            { "#ALERT1#", alert },
            { "#FEEDBACK1#", feedback },
        };
        for (const auto& [token, value] : figures) {
            attempt([&, &token = token, &value = value] { page = Replace(page, token, value); });
        }
        attempt([&] { source->Close(); });
    }

    const auto target
        = attempt.Get([&] { return mMain->mCommonUtils->OpenDataFile("Analysis.html", true, OpenMode::Writing); });
    attempt([&] { target->Write(page); });
    attempt([&] { target->Close(); });
}

}
