#include "driver/remote/FaceCall.h"

#include <limits>

namespace tempodial {

namespace {

const WireValue& OfKind(WireKind kind, const WireValue& value)
{
    if (value.kind != kind) {
        throw Failure(Error::TypeMismatch);
    }
    return value;
}

}

const WireValue& FaceCall::At(std::size_t position) const
{
    static const auto missing = WireValue::Missing();
    return position < mArguments.size() ? mArguments[position] : missing;
}

WireValue FaceCall::Give(const Variant& value) const
{
    if (const auto* text = value.If<std::string>()) {
        return Give(*text);
    }
    if (const auto* number = value.If<std::int32_t>()) {
        return Give(*number);
    }
    if (const auto* moment = value.If<Date>()) {
        return Give(*moment);
    }
    if (const auto* flag = value.If<bool>()) {
        return Give(*flag);
    }
    return {};
}

std::int32_t FaceCall::Conversion<std::int32_t>::From(const WireValue& value, const FaceObjects&)
{
    const auto number = OfKind(WireKind::Number, value).number;
    if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max()) {
        throw Failure(Error::Overflow);
    }
    return static_cast<std::int32_t>(number);
}

bool FaceCall::Conversion<bool>::From(const WireValue& value, const FaceObjects&)
{
    return OfKind(WireKind::Flag, value).number != 0;
}

std::string FaceCall::Conversion<std::string>::From(const WireValue& value, const FaceObjects&)
{
    return OfKind(WireKind::Text, value).text;
}

Date FaceCall::Conversion<Date>::From(const WireValue& value, const FaceObjects&)
{
    return Date::FromSeconds(OfKind(WireKind::Moment, value).number);
}

Variant FaceCall::Conversion<Variant>::From(const WireValue& value, const FaceObjects& objects)
{
    switch (value.kind) {
    case WireKind::Nothing:
    case WireKind::Null:
        return {};
    case WireKind::Flag:
        return Conversion<bool>::From(value, objects);
    case WireKind::Number:
        return Conversion<std::int32_t>::From(value, objects);
    case WireKind::Moment:
        return Conversion<Date>::From(value, objects);
    default:
        return Conversion<std::string>::From(value, objects);
    }
}

std::vector<std::string> FaceCall::Conversion<std::vector<std::string>>::From(
    const WireValue& value, const FaceObjects& objects)
{
    std::vector<std::string> texts;
    for (const auto& element : OfKind(WireKind::List, value).list) {
        texts.push_back(Conversion<std::string>::From(element, objects));
    }
    return texts;
}

}
