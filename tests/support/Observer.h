#pragma once

#include "base/Ref.h"
#include "faults/Interposer.h"
#include "faults/Wrapped.h"

#include <functional>
#include <string>

namespace tempodial {

/// Told of each use of a member that is about to be made, as "Class.Member", "Class.SetMember" or with a key behind it,
/// such as "UserProperty.SetValue Project"; what it throws, the use fails with.
using UseObserver = std::function<void(const std::string& use)>;

/// Tells a test what the add-in uses of its surroundings.
class Observer final : public Interposer
{
public:
    explicit Observer(UseObserver observer = nullptr);

    /// Told of each use, nothing for nobody.
    UseObserver told;

    void Before(const InterposedCall& call) override;
};

/// An object whose use, and that of all that comes from it, an observer is told of.
template <class Interface> Ref<Interface> Observed(const Ref<Interface>& object, UseObserver observer)
{
    return Wrapped(object, MakeRef<Observer>(std::move(observer)));
}
/// The same for an appointment of any class.
Ref<AppointmentItem> ObservedItem(const Ref<AppointmentItem>& item, UseObserver observer);

/// True for a use of a member, whatever its key.
bool IsUse(const std::string& use, const std::string& member);
/// Fails each use of a member, told with or without its key.
UseObserver FailingAt(std::string member, Error error = Error::Automation);

}
