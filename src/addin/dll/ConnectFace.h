#pragma once

#include "addin/base/AddInDesigner.h"
#include "addin/base/ComRef.h"
#include "addin/dll/ModuleUse.h"
#include "engine/core/Connect.h"

#include <optional>

namespace tempodial {

/// The add-in as a host sees it. Nothing that fails inside reaches the host.
class ConnectFace final : public IDTExtensibility2
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override;
    STDMETHODIMP_(ULONG) Release() override;
    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale, DISPID* ids) override;
    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID locale, WORD flags, DISPPARAMS* parameters, VARIANT* result,
        EXCEPINFO* told, UINT* badArgument) override;

    STDMETHODIMP OnConnection(
        IDispatch* application, ConnectMode mode, IDispatch* addInInstance, SAFEARRAY** custom) override;
    STDMETHODIMP OnDisconnection(DisconnectMode mode, SAFEARRAY** custom) override;
    STDMETHODIMP OnAddInsUpdate(SAFEARRAY** custom) override;
    STDMETHODIMP OnStartupComplete(SAFEARRAY** custom) override;
    STDMETHODIMP OnBeginShutdown(SAFEARRAY** custom) override;

private:
    ~ConnectFace() = default;

    ModuleUse mUse;
    std::optional<Connect> mConnect;
    ULONG mReferences = 0;
};

}
