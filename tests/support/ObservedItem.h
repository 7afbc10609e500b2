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
    ObservedUserProperty(Ref<UserProperty> property, ItemObserver observer);

    std::string Name() const override;
    Variant Value() const override;
    void SetValue(const Variant& value) override;

private:
    Ref<UserProperty> mProperty;
    ItemObserver mObserver;
};

/// User properties that tell an observer of their use.
class ObservedUserProperties : public UserProperties
{
public:
    ObservedUserProperties(Ref<UserProperties> properties, ItemObserver observer);

    Ref<UserProperty> Item(const std::string& name) override;
    Ref<UserProperty> Add(const std::string& name, PropertyType type, bool addToFolderFields) override;

private:
    Ref<UserProperty> Observed(const Ref<UserProperty>& property) const;

    Ref<UserProperties> mProperties;
    ItemObserver mObserver;
};

/// An item that tells an observer of each member used, by its name, and passes it on.
class ObservedItem : public AppointmentItem
{
public:
    ObservedItem(Ref<AppointmentItem> item, ItemObserver observer);

    ObjectClass Class() const override;
    std::string MessageClass() const override;
    std::string EntryID() const override;
    std::string Subject() const override;
    void SetSubject(const std::string& subject) override;
    std::string Body() const override;
    void SetBody(const std::string& body) override;
    Date Start() const override;
    void SetStart(Date start) override;
    Date End() const override;
    void SetEnd(Date end) override;
    std::int32_t Duration() const override;
    void SetDuration(std::int32_t minutes) override;
    std::string Mileage() const override;
    void SetMileage(const std::string& mileage) override;
    std::string BillingInformation() const override;
    void SetBillingInformation(const std::string& text) override;
    bool IsRecurring() const override;
    Ref<MAPIFolder> Parent() override;
    Ref<tempodial::UserProperties> UserProperties() override;
    Ref<tempodial::FormDescription> FormDescription() override;
    void Save() override;
    void Close(CloseMode mode) override;
    void Display() override;
    void Delete() override;
    Ref<AppointmentItem> Copy() override;
    Ref<AppointmentItem> Move(const Ref<MAPIFolder>& folder) override;
    Subscription Subscribe(AppointmentItemEvents events) override;

private:
    const Ref<AppointmentItem>& Told(const char* member) const;

    Ref<AppointmentItem> mItem;
    ItemObserver mObserver;
};

}
