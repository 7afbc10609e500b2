#pragma once

#include "addin/base/AddInDesigner.h"
#include "addin/base/ComRef.h"
#include "addin/base/DispatchObject.h"
#include "addin/dll/ModuleUse.h"
#include "engine/core/Connect.h"

#include <optional>

namespace tempodial {

/// The add-in as a host sees it. Nothing that fails inside reaches the host.
class ConnectFace final : public DispatchObject<IDTExtensibility2>
{
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;

    STDMETHODIMP OnConnection(
        IDispatch* application, ConnectMode mode, IDispatch* addInInstance, SAFEARRAY** custom) override;
    STDMETHODIMP OnDisconnection(DisconnectMode mode, SAFEARRAY** custom) override;
    STDMETHODIMP OnAddInsUpdate(SAFEARRAY** custom) override;
    STDMETHODIMP OnStartupComplete(SAFEARRAY** custom) override;
    STDMETHODIMP OnBeginShutdown(SAFEARRAY** custom) override;

private:
    ModuleUse mUse;
    std::optional<Connect> mConnect;
};

}
