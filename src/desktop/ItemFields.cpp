#include "desktop/ItemFields.h"

#include "base/Failure.h"
#include "desktop/FieldNames.h"
#include "host/store/StoreItem.h"
#include "review/ActivityReader.h"

namespace tempodial {

Variant ItemFields::operator()(const Activity& activity, const std::string& field)
{
    if (!mItem || mItem->Number() != activity.number) {
        try {
            mItem = ItemNumbered(mProfile, activity.number);
        } catch (const Failure& failure) {
            if (failure.Number() != static_cast<std::int32_t>(Error::ObjectNotFound)) {
                throw;
            }
            return {};
        }
    }
    const auto* before = mItem->DataBefore();
    const auto& data = before == nullptr ? mItem->Data() : *before;
    if (field == SubjectField) {
        return data.subject;
    }
    const auto* property = FindProperty(data.properties, field);
    return property == nullptr ? Variant() : property->value;
}

}
