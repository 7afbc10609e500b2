#include "terminal/ItemJson.h"

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

JsonValue ItemJson(std::int64_t number, const Ref<AppointmentItem>& item)
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
    return { { "id", number }, { "entryId", item->EntryID() }, { "messageClass", item->MessageClass() },
        { "subject", item->Subject() }, { "start", IsoMoment(item->Start()) }, { "end", IsoMoment(item->End()) },
        { "duration", item->Duration() }, { "body", item->Body() }, { "mileage", item->Mileage() },
        { "billingInformation", item->BillingInformation() }, { "properties", std::move(properties) } };
}

}
