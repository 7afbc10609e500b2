#include "support/ObservedItem.h"

namespace tempodial {

ObservedUserProperty::ObservedUserProperty(Ref<UserProperty> property, ItemObserver observer)
    : mProperty(std::move(property))
    , mObserver(std::move(observer))
{
}

std::string ObservedUserProperty::Name() const
{
    return mProperty->Name();
}

Variant ObservedUserProperty::Value() const
{
    mObserver("Value of " + Name());
    return mProperty->Value();
}

void ObservedUserProperty::SetValue(const Variant& value)
{
    mObserver("SetValue of " + Name());
    mProperty->SetValue(value);
}

ObservedUserProperties::ObservedUserProperties(Ref<UserProperties> properties, ItemObserver observer)
    : mProperties(std::move(properties))
    , mObserver(std::move(observer))
{
}

Ref<UserProperty> ObservedUserProperties::Item(const std::string& name)
{
    mObserver("Item " + name);
    return Observed(mProperties->Item(name));
}

Ref<UserProperty> ObservedUserProperties::Add(const std::string& name, PropertyType type, bool addToFolderFields)
{
    mObserver("Add " + name);
    return Observed(mProperties->Add(name, type, addToFolderFields));
}

Ref<UserProperty> ObservedUserProperties::Observed(const Ref<UserProperty>& property) const
{
    return property ? MakeRef<ObservedUserProperty>(property, mObserver) : nullptr;
}

ObservedItem::ObservedItem(Ref<AppointmentItem> item, ItemObserver observer)
    : mItem(std::move(item))
    , mObserver(std::move(observer))
{
}

ObjectClass ObservedItem::Class() const
{
    return Told("Class")->Class();
}

std::string ObservedItem::MessageClass() const
{
    return Told("MessageClass")->MessageClass();
}

std::string ObservedItem::EntryID() const
{
    return Told("EntryID")->EntryID();
}

std::string ObservedItem::Subject() const
{
    return Told("Subject")->Subject();
}

void ObservedItem::SetSubject(const std::string& subject)
{
    Told("SetSubject")->SetSubject(subject);
}

std::string ObservedItem::Body() const
{
    return Told("Body")->Body();
}

void ObservedItem::SetBody(const std::string& body)
{
    Told("SetBody")->SetBody(body);
}

Date ObservedItem::Start() const
{
    return Told("Start")->Start();
}

void ObservedItem::SetStart(Date start)
{
    Told("SetStart")->SetStart(start);
}

Date ObservedItem::End() const
{
    return Told("End")->End();
}

void ObservedItem::SetEnd(Date end)
{
    Told("SetEnd")->SetEnd(end);
}

std::int32_t ObservedItem::Duration() const
{
    return Told("Duration")->Duration();
}

void ObservedItem::SetDuration(std::int32_t minutes)
{
    Told("SetDuration")->SetDuration(minutes);
}

std::string ObservedItem::Mileage() const
{
    return Told("Mileage")->Mileage();
}

void ObservedItem::SetMileage(const std::string& mileage)
{
    Told("SetMileage")->SetMileage(mileage);
}

std::string ObservedItem::BillingInformation() const
{
    return Told("BillingInformation")->BillingInformation();
}

void ObservedItem::SetBillingInformation(const std::string& text)
{
    Told("SetBillingInformation")->SetBillingInformation(text);
}

bool ObservedItem::IsRecurring() const
{
    return Told("IsRecurring")->IsRecurring();
}

Ref<MAPIFolder> ObservedItem::Parent()
{
    return Told("Parent")->Parent();
}

Ref<tempodial::UserProperties> ObservedItem::UserProperties()
{
    return MakeRef<ObservedUserProperties>(Told("UserProperties")->UserProperties(), mObserver);
}

Ref<tempodial::FormDescription> ObservedItem::FormDescription()
{
    return Told("FormDescription")->FormDescription();
}

void ObservedItem::Save()
{
    Told("Save")->Save();
}

void ObservedItem::Close(CloseMode mode)
{
    Told("Close")->Close(mode);
}

void ObservedItem::Display()
{
    Told("Display")->Display();
}

void ObservedItem::Delete()
{
    Told("Delete")->Delete();
}

Ref<AppointmentItem> ObservedItem::Copy()
{
    return Told("Copy")->Copy();
}

Ref<AppointmentItem> ObservedItem::Move(const Ref<MAPIFolder>& folder)
{
    return Told("Move")->Move(folder);
}

Subscription ObservedItem::Subscribe(AppointmentItemEvents events)
{
    return mItem->Subscribe(std::move(events));
}

const Ref<AppointmentItem>& ObservedItem::Told(const char* member) const
{
    mObserver(member);
    return mItem;
}

}
