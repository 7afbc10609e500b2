#pragma once

#include "base/Text.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialDebugLog.h"
#include "host/system/HostFileSystem.h"
#include "host/system/IcuLocaleFormats.h"
#include "platform/Platform.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {

/// A trace in a folder of its own, for classes that need nothing else.
class TraceFixture : public testing::Test
{
protected:
    TraceFixture()
    {
        mPlatform->fileSystem = MakeRef<HostFileSystem>(mFolder.Path());
        mPlatform->clock = mClock;
        mPlatform->formats = MakeRef<IcuLocaleFormats>("en_US");
        const auto utils = MakeRef<TempodialCommonUtils>(mPlatform);
        utils->Initialize(nullptr, "Tempodial", "16.0");
        mLog = MakeRef<TempodialDebugLog>(mPlatform);
        mLog->Initialize(utils, "1.2.0", "WorkLogTrace1.out", "WorkLogTrace2.out", 0);
    }

    /// The lines traced since the last call, without their heads.
    std::vector<std::string> Traced()
    {
        std::vector<std::string> lines;
        auto text = mFolder.Read("Tempodial/WorkLogTrace1.out");
        for (const auto& line : Split(text.size() < mRead ? text : text.substr(mRead), CrLf)) {
            const auto head = line.find(": ");
            if (head != std::string::npos && !line.starts_with("Tempodial Version")) {
                lines.push_back(line.substr(head + 2));
            }
        }
        mRead = text.size();
        return lines;
    }
    void ForgetTrace() { Traced(); }
    /// Empties the trace, for tests with more lines than the file holds.
    void EmptyTrace()
    {
        mFolder.Write("Tempodial/WorkLogTrace1.out", "");
        ForgetTrace();
    }

    TempFolder mFolder;
    /// Ten past nine on Tuesday, October 10, 2006.
    Ref<ManualClock> mClock = MakeRef<ManualClock>(Date::FromYearMonthDay(2006, 10, 10).AddMinutes(9 * 60 + 10));
    Ref<Platform> mPlatform = MakeRef<Platform>();
    Ref<TempodialDebugLog> mLog;

private:
    std::size_t mRead = 0;
};

}
