#pragma once

#include "engine/foundation/TempodialDebugLog.h"
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
    TraceFixture();
    ~TraceFixture() override;

    /// The lines traced since the last call, without their heads.
    std::vector<std::string> Traced();
    void ForgetTrace();
    /// Empties the trace, for tests with more lines than the file holds.
    void EmptyTrace();

    TempFolder mFolder;
    /// Ten past nine on Tuesday, October 10, 2006.
    Ref<ManualClock> mClock = MakeRef<ManualClock>(Date::FromYearMonthDay(2006, 10, 10).AddMinutes(9 * 60 + 10));
    Ref<Platform> mPlatform = MakeRef<Platform>();
    Ref<TempodialDebugLog> mLog;

private:
    std::size_t mRead = 0;
};

}
