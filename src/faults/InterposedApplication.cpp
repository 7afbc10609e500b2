#include "faults/Interposed.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct ClassNames<Application>
{
    static constexpr std::string_view All[] { "Application" };
};
template <> struct ClassNames<NameSpace>
{
    static constexpr std::string_view All[] { "NameSpace" };
};

namespace {

class InterposedApplication final : public Interposed<Application>
{
public:
    using Interposed::Interposed;

    std::string Version() const override { return Call("Version", &Object::Version); }
    Ref<tempodial::Explorers> Explorers() override { return Wrap(Call("Explorers", &Object::Explorers)); }
    Ref<tempodial::Inspectors> Inspectors() override { return Wrap(Call("Inspectors", &Object::Inspectors)); }
    Ref<NameSpace> GetNamespace(const std::string& type) override
    {
        return Wrap(Call({ "GetNamespace", type }, &Object::GetNamespace, type));
    }
    Ref<Explorer> ActiveExplorer() override { return Wrap(Call("ActiveExplorer", &Object::ActiveExplorer)); }
    Ref<Inspector> ActiveInspector() override { return Wrap(Call("ActiveInspector", &Object::ActiveInspector)); }
    Ref<MailItem> CreateItem() override { return Wrap(Call("CreateItem", &Object::CreateItem)); }
    Ref<AppointmentItem> CreateItemFromTemplate(const std::string& path, const Ref<MAPIFolder>& folder) override
    {
        return Wrap(Call("CreateItemFromTemplate", &Object::CreateItemFromTemplate, path, Unwrapped(folder)));
    }
    Subscription Subscribe(ApplicationEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe, std::move(events));
    }
};

class InterposedNameSpace final : public Interposed<NameSpace>
{
public:
    using Interposed::Interposed;

    Ref<MAPIFolder> GetDefaultFolder(DefaultFolder type) override
    {
        const auto key = std::to_string(static_cast<std::int32_t>(type));
        return Wrap(Call({ "GetDefaultFolder", key }, &Object::GetDefaultFolder, type));
    }
    Ref<tempodial::Folders> Folders() override { return Wrap(Call("Folders", &Object::Folders)); }
};

}

Ref<Application> Wrapped(const Ref<Application>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedApplication>(object, interposer);
}

Ref<NameSpace> Wrapped(const Ref<NameSpace>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedNameSpace>(object, interposer);
}

}
