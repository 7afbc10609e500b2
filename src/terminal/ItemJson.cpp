#include "terminal/ItemJson.h"

#include "terminal/Arguments.h"

#include <array>

namespace tempodial {

namespace {

constexpr std::array<const char*, 8> PropertyNames { "Type", "Day", "StartTime", "Project", "Description", "People",
    "Keyword", "ApplyPast" };

nlohmann::ordered_json ValueJson(const Variant& value)
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

nlohmann::ordered_json ItemJson(const Ref<AppointmentItem>& item)
{
    nlohmann::ordered_json json;
    json["entryId"] = item->EntryID();
    json["messageClass"] = item->MessageClass();
    json["subject"] = item->Subject();
    json["start"] = IsoMoment(item->Start());
    json["end"] = IsoMoment(item->End());
    json["duration"] = item->Duration();
    json["body"] = item->Body();
    json["mileage"] = item->Mileage();
    json["billingInformation"] = item->BillingInformation();
    auto& properties = json["properties"] = nlohmann::ordered_json::object();
    const auto userProperties = item->UserProperties();
    for (const auto* name : PropertyNames) {
        const auto property = userProperties->Item(name);
        const auto value = property ? property->Value() : Variant();
        if (!value.IsEmpty()) {
            properties[name] = ValueJson(value);
        }
    }
    return json;
}

}
