#pragma once

#include "base/Ref.h"
#include "faults/Interposer.h"

#include <string>
#include <string_view>
#include <utility>

namespace tempodial {

/// The names under which a class is known, its own first.
template <class Interface> struct ClassNames;

/// An object of the add-in's surroundings with an interposer in front of it.
template <class Interface> class Interposed : public Interface
{
public:
    using Object = Interface;

    Interposed(Ref<Interface> target, Ref<Interposer> interposer)
        : mTarget(std::move(target))
        , mInterposer(std::move(interposer))
    {
    }

    /// The object itself.
    const Ref<Interface>& Target() const { return mTarget; }

protected:
    /// What the interposer is told of a call beside the class.
    struct Told
    {
        Told(const char* name, std::string_view itsKey = {}, std::string_view itsPath = {})
            : member(name)
            , key(itsKey)
            , path(itsPath)
        {
        }

        std::string_view member;
        std::string_view key;
        std::string_view path;
        bool opensForWriting = false;
        bool writes = false;
    };

    /// Calls the object's member.
    template <class Member, class... Args> auto Call(const Told& told, Member member, Args&&... args) const
    {
        const InterposedCall call { ClassNames<Interface>::All, told.member, told.key, told.path, told.opensForWriting,
            told.writes };
        mInterposer->Before(call);
        try {
            return (mTarget.Get()->*member)(std::forward<Args>(args)...);
        } catch (const Failure& failure) {
            mInterposer->Failed(call, failure);
            throw;
        }
    }
    /// Calls the object's member that sets a property.
    template <class Member, class Value> void Set(Told told, Member member, Value&& value) const
    {
        told.writes = true;
        Call(told, member, std::forward<Value>(value));
    }
    /// What the add-in gets in the place of an object that it is given.
    template <class Other> auto Wrap(const Ref<Other>& object) const { return Wrapped(object, mInterposer); }
    /// The same for an object whose calls are told with its name as the key.
    template <class Wrapper, class Other> Ref<Other> Named(const Ref<Other>& object, const std::string& name) const
    {
        return object ? Ref<Other>(MakeRef<Wrapper>(object, mInterposer, name)) : nullptr;
    }

    const Ref<Interposer>& Between() const { return mInterposer; }

private:
    Ref<Interface> mTarget;
    Ref<Interposer> mInterposer;
};

/// An object behind another of that class, nothing for nothing.
template <class Wrapper, class Interface>
Ref<Interface> WrappedAs(const Ref<Interface>& object, const Ref<Interposer>& interposer)
{
    return object ? Ref<Interface>(MakeRef<Wrapper>(object, interposer)) : nullptr;
}

/// The object behind what the add-in hands in.
template <class Interface> Ref<Interface> Unwrapped(const Ref<Interface>& object)
{
    const auto* interposed = dynamic_cast<const Interposed<Interface>*>(object.Get());
    return interposed == nullptr ? object : interposed->Target();
}

}
