#pragma once

#include "addin/base/AutomationValue.h"
#include "addin/base/ComRef.h"

#include <array>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace tempodial {

/// The identities of the members of one class by their names, asked for once. One name has other identities in other
/// classes.
using MemberIds = std::map<std::string, DISPID, std::less<>>;

/// An object whose members are bound by their names when they are used. What a call fails with is a `Failure`.
class LateObject
{
public:
    /// Takes an object that isn't nothing, and the identities that are known of its class.
    LateObject(ComRef<IDispatch> object, MemberIds& ids)
        : mObject(std::move(object))
        , mIds(ids)
    {
    }

    /// Reads a property, or calls a member that may be one.
    template <class... Args> AutomationValue Get(std::string_view member, const Args&... args) const
    {
        return Run(DISPATCH_METHOD | DISPATCH_PROPERTYGET, member, args...);
    }
    /// Reads a property for the binding's own needs, which is told from the engine's reads by its flags.
    AutomationValue Read(std::string_view member) const { return Run(DISPATCH_PROPERTYGET, member); }
    /// Calls a method, also one whose name an event has, too.
    template <class... Args> AutomationValue Call(std::string_view member, const Args&... args) const
    {
        return Run(DISPATCH_METHOD, member, args...);
    }
    /// Sets a property by value.
    template <class Arg> void Put(std::string_view member, const Arg& value) const
    {
        Run(DISPATCH_PROPERTYPUT, member, value);
    }
    /// Sets a property to an object, by reference or else by value.
    void PutObject(std::string_view member, const ComRef<IDispatch>& object) const;

    const ComRef<IDispatch>& Object() const { return mObject; }

private:
    template <class... Args> AutomationValue Run(WORD flags, std::string_view member, const Args&... args) const
    {
        std::array<AutomationValue, sizeof...(Args)> values { AutomationValue(args)... };
        return Invoke(flags, member, values);
    }
    AutomationValue Invoke(WORD flags, std::string_view member, std::span<AutomationValue> args) const;
    DISPID IdOf(std::string_view member) const;

    ComRef<IDispatch> mObject;
    MemberIds& mIds;
};

}
