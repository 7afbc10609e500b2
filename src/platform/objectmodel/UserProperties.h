#pragma once

#include "base/Ref.h"
#include "base/Variant.h"

#include <cstdint>
#include <string>

namespace tempodial {

/// Outlook's numbers for the types of user properties.
enum class PropertyType : std::int32_t { Text = 1, DateTime = 5, YesNo = 6 };

/// One user property of an item.
class UserProperty
{
public:
    virtual ~UserProperty() = default;

    virtual std::string Name() const = 0;
    /// The value; nothing when it was never set.
    virtual Variant Value() const = 0;
    /// Sets the value, converted to the property's type; one that can't be converted fails (13).
    virtual void SetValue(const Variant& value) = 0;
};

/// The user properties of an item. "Start" and "Duration" are answered with the item's own values.
class UserProperties
{
public:
    virtual ~UserProperties() = default;

    /// The property of that name, case ignored; nothing when the item has none.
    virtual Ref<UserProperty> Item(const std::string& name) = 0;
    /// Adds a property, and to the folder's fields when asked; answers the property of that name when it exists with
    /// that type, and fails (5) when it exists with another or the name isn't allowed.
    virtual Ref<UserProperty> Add(const std::string& name, PropertyType type, bool addToFolderFields) = 0;
};

}
