#include "faults/Interposed.h"
#include "faults/Wrapped.h"

namespace tempodial {

template <> struct ClassNames<OutlookItem>
{
    static constexpr std::string_view All[] { "OutlookItem" };
};
template <> struct ClassNames<AppointmentItem>
{
    static constexpr std::string_view All[] { "AppointmentItem", "OutlookItem" };
};
template <> struct ClassNames<MailItem>
{
    static constexpr std::string_view All[] { "MailItem", "OutlookItem" };
};
template <> struct ClassNames<Attachments>
{
    static constexpr std::string_view All[] { "Attachments" };
};
template <> struct ClassNames<Recipients>
{
    static constexpr std::string_view All[] { "Recipients" };
};
template <> struct ClassNames<UserProperties>
{
    static constexpr std::string_view All[] { "UserProperties" };
};
template <> struct ClassNames<UserProperty>
{
    static constexpr std::string_view All[] { "UserProperty" };
};
template <> struct ClassNames<FormDescription>
{
    static constexpr std::string_view All[] { "FormDescription" };
};

namespace {

template <class Interface> class InterposedItem : public Interposed<Interface>
{
public:
    using Interposed<Interface>::Interposed;

    ObjectClass Class() const override { return this->Call("Class", &Interface::Class); }
    std::string MessageClass() const override { return this->Call("MessageClass", &Interface::MessageClass); }
    std::string EntryID() const override { return this->Call("EntryID", &Interface::EntryID); }
    std::string Subject() const override { return this->Call("Subject", &Interface::Subject); }
    void SetSubject(const std::string& subject) override { this->Set("Subject", &Interface::SetSubject, subject); }
};

class InterposedAppointment final : public InterposedItem<AppointmentItem>
{
public:
    using InterposedItem::InterposedItem;

    std::string Body() const override { return Call("Body", &Object::Body); }
    void SetBody(const std::string& body) override { Set("Body", &Object::SetBody, body); }
    Date Start() const override { return Call("Start", &Object::Start); }
    void SetStart(Date start) override { Set("Start", &Object::SetStart, start); }
    Date End() const override { return Call("End", &Object::End); }
    void SetEnd(Date end) override { Set("End", &Object::SetEnd, end); }
    std::int32_t Duration() const override { return Call("Duration", &Object::Duration); }
    void SetDuration(std::int32_t minutes) override { Set("Duration", &Object::SetDuration, minutes); }
    std::string Mileage() const override { return Call("Mileage", &Object::Mileage); }
    void SetMileage(const std::string& mileage) override { Set("Mileage", &Object::SetMileage, mileage); }
    std::string BillingInformation() const override { return Call("BillingInformation", &Object::BillingInformation); }
    void SetBillingInformation(const std::string& billingInformation) override
    {
        Set("BillingInformation", &Object::SetBillingInformation, billingInformation);
    }
    bool IsRecurring() const override { return Call("IsRecurring", &Object::IsRecurring); }
    Ref<MAPIFolder> Parent() override { return Wrap(Call("Parent", &Object::Parent)); }
    Ref<tempodial::UserProperties> UserProperties() override
    {
        return Wrap(Call("UserProperties", &Object::UserProperties));
    }
    Ref<tempodial::FormDescription> FormDescription() override
    {
        return Wrap(Call("FormDescription", &Object::FormDescription));
    }
    void Save() override { Call("Save", &Object::Save); }
    void Close(CloseMode mode) override { Call("Close", &Object::Close, mode); }
    void Display() override { Call("Display", &Object::Display); }
    void Delete() override { Call("Delete", &Object::Delete); }
    Ref<AppointmentItem> Copy() override { return Wrap(Call("Copy", &Object::Copy)); }
    Ref<AppointmentItem> Move(const Ref<MAPIFolder>& folder) override
    {
        return Wrap(Call("Move", &Object::Move, Unwrapped(folder)));
    }
    Subscription Subscribe(AppointmentItemEvents events) override
    {
        return Call("Subscribe", &Object::Subscribe, std::move(events));
    }
};

class InterposedMail final : public InterposedItem<MailItem>
{
public:
    using InterposedItem::InterposedItem;

