#include "base/Variant.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "base/Text.h"

namespace tempodial {

std::string Variant::ToText() const
{
    if (IsEmpty()) {
        return {};
    }
    if (const auto* text = If<std::string>()) {
        return *text;
    }
    if (const auto* number = If<std::int32_t>()) {
        return std::to_string(*number);
    }
    if (const auto* value = If<bool>()) {
        return std::string(BooleanText(*value));
    }
    throw Failure(Error::TypeMismatch);
}

std::int32_t Variant::ToInt32() const
{
    if (IsEmpty()) {
        return 0;
    }
    if (const auto* text = If<std::string>()) {
        return tempodial::ToInt32(*text);
    }
    if (const auto* number = If<std::int32_t>()) {
        return *number;
    }
    if (const auto* value = If<bool>()) {
        return *value ? -1 : 0;
    }
    throw Failure(Error::TypeMismatch);
}

bool Variant::ToBoolean() const
{
    if (IsEmpty()) {
        return false;
    }
    if (const auto* value = If<bool>()) {
        return *value;
    }
    if (const auto* number = If<std::int32_t>()) {
        return *number != 0;
    }
    if (const auto* text = If<std::string>()) {
        for (const bool value : { true, false }) {
            if (EqualIgnoringCase(*text, BooleanText(value))) {
                return value;
            }
        }
    }
    throw Failure(Error::TypeMismatch);
}

Date Variant::ToDate() const
{
    if (IsEmpty()) {
        return {};
    }
    if (const auto* date = If<Date>()) {
        return *date;
    }
    throw Failure(Error::TypeMismatch);
}

}
