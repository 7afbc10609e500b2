#pragma once

#include "base/Date.h"
#include "base/Variant.h"
#include "platform/objectmodel/OutlookItem.h"
#include "platform/objectmodel/UserProperties.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tempodial {

/// A user property as an item or a form holds it; the value is nothing until it is set.
struct ItemProperty
{
    std::string name;
    PropertyType type = PropertyType::Text;
    Variant value;

    friend bool operator==(const ItemProperty&, const ItemProperty&) = default;
};

/// The property of that name, case ignored; null when there is none.
const ItemProperty* FindProperty(const std::vector<ItemProperty>& properties, std::string_view name);

/// What an item holds.
struct ItemData
{
    ObjectClass kind = ObjectClass::Appointment;
    std::string messageClass;
    std::string subject;
    Date start;
    Date end;
    std::string body;
    std::string mileage;
    std::string billingInformation;
    bool recurring = false;
    /// A person chose the project.
    bool isProjectByHand = false;
    std::vector<ItemProperty> properties;

    friend bool operator==(const ItemData&, const ItemData&) = default;
};

/// An item as the mailbox holds it.
struct StoredItem
{
    /// Its row; 0 for an item that isn't stored.
    std::int64_t row = 0;
    /// The row of its folder.
    std::int64_t folder = 0;
    ItemData data;
    /// When it was last saved, in UTC; nothing when that isn't known.
    std::optional<Date> saved = std::nullopt;
};

}
