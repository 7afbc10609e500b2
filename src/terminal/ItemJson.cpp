#include "terminal/ItemJson.h"

#include "host/store/StoreItem.h"
#include "terminal/Arguments.h"

#include <array>
#include <utility>

namespace tempodial {

namespace {

constexpr std::array<const char*, 8> PropertyNames { "Type", "Day", "StartTime", "Project", "Description", "People",
    "Keyword", "ApplyPast" };

JsonValue ValueJson(const Variant& value)
{
    if (const auto* date = value.If<Date>()) {
        return IsoMoment(*date);
    }
    if (const auto* flag = value.If<bool>()) {
        return *flag;
    }
    if (const auto* number = value.If<std::int32_t>()) {
        return *number;
    }
    return value.ToText();
}

}

JsonValue ItemJson(const Ref<AppointmentItem>& item)
{
    auto properties = JsonValue::Object();
    const auto userProperties = item->UserProperties();
    for (const auto* name : PropertyNames) {
        const auto property = userProperties->Item(name);
        const auto value = property ? property->Value() : Variant();
        if (!value.IsEmpty()) {
            properties.Set(name, ValueJson(value));
        }
    }
    const auto stored = item.As<StoreItem>();
    const auto number = stored ? stored->Number() : 0;
    return { { "id", number == 0 ? JsonValue() : JsonValue(number) }, { "entryId", item->EntryID() },
        { "messageClass", item->MessageClass() }, { "subject", item->Subject() }, { "start", IsoMoment(item->Start()) },
        { "end", IsoMoment(item->End()) }, { "duration", item->Duration() }, { "body", item->Body() },
        { "mileage", item->Mileage() }, { "billingInformation", item->BillingInformation() },
        { "properties", std::move(properties) } };
}

}
