#include "addin/com/Adapter.h"
#include "addin/com/KeptProperties.h"

#include <map>
#include <optional>

namespace tempodial {

namespace {

constexpr DISPID ItemWrite = 0xF002;
constexpr DISPID ItemOpen = 0xF003;
constexpr DISPID ItemClose = 0xF004;

/// What an attachment is added as: a copy.
constexpr std::int32_t ByValue = 1;

/// What items of all kinds have.
template <class Self, class Interface> class ItemAdapter : public Adapter<Self, Interface>
{
public:
    using Adapter<Self, Interface>::Adapter;

    ObjectClass Class() const override { return this->template Get<ObjectClass>("Class"); }
    std::string MessageClass() const override { return this->template Get<std::string>("MessageClass"); }
    std::string EntryID() const override { return this->template Get<std::string>("EntryID"); }
    std::string Subject() const override { return this->template Get<std::string>("Subject"); }
    void SetSubject(const std::string& subject) override { this->Put("Subject", subject); }
};

/// An item of a kind that the product knows nothing of.
class ComOtherItem final : public ItemAdapter<ComOtherItem, OutlookItem>
{
public:
    using ItemAdapter::ItemAdapter;

    /// The class, read for the binding's own needs.
    ObjectClass KindNow() const { return Taken<ObjectClass>::From(Late().Read("Class")); }
};

class ComAppointmentItem final : public ItemAdapter<ComAppointmentItem, AppointmentItem>
{
public:
    using ItemAdapter::ItemAdapter;

    std::string Body() const override { return Get<std::string>("Body"); }
    void SetBody(const std::string& body) override { Put("Body", body); }
    Date Start() const override { return Get<Date>("Start"); }
    void SetStart(Date start) override { Put("Start", start); }
    Date End() const override { return Get<Date>("End"); }
    void SetEnd(Date end) override { Put("End", end); }
    std::int32_t Duration() const override { return Get<std::int32_t>("Duration"); }
    void SetDuration(std::int32_t minutes) override { Put("Duration", minutes); }
    std::string Mileage() const override { return Get<std::string>("Mileage"); }
    void SetMileage(const std::string& mileage) override { Put("Mileage", mileage); }
    std::string BillingInformation() const override { return Get<std::string>("BillingInformation"); }
    void SetBillingInformation(const std::string& billingInformation) override
    {
        Put("BillingInformation", billingInformation);
    }
    bool IsRecurring() const override { return Get<bool>("IsRecurring"); }
    Ref<MAPIFolder> Parent() override { return Get<Ref<MAPIFolder>>("Parent"); }
    Ref<tempodial::UserProperties> UserProperties() override
    {
        if (mProperties) {
            return mProperties;
        }
        auto properties = Get<Ref<tempodial::UserProperties>>("UserProperties");
        if (KeptProperties::AreWanted()) {
            mProperties = properties;
        }
        return properties;
    }
    Ref<tempodial::FormDescription> FormDescription() override
    {
        return Get<Ref<tempodial::FormDescription>>("FormDescription");
    }
    void Save() override { Do("Save"); }
    void Close(CloseMode mode) override { Do("Close", mode); }
    void Display() override { Do("Display"); }
    void Delete() override { Do("Delete"); }
    Ref<AppointmentItem> Copy() override { return Call<Ref<AppointmentItem>>("Copy"); }
    Ref<AppointmentItem> Move(const Ref<MAPIFolder>& folder) override
    {
        return Call<Ref<AppointmentItem>>("Move", folder);
    }
    Subscription Subscribe(AppointmentItemEvents events) override
    {
        return EventSink::Subscribe(Dispatch(), { OutlookEvents(0x0006302B), OutlookEvents(0x0006303A) },
            { { ItemOpen, RefusableHandler(std::move(events.Open)) },
                { ItemWrite, RefusableHandler(std::move(events.Write)) },
                { ItemClose, RefusableHandler(std::move(events.Close)) } });
    }

private:
    /// Those that were asked for, when they are kept.
    Ref<tempodial::UserProperties> mProperties;
};

class ComMailItem final : public ItemAdapter<ComMailItem, MailItem>
{
public:
    using ItemAdapter::ItemAdapter;

