#include "scenarios/FaultFixture.h"
#include "scenarios/Scripts.h"
#include "support/LongTests.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>

namespace tempodial {

namespace {

using testing::IsEmpty;

}

/// A day in which one of the add-in's calls fails.
class FaultInjectionTest : public FaultFixture, public testing::WithParamInterface<Script>
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
    /// Runs the script with one call that fails: everything was imported in the end, once.
    static void RunToTheEnd(std::int64_t call)
    {
        SCOPED_TRACE(GetParam().name + ", call " + std::to_string(call));
        DrivenPerson person;
        RunWithFault(person, call, GetParam().run);
        SCOPED_TRACE(person.Faults().FailedCall());
        LiveOn(person);
        ExpectWhole(person, 24, 24);
    }
};

TEST_P(FaultInjectionTest, AnyCall_Fails_NothingEscapesAndTheNextDayIsWhole)
{
    const auto calls = Calls();
    // Prime steps, so that each run of calls is met at another place.
    const std::int64_t step = ShortOrLong(241, 17);
    for (std::int64_t call = 1; call <= calls; call += step) {
        RunToTheEnd(call);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, FaultInjectionTest, testing::ValuesIn(AllScripts()), [](const auto& script) { return script.param.name; });

}
