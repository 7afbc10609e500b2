#include "standin/ConnectionPoint.h"

#include "standin/MemberTable.h"
#include "standin/StandInObject.h"
#include "wire/WireFailure.h"

#include <algorithm>

namespace tempodial {

ConnectionPoint::ConnectionPoint(StandInObject& owner, std::string_view className)
    : mOwner(owner)
{
    for (const auto& entry : EventTable) {
        for (const auto first : entry.interfaces) {
            if (entry.className == className && first != 0) {
                mInterfaces.push_back({ first, 0, 0, { 0xC0, 0, 0, 0, 0, 0, 0, 0x46 } });
            }
        }
    }
}

bool ConnectionPoint::Has(REFIID iid) const
{
    return std::find(mInterfaces.begin(), mInterfaces.end(), iid) != mInterfaces.end();
}

std::vector<ComRef<IDispatch>> ConnectionPoint::Sinks() const
{
    std::vector<ComRef<IDispatch>> sinks;
    for (const auto& [cookie, sink] : mSinks) {
        sinks.push_back(sink);
    }
    return sinks;
}

STDMETHODIMP ConnectionPoint::QueryInterface(REFIID iid, void** object)
{
    if (iid == IID_IUnknown || iid == IID_IConnectionPoint) {
        *object = static_cast<IConnectionPoint*>(this);
        AddRef();
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP_(ULONG) ConnectionPoint::AddRef()
{
    return mOwner.AddRef();
}

STDMETHODIMP_(ULONG) ConnectionPoint::Release()
{
    return mOwner.Release();
}

STDMETHODIMP ConnectionPoint::GetConnectionInterface(IID* iid)
{
    *iid = mInterfaces.front();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::GetConnectionPointContainer(IConnectionPointContainer** container)
{
    *container = static_cast<IConnectionPointContainer*>(&mOwner);
    mOwner.AddRef();
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Advise(IUnknown* sink, DWORD* cookie)
{
    const ComRef<IUnknown> given(sink);
    ComRef<IDispatch> listener;
    for (const auto& iid : mInterfaces) {
        if (!listener) {
            listener = given.As<IDispatch>(iid);
        }
    }
    if (!listener) {
        return CONNECT_E_CANNOTCONNECT;
    }
    if (mSinks.empty()) {
        try {
            mOwner.Listen(true);
        } catch (const WireFailure&) {
            return E_FAIL;
        }
    }
    *cookie = ++mLastCookie;
    mSinks[*cookie] = listener;
    return S_OK;
}

STDMETHODIMP ConnectionPoint::Unadvise(DWORD cookie)
{
    const auto found = mSinks.find(cookie);
    if (found == mSinks.end()) {
        return CONNECT_E_NOCONNECTION;
    }
    // The sink may go with its last reference, and call back.
    const auto sink = found->second;
    mSinks.erase(found);
    if (mSinks.empty()) {
        try {
            mOwner.Listen(false);
        } catch (const WireFailure&) {
            return E_FAIL;
        }
    }
    return S_OK;
}

STDMETHODIMP ConnectionPoint::EnumConnections(IEnumConnections** /*connections*/)
{
    return E_NOTIMPL;
}

}
