#pragma once

#include "base/Date.h"
#include "base/Failure.h"
#include "base/Variant.h"
#include "driver/remote/FaceObjects.h"
#include "wire/WireValue.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace tempodial {

/// A call of a member as it came over the wire. What can't be converted fails (13).
class FaceCall
{
public:
    FaceCall(FaceObjects& objects, std::uint8_t flags, const std::vector<WireValue>& arguments)
        : mObjects(objects)
        , mFlags(flags)
        , mArguments(arguments)
    {
    }

    /// True when a property is set by value.
    bool IsPut() const { return (mFlags & Put) != 0; }
    /// True when a property is set by reference.
    bool IsPutByReference() const { return (mFlags & PutByReference) != 0; }
    /// True when a method may be meant.
    bool IsMethod() const { return (mFlags & Method) != 0; }
    /// True when the binding reads a property for its own needs, which must not be counted among the add-in's calls.
    bool IsOwnRead() const { return mFlags == Read; }

    /// The argument at a position from 0.
    template <class T> T Take(std::size_t position) const { return Converted<T>(At(position)); }
    /// The argument as it is; one that was left out is missing.
    const WireValue& At(std::size_t position) const;

    WireValue Give(std::int32_t number) const { return WireValue::Number(number); }
    WireValue Give(bool flag) const { return WireValue::Flag(flag); }
    WireValue Give(std::string text) const { return WireValue::Text(std::move(text)); }
    WireValue Give(Date moment) const { return WireValue::Moment(moment.Seconds()); }
    WireValue Give(const Variant& value) const;
    template <class Number>
    requires std::is_enum_v<Number> WireValue Give(Number number)
    const { return WireValue::Number(static_cast<std::int32_t>(number)); }
    template <class Interface> WireValue Give(const Ref<Interface>& object) const { return mObjects.Give(object); }

private:
    static constexpr unsigned Method = 1;
    static constexpr unsigned Read = 2;
    static constexpr unsigned Put = 4;
    static constexpr unsigned PutByReference = 8;

    template <class T> struct Conversion;

    template <class T> T Converted(const WireValue& value) const { return Conversion<T>::From(value, mObjects); }

    FaceObjects& mObjects;
    unsigned mFlags;
    const std::vector<WireValue>& mArguments;
};

template <> struct FaceCall::Conversion<std::int32_t>
{
    static std::int32_t From(const WireValue& value, const FaceObjects&);
};
template <> struct FaceCall::Conversion<bool>
{
    static bool From(const WireValue& value, const FaceObjects&);
};
template <> struct FaceCall::Conversion<std::string>
{
    static std::string From(const WireValue& value, const FaceObjects&);
};
template <> struct FaceCall::Conversion<Date>
{
    static Date From(const WireValue& value, const FaceObjects&);
};
template <> struct FaceCall::Conversion<Variant>
{
    static Variant From(const WireValue& value, const FaceObjects&);
};
template <> struct FaceCall::Conversion<std::vector<std::string>>
{
    static std::vector<std::string> From(const WireValue& value, const FaceObjects& objects);
};
template <class Number>
requires std::is_enum_v<Number>
struct FaceCall::Conversion<Number>
{
    static Number From(const WireValue& value, const FaceObjects& objects)
    {
        return static_cast<Number>(Conversion<std::int32_t>::From(value, objects));
    }
};
template <class T> struct FaceCall::Conversion<std::optional<T>>
{
    static std::optional<T> From(const WireValue& value, const FaceObjects& objects)
    {
        return value.kind == WireKind::Missing ? std::nullopt : std::optional<T>(Conversion<T>::From(value, objects));
    }
};
template <class Interface> struct FaceCall::Conversion<Ref<Interface>>
{
    static Ref<Interface> From(const WireValue& value, const FaceObjects& objects)
    {
        if (value.kind == WireKind::Missing) {
            return nullptr;
        }
        if (value.kind != WireKind::Object) {
            throw Failure(Error::TypeMismatch);
        }
        return objects.Take<Interface>(value.number);
    }
};

}
