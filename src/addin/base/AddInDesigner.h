#pragma once

#include "addin/base/Windows.h"

/// How a host connects an add-in and how it disconnects it.
enum ConnectMode : int { ConnectAfterStartup, ConnectAtStartup, ConnectExternally, ConnectByCommandLine };
enum DisconnectMode : int { DisconnectAtShutdown, DisconnectByUser };

/// What a host calls of an add-in, in this order of its table.
struct IDTExtensibility2 : public IDispatch
{
    virtual HRESULT STDMETHODCALLTYPE OnConnection(
        IDispatch* application, ConnectMode mode, IDispatch* addInInstance, SAFEARRAY** custom)
        = 0;
    virtual HRESULT STDMETHODCALLTYPE OnDisconnection(DisconnectMode mode, SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnAddInsUpdate(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnStartupComplete(SAFEARRAY** custom) = 0;
    virtual HRESULT STDMETHODCALLTYPE OnBeginShutdown(SAFEARRAY** custom) = 0;
};

__CRT_UUID_DECL(IDTExtensibility2, 0xB65AD801, 0xABAF, 0x11D0, 0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F, 0x27, 0x44)

namespace tempodial {

/// The class under which a host finds the add-in: {6C1F8A52-3D0E-4B7B-9E57-2A94C60D7F13}.
inline constexpr CLSID AddInClass = { 0x6C1F8A52, 0x3D0E, 0x4B7B, { 0x9E, 0x57, 0x2A, 0x94, 0xC6, 0x0D, 0x7F, 0x13 } };

}
