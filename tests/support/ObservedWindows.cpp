#include "support/ObservedWindows.h"

namespace tempodial {

ObservedExplorer::ObservedExplorer(Ref<Explorer> explorer, WindowObserver observer)
    : mExplorer(std::move(explorer))
    , mObserver(std::move(observer))
{
}

std::string ObservedExplorer::Caption() const
{
    return Told("Caption")->Caption();
}

Ref<MAPIFolder> ObservedExplorer::CurrentFolder()
{
    return Told("CurrentFolder")->CurrentFolder();
}

void ObservedExplorer::SetCurrentFolder(const Ref<MAPIFolder>& folder)
{
    Told("SetCurrentFolder")->SetCurrentFolder(folder);
}

std::string ObservedExplorer::CurrentView()
{
    return Told("CurrentView")->CurrentView();
}

void ObservedExplorer::SetCurrentView(const std::string& name)
{
    Told("SetCurrentView " + name)->SetCurrentView(name);
}

Ref<tempodial::Selection> ObservedExplorer::Selection()
{
    return Told("Selection")->Selection();
}

bool ObservedExplorer::IsFolderSelected(const Ref<MAPIFolder>& folder)
{
    return Told("IsFolderSelected")->IsFolderSelected(folder);
}

Ref<tempodial::CommandBars> ObservedExplorer::CommandBars()
{
    return MakeRef<ObservedCommandBars>(Told("CommandBars")->CommandBars(), mObserver);
}

Subscription ObservedExplorer::Subscribe(ExplorerEvents events)
{
    return Told("Subscribe")->Subscribe(std::move(events));
}

const Ref<Explorer>& ObservedExplorer::Told(const std::string& member) const
{
    mObserver("Explorer." + member);
    return mExplorer;
}

ObservedInspector::ObservedInspector(Ref<Inspector> inspector, WindowObserver observer)
    : mInspector(std::move(inspector))
    , mObserver(std::move(observer))
{
}

std::string ObservedInspector::Caption() const
{
    return Told("Caption")->Caption();
}

Ref<OutlookItem> ObservedInspector::CurrentItem()
{
    return Told("CurrentItem")->CurrentItem();
}

Ref<tempodial::CommandBars> ObservedInspector::CommandBars()
{
    return MakeRef<ObservedCommandBars>(Told("CommandBars")->CommandBars(), mObserver);
}

Ref<Pages> ObservedInspector::ModifiedFormPages()
{
    return Told("ModifiedFormPages")->ModifiedFormPages();
}

Subscription ObservedInspector::Subscribe(InspectorEvents events)
{
    return Told("Subscribe")->Subscribe(std::move(events));
}

const Ref<Inspector>& ObservedInspector::Told(const std::string& member) const
{
    mObserver("Inspector." + member);
    return mInspector;
}

}
