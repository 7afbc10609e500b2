#pragma once

#include "addin/base/ComRef.h"
#include "base/Ref.h"

namespace tempodial {

/// What stands for an object of the host, and can be handed back to it.
class AutomationObject
{
public:
    virtual ~AutomationObject() = default;

    virtual const ComRef<IDispatch>& Dispatch() const = 0;
};

/// The object behind what the engine hands in, nothing for nothing; what stands for none fails (13).
template <class Interface> ComRef<IDispatch> DispatchOf(const Ref<Interface>& reference)
{
    if (!reference) {
        return {};
    }
    const auto* automated = dynamic_cast<const AutomationObject*>(reference.Get());
    if (automated == nullptr) {
        throw Failure(Error::TypeMismatch);
    }
    return automated->Dispatch();
}

}
