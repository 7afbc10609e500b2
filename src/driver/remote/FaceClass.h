#pragma once

#include "base/Ref.h"
#include "base/Subscription.h"
#include "driver/remote/FaceRaiser.h"
#include "wire/WireValue.h"

#include <functional>
#include <map>
#include <string_view>

namespace tempodial {

class FaceCall;

/// A class of the object model as it is used by the names of its members.
template <class Interface> struct FaceClass
{
    /// Does a call of a member.
    using Member = std::function<WireValue(Interface& object, const FaceCall& call)>;

    std::string_view name;
    std::map<std::string_view, Member> members;
    /// Subscribes to the object's events, empty for a class that has none.
    std::function<Subscription(const Ref<Interface>& object, const FaceRaiser& raise)> listen {};
};

/// The classes of the object model.
template <class Interface> const FaceClass<Interface>& FaceOf();

}
