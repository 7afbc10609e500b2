#include "support/ObservedStore.h"

namespace tempodial {

ObservedView::ObservedView(Ref<View> view, ItemObserver observer)
    : mView(std::move(view))
    , mObserver(std::move(observer))
{
}

std::string ObservedView::Name() const
{
    return Told("View.Name")->Name();
}

tempodial::ViewType ObservedView::ViewType() const
{
    return Told("View.ViewType")->ViewType();
}

std::string ObservedView::XML() const
{
    return Told("View.XML")->XML();
}

void ObservedView::SetXML(const std::string& xml)
{
    Told("View.SetXML")->SetXML(xml);
}

void ObservedView::Save()
{
    Told("View.Save")->Save();
}

const Ref<View>& ObservedView::Told(const char* member) const
{
    mObserver(member);
    return mView;
}

ObservedViews::ObservedViews(Ref<Views> views, ItemObserver observer)
    : mViews(std::move(views))
    , mObserver(std::move(observer))
{
}

std::int32_t ObservedViews::Count()
{
    return Told("Views.Count")->Count();
}

Ref<View> ObservedViews::Item(std::int32_t index)
{
    return Observed(Told("Views.Item")->Item(index));
}

Ref<View> ObservedViews::ItemNamed(const std::string& name)
{
    return Observed(Told("Views.ItemNamed")->ItemNamed(name));
}

Ref<View> ObservedViews::Add(const std::string& name, ViewType type, ViewSaveOption option)
{
    return Observed(Told("Views.Add")->Add(name, type, option));
}

Ref<View> ObservedViews::Observed(const Ref<View>& view) const
{
    return view ? MakeRef<ObservedView>(view, mObserver) : nullptr;
}

const Ref<Views>& ObservedViews::Told(const char* member) const
{
    mObserver(member);
    return mViews;
}

ObservedItems::ObservedItems(Ref<Items> items, ItemObserver observer)
    : mItems(std::move(items))
    , mObserver(std::move(observer))
{
}

std::int32_t ObservedItems::Count()
{
    return Told("Items.Count")->Count();
}

Ref<OutlookItem> ObservedItems::Item(std::int32_t index)
{
    return Observed(Told("Items.Item")->Item(index));
}

Ref<AppointmentItem> ObservedItems::Add(const std::string& messageClass)
{
    return Observed(Told("Items.Add")->Add(messageClass)).As<AppointmentItem>();
}

Ref<Items> ObservedItems::Restrict(const std::string& filter)
{
    return MakeRef<ObservedItems>(Told("Items.Restrict")->Restrict(filter), mObserver);
}

Ref<OutlookItem> ObservedItems::Find(const std::string& filter)
{
    return Observed(Told("Items.Find")->Find(filter));
}

void ObservedItems::Sort(const std::string& property, bool descending)
{
    Told("Items.Sort")->Sort(property, descending);
}

Subscription ObservedItems::Subscribe(ItemsEvents events)
{
    return Told("Items.Subscribe")->Subscribe(std::move(events));
}

Ref<OutlookItem> ObservedItems::Observed(const Ref<OutlookItem>& item) const
{
    return item ? MakeRef<ObservedItem>(item.As<AppointmentItem>(), mObserver) : nullptr;
}

const Ref<Items>& ObservedItems::Told(const char* member) const
{
    mObserver(member);
    return mItems;
}

ObservedFolders::ObservedFolders(Ref<Folders> folders, ItemObserver observer)
    : mFolders(std::move(folders))
    , mObserver(std::move(observer))
{
}

std::int32_t ObservedFolders::Count()
{
    return Told("Folders.Count")->Count();
}

const Ref<Folders>& ObservedFolders::Told(const char* member) const
{
    mObserver(member);
    return mFolders;
}

ObservedFolder::ObservedFolder(Ref<MAPIFolder> folder, ItemObserver observer)
    : mFolder(std::move(folder))
    , mObserver(std::move(observer))
{
}

Ref<MAPIFolder> ObservedFolder::Of(const Ref<MAPIFolder>& folder, const ItemObserver& observer)
{
    return folder ? MakeRef<ObservedFolder>(folder, observer) : nullptr;
}

std::string ObservedFolder::EntryID() const
{
    return Told("EntryID")->EntryID();
}

std::string ObservedFolder::Name() const
{
    return Told("Name")->Name();
}

std::string ObservedFolder::FullFolderPath() const
{
    return Told("FullFolderPath")->FullFolderPath();
}

Ref<tempodial::Folders> ObservedFolder::Folders()
{
    return MakeRef<ObservedFolders>(Told("Folders")->Folders(), mObserver);
}

Ref<tempodial::Items> ObservedFolder::Items()
{
    return MakeRef<ObservedItems>(Told("Items")->Items(), mObserver);
}

Ref<tempodial::Views> ObservedFolder::Views()
{
    return MakeRef<ObservedViews>(Told("Views")->Views(), mObserver);
}

const Ref<MAPIFolder>& ObservedFolder::Told(const char* member) const
{
    mObserver(mFolder->Name() + "." + member);
    return mFolder;
}

ObservedNameSpace::ObservedNameSpace(Ref<NameSpace> nameSpace, ItemObserver observer)
    : mNameSpace(std::move(nameSpace))
    , mObserver(std::move(observer))
{
}

Ref<MAPIFolder> ObservedNameSpace::GetDefaultFolder(DefaultFolder type)
{
    return ObservedFolder::Of(Told("GetDefaultFolder")->GetDefaultFolder(type), mObserver);
}

Ref<tempodial::Folders> ObservedNameSpace::Folders()
{
    return MakeRef<ObservedFolders>(Told("NameSpace.Folders")->Folders(), mObserver);
}

const Ref<NameSpace>& ObservedNameSpace::Told(const char* member) const
{
    mObserver(member);
    return mNameSpace;
}

Ref<MAPIFolder> ObservedFolders::Item(std::int32_t index)
{
    return ObservedFolder::Of(Told("Folders.Item")->Item(index), mObserver);
}

Ref<MAPIFolder> ObservedFolders::ItemNamed(const std::string& name)
{
    return ObservedFolder::Of(Told("Folders.ItemNamed")->ItemNamed(name), mObserver);
}

Ref<MAPIFolder> ObservedFolders::Add(const std::string& name, DefaultFolder type)
{
    return ObservedFolder::Of(Told("Folders.Add")->Add(name, type), mObserver);
}

}
