#pragma once

#include "base/Number.h"
#include "base/Text.h"
#include "engine/foundation/TempodialCommonUtils.h"
#include "engine/foundation/TempodialDebugLog.h"
#include "host/system/HostFileSystem.h"
#include "platform/Platform.h"
#include "support/ManualClock.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tempodial {

/// Date forms that no test looks at: the head of a trace line needs some.
class PlainFormats : public LocaleFormats
{
public:
    std::string ShortDate(Date date) override { return date.DayKey(); }
    std::string LongDate(Date date) override { return date.DayKey(); }
    std::string MediumDate(Date date) override { return date.DayKey(); }
    std::string ShortTime(Date date) override { return date.HourMinute(); }
    std::string LongTime(Date date) override { return "at " + date.HourMinute(); }
    std::string MonthAbbreviation(int month) override { return std::to_string(month); }
    Date Parse(const std::string&) override { throw Failure(Error::TypeMismatch); }
};

/// A trace in a folder of its own, for classes that need nothing else.
class TraceFixture : public testing::Test
{
protected:
    TraceFixture()
    {
        const auto platform = MakeRef<Platform>();
        platform->fileSystem = MakeRef<HostFileSystem>(mFolder.Path());
        platform->clock = MakeRef<ManualClock>(Date::FromYearMonthDay(2006, 10, 10));
        platform->formats = MakeRef<PlainFormats>();
        mPlatform = platform;
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
        for (const auto& line : Split(text.substr(mRead), CrLf)) {
            const auto head = line.find(": ");
            if (head != std::string::npos && !line.starts_with("Tempodial Version")) {
                lines.push_back(line.substr(head + 2));
            }
        }
        mRead = text.size();
        return lines;
    }
    void ForgetTrace() { Traced(); }

    TempFolder mFolder;
    Ref<const Platform> mPlatform;
    Ref<TempodialDebugLog> mLog;

private:
    std::size_t mRead = 0;
};

}
