#pragma once

#include "engine/core/Connect.h"
#include "engine/core/ProductWords.h"
#include "platform/Platform.h"
#include "session/LoadedAddIn.h"

#include <utility>

namespace tempodial {

/// The add-in in this very program.
class OwnAddIn final : public LoadedAddIn
{
public:
    explicit OwnAddIn(Ref<const Platform> platform)
        : mConnect(std::move(platform))
    {
    }

    void Connect(const Ref<Application>& application) override
    {
        mConnect.OnConnection(application, ConnectProgId);
        mConnect.OnStartupComplete();
    }
    void Disconnect() override
    {
        mConnect.OnBeginShutdown();
        mConnect.OnDisconnection();
    }
    TempodialMain& Members() const override { return *mConnect.Main(); }

private:
    tempodial::Connect mConnect;
};

}
