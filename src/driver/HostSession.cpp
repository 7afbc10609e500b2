#include "driver/HostSession.h"

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
    const auto inspectors = mApplication->OpenInspectors();
    for (auto inspector = inspectors.rbegin(); inspector != inspectors.rend(); ++inspector) {
        if (!(*inspector)->IsGone()) {
            (*inspector)->Close();
        }
    }
    const auto explorers = mApplication->OpenExplorers();
    for (const auto& explorer : explorers) {
        mApplication->CloseExplorer(explorer);
    }
}

}
