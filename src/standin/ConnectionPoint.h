#pragma once

#include "addin/base/ComRef.h"
#include "addin/base/Windows.h"

#include <map>
#include <string_view>
#include <vector>

namespace tempodial {

class StandInObject;

/// The events of an object, to which sinks are connected. It lives as a part of the object.
class ConnectionPoint final : public IConnectionPoint
{
public:
    ConnectionPoint(StandInObject& owner, std::string_view className);

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetConnectionInterface(IID* iid) override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
    STDMETHODIMP Unadvise(DWORD cookie) override;
    STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

    /// True when the object raises events.
    bool HasEvents() const { return !mInterfaces.empty(); }
    /// True when the object's events have that interface.
    bool Has(REFIID iid) const;
    /// The sinks that are connected.
    std::vector<ComRef<IDispatch>> Sinks() const;

private:
    StandInObject& mOwner;
    std::vector<IID> mInterfaces;
    std::map<DWORD, ComRef<IDispatch>> mSinks;
    DWORD mLastCookie = 0;
};

}
