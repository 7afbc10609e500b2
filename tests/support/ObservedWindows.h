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
    ObservedExplorer(Ref<Explorer> explorer, WindowObserver observer)
        : mExplorer(std::move(explorer))
        , mObserver(std::move(observer))
    {
    }

    std::string Caption() const override { return Told("Caption")->Caption(); }
    Ref<MAPIFolder> CurrentFolder() override { return Told("CurrentFolder")->CurrentFolder(); }
    void SetCurrentFolder(const Ref<MAPIFolder>& folder) override
    {
        Told("SetCurrentFolder")->SetCurrentFolder(folder);
    }
    std::string CurrentView() override { return Told("CurrentView")->CurrentView(); }
    void SetCurrentView(const std::string& name) override { Told("SetCurrentView " + name)->SetCurrentView(name); }
    Ref<tempodial::Selection> Selection() override { return Told("Selection")->Selection(); }
    bool IsFolderSelected(const Ref<MAPIFolder>& folder) override
    {
        return Told("IsFolderSelected")->IsFolderSelected(folder);
    }
    Ref<tempodial::CommandBars> CommandBars() override
    {
        return MakeRef<ObservedCommandBars>(Told("CommandBars")->CommandBars(), mObserver);
    }
    Subscription Subscribe(ExplorerEvents events) override { return Told("Subscribe")->Subscribe(std::move(events)); }

private:
    const Ref<Explorer>& Told(const std::string& member) const
    {
        mObserver("Explorer." + member);
        return mExplorer;
    }

    Ref<Explorer> mExplorer;
    WindowObserver mObserver;
};

/// A window on an item that tells an observer of its use.
class ObservedInspector : public Inspector
{
public:
    ObservedInspector(Ref<Inspector> inspector, WindowObserver observer)
        : mInspector(std::move(inspector))
        , mObserver(std::move(observer))
    {
    }

    std::string Caption() const override { return Told("Caption")->Caption(); }
    Ref<OutlookItem> CurrentItem() override { return Told("CurrentItem")->CurrentItem(); }
    Ref<tempodial::CommandBars> CommandBars() override
    {
        return MakeRef<ObservedCommandBars>(Told("CommandBars")->CommandBars(), mObserver);
    }
    Ref<Pages> ModifiedFormPages() override { return Told("ModifiedFormPages")->ModifiedFormPages(); }
    Subscription Subscribe(InspectorEvents events) override { return Told("Subscribe")->Subscribe(std::move(events)); }

private:
    const Ref<Inspector>& Told(const std::string& member) const
    {
        mObserver("Inspector." + member);
        return mInspector;
    }

    Ref<Inspector> mInspector;
    WindowObserver mObserver;
};

}
