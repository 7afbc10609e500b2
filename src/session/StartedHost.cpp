#include "session/StartedHost.h"

#include <algorithm>

namespace tempodial {

void StartedHost::Connect(const Ref<Application>& application)
{
    mConnected = true;
    mAddIn->Connect(application);
}

void StartedHost::Disconnect()
{
    mConnected = false;
    mAddIn->Disconnect();
}

void StartedHost::CloseWindows()
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
