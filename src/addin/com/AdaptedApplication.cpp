#include "addin/com/Adapter.h"

namespace tempodial {

namespace {

constexpr DISPID MapiLogonComplete = 0xFA90;
constexpr DISPID ApplicationQuit = 0xF007;

/// What `CreateItem` is asked for.
constexpr std::int32_t MailItemType = 0;

class ComApplication final : public Adapter<ComApplication, Application>
{
public:
    using Adapter::Adapter;

    std::string Version() const override { return Get<std::string>("Version"); }
    Ref<tempodial::Explorers> Explorers() override { return Get<Ref<tempodial::Explorers>>("Explorers"); }
    Ref<tempodial::Inspectors> Inspectors() override { return Get<Ref<tempodial::Inspectors>>("Inspectors"); }
    Ref<NameSpace> GetNamespace(const std::string& type) override { return Call<Ref<NameSpace>>("GetNamespace", type); }
    Ref<Explorer> ActiveExplorer() override { return Call<Ref<Explorer>>("ActiveExplorer"); }
    Ref<Inspector> ActiveInspector() override { return Call<Ref<Inspector>>("ActiveInspector"); }
    Ref<MailItem> CreateItem() override { return Call<Ref<MailItem>>("CreateItem", MailItemType); }
    Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) override
    {
        const auto place = DispatchOf(folder);
        return Call<Ref<AppointmentItem>>("CreateItemFromTemplate", path, place ? std::optional(place) : std::nullopt);
    }
    Subscription Subscribe(ApplicationEvents events) override
    {
        return EventSink::Subscribe(Dispatch(),
            { OutlookEvents(0x0006302C), OutlookEvents(0x0006300E), OutlookEvents(0x0006304E) },
            { { MapiLogonComplete, PlainHandler(std::move(events.MapiLogonComplete)) },
                { ApplicationQuit, PlainHandler(std::move(events.Quit)) } });
    }
};

class ComNameSpace final : public Adapter<ComNameSpace, NameSpace>
{
public:
    using Adapter::Adapter;

    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) override
    {
        return Call<Ref<MAPIFolder>>("GetDefaultFolder", type);
    }
    Ref<tempodial::Folders> Folders() override { return Get<Ref<tempodial::Folders>>("Folders"); }
};

}

template <> Ref<Application> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComApplication, Application>(object);
}

template <> Ref<NameSpace> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComNameSpace, NameSpace>(object);
}

}
