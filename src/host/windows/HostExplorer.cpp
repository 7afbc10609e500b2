#include "host/windows/HostExplorer.h"

#include "base/Failure.h"
#include "host/store/StoreFolder.h"
#include "host/windows/BuiltInCommand.h"
#include "host/windows/HostSelection.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/Views.h"

#include <algorithm>
#include <utility>

namespace tempodial {

HostExplorer::HostExplorer(
    std::int32_t number, Ref<Mailbox> mailbox, const Ref<MAPIFolder>& folder, Ref<OwnerCommands> ownerCommands)
    : mNumber(number)
    , mMailbox(std::move(mailbox))
    , mFolder(OwnFolder(folder))
    , mOwnerCommands(std::move(ownerCommands))
{
}

std::string HostExplorer::Caption() const
{
    CheckOpen();
    return mFolder->Name() + " - Mailbox";
}

Ref<MAPIFolder> HostExplorer::CurrentFolder()
{
    CheckOpen();
    return mFolder;
}

void HostExplorer::SetCurrentFolder(const Ref<MAPIFolder>& folder)
{
    CheckOpen();
    const auto own = OwnFolder(folder);
    if (std::find(mBeside.begin(), mBeside.end(), own->EntryID()) == mBeside.end()) {
        mBeside.clear();
    }
    Show(own);
}

std::string HostExplorer::CurrentView()
{
    CheckOpen();
    const auto views = mFolder->Views();
    const auto applied = mViews.find(mFolder->EntryID());
    if (applied != mViews.end() && views->ItemNamed(applied->second)) {
        return applied->second;
    }
    return views->Count() == 0 ? std::string() : views->Item(1)->Name();
}

void HostExplorer::SetCurrentView(const std::string& name)
{
    CheckOpen();
    const auto view = mFolder->Views()->ItemNamed(name);
    if (!view) {
        throw Failure(Error::InvalidCall, "The folder has no view named \"" + name + "\"");
    }
    mViews[mFolder->EntryID()] = view->Name();
    Changed();
    mWindowEvents.Raise(&HostWindowEvents::ViewApplied);
}

Ref<Selection> HostExplorer::Selection()
{
    CheckOpen();
    return MakeRef<HostSelection>(mSelected);
}

bool HostExplorer::IsFolderSelected(const Ref<MAPIFolder>& folder)
{
    CheckOpen();
    const auto id = folder->EntryID();
    return mBeside.empty() ? id == mFolder->EntryID() : std::find(mBeside.begin(), mBeside.end(), id) != mBeside.end();
}

Ref<CommandBars> HostExplorer::CommandBars()
{
    CheckOpen();
    return mBars;
}

void HostExplorer::MakeBarsReady()
{
    CheckOpen();
    mBars->MakeForExplorer([window = weak_from_this(), mailbox = mMailbox](std::int32_t command) {
        if (const auto explorer = window.lock()) {
            explorer->Run(command);
        }
        mailbox->CommitHeld();
    });
}

void HostExplorer::GoTo(const Ref<MAPIFolder>& folder)
{
    CheckOpen();
    const auto own = OwnFolder(folder);
    mBeside.clear();
    Show(own);
}

void HostExplorer::ShowBeside(const std::vector<Ref<MAPIFolder>>& folders)
{
    CheckOpen();
    if (folders.empty()) {
        throw Failure(Error::InvalidCall, "There are no folders to show");
    }
    std::vector<std::string> ids;
    ids.reserve(folders.size());
    for (const auto& folder : folders) {
        ids.push_back(OwnFolder(folder)->EntryID());
    }
    mBeside = std::move(ids);
    mFolder = OwnFolder(folders.front());
    mSelected.clear();
    RaiseSelectionChange();
}

void HostExplorer::Select(std::vector<Ref<OutlookItem>> items)
{
    CheckOpen();
    mSelected = std::move(items);
    RaiseSelectionChange();
}

void HostExplorer::RaiseActivate()
{
    mWindowEvents.Raise(&HostWindowEvents::BroughtToFront);
    mEvents.Raise(&ExplorerEvents::Activate);
}

void HostExplorer::MarkGone()
{
    mGone = true;
    mBars->MarkGone();
    mSelected.clear();
    mWindowEvents.Raise(&HostWindowEvents::Ended);
}

void HostExplorer::CheckOpen() const
{
    if (mGone) {
        throw Failure(Error::ServerUnavailable);
    }
}

Ref<MAPIFolder> HostExplorer::OwnFolder(const Ref<MAPIFolder>& folder) const
{
    return mMailbox->Own(folder);
}

void HostExplorer::Show(const Ref<MAPIFolder>& folder)
{
    const auto self = shared_from_this();
    mFolder = folder;
    mSelected.clear();
    Changed();
    mEvents.Raise(&ExplorerEvents::FolderSwitch);
    // The window may have gone during the event.
    if (!mGone) {
        RaiseSelectionChange();
    }
}

void HostExplorer::RaiseSelectionChange()
{
    const auto self = shared_from_this();
    Changed();
    mEvents.Raise(&ExplorerEvents::SelectionChange);
}

void HostExplorer::Run(std::int32_t command)
{
    if (mGone) {
        return;
    }
    if (command == BuiltInCommand::Delete) {
        DeleteSelected();
    } else if (const auto run = mOwnerCommands->InExplorer) {
        run(shared_from_this(), command);
    }
}

void HostExplorer::DeleteSelected()
{
    if (mSelected.empty()) {
        return;
    }
    for (const auto& item : std::exchange(mSelected, {})) {
        if (const auto appointment = item.As<AppointmentItem>()) {
            appointment->Delete();
        }
    }
    if (!mGone) {
        RaiseSelectionChange();
    }
}

}
