#include "faults/Faulty.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct FaultNames<Application>
{
    static constexpr std::string_view All[] { "Application" };
};
template <> struct FaultNames<NameSpace>
{
    static constexpr std::string_view All[] { "NameSpace" };
};

namespace {

class FaultyApplication final : public Faulty<Application>
{
public:
    using Faulty::Faulty;

    std::string Version() const override { return Call("Version")->Version(); }
    Ref<tempodial::Explorers> Explorers() override { return Wrap(Call("Explorers")->Explorers()); }
    Ref<tempodial::Inspectors> Inspectors() override { return Wrap(Call("Inspectors")->Inspectors()); }
    Ref<NameSpace> GetNamespace(const std::string& type) override
    {
        return Wrap(Call("GetNamespace", type)->GetNamespace(type));
    }
    Ref<Explorer> ActiveExplorer() override { return Wrap(Call("ActiveExplorer")->ActiveExplorer()); }
    Ref<Inspector> ActiveInspector() override { return Wrap(Call("ActiveInspector")->ActiveInspector()); }
    Ref<MailItem> CreateItem() override { return Wrap(Call("CreateItem")->CreateItem()); }
    Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) override
    {
        return Wrap(Call("CreateItemFromTemplate")->CreateItemFromTemplate(path, Unwrapped(folder)));
    }
    Subscription Subscribe(ApplicationEvents events) override
    {
        return Call("Subscribe")->Subscribe(std::move(events));
    }
};

class FaultyNameSpace final : public Faulty<NameSpace>
{
public:
    using Faulty::Faulty;

    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) override
    {
        const auto key = std::to_string(static_cast<std::int32_t>(type));
        return Wrap(Call("GetDefaultFolder", key)->GetDefaultFolder(type));
    }
    Ref<tempodial::Folders> Folders() override { return Wrap(Call("Folders")->Folders()); }
};

}

Ref<Application> Wrapped(const Ref<Application>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyApplication>(object, plan);
}

Ref<NameSpace> Wrapped(const Ref<NameSpace>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyNameSpace>(object, plan);
}

}
