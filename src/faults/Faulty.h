#pragma once

#include "base/Ref.h"
#include "faults/FaultPlan.h"

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace tempodial {

/// The names under which the members of an interface can be made to fail, the class's own first.
template <class Interface> struct FaultNames;

/// What stands between the add-in and an object of its surroundings: each call asks the plan first, and goes on to the
/// object when the plan lets it.
template <class Interface> class Faulty : public Interface
{
public:
    Faulty(Ref<Interface> target, Ref<FaultPlan> plan)
        : mTarget(std::move(target))
        , mPlan(std::move(plan))
    {
    }

    /// The object itself.
    const Ref<Interface>& Target() const { return mTarget; }

protected:
    /// The object, for a call of a member with a key.
    Interface* Call(std::string_view member, std::string_view key = {}) const
    {
        mPlan->Call(FaultNames<Interface>::All, member, key);
        return mTarget.Get();
    }
    /// What the add-in gets in the place of an object that it is given.
    template <class Object> auto Wrap(const Ref<Object>& object) const { return Wrapped(object, mPlan); }

    const Ref<FaultPlan>& Plan() const { return mPlan; }

private:
    Ref<Interface> mTarget;
    Ref<FaultPlan> mPlan;
};

/// An object behind another of that class, nothing for nothing.
template <class Wrapper, class Interface>
Ref<Interface> WrappedAs(const Ref<Interface>& object, const Ref<FaultPlan>& plan)
{
    return object ? Ref<Interface>(MakeRef<Wrapper>(object, plan)) : nullptr;
}

/// The object behind what the add-in hands in.
template <class Interface> Ref<Interface> Unwrapped(const Ref<Interface>& object)
{
    const auto* faulty = dynamic_cast<const Faulty<Interface>*>(object.Get());
    return faulty == nullptr ? object : faulty->Target();
}

}
