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
    ObservedView(Ref<View> view, ItemObserver observer);

    std::string Name() const override;
    tempodial::ViewType ViewType() const override;
    std::string XML() const override;
    void SetXML(const std::string& xml) override;
    void Save() override;

private:
    const Ref<View>& Told(const char* member) const;

    Ref<View> mView;
    ItemObserver mObserver;
};

/// Views that tell an observer of their use.
class ObservedViews : public Views
{
public:
    ObservedViews(Ref<Views> views, ItemObserver observer);

    std::int32_t Count() override;
    Ref<View> Item(std::int32_t index) override;
    Ref<View> ItemNamed(const std::string& name) override;
    Ref<View> Add(const std::string& name, ViewType type, ViewSaveOption option) override;

private:
    Ref<View> Observed(const Ref<View>& view) const;
    const Ref<Views>& Told(const char* member) const;

    Ref<Views> mViews;
    ItemObserver mObserver;
};

/// Items that tell an observer of their use.
class ObservedItems : public Items
{
public:
    ObservedItems(Ref<Items> items, ItemObserver observer);

    std::int32_t Count() override;
    Ref<OutlookItem> Item(std::int32_t index) override;
    Ref<AppointmentItem> Add(const std::string& messageClass) override;
    Ref<Items> Restrict(const std::string& filter) override;
    Ref<OutlookItem> Find(const std::string& filter) override;
    void Sort(const std::string& property, bool descending) override;
    Subscription Subscribe(ItemsEvents events) override;

private:
    Ref<OutlookItem> Observed(const Ref<OutlookItem>& item) const;
    const Ref<Items>& Told(const char* member) const;

    Ref<Items> mItems;
    ItemObserver mObserver;
};

class ObservedFolder;

/// Folders that tell an observer of their use.
class ObservedFolders : public Folders
{
public:
    ObservedFolders(Ref<Folders> folders, ItemObserver observer);

    std::int32_t Count() override;
    Ref<MAPIFolder> Item(std::int32_t index) override;
    Ref<MAPIFolder> ItemNamed(const std::string& name) override;
    Ref<MAPIFolder> Add(const std::string& name, DefaultFolder type) override;

private:
    const Ref<Folders>& Told(const char* member) const;

    Ref<Folders> mFolders;
    ItemObserver mObserver;
};

/// A folder that tells an observer of its use, and of that of all that comes from it.
class ObservedFolder : public MAPIFolder
{
public:
    ObservedFolder(Ref<MAPIFolder> folder, ItemObserver observer);
    static Ref<MAPIFolder> Of(const Ref<MAPIFolder>& folder, const ItemObserver& observer);

    std::string EntryID() const override;
    std::string Name() const override;
    std::string FullFolderPath() const override;
    Ref<tempodial::Folders> Folders() override;
    Ref<tempodial::Items> Items() override;
    Ref<tempodial::Views> Views() override;

private:
    /// The members are told with the folder's name, such as "Calendar.Items".
    const Ref<MAPIFolder>& Told(const char* member) const;

    Ref<MAPIFolder> mFolder;
    ItemObserver mObserver;
};

/// A session that tells an observer of its use, and of that of all that comes from it.
class ObservedNameSpace : public NameSpace
{
public:
    ObservedNameSpace(Ref<NameSpace> nameSpace, ItemObserver observer);

    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) override;
    Ref<tempodial::Folders> Folders() override;

private:
    const Ref<NameSpace>& Told(const char* member) const;

    Ref<NameSpace> mNameSpace;
    ItemObserver mObserver;
};

}
