#include "host/store/StoreUserProperty.h"

#include "base/Failure.h"
#include "host/store/StoreItem.h"
#include "platform/system/LocaleFormats.h"

#include <utility>

namespace tempodial {

namespace {

const ItemProperty& Get(const StoreItem& item, const std::string& name)
{
    const auto* property = FindProperty(item.Data().properties, name);
    if (property == nullptr) {
        throw Failure(Error::ObjectNotFound);
    }
    return *property;
}

Variant Converted(const Variant& value, PropertyType type, LocaleFormats& formats)
{
    switch (type) {
    case PropertyType::Text:
        return value.If<Date>() != nullptr ? formats.General(*value.If<Date>()) : value.ToText();
    case PropertyType::DateTime:
        return value.If<std::string>() != nullptr ? formats.Parse(*value.If<std::string>()) : value.ToDate();
    case PropertyType::YesNo:
        break;
    }
    return value.ToBoolean();
}

}

StoreUserProperty::StoreUserProperty(Ref<StoreItem> item, std::string name)
    : mItem(std::move(item))
    , mName(std::move(name))
{
}

std::string StoreUserProperty::Name() const
{
    return mName;
}

Variant StoreUserProperty::Value() const
{
    return Get(*mItem, mName).value;
}

void StoreUserProperty::SetValue(const Variant& value)
{
    const auto& property = Get(*mItem, mName);
    auto converted = Converted(value, property.type, mItem->Formats());
    mItem->Change([&](const ItemData&) { const_cast<ItemProperty&>(property).value = std::move(converted); });
}

}
