#pragma once

#include "driver/Driver.h"
#include "support/SlotLines.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <memory>
#include <string>
#include <vector>

namespace tempodial {

/// A driver inside the test, over a profile of its own, in en_US, at 9 o'clock on Tuesday, 10 October 2006.
class DriverFixture : public testing::Test
{
protected:
    ~DriverFixture() override;

    /// Does a command that must go well, and answers what it answered.
    Json Do(const Json& command);
    /// Does a command that must be refused, and answers why.
    std::string Refused(const Json& command);
    /// Ends the driver and starts another one over the same profile.
    void Restart();
    /// Makes an activity from 9 o'clock to five past, and answers its entry id.
    std::string Activity(const std::string& folder = "Calendar/Tempodial");
    std::string DataPath(const std::string& name) const;
    /// Writes a day's tracker file of slots.
    void WriteTracker(const std::string& dayKey, const std::vector<std::string>& slots) const;
    /// A slot of five minutes from a time of the day on, in which a document was open in the word processor.
    static std::string Slot(int hour, int minute, const std::string& document);

    TempFolder mFolder { TempFolder::InMemory() };
    ProfileOptions mOptions {
        .profile = mFolder.Path(), .locale = "en_US", .now = Date::FromParts({ 2006, 10, 10, 9, 0, 0 })
    };
    std::unique_ptr<Driver> mDriver = std::make_unique<Driver>(mOptions);
};

}
