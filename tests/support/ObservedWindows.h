#pragma once

#include "platform/objectmodel/Explorer.h"
#include "platform/objectmodel/Inspector.h"
#include "support/ObservedCommandBars.h"

#include <string>
#include <utility>

namespace tempodial {

/// A window on a folder that tells an observer of its use.
class ObservedExplorer : public Explorer
{
public:
    ObservedExplorer(Ref<Explorer> explorer, WindowObserver observer);

    std::string Caption() const override;
    Ref<MAPIFolder> CurrentFolder() override;
    void SetCurrentFolder(const Ref<MAPIFolder>& folder) override;
    std::string CurrentView() override;
    void SetCurrentView(const std::string& name) override;
    Ref<tempodial::Selection> Selection() override;
    bool IsFolderSelected(const Ref<MAPIFolder>& folder) override;
    Ref<tempodial::CommandBars> CommandBars() override;
    Subscription Subscribe(ExplorerEvents events) override;

private:
    const Ref<Explorer>& Told(const std::string& member) const;

    Ref<Explorer> mExplorer;
    WindowObserver mObserver;
};

/// A window on an item that tells an observer of its use.
class ObservedInspector : public Inspector
{
public:
    ObservedInspector(Ref<Inspector> inspector, WindowObserver observer);

    std::string Caption() const override;
    Ref<OutlookItem> CurrentItem() override;
    Ref<tempodial::CommandBars> CommandBars() override;
    Ref<Pages> ModifiedFormPages() override;
    Subscription Subscribe(InspectorEvents events) override;

private:
    const Ref<Inspector>& Told(const std::string& member) const;

    Ref<Inspector> mInspector;
    WindowObserver mObserver;
};

}
