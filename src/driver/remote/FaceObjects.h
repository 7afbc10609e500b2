#pragma once

#include "base/Failure.h"
#include "base/Ref.h"
#include "driver/remote/FaceClass.h"
#include "faults/Interposed.h"
#include "platform/commandbars/CommandBarControl.h"
#include "platform/objectmodel/OutlookItem.h"
#include "wire/WireValue.h"

#include <any>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tempodial {

/// The objects that the other end holds, by their numbers; a number is never given twice. The same object of the host
/// has one number for as long as it is held.
class FaceObjects
{
public:
    /// Raises an event of the object of a number: the event's own number and its arguments, of which a missing one
    /// stands for the flag that refuses what happens. True when that was refused.
    using Raiser
        = std::function<bool(std::int64_t object, std::int32_t event, const std::vector<WireValue>& arguments)>;

    explicit FaceObjects(Raiser raise)
        : mRaise(std::move(raise))
    {
    }

    /// An object as it goes over the wire.
    template <class Interface> WireValue Give(const Ref<Interface>& object);
    /// An item or a control goes as what it is.
    WireValue Give(const Ref<OutlookItem>& item);
    WireValue Give(const Ref<CommandBarControl>& control);
    /// The object of a number, nothing for 0; one of another class fails (13).
    template <class Interface> Ref<Interface> Take(std::int64_t number) const;

    /// Calls a member of an object; an unknown object fails (424), an unknown member with `WireFailure`.
    WireValue Call(
        std::int64_t object, std::uint8_t flags, const std::string& member, const std::vector<WireValue>& arguments);
    /// Begins or ends to tell of an object's events; one that has none fails (438).
    void Listen(std::int64_t object, bool wanted);
    /// Raises an event of an object; true when it was refused.
    bool Raise(std::int64_t object, std::int32_t event, const std::vector<WireValue>& arguments) const
    {
        return mRaise(object, event, arguments);
    }
    /// The other end holds an object no more.
    void Free(std::int64_t object) { mHeld.erase(object); }
    /// How many objects the other end holds.
    std::size_t Count() const { return mHeld.size(); }

private:
    struct Held
    {
        /// A reference to the object by its own class.
        std::any reference;
        /// The object behind all that stands in front of it.
        const void* identity;
        std::function<WireValue(const std::string& member, const FaceCall& call)> call;
        std::function<Subscription(const FaceRaiser& raise)> listen;
        Subscription subscription {};
    };

    const std::shared_ptr<Held>& Find(std::int64_t object) const;
    WireValue GiveHeld(Held held, std::string_view className);
    [[noreturn]] static void RefuseMember();

    Raiser mRaise;
    std::map<std::int64_t, std::shared_ptr<Held>> mHeld;
    std::int64_t mLast = 0;
};

template <class Interface> WireValue FaceObjects::Give(const Ref<Interface>& object)
{
    if (!object) {
        return WireValue::Object(0, {});
    }
    const auto& itsClass = FaceOf<Interface>();
    Held held { .reference = object, .identity = Unwrapped(object).Get(), .call = {}, .listen = {} };
    held.call = [object, &itsClass](const std::string& member, const FaceCall& call) {
        const auto found = itsClass.members.find(member);
        if (found == itsClass.members.end()) {
            RefuseMember();
        }
        return found->second(*object, call);
    };
    if (itsClass.listen) {
        held.listen = [object, &itsClass](const FaceRaiser& raise) { return itsClass.listen(object, raise); };
    }
    return GiveHeld(std::move(held), itsClass.name);
}

template <class Interface> Ref<Interface> FaceObjects::Take(std::int64_t number) const
{
    if (number == 0) {
        return nullptr;
    }
    const auto* reference = std::any_cast<Ref<Interface>>(&Find(number)->reference);
    if (reference == nullptr) {
        throw Failure(Error::TypeMismatch);
    }
    return *reference;
}

template <class Interface> void FaceRaiser::About(std::int32_t event, const Ref<Interface>& object) const
{
    Raise(event, { mObjects->Give(object) });
}

template <class Interface> bool FaceRaiser::RefusedAbout(std::int32_t event, const Ref<Interface>& object) const
{
    return Raise(event, { mObjects->Give(object), WireValue::Missing() });
}

}
