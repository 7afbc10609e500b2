#include "host/store/StoreBuiltInProperty.h"

#include "host/store/StoreItem.h"
#include "platform/system/LocaleFormats.h"

#include <utility>

namespace tempodial {

StoreBuiltInProperty::StoreBuiltInProperty(Ref<StoreItem> item, std::string_view name)
    : mItem(std::move(item))
    , mName(name)
{
}

std::string StoreBuiltInProperty::Name() const
{
    return std::string(mName);
}

Variant StoreBuiltInProperty::Value() const
{
    if (mName == StartName) {
        return mItem->Start();
    }
    if (mName == ProjectByHandName) {
        return mItem->IsProjectByHand();
    }
    return mItem->Duration();
}

void StoreBuiltInProperty::SetValue(const Variant& value)
{
    if (mName == DurationName) {
        mItem->SetDuration(value.ToInt32());
    } else if (mName == ProjectByHandName) {
        mItem->SetProjectByHand(value.ToBoolean());
    } else if (const auto* text = value.If<std::string>()) {
        mItem->SetStart(mItem->Formats().Parse(*text));
    } else {
        mItem->SetStart(value.ToDate());
    }
}

}
