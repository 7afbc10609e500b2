#include "addin/com/EventSink.h"

#include "addin/base/Guarded.h"
#include "base/Failure.h"

#include <memory>
#include <utility>

namespace tempodial {

namespace {

long sinkCount = 0; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

}

EventSink::EventSink(const IID& iid, Handlers handlers)
    : mInterface(iid)
    , mHandlers(std::move(handlers))
{
    ++sinkCount;
}

EventSink::~EventSink()
{
    --sinkCount;
}

long EventSink::Count()
{
    return sinkCount;
}

Subscription EventSink::Subscribe(
    const ComRef<IDispatch>& source, std::initializer_list<IID> interfaces, const Handlers& handlers)
{
    const auto points = source.As<IConnectionPointContainer>();
    if (points) {
        for (const auto& iid : interfaces) {
            const auto sink = ComRef<EventSink>(new EventSink(iid, handlers));
            if (sink->Connect(points)) {
                return Subscription(std::shared_ptr<EventSink>(
                    ComRef<EventSink>(sink).Detach(), [](EventSink* ended) { ended->End(); }));
            }
        }
    }
    throw Failure(Error::NotSupported);
}

bool EventSink::Connect(const ComRef<IConnectionPointContainer>& source)
{
    if (FAILED(source->FindConnectionPoint(mInterface, mPoint.Put()))) {
        return false;
    }
    return SUCCEEDED(mPoint->Advise(this, &mCookie));
}

void EventSink::End()
{
    mHandlers.clear();
    // The point may hold the last reference to its object.
    const auto point = std::exchange(mPoint, {});
    point->Unadvise(mCookie);
    Release();
}

STDMETHODIMP EventSink::QueryInterface(REFIID iid, void** object)
{
    if (object == nullptr) {
        return E_POINTER;
    }
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == mInterface) {
        *object = static_cast<IDispatch*>(this);
        AddRef();
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP EventSink::Invoke(DISPID id, REFIID /*reserved*/, LCID /*locale*/, WORD /*flags*/, DISPPARAMS* parameters,
    VARIANT* /*result*/, EXCEPINFO* /*told*/, UINT* /*badArgument*/)
{
    return Guarded([&] {
        const ComRef<EventSink> held(this);
        const auto found = mHandlers.find(id);
        if (found == mHandlers.end() || !found->second || parameters == nullptr) {
            return;
        }
        // The handler may end this subscription.
        const auto handler = found->second;
        handler(EventArguments(*parameters));
    });
}

}
