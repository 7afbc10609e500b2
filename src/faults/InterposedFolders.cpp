#include "faults/Interposed.h"
#include "faults/Wrapped.h"
#include "platform/objectmodel/Folders.h"

namespace tempodial {

template <> struct ClassNames<MAPIFolder>
{
    static constexpr std::string_view All[] { "MAPIFolder" };
};
template <> struct ClassNames<Folders>
{
    static constexpr std::string_view All[] { "Folders" };
};
template <> struct ClassNames<Items>
{
    static constexpr std::string_view All[] { "Items" };
};
template <> struct ClassNames<Selection>
{
    static constexpr std::string_view All[] { "Selection" };
};
template <> struct ClassNames<Views>
{
    static constexpr std::string_view All[] { "Views" };
};
template <> struct ClassNames<View>
{
    static constexpr std::string_view All[] { "View" };
};

namespace {

class InterposedFolder final : public Interposed<MAPIFolder>
{
public:
    using Interposed::Interposed;

    std::string EntryID() const override { return Call("EntryID", &Object::EntryID); }
    std::string Name() const override { return Call("Name", &Object::Name); }
    std::string FullFolderPath() const override { return Call("FullFolderPath", &Object::FullFolderPath); }
    Ref<tempodial::Folders> Folders() override { return Wrap(Call("Folders", &Object::Folders)); }
    Ref<tempodial::Items> Items() override { return Wrap(Call("Items", &Object::Items)); }
    Ref<tempodial::Views> Views() override { return Wrap(Call("Views", &Object::Views)); }
};

class InterposedFolders final : public Interposed<Folders>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<MAPIFolder> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
    Ref<MAPIFolder> ItemNamed(const std::string& name) override
    {
        return Wrap(Call({ "Item", name }, &Object::ItemNamed, name));
    }
    Ref<MAPIFolder> Add(const std::string& name, DefaultFolder type) override
    {
        return Wrap(Call({ "Add", name }, &Object::Add, name, type));
    }
};

class InterposedItems final : public Interposed<Items>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<OutlookItem> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
    Ref<AppointmentItem> Add(const std::string& messageClass) override
    {
        return Wrap(Call({ "Add", messageClass }, &Object::Add, messageClass));
    }
    Ref<Items> Restrict(const std::string& filter) override
    {
        return Wrap(Call("Restrict", &Object::Restrict, filter));
    }
    Ref<OutlookItem> Find(const std::string& filter) override { return Wrap(Call("Find", &Object::Find, filter)); }
    void Sort(const std::string& property, bool descending) override
    {
        Call({ "Sort", property }, &Object::Sort, property, descending);
    }
    Subscription Subscribe(ItemsEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe,
            ItemsEvents { .ItemAdd = [interposer = Between(), add = std::move(events.ItemAdd)](const auto& item) {
                if (add) {
                    add(Wrapped(item, interposer));
                }
            } });
    }
};

class InterposedSelection final : public Interposed<Selection>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<OutlookItem> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
};

class InterposedViews final : public Interposed<Views>
{
public:
    using Interposed::Interposed;

    std::int32_t Count() override { return Call("Count", &Object::Count); }
    Ref<View> Item(std::int32_t index) override
    {
        return Wrap(Call({ "Item", std::to_string(index) }, &Object::Item, index));
    }
    Ref<View> ItemNamed(const std::string& name) override
    {
        return Wrap(Call({ "Item", name }, &Object::ItemNamed, name));
    }
    Ref<View> Add(const std::string& name, ViewType type, ViewSaveOption option) override
    {
        return Wrap(Call({ "Add", name }, &Object::Add, name, type, option));
    }
};

class InterposedView final : public Interposed<View>
{
public:
    using Interposed::Interposed;

    std::string Name() const override { return Call("Name", &Object::Name); }
    tempodial::ViewType ViewType() const override { return Call("ViewType", &Object::ViewType); }
    std::string XML() const override { return Call("XML", &Object::XML); }
    void SetXML(const std::string& xml) override { Set("XML", &Object::SetXML, xml); }
    void Save() override { Call("Save", &Object::Save); }
};

}

Ref<MAPIFolder> Wrapped(const Ref<MAPIFolder>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedFolder>(object, interposer);
}

Ref<Folders> Wrapped(const Ref<Folders>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedFolders>(object, interposer);
}

Ref<Items> Wrapped(const Ref<Items>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedItems>(object, interposer);
}

Ref<Selection> Wrapped(const Ref<Selection>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedSelection>(object, interposer);
}

Ref<Views> Wrapped(const Ref<Views>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedViews>(object, interposer);
}

Ref<View> Wrapped(const Ref<View>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedView>(object, interposer);
}

}
