#include "host/store/FilterFields.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <array>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

struct StandardField
{
    std::string_view name;
    FilterField::Type type;
    std::string_view sql;
};

constexpr std::array<StandardField, 8> StandardFields { {
    { "Start", FilterField::Type::Date, FilterFields::StartSql },
    { "End", FilterField::Type::Date, FilterFields::EndSql },
    { "Duration", FilterField::Type::Number, "(minute_of(item.ends) - minute_of(item.starts))" },
    { "Subject", FilterField::Type::Text, "item.subject" },
    { "MessageClass", FilterField::Type::Text, "item.message_class" },
    { "Mileage", FilterField::Type::Text, "item.mileage" },
    { "BillingInformation", FilterField::Type::Text, "item.billing" },
    { "IsRecurring", FilterField::Type::Boolean, "item.recurring" },
} };

FilterField::Type TypeOf(PropertyType type)
{
    switch (type) {
    case PropertyType::DateTime:
        return FilterField::Type::Date;
    case PropertyType::YesNo:
        return FilterField::Type::Boolean;
    case PropertyType::Text:
        break;
    }
    return FilterField::Type::Text;
}

}

FilterFields::FilterFields(std::vector<ItemProperty> folderFields)
    : mFolderFields(std::move(folderFields))
{
}

FilterField FilterFields::Field(const std::string& name) const
{
    for (const auto& field : StandardFields) {
        if (EqualIgnoringCase(field.name, name)) {
            return { field.type, std::string(field.sql), std::nullopt };
        }
    }
    const auto* known = FindProperty(mFolderFields, name);
    if (known == nullptr) {
        throw Failure(Error::InvalidCall, "The folder knows no property \"" + name + "\"");
    }
    return { TypeOf(known->type), "item_property(item.properties, ?)", known->name };
}

}
