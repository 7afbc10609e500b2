#pragma once

#include "addin/base/ComRef.h"

namespace tempodial {

/// What an event passes to its sink.
class EventArguments
{
public:
    /// Takes the arguments as they came, the last one first; they must outlive this.
    explicit EventArguments(const DISPPARAMS& parameters)
        : mParameters(parameters)
    {
    }

    /// The object at a position from 0, nothing when there is none.
    ComRef<IDispatch> Object(UINT position) const;
    /// Asks a handler whether it refuses what happens, and tells whoever raised the event by its last argument.
    template <class Handler> void AskForCancel(Handler&& handler) const
    {
        bool cancel = IsCancelled();
        handler(cancel);
        SetCancelled(cancel);
    }

private:
    /// The flag that the last argument refers to, null when it refers to none.
    VARIANT_BOOL* Flag() const;
    bool IsCancelled() const;
    void SetCancelled(bool cancelled) const;

    const DISPPARAMS& mParameters;
};

}
