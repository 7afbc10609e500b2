#pragma once

#include "addin/base/ComRef.h"
#include "addin/base/DispatchObject.h"
#include "addin/com/EventArguments.h"
#include "base/Subscription.h"

#include <functional>
#include <initializer_list>
#include <map>

namespace tempodial {

/// Hears the events of one object by one of its event interfaces. The object holds it, and its subscription ends it,
/// also inside an event.
class EventSink final : public DispatchObject<IDispatch>
{
public:
    using Handler = std::function<void(const EventArguments& arguments)>;
    /// What is done at an event, by the event's number; one without a handler is heard by nobody.
    using Handlers = std::map<DISPID, Handler>;

    /// Subscribes by the first of the interfaces that the object has; fails (438) when it has none.
    static Subscription Subscribe(
        const ComRef<IDispatch>& source, std::initializer_list<IID> interfaces, const Handlers& handlers);
    /// How many sinks there are.
    static long Count();

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
        EXCEPINFO* told, UINT* badArgument) override;

private:
    EventSink(const IID& iid, Handlers handlers);
    ~EventSink() override;

    /// Connects with a source; false when it doesn't have the interface.
    bool Connect(const ComRef<IConnectionPointContainer>& source);
    void End();

    IID mInterface;
    Handlers mHandlers;
    ComRef<IConnectionPoint> mPoint;
    DWORD mCookie = 0;
};

}
