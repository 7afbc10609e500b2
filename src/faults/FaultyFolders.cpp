#include "faults/Faulty.h"
#include "faults/Wrapped.h"
#include "platform/objectmodel/Folders.h"

namespace tempodial {

template <> struct FaultNames<MAPIFolder>
{
    static constexpr std::string_view All[] { "MAPIFolder" };
};
template <> struct FaultNames<Folders>
{
    static constexpr std::string_view All[] { "Folders" };
};
template <> struct FaultNames<Items>
{
    static constexpr std::string_view All[] { "Items" };
};
template <> struct FaultNames<Selection>
{
    static constexpr std::string_view All[] { "Selection" };
};
template <> struct FaultNames<Views>
{
    static constexpr std::string_view All[] { "Views" };
};
template <> struct FaultNames<View>
{
    static constexpr std::string_view All[] { "View" };
};

namespace {

class FaultyFolder final : public Faulty<MAPIFolder>
{
public:
    using Faulty::Faulty;

    std::string EntryID() const override { return Call("EntryID")->EntryID(); }
    std::string Name() const override { return Call("Name")->Name(); }
    std::string FullFolderPath() const override { return Call("FullFolderPath")->FullFolderPath(); }
    Ref<tempodial::Folders> Folders() override { return Wrap(Call("Folders")->Folders()); }
    Ref<tempodial::Items> Items() override { return Wrap(Call("Items")->Items()); }
    Ref<tempodial::Views> Views() override { return Wrap(Call("Views")->Views()); }
};

class FaultyFolders final : public Faulty<Folders>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<MAPIFolder> Item(std::int32_t index) override { return Wrap(Call("Item", std::to_string(index))->Item(index)); }
    Ref<MAPIFolder> ItemNamed(const std::string& name) override { return Wrap(Call("Item", name)->ItemNamed(name)); }
    Ref<MAPIFolder> Add(const std::string& name, DefaultFolder type) override
    {
        return Wrap(Call("Add", name)->Add(name, type));
    }
};

class FaultyItems final : public Faulty<Items>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<OutlookItem> Item(std::int32_t index) override
    {
        return Wrap(Call("Item", std::to_string(index))->Item(index));
    }
    Ref<AppointmentItem> Add(const std::string& messageClass) override
    {
        return Wrap(Call("Add", messageClass)->Add(messageClass));
    }
    Ref<Items> Restrict(const std::string& filter) override { return Wrap(Call("Restrict")->Restrict(filter)); }
    Ref<OutlookItem> Find(const std::string& filter) override { return Wrap(Call("Find")->Find(filter)); }
    void Sort(const std::string& property, bool descending) override
    {
        Call("Sort", property)->Sort(property, descending);
    }
    Subscription Subscribe(ItemsEvents events) override
    {
        auto* target = Call("Subscribe");
        return target->Subscribe({ .ItemAdd = [plan = Plan(), add = std::move(events.ItemAdd)](const auto& item) {
            if (add) {
                add(Wrapped(item, plan));
            }
        } });
    }
};

class FaultySelection final : public Faulty<Selection>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<OutlookItem> Item(std::int32_t index) override
    {
        return Wrap(Call("Item", std::to_string(index))->Item(index));
    }
};

class FaultyViews final : public Faulty<Views>
{
public:
    using Faulty::Faulty;

    std::int32_t Count() override { return Call("Count")->Count(); }
    Ref<View> Item(std::int32_t index) override { return Wrap(Call("Item", std::to_string(index))->Item(index)); }
    Ref<View> ItemNamed(const std::string& name) override { return Wrap(Call("Item", name)->ItemNamed(name)); }
    Ref<View> Add(const std::string& name, ViewType type, ViewSaveOption option) override
    {
        return Wrap(Call("Add", name)->Add(name, type, option));
    }
};

class FaultyView final : public Faulty<View>
{
public:
    using Faulty::Faulty;

    std::string Name() const override { return Call("Name")->Name(); }
    tempodial::ViewType ViewType() const override { return Call("ViewType")->ViewType(); }
    std::string XML() const override { return Call("XML")->XML(); }
    void SetXML(const std::string& xml) override { Call("XML")->SetXML(xml); }
    void Save() override { Call("Save")->Save(); }
};

}

Ref<MAPIFolder> Wrapped(const Ref<MAPIFolder>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyFolder>(object, plan);
}

Ref<Folders> Wrapped(const Ref<Folders>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyFolders>(object, plan);
}

Ref<Items> Wrapped(const Ref<Items>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyItems>(object, plan);
}

Ref<Selection> Wrapped(const Ref<Selection>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultySelection>(object, plan);
}

Ref<Views> Wrapped(const Ref<Views>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyViews>(object, plan);
}

Ref<View> Wrapped(const Ref<View>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyView>(object, plan);
}

}
