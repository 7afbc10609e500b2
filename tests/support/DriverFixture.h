#pragma once

#include "driver/Driver.h"
#include "support/SlotLines.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A driver inside the test, over a profile of its own, in en_US, at 9 o'clock on Tuesday, 10 October 2006.
class DriverFixture : public testing::Test
{
protected:
    ~DriverFixture() override { mDriver->Exit(); }

    /// Does a command that must go well, and answers what it answered.
    Json Do(const Json& command)
    {
        auto answer = mDriver->Do(command);
        EXPECT_EQ(answer.at("ok"), true) << command << "\n" << answer;
        return answer;
    }
    /// Does a command that must be refused, and answers why.
    std::string Refused(const Json& command)
    {
        const auto answer = mDriver->Do(command);
        EXPECT_EQ(answer.at("ok"), false) << command << "\n" << answer;
        return answer.value("error", "");
    }
    /// Ends the driver and starts another one over the same profile.
    void Restart()
    {
        mDriver->Exit();
        mDriver.reset();
        mDriver = std::make_unique<Driver>(mOptions);
    }
    std::string DataPath(const std::string& name) const { return mFolder.Path("Tempodial/" + name); }
    /// Writes a day's tracker file of slots.
    void WriteTracker(const std::string& dayKey, const std::vector<std::string>& slots) const
    {
        std::filesystem::create_directories(mFolder.Path("Tempodial"));
        std::ofstream(DataPath("tracker_granules" + dayKey + ".out"), std::ios::binary) << TrackerText(slots);
    }
    /// A slot of five minutes from a time of the day on, in which a document was open in the word processor.
    static std::string Slot(int hour, int minute, const std::string& document)
    {
        const auto begin = (hour * 60 + minute) * 60;
        return WordSlot(begin, begin + 300, document);
    }

    TempFolder mFolder { TempFolder::InMemory() };
    ProfileOptions mOptions {
        .profile = mFolder.Path(), .locale = "en_US", .now = Date::FromParts({ 2006, 10, 10, 9, 0, 0 })
    };
    std::unique_ptr<Driver> mDriver = std::make_unique<Driver>(mOptions);
};

}
