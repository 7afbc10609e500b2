#include "host/store/StoreUserProperties.h"

#include "base/Failure.h"
#include "base/Text.h"
#include "host/store/MailboxStore.h"
#include "host/store/StoreBuiltInProperty.h"
#include "host/store/StoreItem.h"
#include "host/store/StoreUserProperty.h"

#include <utility>

namespace tempodial {

namespace {

constexpr std::int32_t LongestName = 64;

}

StoreUserProperties::StoreUserProperties(Ref<StoreItem> item)
    : mItem(std::move(item))
{
}

Ref<UserProperty> StoreUserProperties::Item(const std::string& name)
{
    if (const auto* property = FindProperty(mItem->Data().properties, name)) {
        return MakeRef<StoreUserProperty>(mItem, property->name);
    }
    for (const auto builtIn : { StoreBuiltInProperty::StartName, StoreBuiltInProperty::DurationName }) {
        if (EqualIgnoringCase(name, builtIn)) {
            return MakeRef<StoreBuiltInProperty>(mItem, builtIn);
        }
    }
    // Otherwise this is a host that has no such mark.
    if (EqualIgnoringCase(name, StoreBuiltInProperty::ProjectByHandName) && mItem->IsProjectByHand()
        && mItem->Owner()->AreChoicesShown()) {
        return MakeRef<StoreBuiltInProperty>(mItem, StoreBuiltInProperty::ProjectByHandName);
    }
    return nullptr;
}

Ref<UserProperty> StoreUserProperties::Add(const std::string& name, PropertyType type, bool addToFolderFields)
{
    const auto& known = mItem->Data().properties;
    const auto* property = FindProperty(known, name);
    if (property != nullptr && property->type != type) {
        throw Failure(Error::InvalidCall, "The item has a property \"" + name + "\" of another type");
    }
    if (property == nullptr) {
        if (Trim(name).empty() || Length(name) > LongestName || name.find_first_of("[]_#") != std::string::npos
            || Item(name)) {
            throw Failure(Error::InvalidCall, "A property can't be named \"" + name + "\"");
        }
    }
    if (addToFolderFields) {
        mItem->Owner()->Tree().AddField(mItem->FolderRow(), name, type);
    }
    if (property == nullptr) {
        mItem->Change([&](ItemData& data) { data.properties.push_back({ name, type, {} }); });
    }
    return Item(name);
}

}
