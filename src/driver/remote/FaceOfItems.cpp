#include "driver/remote/FaceMembers.h"
#include "driver/remote/WindowsPath.h"
#include "platform/objectmodel/AppointmentItem.h"
#include "platform/objectmodel/FormDescription.h"
#include "platform/objectmodel/MAPIFolder.h"
#include "platform/objectmodel/MailItem.h"
#include "platform/objectmodel/UserProperties.h"

namespace tempodial {

namespace {

constexpr std::int32_t WriteEvent = 0xF002;
constexpr std::int32_t OpenEvent = 0xF003;
constexpr std::int32_t CloseEvent = 0xF004;

/// What an attachment is added as: a copy.
constexpr std::int32_t AttachmentByValue = 1;

/// The members of items of all kinds, together with those of one kind.
template <class Interface>
std::map<std::string_view, typename FaceClass<Interface>::Member> WithItemMembers(
    std::map<std::string_view, typename FaceClass<Interface>::Member> members)
{
    using Members = FaceMembers<Interface>;
    members["Class"] = Members::Kind(&Interface::Class);
    members["MessageClass"] = Members::Property(&Interface::MessageClass);
    members["EntryID"] = Members::Property(&Interface::EntryID);
    members["Subject"] = Members::Property(&Interface::Subject, &Interface::SetSubject);
    return members;
}

WireValue AddAttachment(Attachments& attachments, const FaceCall& call)
{
    if (call.Take<std::int32_t>(1) != AttachmentByValue) {
        throw Failure(Error::InvalidCall);
    }
    attachments.Add(FromWindowsPath(call.Take<std::string>(0)));
    return {};
}

WireValue FindCustomProperty(UserProperties& properties, const FaceCall& call)
{
    // The host finds the item's own fields with the others, so none is left to be found by themselves.
    const bool custom = call.Take<std::optional<bool>>(1).value_or(true);
    return call.Give(custom ? properties.Item(call.Take<std::string>(0)) : Ref<UserProperty>());
}

/// The name of a form is the last part of its class; the host knows it already.
WireValue FormName(FormDescription& form, const FaceCall& call)
{
    if (!call.IsOwnRead()) {
        FaceMembers<FormDescription>::RefuseForm();
    }
    const auto messageClass = FaceMembers<FormDescription>::Behind(form).MessageClass();
    return call.Give(messageClass.substr(messageClass.rfind('.') + 1));
}

}

template <> const FaceClass<OutlookItem>& FaceOf()
{
    static const FaceClass<OutlookItem> face { "OutlookItem", WithItemMembers<OutlookItem>({}) };
    return face;
}

template <> const FaceClass<AppointmentItem>& FaceOf()
{
    using Item = AppointmentItem;
    using Members = FaceMembers<Item>;
    static const FaceClass<Item> face { "AppointmentItem",
        WithItemMembers<Item>({ { "Body", Members::Property(&Item::Body, &Item::SetBody) },
            { "Start", Members::Property(&Item::Start, &Item::SetStart) },
            { "End", Members::Property(&Item::End, &Item::SetEnd) },
            { "Duration", Members::Property(&Item::Duration, &Item::SetDuration) },
            { "Mileage", Members::Property(&Item::Mileage, &Item::SetMileage) },
            { "BillingInformation", Members::Property(&Item::BillingInformation, &Item::SetBillingInformation) },
            { "IsRecurring", Members::Property(&Item::IsRecurring) }, { "Parent", Members::Property(&Item::Parent) },
            { "UserProperties", Members::Property(&Item::UserProperties) },
            { "FormDescription", Members::Property(&Item::FormDescription) }, { "Save", Members::Method(&Item::Save) },
            { "Close", Members::Method(&Item::Close) }, { "Display", Members::Method(&Item::Display) },
            { "Delete", Members::Method(&Item::Delete) }, { "Copy", Members::Method(&Item::Copy) },
            { "Move", Members::Method(&Item::Move) } }),
        [](const Ref<Item>& item, const FaceRaiser& raise) {
            const auto asking = [&raise](std::int32_t event) {
                return [raise, event](bool& cancel) { cancel = raise.Refused(event) || cancel; };
            };
            return item->Subscribe(
                { .Open = asking(OpenEvent), .Write = asking(WriteEvent), .Close = asking(CloseEvent) });
        } };
    return face;
}

template <> const FaceClass<MailItem>& FaceOf()
{
    using Members = FaceMembers<MailItem>;
    static const FaceClass<MailItem> face { "MailItem",
        WithItemMembers<MailItem>({ { "Body", Members::Property(&MailItem::Body, &MailItem::SetBody) },
            { "HTMLBody", Members::Property(&MailItem::HTMLBody, &MailItem::SetHTMLBody) },
            { "Attachments", Members::Property(&MailItem::Attachments) },
            { "Recipients", Members::Property(&MailItem::Recipients) },
            { "Display", Members::Method(&MailItem::Display) } }) };
    return face;
}

template <> const FaceClass<Attachments>& FaceOf()
{
    static const FaceClass<Attachments> face { "Attachments", { { "Add", AddAttachment } } };
    return face;
}

template <> const FaceClass<Recipients>& FaceOf()
{
    static const FaceClass<Recipients> face { "Recipients",
        { { "Add", FaceMembers<Recipients>::Method(&Recipients::Add) } } };
    return face;
}

template <> const FaceClass<UserProperties>& FaceOf()
{
    static const FaceClass<UserProperties> face { "UserProperties",
        { { "Find", FindCustomProperty }, { "Add", FaceMembers<UserProperties>::Method(&UserProperties::Add) } } };
    return face;
}

template <> const FaceClass<UserProperty>& FaceOf()
{
    using Members = FaceMembers<UserProperty>;
    static const FaceClass<UserProperty> face { "UserProperty",
        { { "Name", Members::Property(&UserProperty::Name) },
            { "Value", Members::Property(&UserProperty::Value, &UserProperty::SetValue) } } };
    return face;
}

template <> const FaceClass<FormDescription>& FaceOf()
{
    using Members = FaceMembers<FormDescription>;
    static const FaceClass<FormDescription> face { "FormDescription",
        { { "Class", Members::Property(&FormDescription::Class) }, { "Name", FormName },
            { "MessageClass", Members::Property(&FormDescription::MessageClass) },
            { "DisplayName", Members::PutOnly(&FormDescription::SetDisplayName) },
            { "PublishForm", Members::Method(&FormDescription::PublishForm) } } };
    return face;
}

}
