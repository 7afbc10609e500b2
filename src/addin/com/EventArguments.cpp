#include "addin/com/EventArguments.h"

namespace tempodial {

ComRef<IDispatch> EventArguments::Object(UINT position) const
{
    if (position >= mParameters.cArgs) {
        return {};
    }
    const auto& value = mParameters.rgvarg[mParameters.cArgs - 1 - position];
    return value.vt == VT_DISPATCH ? ComRef<IDispatch>(value.pdispVal) : ComRef<IDispatch>();
}

VARIANT_BOOL* EventArguments::Flag() const
{
    if (mParameters.cArgs == 0) {
        return nullptr;
    }
    const auto& value = mParameters.rgvarg[0];
    if (value.vt == (VT_BYREF | VT_BOOL)) {
        return value.pboolVal;
    }
    // Some hosts pass a value that holds the flag.
    if (value.vt == (VT_BYREF | VT_VARIANT) && (value.pvarVal->vt == VT_BOOL || value.pvarVal->vt == VT_EMPTY)) {
        value.pvarVal->vt = VT_BOOL;
        return &value.pvarVal->boolVal;
    }
    return nullptr;
}

bool EventArguments::IsCancelled() const
{
    const auto* flag = Flag();
    return flag != nullptr && *flag != VARIANT_FALSE;
}

void EventArguments::SetCancelled(bool cancelled) const
{
    if (auto* flag = Flag()) {
        *flag = cancelled ? VARIANT_TRUE : VARIANT_FALSE;
    }
}

}
