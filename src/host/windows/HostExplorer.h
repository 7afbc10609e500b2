#pragma once

#include "base/Ref.h"
#include "platform/objectmodel/Explorer.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// A window of the host that shows a folder.
class HostExplorer final : public Explorer
{
public:
    explicit HostExplorer(Ref<MAPIFolder> folder);

    std::string Caption() const override;
    Ref<MAPIFolder> CurrentFolder() override;
    /// Goes to a folder, in which nothing is selected; nothing fails (91), a folder that is gone (-2147221233).
    void SetCurrentFolder(const Ref<MAPIFolder>& folder) override;
    /// The view that was last applied to the folder, its first one when there is no such any more; "" when it has none.
    std::string CurrentView() override;
    /// An unknown name fails (5).
    void SetCurrentView(const std::string& name) override;
    Ref<tempodial::Selection> Selection() override;
    bool IsFolderSelected(const Ref<MAPIFolder>& folder) override;
    Ref<tempodial::CommandBars> CommandBars() override;
    Subscription Subscribe(ExplorerEvents events) override { return mEvents.Subscribe(std::move(events)); }

    /// Selects those items.
    void Select(std::vector<Ref<OutlookItem>> items);
    /// The window is gone: every member of the object model fails (462) from now on.
    void MarkGone() { mGone = true; }

private:
    void CheckOpen() const;

    Ref<MAPIFolder> mFolder;
    /// The names of the views applied, by the identities of their folders.
    std::map<std::string, std::string> mViews;
    std::vector<Ref<OutlookItem>> mSelected;
    bool mGone = false;
    EventSource<ExplorerEvents> mEvents;
};

}
