#pragma once

#include "engine/core/Connect.h"
#include "engine/core/ProductWords.h"
#include "engine/core/SupportAddress.h"
#include "platform/Platform.h"
#include "session/LoadedAddIn.h"

#include <string>
#include <utility>

namespace tempodial {

/// The add-in in this very program.
class OwnAddIn final : public LoadedAddIn
{
public:
    /// Takes where its problem reports go, empty for the usual address.
    OwnAddIn(Ref<const Platform> platform, std::string supportAddress)
        : mConnect(std::move(platform))
        , mSupportAddress(std::move(supportAddress))
    {
    }

    void Connect(const Ref<Application>& application) override
    {
        mConnect.OnConnection(application, ConnectProgId);
        if (const auto& main = mConnect.Main(); main && !mSupportAddress.empty()) {
            SetSupportAddress(*main, mSupportAddress);
        }
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
    std::string mSupportAddress;
};

}
