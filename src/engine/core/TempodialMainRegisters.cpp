#include "engine/core/TempodialMain.h"
#include "engine/foundation/TempodialStrings.h"
#include "engine/foundation/TempodialUtils.h"
#include "engine/outlook/TempodialExplorer.h"
#include "engine/outlook/TempodialInspector.h"
#include "engine/outlook/TempodialToolbarUtils.h"

namespace tempodial {

void TempodialMain::AddExplorer(const Ref<Explorer>& explorer)
{
    const auto attempt = Failing("AddExplorer error ", LineShape::TextColonStep);
    attempt.Say([&] { return "AddExp called for: " + explorer->Caption(); });
    mStage = "Init handler";
    const auto wrapper = MakeRef<TempodialExplorer>(mPlatform);
    mStage = "Call initialise";
    ++mExplorerCount;
    attempt([&] { wrapper->Initialize(mTempodialDebugLog, shared_from_this(), explorer, mExplorerCount); });
    mStage = "Add handler to list";
    mExplorerList.Add(wrapper);
    attempt.Say("AddExp complete");
}

void TempodialMain::mExplorers_NewExplorer(const Ref<Explorer>& explorer)
{
    const auto attempt = Failing("New Explorer error ", LineShape::TextOnly);
    attempt.Say("NewExplorer called");
    attempt([&] { AddExplorer(explorer); });
}

void TempodialMain::RemoveExplorer(Ref<TempodialExplorer>& explorer)
{
    const auto attempt = Failing("RemExplorer error ", LineShape::TextColonStep);
    attempt.Say("RemoveExplorer called");
    attempt([&] { RemoveDeadExplorers(); });
    for (std::int32_t position = 1; position <= mExplorerList.Count(); ++position) {
        if (mExplorerList.Item(position) == explorer) {
            attempt.Say("Removed: " + std::to_string(position));
            mExplorerList.Remove(position);
            break;
        }
    }
    attempt.Say("list: " + std::to_string(mExplorerList.Count()));
    // It is the host that knows whether a window is left.
    if (attempt.Get([&] { return mExplorers->Count() == 0; })) {
        attempt.Say("last explorer gone - clean up");
        attempt([&] { Terminate(); });
    }
    explorer = nullptr;
}

void TempodialMain::RemoveDeadExplorers()
{
    const auto attempt = Failing("RemDeadExplorer error ", LineShape::TextColonStep);
    const auto isDead = [&](std::int32_t position) {
        return !attempt([&] { mExplorerList.Item(position)->mExplorer->Caption(); }, [](const Failure&) {});
    };
    attempt.Say("RemoveDeadExplorers called");
    std::int32_t position = 1;
    while (position <= mExplorerList.Count()) {
        if (isDead(position)) {
            attempt.Say("Removed dead: " + std::to_string(position));
            mExplorerList.Remove(position);
            position = 1;
        } else {
            ++position;
        }
    }
    attempt.Say("Explorer list: " + std::to_string(mExplorerList.Count()));
}

void TempodialMain::AddInspector(const Ref<Inspector>& inspector)
{
    const auto attempt = Failing("AddInspector error ", LineShape::TextColonStep);
    attempt.Say("AddInspector called");
    mStage = "init insp handler";
    // An item opened again drops its former wrapper.
    attempt([&] { RemoveInspectorByEntryID(inspector->CurrentItem()->EntryID()); });
    ++mInspectorCount;
    const auto wrapper = MakeRef<TempodialInspector>(mPlatform);
    attempt([&] { wrapper->Initialize(mTempodialDebugLog, shared_from_this(), inspector, mInspectorCount); });
    mStage = "add insp handler";
    mInspectorList.Add(wrapper);
}

void TempodialMain::mInspectors_NewInspector(const Ref<Inspector>& inspector)
{
    const auto attempt = Failing("NewInspector error ", LineShape::TextColonStep);
    mStage = "look at item type";
    attempt.Say("NewInspector called");
    if (attempt.Get([&] { return inspector->CurrentItem().As<AppointmentItem>(); })) {
        attempt.Say("For appointment");
        attempt([&] { AddInspector(inspector); });
    } else {
        attempt.Say("not ours - remove our toolbar");
        attempt([&] { mToolbarUtils->RemoveMyToolbar(inspector, mStrings->mLogName); });
        attempt([&] { mToolbarUtils->EnableStandardToolBar(inspector); });
    }
    attempt([&] { mUtils->CleanUpOldFiles(); });
    attempt([&] { GetCalendarID(); });
}

void TempodialMain::RemoveInspector(Ref<TempodialInspector>& inspector)
{
    const auto attempt = Failing("RemInspector error ", LineShape::TextColonStep);
    attempt.Say("RemoveInspector called");
    attempt([&] {
        const bool isRegistered = IsRegistered(inspector);
        RemoveInspectors([isRegistered, entryID = inspector->GetItem()->EntryID()](
                             const auto& other) { return other.GetItem()->EntryID() == entryID && isRegistered; });
    });
    inspector = nullptr;
}

bool TempodialMain::IsRegistered(const Ref<TempodialInspector>& inspector) const
{
    for (std::int32_t position = 1; position <= mInspectorList.Count(); ++position) {
        if (mInspectorList.Item(position) == inspector) {
            return true;
        }
    }
    return false;
}

void TempodialMain::RemoveInspectorByEntryID(const std::string& entryID)
{
    RemoveInspectors([&](const auto& inspector) { return inspector.GetItem()->EntryID() == entryID; });
}

void TempodialMain::RemoveInspectors(const std::function<bool(const TempodialInspector&)>& test)
{
    const auto attempt = Failing("RemInspectorbyID error ", LineShape::TextColonStep);
    attempt.Say("RemoveInspectorByID called");
    std::int32_t position = 1;
    while (position <= mInspectorList.Count()) {
        // An entry that can't be asked stays, for the clean-up to end it.
        const auto inspector = mInspectorList.Item(position);
        if (attempt.Get([&] { return test(*inspector); })) {
            attempt.Say("Removed: " + std::to_string(position));
            mInspectorList.Remove(position);
            inspector->StopHearingItem();
            position = 1;
        } else {
            ++position;
        }
    }
    attempt.Say("list: " + std::to_string(mInspectorList.Count()));
}

void TempodialMain::KeepUntilClosed(const Ref<TempodialInspector>& inspector)
{
    LetGoOfClosed(inspector);
    mClosingInspectors.push_back(inspector);
}

void TempodialMain::LetGoOfClosed(const Ref<TempodialInspector>& inspector)
{
    std::erase(mClosingInspectors, inspector);
}

void TempodialMain::RegularCleanUp()
{
    const auto attempt = Failing("RegCleanup error ", LineShape::TextColonStep);
    std::int32_t position = 1;
    while (position <= mInspectorList.Count()) {
        const auto inspector = mInspectorList.Item(position);
        if (attempt.Get([&] { return !inspector->GetItem(); })) {
            mInspectorList.Remove(position);
            attempt([&] { inspector->Terminate(); });
        } else {
            ++position;
        }
    }
}

bool TempodialMain::IsInspector(const Ref<AppointmentItem>& item)
{
    const auto attempt = Failing("IsInspector error ", LineShape::TextColonStep);
    for (std::int32_t position = 1; position <= mInspectorList.Count(); ++position) {
        if (attempt.Get([&] { return mInspectorList.Item(position)->GetItem()->EntryID() == item->EntryID(); })) {
            attempt.Say("IsInspector - open");
            return true;
        }
    }
    return false;
}

}
