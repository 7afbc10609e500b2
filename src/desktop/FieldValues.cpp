#include "desktop/FieldValues.h"

#include "base/Text.h"
#include "desktop/DesktopStrings.h"
#include "desktop/FieldNames.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tempodial {

namespace {

constexpr std::array TitleFields { SubjectField, DescriptionField, PeopleField, KeywordField };

template <class Value> int Ordered(const Value& one, const Value& other)
{
    return one < other ? -1 : static_cast<int>(other < one);
}

}

FieldValues::FieldValues(Ref<LocaleFormats> formats, PropertyReader reader, Titles titles)
    : mFormats(std::move(formats))
    , mReader(std::move(reader))
    , mTitles(titles)
{
}

bool FieldValues::IsHidden(std::string_view field) const
{
    return mTitles == Titles::Hidden && std::find(TitleFields.begin(), TitleFields.end(), field) != TitleFields.end();
}

Variant FieldValues::ValueOf(const Activity& activity, const std::string& field) const
{
    if (IsHidden(field)) {
        return {};
    }
    if (field == ProjectField) {
        return ProjectNameOf(activity);
    }
    if (field == ApplicationField) {
        return activity.type;
    }
    if (field == DescriptionField) {
        return activity.description;
    }
    if (field == PeopleField) {
        return activity.people;
    }
    if (field == DurationField) {
        return activity.duration;
    }
    if (field == StartField) {
        return activity.start;
    }
    return field == EndField ? Variant(activity.end) : mReader(activity, field);
}

std::string FieldValues::TextOf(const Activity& activity, const std::string& field) const
{
    const auto value = ValueOf(activity, field);
    if (const auto* date = value.If<Date>()) {
        return mFormats->General(*date);
    }
    if (const auto* flag = value.If<bool>()) {
        return *flag ? YesText : NoText;
    }
    return field == DurationField ? LengthText(value.ToInt32()) : value.ToText();
}

int FieldValues::Compare(const Variant& one, const Variant& other)
{
    if (one.IsEmpty() || other.IsEmpty()) {
        return Ordered(!one.IsEmpty(), !other.IsEmpty());
    }
    if (const auto* date = one.If<Date>(), *otherDate = other.If<Date>(); date != nullptr && otherDate != nullptr) {
        return Ordered(*date, *otherDate);
    }
    if (const auto* number = one.If<std::int32_t>(), *otherNumber = other.If<std::int32_t>();
        number != nullptr && otherNumber != nullptr) {
        return Ordered(*number, *otherNumber);
    }
    if (const auto* flag = one.If<bool>(), *otherFlag = other.If<bool>(); flag != nullptr && otherFlag != nullptr) {
        return Ordered(*flag, *otherFlag);
    }
    if (const auto* text = one.If<std::string>(), *otherText = other.If<std::string>();
        text != nullptr && otherText != nullptr) {
        return CompareIgnoringCase(*text, *otherText);
    }
    return 0;
}

}
