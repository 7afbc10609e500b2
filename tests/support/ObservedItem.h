#pragma once

#include "platform/objectmodel/AppointmentItem.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>

namespace tempodial {

/// Told of each member of an item that is about to be used; what it throws, the member fails with.
using ItemObserver = std::function<void(const std::string& member)>;

/// A user property that tells an observer of its use.
class ObservedUserProperty : public UserProperty
{
public:
    ObservedUserProperty(Ref<UserProperty> property, ItemObserver observer)
        : mProperty(std::move(property))
        , mObserver(std::move(observer))
    {
    }

    std::string Name() const override { return mProperty->Name(); }
    Variant Value() const override
    {
        mObserver("Value of " + Name());
        return mProperty->Value();
    }
    void SetValue(const Variant& value) override
    {
        mObserver("SetValue of " + Name());
        mProperty->SetValue(value);
    }

private:
    Ref<UserProperty> mProperty;
    ItemObserver mObserver;
};

/// User properties that tell an observer of their use.
class ObservedUserProperties : public UserProperties
{
public:
    ObservedUserProperties(Ref<UserProperties> properties, ItemObserver observer)
        : mProperties(std::move(properties))
        , mObserver(std::move(observer))
    {
    }

    Ref<UserProperty> Item(const std::string& name) override
    {
        mObserver("Item " + name);
        return Observed(mProperties->Item(name));
    }
    Ref<UserProperty> Add(const std::string& name, PropertyType type, bool addToFolderFields) override
    {
        mObserver("Add " + name);
        return Observed(mProperties->Add(name, type, addToFolderFields));
    }

private:
    Ref<UserProperty> Observed(const Ref<UserProperty>& property) const
    {
        return property ? MakeRef<ObservedUserProperty>(property, mObserver) : nullptr;
    }

    Ref<UserProperties> mProperties;
    ItemObserver mObserver;
};

/// An item that tells an observer of each member used, by its name, and passes it on.
class ObservedItem : public AppointmentItem
{
public:
    ObservedItem(Ref<AppointmentItem> item, ItemObserver observer)
        : mItem(std::move(item))
        , mObserver(std::move(observer))
    {
    }

    ObjectClass Class() const override { return Told("Class")->Class(); }
    std::string MessageClass() const override { return Told("MessageClass")->MessageClass(); }
    std::string EntryID() const override { return Told("EntryID")->EntryID(); }
    std::string Subject() const override { return Told("Subject")->Subject(); }
    void SetSubject(const std::string& subject) override { Told("SetSubject")->SetSubject(subject); }
    std::string Body() const override { return Told("Body")->Body(); }
    void SetBody(const std::string& body) override { Told("SetBody")->SetBody(body); }
    Date Start() const override { return Told("Start")->Start(); }
    void SetStart(Date start) override { Told("SetStart")->SetStart(start); }
    Date End() const override { return Told("End")->End(); }
    void SetEnd(Date end) override { Told("SetEnd")->SetEnd(end); }
    std::int32_t Duration() const override { return Told("Duration")->Duration(); }
    void SetDuration(std::int32_t minutes) override { Told("SetDuration")->SetDuration(minutes); }
    std::string Mileage() const override { return Told("Mileage")->Mileage(); }
    void SetMileage(const std::string& mileage) override { Told("SetMileage")->SetMileage(mileage); }
    std::string BillingInformation() const override { return Told("BillingInformation")->BillingInformation(); }
    void SetBillingInformation(const std::string& text) override
    {
        Told("SetBillingInformation")->SetBillingInformation(text);
    }
    bool IsRecurring() const override { return Told("IsRecurring")->IsRecurring(); }
    Ref<MAPIFolder> Parent() override { return Told("Parent")->Parent(); }
    Ref<tempodial::UserProperties> UserProperties() override
    {
        return MakeRef<ObservedUserProperties>(Told("UserProperties")->UserProperties(), mObserver);
    }
    Ref<tempodial::FormDescription> FormDescription() override { return Told("FormDescription")->FormDescription(); }
    void Save() override { Told("Save")->Save(); }
    void Close(CloseMode mode) override { Told("Close")->Close(mode); }
    void Display() override { Told("Display")->Display(); }
    void Delete() override { Told("Delete")->Delete(); }
    Ref<AppointmentItem> Copy() override { return Told("Copy")->Copy(); }
    Ref<AppointmentItem> Move(const Ref<MAPIFolder>& folder) override { return Told("Move")->Move(folder); }
    Subscription Subscribe(AppointmentItemEvents events) override { return mItem->Subscribe(std::move(events)); }

private:
    const Ref<AppointmentItem>& Told(const char* member) const
    {
        mObserver(member);
        return mItem;
    }

    Ref<AppointmentItem> mItem;
    ItemObserver mObserver;
};

}
