#include "driver/HostSession.h"

#include <algorithm>

namespace tempodial {

void HostSession::Connect(const Ref<Application>& application)
{
    mConnected = true;
    mConnect.OnConnection(application, "Tempodial.Connect");
    mConnect.OnStartupComplete();
}

void HostSession::Disconnect()
{
    mConnected = false;
    mConnect.OnBeginShutdown();
    mConnect.OnDisconnection();
}

void HostSession::CloseWindows()
{
    // Copies, since a window that closes takes itself out.
    auto inspectors = mApplication->OpenInspectors();
    std::reverse(inspectors.begin(), inspectors.end());
    for (const auto& inspector : inspectors) {
        if (!inspector->IsGone()) {
            inspector->Close();
        }
    }
    const auto explorers = mApplication->OpenExplorers();
    for (const auto& explorer : explorers) {
        mApplication->CloseExplorer(explorer);
    }
}

}
