#include "addin/dll/ConnectFace.h"

#include "addin/base/Guarded.h"
#include "addin/com/Adapted.h"
#include "addin/com/LateObject.h"
#include "addin/dll/Surroundings.h"
#include "engine/core/ProductWords.h"

#include <string>

namespace tempodial {

namespace {

/// The name under which the host has loaded the add-in, its usual one when the host doesn't say.
std::string ProgIdOf(const ComRef<IDispatch>& addInInstance)
{
    if (addInInstance) {
        try {
            MemberIds ids;
            return LateObject(addInInstance, ids).Get("ProgId").ToText();
        } catch (const Failure&) { // NOLINT(bugprone-empty-catch)
            // Some hosts pass something that has no such member.
        }
    }
    return ConnectProgId;
}

}

STDMETHODIMP ConnectFace::QueryInterface(REFIID iid, void** object)
{
    if (object == nullptr) {
        return E_POINTER;
    }
    if (iid == IID_IUnknown || iid == IID_IDispatch || iid == __uuidof(IDTExtensibility2)) {
        *object = static_cast<IDTExtensibility2*>(this);
        AddRef();
        return S_OK;
    }
    *object = nullptr;
    return E_NOINTERFACE;
}

STDMETHODIMP ConnectFace::OnConnection(
    IDispatch* application, ConnectMode /*mode*/, IDispatch* addInInstance, SAFEARRAY** /*custom*/)
{
    return Guarded([&] {
        const ComRef<ConnectFace> held(this);
        const ComRef<IDispatch> host(application);
        mConnect.emplace(Surroundings(host));
        mConnect->OnConnection(Adapted<Application>(host), ProgIdOf(ComRef<IDispatch>(addInInstance)));
    });
}

STDMETHODIMP ConnectFace::OnDisconnection(DisconnectMode /*mode*/, SAFEARRAY** /*custom*/)
{
    return Guarded([&] {
        const ComRef<ConnectFace> held(this);
        if (mConnect) {
            mConnect->OnDisconnection();
            mConnect.reset();
        }
        EndSurroundings();
    });
}

STDMETHODIMP ConnectFace::OnAddInsUpdate(SAFEARRAY** /*custom*/)
{
    return Guarded([&] {
        if (mConnect) {
            mConnect->OnAddInsUpdate();
        }
    });
}

STDMETHODIMP ConnectFace::OnStartupComplete(SAFEARRAY** /*custom*/)
{
    return Guarded([&] {
        if (mConnect) {
            mConnect->OnStartupComplete();
        }
    });
}

STDMETHODIMP ConnectFace::OnBeginShutdown(SAFEARRAY** /*custom*/)
{
    return Guarded([&] {
        if (mConnect) {
            mConnect->OnBeginShutdown();
        }
    });
}

}