    std::string Body() const override { return Get<std::string>("Body"); }
    void SetBody(const std::string& body) override { Put("Body", body); }
    std::string HTMLBody() const override { return Get<std::string>("HTMLBody"); }
    void SetHTMLBody(const std::string& html) override { Put("HTMLBody", html); }
    Ref<tempodial::Attachments> Attachments() override { return Get<Ref<tempodial::Attachments>>("Attachments"); }
    Ref<tempodial::Recipients> Recipients() override { return Get<Ref<tempodial::Recipients>>("Recipients"); }
    void Display() override { Do("Display"); }
};

class ComAttachments final : public Adapter<ComAttachments, Attachments>
{
public:
    using Adapter::Adapter;

    void Add(const std::string& path) override { Do("Add", path, ByValue); }
};

class ComRecipients final : public Adapter<ComRecipients, Recipients>
{
public:
    using Adapter::Adapter;

    void Add(const std::string& address) override { Do("Add", address); }
};

class ComUserProperties final : public Adapter<ComUserProperties, UserProperties>
{
public:
    using Adapter::Adapter;

    Ref<UserProperty> Item(const std::string& name) override
    {
        if (const auto kept = mKept.find(name); kept != mKept.end()) {
            return kept->second;
        }
        // The item's own fields are properties of another kind.
        auto found = Call<Ref<UserProperty>>("Find", name);
        return Kept(name, found ? std::move(found) : Call<Ref<UserProperty>>("Find", name, false));
    }
    Ref<UserProperty> Add(const std::string& name, PropertyType type, bool addToFolderFields) override
    {
        return Kept(name, Call<Ref<UserProperty>>("Add", name, type, addToFolderFields));
    }

private:
    Ref<UserProperty> Kept(const std::string& name, Ref<UserProperty> property)
    {
        if (property && KeptProperties::AreWanted()) {
            mKept.insert_or_assign(name, property);
        }
        return property;
    }

    std::map<std::string, Ref<UserProperty>> mKept;
};

class ComUserProperty final : public Adapter<ComUserProperty, UserProperty>
{
public:
    using Adapter::Adapter;

    std::string Name() const override { return Get<std::string>("Name"); }
    Variant Value() const override { return Get<Variant>("Value"); }
    void SetValue(const Variant& value) override { Put("Value", value); }
};

class ComFormDescription final : public Adapter<ComFormDescription, FormDescription>
{
public:
    using Adapter::Adapter;

    ObjectClass Class() const override { return Get<ObjectClass>("Class"); }
    void SetDisplayName(const std::string& name) override { Put("DisplayName", name); }
    std::string MessageClass() const override { return Get<std::string>("MessageClass"); }
    void PublishForm(FormRegistry registry) override
    {
        // A form is published under its name, which is the last part of its class.
        if (Late().Read("Name").ToText().empty()) {
            const auto messageClass = MessageClass();
            Put("Name", messageClass.substr(messageClass.rfind('.') + 1));
        }
        Do("PublishForm", registry);
    }
};

/// The class of an item, nothing when it can't be read.
std::optional<ObjectClass> ClassOf(const ComRef<IDispatch>& item)
{
    try {
        return ComOtherItem(item).KindNow();
    } catch (const Failure&) {
        return std::nullopt;
    }
}

}

template <> Ref<OutlookItem> Adapted(const ComRef<IDispatch>& object)
{
    if (!object) {
        return nullptr;
    }
    const auto itsClass = ClassOf(object);
    if (itsClass == ObjectClass::Appointment) {
        return MakeRef<ComAppointmentItem>(object);
    }
    if (itsClass == ObjectClass::Mail) {
        return MakeRef<ComMailItem>(object);
    }
    return MakeRef<ComOtherItem>(object);
}

template <> Ref<AppointmentItem> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComAppointmentItem, AppointmentItem>(object);
}

template <> Ref<MailItem> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComMailItem, MailItem>(object);
}

template <> Ref<Attachments> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComAttachments, Attachments>(object);
}

template <> Ref<Recipients> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComRecipients, Recipients>(object);
}

template <> Ref<UserProperties> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComUserProperties, UserProperties>(object);
}

template <> Ref<UserProperty> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComUserProperty, UserProperty>(object);
}

template <> Ref<FormDescription> Adapted(const ComRef<IDispatch>& object)
{
    return AdaptedAs<ComFormDescription, FormDescription>(object);
}

}
