#pragma once

#include "addin/com/Adapted.h"
#include "addin/com/AutomationObject.h"
#include "addin/com/EventSink.h"
#include "addin/com/LateObject.h"

#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tempodial {

/// An event interface by the first part of its identity, of which all have the rest.
constexpr IID OutlookEvents(unsigned long first)
{
    return { first, 0, 0, { 0xC0, 0, 0, 0, 0, 0, 0, 0x46 } };
}

/// What is done at an event that has no arguments, nothing when nobody wants to hear it.
inline EventSink::Handler PlainHandler(std::function<void()> raise)
{
    return raise ? EventSink::Handler([raise = std::move(raise)](const auto&) { raise(); }) : nullptr;
}

/// What is done at an event about an object.
template <class Interface> EventSink::Handler ObjectHandler(std::function<void(const Ref<Interface>&)> raise)
{
    return raise ? EventSink::Handler([raise = std::move(raise)](const EventArguments& arguments) {
        raise(Adapted<Interface>(arguments.Object(0)));
    })
                 : nullptr;
}

/// What is done at an event that can be refused.
inline EventSink::Handler RefusableHandler(std::function<void(bool&)> raise)
{
    return raise ? EventSink::Handler(
               [raise = std::move(raise)](const EventArguments& arguments) { arguments.AskForCancel(raise); })
                 : nullptr;
}

/// The value that a call gave, as the engine wants it.
template <class Result> struct Taken;

template <> struct Taken<std::string>
{
    static std::string From(const AutomationValue& value) { return value.ToText(); }
};
template <> struct Taken<std::int32_t>
{
    static std::int32_t From(const AutomationValue& value) { return value.ToVariant().ToInt32(); }
};
template <> struct Taken<bool>
{
    static bool From(const AutomationValue& value) { return value.ToVariant().ToBoolean(); }
};
template <> struct Taken<Date>
{
    static Date From(const AutomationValue& value) { return value.ToVariant().ToDate(); }
};
template <> struct Taken<Variant>
{
    static Variant From(const AutomationValue& value) { return value.ToVariant(); }
};
template <class Number>
requires std::is_enum_v<Number>
struct Taken<Number>
{
    static Number From(const AutomationValue& value) { return static_cast<Number>(value.ToVariant().ToInt32()); }
};
template <class Interface> struct Taken<Ref<Interface>>
{
    static Ref<Interface> From(const AutomationValue& value) { return Adapted<Interface>(value.ToObject()); }
};

/// What all adapters share: the object, and the identities of its class's members.
template <class Self, class Interface> class Adapter : public Interface, public AutomationObject
{
public:
    explicit Adapter(ComRef<IDispatch> object)
        : mObject(std::move(object), Ids())
    {
    }

    const ComRef<IDispatch>& Dispatch() const override { return mObject.Object(); }

protected:
    template <class Result, class... Args> Result Get(std::string_view member, const Args&... args) const
    {
        return Taken<Result>::From(mObject.Get(member, Passed(args)...));
    }
    template <class Result, class... Args> Result Call(std::string_view member, const Args&... args) const
    {
        return Taken<Result>::From(mObject.Call(member, Passed(args)...));
    }
    template <class... Args> void Do(std::string_view member, const Args&... args) const
    {
        mObject.Call(member, Passed(args)...);
    }
    template <class Arg> void Put(std::string_view member, const Arg& value) const
    {
        mObject.Put(member, Passed(value));
    }

    const LateObject& Late() const { return mObject; }

private:
    static MemberIds& Ids()
    {
        static MemberIds ids;
        return ids;
    }
    template <class Arg> static decltype(auto) Passed(const Arg& argument)
    {
        if constexpr (std::is_enum_v<Arg>) {
            return static_cast<std::int32_t>(argument);
        } else {
            return (argument);
        }
    }
    template <class Other> static ComRef<IDispatch> Passed(const Ref<Other>& argument) { return DispatchOf(argument); }

    LateObject mObject;
};

/// An adapter of a class that is read with nothing but its object.
template <class Class, class Interface = Class> Ref<Interface> AdaptedAs(const ComRef<IDispatch>& object)
{
    return object ? Ref<Interface>(MakeRef<Class>(object)) : nullptr;
}

}
