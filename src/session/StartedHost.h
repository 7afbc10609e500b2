#pragma once

#include "base/Ref.h"
#include "engine/core/TempodialMain.h"
#include "host/windows/HostApplication.h"
#include "platform/objectmodel/Application.h"
#include "session/LoadedAddIn.h"

#include <utility>

namespace tempodial {

/// A host that was started, with the add-in in it. When the add-in is disconnected, the host's windows stay.
class StartedHost
{
public:
    StartedHost(Ref<HostApplication> application, Ref<LoadedAddIn> addIn)
        : mApplication(std::move(application))
        , mAddIn(std::move(addIn))
    {
    }

    /// Connects the add-in with the application as it is to see it.
    void Connect(const Ref<Application>& application);
    /// Begins the shut-down and disconnects the add-in.
    void Disconnect();
    /// Closes all windows as the exit of the application does, inspectors first.
    void CloseWindows();

    /// True while the add-in is connected.
    bool IsConnected() const { return mConnected; }
    /// The application with its windows.
    HostApplication& Windows() const { return *mApplication; }
    /// The add-in's own members; fails with `Failure` while it isn't connected, when it stays dormant, and when it runs
    /// elsewhere.
    TempodialMain& AddIn() const { return mAddIn->Members(); }

private:
    Ref<HostApplication> mApplication;
    Ref<LoadedAddIn> mAddIn;
    bool mConnected = false;
};

}
