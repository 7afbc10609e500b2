#pragma once

#include "base/Text.h"
#include "engine/core/Connect.h"
#include "engine/core/TempodialMain.h"
#include "support/MapRegistry.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {

/// The add-in with a mailbox in memory, a registry in memory, one window, and a trace to look at.
class CoreFixture : public testing::Test
{
protected:
    ~CoreFixture() override;

    void ConnectAddIn();
    TempodialMain& Main() const;
    void Set(const std::string& value, const Variant& content);
    Variant Get(const std::string& value);
    bool HasTraceFile() const;
    /// The lines traced since the last call without thread, moment and context word.
    std::vector<std::string> Traced();

    TempFolder mFolder;
    Ref<MapRegistry> mRegistry = MakeRef<MapRegistry>();
    TestHost mHost { mFolder.Path(), mRegistry };
    Ref<ManualClock> mClock = mHost.clock;
    Ref<TestPictures> mPictures = mHost.pictures;
    Ref<Platform> mPlatform = mHost.platform;
    Ref<Mailbox> mMailbox = mHost.mailbox;
    Ref<TestApplication> mApplication = mHost.application;
    Ref<HostExplorer> mExplorer = mHost.explorer;
    Connect mConnect { mPlatform };

private:
    std::size_t mRead = 0;
};

}
