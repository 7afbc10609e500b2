#include "scenarios/Scripts.h"
#include "support/LongTests.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

namespace tempodial {

namespace {

using testing::IsEmpty;

}

/// A day in which one of the add-in's calls fails.
class FaultInjectionTest : public testing::TestWithParam<Script>
{
protected:
    /// The calls that the script makes of the add-in when nothing fails.
    static std::int64_t Calls()
    {
        DrivenPerson person;
        GetParam().run(person);
        EXPECT_THAT(person.Refusals(), IsEmpty());
        return person.Faults().CallCount();
    }
    /// Runs the script with one call that fails, and holds what must be true whatever fails.
    static void RunWithFault(std::int64_t call)
    {
        SCOPED_TRACE(GetParam().name + ", call " + std::to_string(call));
        DrivenPerson person;
        person.Faults().FailCall(call);
        try {
            GetParam().run(person);
        } catch (const std::exception& error) {
            ADD_FAILURE() << "left the host: " << error.what();
        }
        SCOPED_TRACE(person.Faults().FailedCall());
        CloseAll(person);
        person.Do({ { "do", "stop" } });
        EXPECT_EQ(person.Do({ { "do", "forms" } }).at("forms"), Json::array());
        // What was put off and not met on this day comes up on a later one.
        constexpr int Days = 3;
        for (int day = 1; day <= Days; ++day) {
            person.Start();
            EXPECT_EQ(person.MenuEntry(1, "Create Activity &Report...").value("enabled", false), true);
            person.Refresh(1);
            person.Do({ { "do", "stop" } });
        }
        ExpectWhole(person);
    }

private:
    /// Everything was imported, once; a line that couldn't be read is passed over, as a damaged one is.
    static void ExpectWhole(DrivenPerson& person)
    {
        const auto& failed = person.Faults().FailedCall();
        std::set<std::string> starts;
        for (const auto& item : person.Items()) {
            EXPECT_TRUE(starts.insert(item.at("start")).second) << item;
        }
        const bool wasReading = failed.starts_with("Xml") || failed.starts_with("TextStream.Read");
        EXPECT_GE(starts.size(), wasReading ? 1 : 24);
        EXPECT_LE(starts.size(), 24);
    }
    /// Every window can be looked at and closed, whatever failed in it.
    static void CloseAll(DrivenPerson& person)
    {
        const auto refusals = person.Refusals().size();
        person.Answers({ "no", "no", "no", "no" });
        const auto windows = person.Do({ { "do", "windows" } });
        for (const auto& inspector : windows.at("inspectors")) {
            person.Do({ { "do", "inspector.state" }, { "inspector", inspector } });
            person.Do({ { "do", "inspector.close" }, { "inspector", inspector } });
        }
        for (const auto& explorer : windows.at("explorers")) {
            person.Do({ { "do", "explorer.state" }, { "explorer", explorer } });
            person.Do({ { "do", "explorer.close" }, { "explorer", explorer } });
        }
        EXPECT_EQ(person.Do({ { "do", "windows" } }),
            Json::parse(R"({"ok":true,"explorers":[],"inspectors":[],"messages":[]})"));
        EXPECT_EQ(person.Refusals().size(), refusals);
    }
};

TEST_P(FaultInjectionTest, AnyCall_Fails_NothingEscapesAndTheNextDayIsWhole)
{
    const auto calls = Calls();
    // Prime steps, so that each run of calls is met at another place.
    const std::int64_t step = ShortOrLong(241, 17);
    for (std::int64_t call = 1; call <= calls; call += step) {
        RunWithFault(call);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, FaultInjectionTest, testing::ValuesIn(AllScripts()), [](const auto& script) { return script.param.name; });

}
