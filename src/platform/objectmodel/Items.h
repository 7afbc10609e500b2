#pragma once

#include "platform/objectmodel/AppointmentItem.h"

#include <cstdint>
#include <functional>
#include <string>

namespace tempodial {

/// What happens to a collection of items.
struct ItemsEvents
{
    std::function<void(const Ref<OutlookItem>& item)> ItemAdd;
};

/// The items of a folder, or a fixed subset of them.
class Items
{
public:
    using Events = ItemsEvents;

    virtual ~Items() = default;

    virtual std::int32_t Count() = 0;
    /// The item at a position from 1; out of range fails (9).
    virtual Ref<OutlookItem> Item(std::int32_t index) = 0;
    /// A new unsaved item of a message class in this folder; without a published form of that class it is of the class
    /// that the form would derive from.
    virtual Ref<AppointmentItem> Add(const std::string& messageClass) = 0;
    /// The items that a filter lets through, as they are now; a filter that can't be read fails.
    virtual Ref<Items> Restrict(const std::string& filter) = 0;
    /// The first item that a filter lets through, nothing when there is none; a filter that can't be read fails.
    virtual Ref<OutlookItem> Find(const std::string& filter) = 0;
    /// Orders this collection by a property in square brackets.
    virtual void Sort(const std::string& property, bool descending) = 0;

    /// Subscribes to the items that arrive in the folder.
    virtual Subscription Subscribe(ItemsEvents events) = 0;
};

}
