#include "addin/com/Adapter.h"

namespace tempodial {

namespace {

constexpr DISPID ItemAdded = 0xF001;

class ComFolder final : public Adapter<ComFolder, MAPIFolder>
{
public:
    using Adapter::Adapter;

    std::string EntryID() const override { return Get<std::string>("EntryID"); }
    std::string Name() const override { return Get<std::string>("Name"); }
    std::string FullFolderPath() const override { return Get<std::string>("FullFolderPath"); }
    Ref<tempodial::Folders> Folders() override { return Get<Ref<tempodial::Folders>>("Folders"); }
    Ref<tempodial::Items> Items() override { return Get<Ref<tempodial::Items>>("Items"); }
    Ref<tempodial::Views> Views() override { return Get<Ref<tempodial::Views>>("Views"); }
};

class ComFolders final : public Adapter<ComFolders, Folders>
{
public:
    using Adapter::Adapter;

    std::int32_t Count() override { return Get<std::int32_t>("Count"); }
    Ref<MAPIFolder> Item(std::int32_t index) override { return Get<Ref<MAPIFolder>>("Item", index); }
    Ref<MAPIFolder> ItemNamed(const std::string& name) override { return Get<Ref<MAPIFolder>>("Item", name); }
    Ref<MAPIFolder> Add(const std::string& name, DefaultFolder type) override
    {
        return Call<Ref<MAPIFolder>>("Add", name, type);
    }
};

class ComItems final : public Adapter<ComItems, Items>
{
public:
    using Adapter::Adapter;

    std::int32_t Count() override { return Get<std::int32_t>("Count"); }
    Ref<OutlookItem> Item(std::int32_t index) override { return Get<Ref<OutlookItem>>("Item", index); }
    Ref<AppointmentItem> Add(const std::string& messageClass) override
    {
        return Call<Ref<AppointmentItem>>("Add", messageClass);
    }
    Ref<Items> Restrict(const std::string& filter) override { return Call<Ref<Items>>("Restrict", filter); }
    Ref<OutlookItem> Find(const std::string& filter) override { return Call<Ref<OutlookItem>>("Find", filter); }
    void Sort(const std::string& property, bool descending) override { Do("Sort", property, descending); }
    Subscription Subscribe(ItemsEvents events) override
    {
        return EventSink::Subscribe(Dispatch(), { OutlookEvents(0x00063077) },
            { { ItemAdded, ObjectHandler<OutlookItem>(std::move(events.ItemAdd)) } });
    }
};

class ComSelection final : public Adapter<ComSelection, Selection>
{
public:
    using Adapter::Adapter;

    std::int32_t Count() override { return Get<std::int32_t>("Count"); }
    Ref<OutlookItem> Item(std::int32_t index) override { return Get<Ref<OutlookItem>>("Item", index); }
};

class ComViews final : public Adapter<ComViews, Views>
{
public:
    using Adapter::Adapter;

    std::int32_t Count() override { return Get<std::int32_t>("Count"); }
    Ref<View> Item(std::int32_t index) override { return Get<Ref<View>>("Item", index); }
    Ref<View> ItemNamed(const std::string& name) override { return Get<Ref<View>>("Item", name); }
    Ref<View> Add(const std::string& name, ViewType type, ViewSaveOption option) override
    {
        return Call<Ref<View>>("Add", name, type, option);
    }
};

class ComView final : public Adapter<ComView, View>
{
public:
    using Adapter::Adapter;

    std::string Name() const override { return Get<std::string>("Name"); }
    tempodial::ViewType ViewType() const override { return Get<tempodial::ViewType>("ViewType"); }
    std::string XML() const override { return Get<std::string>("XML"); }
    void SetXML(const std::string& xml) override { Put("XML", xml); }
    void Save() override { Do("Save"); }
};

}

template <> Ref<MAPIFolder> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComFolder, MAPIFolder>(object);
}

template <> Ref<Folders> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComFolders, Folders>(object);
}

template <> Ref<Items> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComItems, Items>(object);
}

template <> Ref<Selection> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComSelection, Selection>(object);
}

template <> Ref<Views> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComViews, Views>(object);
}

template <> Ref<View> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComView, View>(object);
}

}
