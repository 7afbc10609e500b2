#include "engine/outlook/TempodialExplorer.h"

#include "base/Text.h"
#include "engine/core/TempodialMain.h"
#include "engine/foundation/GuardedHandler.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/outlook/TempodialToolbars.h"
#include "platform/objectmodel/Views.h"

#include <string>
#include <utility>

namespace tempodial {

namespace {

constexpr auto ExplorerRevision = "revision 1 TempodialExplorer";
/// Seconds that two forced folder switches stand apart.
constexpr std::int64_t ForcedSwitchSeconds = 2;

}

TempodialExplorer::TempodialExplorer(Ref<const Platform> platform)
    : TracedObject(std::move(platform))
{
}

void TempodialExplorer::Initialize(const Ref<TempodialDebugLog>& applog, const Ref<TempodialMain>& main,
    const Ref<Explorer>& explorer, std::int32_t id)
{
    const auto guarded = Failing("Init exp error ", LineShape::TextAmpersandStep);
    const auto attempt = [&](const auto& statement) {
        if (!guarded(statement)) {
            Trace("final");
        }
    };
    mTraceInfo = "TDExplorer: " + std::to_string(id);
    mStage = "init exp";
    mToolbars = MakeRef<TempodialToolbars>(mPlatform);
    mLog = applog;
    attempt([&] { Trace(std::string("Init explorer ") + ExplorerRevision); });
    mMain = main;
    attempt([&] {
        const auto self = shared_from_this();
        mExplorer.Set(explorer,
            ExplorerEvents {
                .Activate = GuardedHandler(self, &TempodialExplorer::mExplorer_Activate),
                .FolderSwitch = GuardedHandler(self, &TempodialExplorer::mExplorer_FolderSwitch),
                .SelectionChange = GuardedHandler(self, &TempodialExplorer::mExplorer_SelectionChange),
                .Close = GuardedHandler(self, &TempodialExplorer::mExplorer_Close),
            });
    });
    attempt([&] { mToolbars->Initialize(main, applog, id); });
    mToolbarsDone = false;
    attempt([&] { CreateToolbars(); });
    mID = id;
    attempt([&] { Trace("Inited"); });
    attempt([&] { mWorkLogFolder = mMain->GetWorkLog(); });
    mSideBySideBusy = false;
    attempt([&] { mLastForcedSwitch = mPlatform->clock->Now(); });
}

void TempodialExplorer::CreateToolbars()
{
    if (mToolbars->CreateToolbars(mExplorer.Get())) {
        mToolbarsDone = true;
    }
}

void TempodialExplorer::Terminate()
{
    Failing("Term error ", LineShape::TextOnly)([&] {
        if (mLog) {
            Trace("Explorer terminated: " + std::to_string(mID));
        }
        if (mToolbars) {
            Trace("clean toolbars");
            mToolbars->Terminate();
            mToolbars = nullptr;
        }
        mExplorer.Clear();
        mMain = nullptr;
        mStage.clear();
        mLog = nullptr;
        mWorkLogFolder = nullptr;
    });
}

void TempodialExplorer::HandleSideBySide()
{
    if (mSideBySideBusy) {
        return;
    }
    mSideBySideBusy = true;
    const auto onFailure = [&](const Failure& failure) {
        // kept: the flag stays set, so that a window in which the host refuses is left alone.
        if (mLog) {
            Trace("sidebyside error " + failure.Description());
        }
    };
    const auto statements = [&] {
        bool available = true;
        if (!mExplorer->IsFolderSelected(mWorkLogFolder)) {
            if (IsViewOurs()) {
                Trace("view is ours");
                // kept: nothing was read, so without a default view the empty name is applied.
                SetDefaultView("");
            }
        } else if (mExplorer->IsFolderSelected(mMain->mNamespace->GetDefaultFolder(DefaultFolder::Calendar))) {
            available = false;
            HandleBothSelected();
        } else if (!IsViewOurs()) {
            Trace("view is not ours, current folder: " + mExplorer->CurrentFolder()->Name());
            mExplorer->SetCurrentView(mMain->mStrings->mCalendarViewName);
        }
        mSideBySideBusy = false;
        mToolbars->ListAvailable(available);
    };
    Failing("", LineShape::Silent)(statements, onFailure);
}

void TempodialExplorer::HandleBothSelected()
{
    const auto& calendarView = mMain->mStrings->mCalendarViewName;
    Trace("us and calendar, current folder: " + mExplorer->CurrentFolder()->Name());
    const auto viewName = mExplorer->CurrentView();
    if (viewName == calendarView) {
        Trace("view is ours");
        SetDefaultView(viewName);
        return;
    }
    Trace("view isn't ours");
    if (mExplorer->CurrentFolder()->Views()->ItemNamed(calendarView)) {
        return;
    }
    Trace("and ours missing");
    const auto workLog = mMain->GetWorkLog();
    const auto now = mPlatform->clock->Now();
    if (SecondsBetween(mLastForcedSwitch, now) >= ForcedSwitchSeconds) {
        mLastForcedSwitch = now;
        mExplorer->SetCurrentFolder(workLog);
    }
}

void TempodialExplorer::SetDefaultView(std::string viewName)
{
    if (!mMain->mDefaultCalendarView.empty()) {
        viewName = mMain->mDefaultCalendarView;
    }
    mExplorer->SetCurrentView(viewName);
}

bool TempodialExplorer::IsViewOurs()
{
    return InStr(mExplorer->CurrentView(), mMain->mStrings->mLogName) != 0;
}

// Each handler holds the main object: what it calls may end the add-in.

void TempodialExplorer::mExplorer_Activate()
{
    const auto main = mMain;
    Failing("", LineShape::Silent)([&] {
        if (!mToolbarsDone) {
            CreateToolbars();
        }
    });
}

void TempodialExplorer::mExplorer_FolderSwitch()
{
    const auto main = mMain;
    const auto attempt = Failing("", LineShape::Silent);
    attempt.Say("folder switch");
    const bool isLog = attempt.Get([&] {
        const auto current = mExplorer->CurrentFolder()->EntryID();
        return current == main->GetCalendarID();
    });
    if (isLog) {
        attempt([&] { main->SwitchingToTasklog(); });
    }
}

void TempodialExplorer::mExplorer_SelectionChange()
{
    const auto main = mMain;
    Failing("selchange error ", LineShape::TextOnly)([&] {
        if (main->mOutlook2003orLater) {
            HandleSideBySide();
        }
    });
}

void TempodialExplorer::mExplorer_Close()
{
    const auto main = mMain;
    const auto attempt = Failing("", LineShape::Silent);
    attempt([&] { mToolbars->Terminate(); });
    attempt([&] {
        Ref<TempodialExplorer> self(shared_from_this());
        main->RemoveExplorer(self);
    });
}

}
