#include "faults/Faulty.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct FaultNames<OutlookItem>
{
    static constexpr std::string_view All[] { "OutlookItem" };
};
template <> struct FaultNames<AppointmentItem>
{
    static constexpr std::string_view All[] { "AppointmentItem", "OutlookItem" };
};
template <> struct FaultNames<MailItem>
{
    static constexpr std::string_view All[] { "MailItem", "OutlookItem" };
};
template <> struct FaultNames<Attachments>
{
    static constexpr std::string_view All[] { "Attachments" };
};
template <> struct FaultNames<Recipients>
{
    static constexpr std::string_view All[] { "Recipients" };
};
template <> struct FaultNames<UserProperties>
{
    static constexpr std::string_view All[] { "UserProperties" };
};
template <> struct FaultNames<UserProperty>
{
    static constexpr std::string_view All[] { "UserProperty" };
};
template <> struct FaultNames<FormDescription>
{
    static constexpr std::string_view All[] { "FormDescription" };
};

namespace {

template <class Interface> class FaultyItem : public Faulty<Interface>
{
public:
    using Faulty<Interface>::Faulty;

    ObjectClass Class() const override { return this->Call("Class")->Class(); }
    std::string MessageClass() const override { return this->Call("MessageClass")->MessageClass(); }
    std::string EntryID() const override { return this->Call("EntryID")->EntryID(); }
    std::string Subject() const override { return this->Call("Subject")->Subject(); }
    void SetSubject(const std::string& subject) override { this->Call("Subject")->SetSubject(subject); }
};

class FaultyAppointment final : public FaultyItem<AppointmentItem>
{
public:
    using FaultyItem::FaultyItem;

    std::string Body() const override { return Call("Body")->Body(); }
    void SetBody(const std::string& body) override { Call("Body")->SetBody(body); }
    Date Start() const override { return Call("Start")->Start(); }
    void SetStart(Date start) override { Call("Start")->SetStart(start); }
    Date End() const override { return Call("End")->End(); }
    void SetEnd(Date end) override { Call("End")->SetEnd(end); }
    std::int32_t Duration() const override { return Call("Duration")->Duration(); }
    void SetDuration(std::int32_t minutes) override { Call("Duration")->SetDuration(minutes); }
    std::string Mileage() const override { return Call("Mileage")->Mileage(); }
    void SetMileage(const std::string& mileage) override { Call("Mileage")->SetMileage(mileage); }
    std::string BillingInformation() const override { return Call("BillingInformation")->BillingInformation(); }
    void SetBillingInformation(const std::string& billingInformation) override
    {
        Call("BillingInformation")->SetBillingInformation(billingInformation);
    }
    bool IsRecurring() const override { return Call("IsRecurring")->IsRecurring(); }
    Ref<MAPIFolder> Parent() override { return Wrap(Call("Parent")->Parent()); }
    Ref<tempodial::UserProperties> UserProperties() override { return Wrap(Call("UserProperties")->UserProperties()); }
    Ref<tempodial::FormDescription> FormDescription() override
    {
        return Wrap(Call("FormDescription")->FormDescription());
    }
    void Save() override { Call("Save")->Save(); }
    void Close(CloseMode mode) override { Call("Close")->Close(mode); }
    void Display() override { Call("Display")->Display(); }
    void Delete() override { Call("Delete")->Delete(); }
    Ref<AppointmentItem> Copy() override { return Wrap(Call("Copy")->Copy()); }
    Ref<AppointmentItem> Move(const Ref<MAPIFolder>& folder) override
    {
        return Wrap(Call("Move")->Move(Unwrapped(folder)));
    }
    Subscription Subscribe(AppointmentItemEvents events) override
    {
        return Call("Subscribe")->Subscribe(std::move(events));
    }
};

class FaultyMail final : public FaultyItem<MailItem>
{
public:
    using FaultyItem::FaultyItem;

    std::string Body() const override { return Call("Body")->Body(); }
    void SetBody(const std::string& body) override { Call("Body")->SetBody(body); }
    std::string HTMLBody() const override { return Call("HTMLBody")->HTMLBody(); }
    void SetHTMLBody(const std::string& html) override { Call("HTMLBody")->SetHTMLBody(html); }
    Ref<tempodial::Attachments> Attachments() override { return Wrap(Call("Attachments")->Attachments()); }
    Ref<tempodial::Recipients> Recipients() override { return Wrap(Call("Recipients")->Recipients()); }
    void Display() override { Call("Display")->Display(); }
};

class FaultyAttachments final : public Faulty<Attachments>
{
public:
    using Faulty::Faulty;

    void Add(const std::string& path) override { Call("Add")->Add(path); }
};

class FaultyRecipients final : public Faulty<Recipients>
{
public:
    using Faulty::Faulty;

    void Add(const std::string& address) override { Call("Add", address)->Add(address); }
};

class FaultyUserProperties final : public Faulty<UserProperties>
{
public:
    using Faulty::Faulty;

    Ref<UserProperty> Item(const std::string& name) override { return Wrap(Call("Item", name)->Item(name)); }
    Ref<UserProperty> Add(const std::string& name, PropertyType type, bool addToFolderFields) override
    {
        return Wrap(Call("Add", name)->Add(name, type, addToFolderFields));
    }
};

class FaultyUserProperty final : public Faulty<UserProperty>
{
public:
    using Faulty::Faulty;

    std::string Name() const override { return Call("Name")->Name(); }
    Variant Value() const override { return Call("Value")->Value(); }
    void SetValue(const Variant& value) override { Call("Value")->SetValue(value); }
};

class FaultyFormDescription final : public Faulty<FormDescription>
{
public:
    using Faulty::Faulty;

    ObjectClass Class() const override { return Call("Class")->Class(); }
    void SetDisplayName(const std::string& name) override { Call("DisplayName")->SetDisplayName(name); }
    std::string MessageClass() const override { return Call("MessageClass")->MessageClass(); }
    void PublishForm(FormRegistry registry) override { Call("PublishForm")->PublishForm(registry); }
};

}

Ref<OutlookItem> Wrapped(const Ref<OutlookItem>& object, const Ref<FaultPlan>& plan)
{
    if (const auto appointment = object.As<AppointmentItem>()) {
        return Wrapped(appointment, plan);
    }
    if (const auto mail = object.As<MailItem>()) {
        return Wrapped(mail, plan);
    }
    return WrappedAs<FaultyItem<OutlookItem>>(object, plan);
}

Ref<AppointmentItem> Wrapped(const Ref<AppointmentItem>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyAppointment>(object, plan);
}

Ref<MailItem> Wrapped(const Ref<MailItem>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyMail>(object, plan);
}

Ref<Attachments> Wrapped(const Ref<Attachments>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyAttachments>(object, plan);
}

Ref<Recipients> Wrapped(const Ref<Recipients>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyRecipients>(object, plan);
}

Ref<UserProperties> Wrapped(const Ref<UserProperties>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyUserProperties>(object, plan);
}

Ref<UserProperty> Wrapped(const Ref<UserProperty>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyUserProperty>(object, plan);
}

Ref<FormDescription> Wrapped(const Ref<FormDescription>& object, const Ref<FaultPlan>& plan)
{
    return WrappedAs<FaultyFormDescription>(object, plan);
}

}
