#include "scenarios/FaultFixture.h"
#include "scenarios/ShortScripts.h"
#include "support/LongTests.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>

namespace tempodial {

namespace {

using testing::IsEmpty;

/// The calls whose failure the add-in takes as an answer, so that no line of the trace tells of it.
const std::set<std::string> Untold = {
    // What comes before there is a trace.
    "Application.Explorers:", "Explorers.Count:", "Application.Inspectors:", "Inspectors.Count:",
    "Application.Version:", "FileSystem.GetSpecialFolder:", "FileSystem.BuildPath:Tempodial",
    "FileSystem.FolderExists:Tempodial",
    // A folder that can't be looked at isn't there, or not ours.
    "Folders.Item:Tempodial", "MAPIFolder.EntryID:", "MAPIFolder.Items:",
    // What is looked at again at the next occasion: windows with their bars, and files old enough to go.
    "Explorer.Caption:", "Explorer.CommandBars:", "Explorer.CurrentFolder:", "CommandBars.Item:Standard",
    "CommandBar.Controls:", "CommandBarControls.Item:&Tempodial",
    "CommandBarButton.Enabled:", "FileSystem.GetFolder:Tempodial"
};

/// True for a call that writes the trace itself, whose failure has nowhere to be told.
bool WritesTrace(const std::string& call)
{
    return call.ends_with(":WorkLogTrace1.out") || call.starts_with("Shell.ThreadId") || call == "TextStream.Close:"
        || call == "TextStream.WriteLine:";
}

/// The lines of the trace that tell of a failure, without thread and moment.
std::multiset<std::string> LinesOfFailures(DrivenPerson& person)
{
    std::multiset<std::string> lines;
    for (const auto& line : person.Trace()) {
        if (line.find("error") != std::string::npos || line.find("ailed") != std::string::npos
            || line.find("FAILED") != std::string::npos) {
            lines.insert(line.substr(line.find("M: ") + 1));
        }
    }
    return lines;
}

}

/// Something short, with each of the add-in's calls failing in turn.
class EveryCallTest : public FaultFixture, public testing::WithParamInterface<ShortScript>
{
protected:
    /// Does it once with nothing failing, as the measure of what follows. A trace whose folder isn't known goes to the
    /// working folder, so that is one that goes away.
    void SetUp() override
    {
        std::filesystem::current_path(mWorkingFolder.Path());
        DrivenPerson person;
        GetParam().prepare(person);
        mCallsBefore = person.Faults().CallCount();
        GetParam().run(person);
        mCalls = person.Faults().CallCount() - mCallsBefore;
        ASSERT_THAT(person.Refusals(), IsEmpty());
        mFailures = LinesOfFailures(person);
        LiveOn(person);
        mItems = person.Items().size();
        ASSERT_GT(mItems, 0);
    }
    void TearDown() override { std::filesystem::current_path(mFormerFolder); }
    void FailCall(std::int64_t call)
    {
        SCOPED_TRACE(GetParam().name + ", call " + std::to_string(call));
        DrivenPerson person;
        GetParam().prepare(person);
        RunWithFault(person, mCallsBefore + call, GetParam().run);
        const auto failed = person.Faults().FailedCall();
        SCOPED_TRACE(failed);
        EXPECT_NE(failed, "");
        // A setting that can't be read or written has its default.
        if (!WritesTrace(failed) && !failed.starts_with("Registry.") && !Untold.contains(failed)) {
            EXPECT_TRUE(IsTold(LinesOfFailures(person)));
        }
        LiveOn(person);
        // A continuation that couldn't be saved is an activity of its own.
        ExpectWhole(person, mItems, mItems + 1);
    }

    std::int64_t mCalls = 0;

private:
    /// True when a line tells of a failure that isn't met when nothing fails.
    bool IsTold(const std::multiset<std::string>& failures) const
    {
        return !std::includes(mFailures.begin(), mFailures.end(), failures.begin(), failures.end());
    }

    TempFolder mWorkingFolder { TempFolder::InMemory() };
    std::filesystem::path mFormerFolder = std::filesystem::current_path();
    std::int64_t mCallsBefore = 0;
    std::multiset<std::string> mFailures;
    std::size_t mItems = 0;
};

TEST_P(EveryCallTest, EachCall_Fails_IsToldAndTheRestGoesOn)
{
    const std::int64_t step = ShortOrLong(29, 1);
    for (std::int64_t call = 1; call <= mCalls; call += step) {
        FailCall(call);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, EveryCallTest, testing::ValuesIn(ShortScripts()), [](const auto& script) { return script.param.name; });

}
