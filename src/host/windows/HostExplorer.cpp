#include "host/windows/HostExplorer.h"

#include "base/Failure.h"
#include "host/windows/HostSelection.h"
#include "platform/objectmodel/Views.h"

#include <utility>

namespace tempodial {

HostExplorer::HostExplorer(Ref<MAPIFolder> folder)
    : mFolder(std::move(folder))
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
    // Asking for the name fails for nothing and for a folder that is gone.
    folder->Name();
    mFolder = folder;
    mSelected.clear();
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
}

Ref<Selection> HostExplorer::Selection()
{
    CheckOpen();
    return MakeRef<HostSelection>(mSelected);
}

bool HostExplorer::IsFolderSelected(const Ref<MAPIFolder>& folder)
{
    CheckOpen();
    return folder->EntryID() == mFolder->EntryID();
}

Ref<CommandBars> HostExplorer::CommandBars()
{
    CheckOpen();
    return nullptr;
}

void HostExplorer::Select(std::vector<Ref<OutlookItem>> items)
{
    mSelected = std::move(items);
}

void HostExplorer::CheckOpen() const
{
    if (mGone) {
        throw Failure(Error::ServerUnavailable);
    }
}

}
