#pragma once

#include "base/Failure.h"
#include "platform/objectmodel/Application.h"
#include "platform/objectmodel/Items.h"

#include <functional>
#include <string>
#include <vector>

namespace tempodial {

/// A selection that a test fills.
class TestSelection : public Selection
{
public:
    std::vector<Ref<OutlookItem>> items;

    std::int32_t Count() override { return static_cast<std::int32_t>(items.size()); }
    Ref<OutlookItem> Item(std::int32_t index) override
    {
        if (index < 1 || index > Count()) {
            throw Failure(Error::SubscriptOutOfRange);
        }
        return items[static_cast<std::size_t>(index) - 1];
    }
};

/// A window on a folder that a test fills; the test is told of the folders and views that it is given.
class TestExplorer : public Explorer
{
public:
    Ref<MAPIFolder> folder;
    std::string view;
    Ref<TestSelection> selection = MakeRef<TestSelection>();
    /// How often a folder and a view were set.
    int foldersSet = 0;
    int viewsSet = 0;

    std::string Caption() const override { return "Tempodial"; }
    Ref<MAPIFolder> CurrentFolder() override { return folder; }
    void SetCurrentFolder(const Ref<MAPIFolder>& other) override
    {
        folder = other;
        ++foldersSet;
    }
    std::string CurrentView() override { return view; }
    void SetCurrentView(const std::string& name) override
    {
        view = name;
        ++viewsSet;
    }
    Ref<tempodial::Selection> Selection() override { return selection; }
    bool IsFolderSelected(const Ref<MAPIFolder>& other) override { return other->EntryID() == folder->EntryID(); }
    Ref<tempodial::CommandBars> CommandBars() override { throw Failure(Error::InvalidCall); }
    Subscription Subscribe(ExplorerEvents events) override { return mEvents.Subscribe(std::move(events)); }

private:
    EventSource<ExplorerEvents> mEvents;
};

/// A window on an item.
class TestInspector : public Inspector
{
public:
    explicit TestInspector(Ref<OutlookItem> item)
        : mItem(std::move(item))
    {
    }

    std::string Caption() const override { return "Tempodial"; }
    Ref<OutlookItem> CurrentItem() override { return mItem; }
    Ref<tempodial::CommandBars> CommandBars() override { throw Failure(Error::InvalidCall); }
    Ref<Pages> ModifiedFormPages() override { throw Failure(Error::InvalidCall); }
    Subscription Subscribe(InspectorEvents events) override { return mEvents.Subscribe(std::move(events)); }

private:
    Ref<OutlookItem> mItem;
    EventSource<InspectorEvents> mEvents;
};

/// Windows in a list.
template <class Collection, class Window> class TestWindows : public Collection
{
public:
    std::vector<Ref<Window>> windows;

    std::int32_t Count() override { return static_cast<std::int32_t>(windows.size()); }
    Ref<Window> Item(std::int32_t index) override
    {
        if (index < 1 || index > Count()) {
            throw Failure(Error::SubscriptOutOfRange);
        }
        return windows[static_cast<std::size_t>(index) - 1];
    }
    Subscription Subscribe(typename Collection::Events events) override { return mEvents.Subscribe(std::move(events)); }

private:
    EventSource<typename Collection::Events> mEvents;
};

/// An application with a session, windows and a form template that a test gives it.
class TestApplication : public Application
{
public:
    Ref<NameSpace> nameSpace;
    Ref<Explorer> activeExplorer;
    Ref<TestWindows<tempodial::Explorers, Explorer>> explorers = MakeRef<TestWindows<tempodial::Explorers, Explorer>>();
    Ref<TestWindows<tempodial::Inspectors, Inspector>> inspectors
        = MakeRef<TestWindows<tempodial::Inspectors, Inspector>>();
    /// Makes the item of a form template; an absent template fails (53).
    std::function<Ref<AppointmentItem>(const std::string& path, const Ref<MAPIFolder>& folder)> fromTemplate;

    /// Makes a mail; without it making one fails.
    std::function<Ref<MailItem>()> newMail;

    std::string Version() const override { return "16.0.0.1"; }
    Ref<tempodial::Explorers> Explorers() override { return explorers; }
    Ref<tempodial::Inspectors> Inspectors() override { return inspectors; }
    Ref<NameSpace> GetNamespace(const std::string&) override { return nameSpace; }
    Ref<Explorer> ActiveExplorer() override { return activeExplorer; }
    Ref<Inspector> ActiveInspector() override { return nullptr; }
    Ref<MailItem> CreateItem() override
    {
        if (!newMail) {
            throw Failure(Error::Automation);
        }
        return newMail();
    }
    Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) override
    {
        if (!fromTemplate) {
            throw Failure(Error::FileNotFound);
        }
        return fromTemplate(path, folder);
    }
    Subscription Subscribe(ApplicationEvents events) override { return mEvents.Subscribe(std::move(events)); }

private:
    EventSource<ApplicationEvents> mEvents;
};

}
