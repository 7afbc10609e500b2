#pragma once

#include "platform/objectmodel/Folders.h"
#include "platform/objectmodel/Items.h"
#include "platform/objectmodel/NameSpace.h"
#include "platform/objectmodel/Views.h"
#include "support/ObservedItem.h"

#include <string>
#include <utility>

namespace tempodial {

/// A view that tells an observer of its use.
class ObservedView : public View
{
public:
    ObservedView(Ref<View> view, ItemObserver observer)
        : mView(std::move(view))
        , mObserver(std::move(observer))
    {
    }

    std::string Name() const override { return Told("View.Name")->Name(); }
    tempodial::ViewType ViewType() const override { return Told("View.ViewType")->ViewType(); }
    std::string XML() const override { return Told("View.XML")->XML(); }
    void SetXML(const std::string& xml) override { Told("View.SetXML")->SetXML(xml); }
    void Save() override { Told("View.Save")->Save(); }

private:
    const Ref<View>& Told(const char* member) const
    {
        mObserver(member);
        return mView;
    }

    Ref<View> mView;
    ItemObserver mObserver;
};

/// Views that tell an observer of their use.
class ObservedViews : public Views
{
public:
    ObservedViews(Ref<Views> views, ItemObserver observer)
        : mViews(std::move(views))
        , mObserver(std::move(observer))
    {
    }

    std::int32_t Count() override { return Told("Views.Count")->Count(); }
    Ref<View> Item(std::int32_t index) override { return Observed(Told("Views.Item")->Item(index)); }
    Ref<View> ItemNamed(const std::string& name) override { return Observed(Told("Views.ItemNamed")->ItemNamed(name)); }
    Ref<View> Add(const std::string& name, ViewType type, ViewSaveOption option) override
    {
        return Observed(Told("Views.Add")->Add(name, type, option));
    }

private:
    Ref<View> Observed(const Ref<View>& view) const { return view ? MakeRef<ObservedView>(view, mObserver) : nullptr; }
    const Ref<Views>& Told(const char* member) const
    {
        mObserver(member);
        return mViews;
    }

    Ref<Views> mViews;
    ItemObserver mObserver;
};

/// Items that tell an observer of their use.
class ObservedItems : public Items
{
public:
    ObservedItems(Ref<Items> items, ItemObserver observer)
        : mItems(std::move(items))
        , mObserver(std::move(observer))
    {
    }

    std::int32_t Count() override { return Told("Items.Count")->Count(); }
    Ref<OutlookItem> Item(std::int32_t index) override { return Observed(Told("Items.Item")->Item(index)); }
    Ref<AppointmentItem> Add(const std::string& messageClass) override
    {
        return Observed(Told("Items.Add")->Add(messageClass)).As<AppointmentItem>();
    }
    Ref<Items> Restrict(const std::string& filter) override
    {
        return MakeRef<ObservedItems>(Told("Items.Restrict")->Restrict(filter), mObserver);
    }
    Ref<OutlookItem> Find(const std::string& filter) override { return Observed(Told("Items.Find")->Find(filter)); }
    void Sort(const std::string& property, bool descending) override { Told("Items.Sort")->Sort(property, descending); }
    Subscription Subscribe(ItemsEvents events) override
    {
        return Told("Items.Subscribe")->Subscribe(std::move(events));
    }

private:
    Ref<OutlookItem> Observed(const Ref<OutlookItem>& item) const
    {
        return item ? MakeRef<ObservedItem>(item.As<AppointmentItem>(), mObserver) : nullptr;
    }
    const Ref<Items>& Told(const char* member) const
    {
        mObserver(member);
        return mItems;
    }

    Ref<Items> mItems;
    ItemObserver mObserver;
};

class ObservedFolder;

/// Folders that tell an observer of their use.
class ObservedFolders : public Folders
{
public:
    ObservedFolders(Ref<Folders> folders, ItemObserver observer)
        : mFolders(std::move(folders))
        , mObserver(std::move(observer))
    {
    }

    std::int32_t Count() override { return Told("Folders.Count")->Count(); }
    Ref<MAPIFolder> Item(std::int32_t index) override;
    Ref<MAPIFolder> ItemNamed(const std::string& name) override;
    Ref<MAPIFolder> Add(const std::string& name, DefaultFolder type) override;

private:
    const Ref<Folders>& Told(const char* member) const
    {
        mObserver(member);
        return mFolders;
    }

    Ref<Folders> mFolders;
    ItemObserver mObserver;
};

/// A folder that tells an observer of its use, and of that of all that comes from it.
class ObservedFolder : public MAPIFolder
{
public:
    ObservedFolder(Ref<MAPIFolder> folder, ItemObserver observer)
        : mFolder(std::move(folder))
        , mObserver(std::move(observer))
    {
    }
    static Ref<MAPIFolder> Of(const Ref<MAPIFolder>& folder, const ItemObserver& observer)
    {
        return folder ? MakeRef<ObservedFolder>(folder, observer) : nullptr;
    }

    std::string EntryID() const override { return Told("EntryID")->EntryID(); }
    std::string Name() const override { return Told("Name")->Name(); }
    std::string FullFolderPath() const override { return Told("FullFolderPath")->FullFolderPath(); }
    Ref<tempodial::Folders> Folders() override
    {
        return MakeRef<ObservedFolders>(Told("Folders")->Folders(), mObserver);
    }
    Ref<tempodial::Items> Items() override { return MakeRef<ObservedItems>(Told("Items")->Items(), mObserver); }
    Ref<tempodial::Views> Views() override { return MakeRef<ObservedViews>(Told("Views")->Views(), mObserver); }

private:
    /// The members are told with the folder's name, such as "Calendar.Items".
    const Ref<MAPIFolder>& Told(const char* member) const
    {
        mObserver(mFolder->Name() + "." + member);
        return mFolder;
    }

    Ref<MAPIFolder> mFolder;
    ItemObserver mObserver;
};

inline Ref<MAPIFolder> ObservedFolders::Item(std::int32_t index)
{
    return ObservedFolder::Of(Told("Folders.Item")->Item(index), mObserver);
}

inline Ref<MAPIFolder> ObservedFolders::ItemNamed(const std::string& name)
{
    return ObservedFolder::Of(Told("Folders.ItemNamed")->ItemNamed(name), mObserver);
}

inline Ref<MAPIFolder> ObservedFolders::Add(const std::string& name, DefaultFolder type)
{
    return ObservedFolder::Of(Told("Folders.Add")->Add(name, type), mObserver);
}

/// A session that tells an observer of its use, and of that of all that comes from it.
class ObservedNameSpace : public NameSpace
{
public:
    ObservedNameSpace(Ref<NameSpace> nameSpace, ItemObserver observer)
        : mNameSpace(std::move(nameSpace))
        , mObserver(std::move(observer))
    {
    }

    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) override
    {
        return ObservedFolder::Of(Told("GetDefaultFolder")->GetDefaultFolder(type), mObserver);
    }
    Ref<tempodial::Folders> Folders() override
    {
        return MakeRef<ObservedFolders>(Told("NameSpace.Folders")->Folders(), mObserver);
    }

private:
    const Ref<NameSpace>& Told(const char* member) const
    {
        mObserver(member);
        return mNameSpace;
    }

    Ref<NameSpace> mNameSpace;
    ItemObserver mObserver;
};

}