    std::string Body() const override { return Call("Body", &Object::Body); }
    void SetBody(const std::string& body) override { Set("Body", &Object::SetBody, body); }
    std::string HTMLBody() const override { return Call("HTMLBody", &Object::HTMLBody); }
    void SetHTMLBody(const std::string& html) override { Set("HTMLBody", &Object::SetHTMLBody, html); }
    Ref<tempodial::Attachments> Attachments() override { return Wrap(Call("Attachments", &Object::Attachments)); }
    Ref<tempodial::Recipients> Recipients() override { return Wrap(Call("Recipients", &Object::Recipients)); }
    void Display() override { Call("Display", &Object::Display); }
};

class InterposedAttachments final : public Interposed<Attachments>
{
public:
    using Interposed::Interposed;

    void Add(const std::string& path) override { Call("Add", &Object::Add, path); }
};

class InterposedRecipients final : public Interposed<Recipients>
{
public:
    using Interposed::Interposed;

    void Add(const std::string& address) override { Call({ "Add", address }, &Object::Add, address); }
};

class InterposedUserProperty final : public Interposed<UserProperty>
{
public:
    InterposedUserProperty(Ref<UserProperty> target, Ref<Interposer> interposer, std::string name)
        : Interposed(std::move(target), std::move(interposer))
        , mName(std::move(name))
    {
    }

    std::string Name() const override { return Call({ "Name", mName }, &Object::Name); }
    Variant Value() const override { return Call({ "Value", mName }, &Object::Value); }
    void SetValue(const Variant& value) override { Set({ "Value", mName }, &Object::SetValue, value); }

private:
    std::string mName;
};

class InterposedUserProperties final : public Interposed<UserProperties>
{
public:
    using Interposed::Interposed;

    Ref<UserProperty> Item(const std::string& name) override
    {
        return Named<InterposedUserProperty>(Call({ "Item", name }, &Object::Item, name), name);
    }
    Ref<UserProperty> Add(const std::string& name, PropertyType type, bool addToFolderFields) override
    {
        return Named<InterposedUserProperty>(Call({ "Add", name }, &Object::Add, name, type, addToFolderFields), name);
    }
};

class InterposedFormDescription final : public Interposed<FormDescription>
{
public:
    using Interposed::Interposed;

    ObjectClass Class() const override { return Call("Class", &Object::Class); }
    void SetDisplayName(const std::string& name) override { Set("DisplayName", &Object::SetDisplayName, name); }
    std::string MessageClass() const override { return Call("MessageClass", &Object::MessageClass); }
    void PublishForm(FormRegistry registry) override { Call("PublishForm", &Object::PublishForm, registry); }
};

}

Ref<OutlookItem> Wrapped(const Ref<OutlookItem>& object, const Ref<Interposer>& interposer)
{
    if (const auto appointment = object.As<AppointmentItem>()) {
        return Wrapped(appointment, interposer);
    }
    if (const auto mail = object.As<MailItem>()) {
        return Wrapped(mail, interposer);
    }
    return WrappedAs<InterposedItem<OutlookItem>>(object, interposer);
}

Ref<AppointmentItem> Wrapped(const Ref<AppointmentItem>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedAppointment>(object, interposer);
}

Ref<MailItem> Wrapped(const Ref<MailItem>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedMail>(object, interposer);
}

Ref<Attachments> Wrapped(const Ref<Attachments>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedAttachments>(object, interposer);
}

Ref<Recipients> Wrapped(const Ref<Recipients>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedRecipients>(object, interposer);
}

Ref<UserProperties> Wrapped(const Ref<UserProperties>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedUserProperties>(object, interposer);
}

Ref<FormDescription> Wrapped(const Ref<FormDescription>& object, const Ref<Interposer>& interposer)
{
    return WrappedAs<InterposedFormDescription>(object, interposer);
}

}
