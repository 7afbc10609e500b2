#pragma once

#include "support/Program.h"
#include "support/SlotLines.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tempodial {

/// What every message is: one line that says what went wrong and what to do.
inline constexpr auto MessageForm = "tempodial: [^\n]+: [^\n]+\n";

/// The built program in a profile of its own, in en_US, at 17:00 on Tuesday, 10 October 2006.
class ProgramFixture : public testing::Test
{
protected:
    using Arguments = std::vector<std::string>;

    /// The arguments with those of the surroundings in front.
    Arguments Whole(const Arguments& arguments) const
    {
        Arguments whole { "--profile", mProfile, "--locale", "en_US", "--now", mNow };
        whole.insert(whole.end(), arguments.begin(), arguments.end());
        return whole;
    }
    ProgramResult Run(const Arguments& arguments) const { return RunTempodial(Whole(arguments)); }
    /// Runs a command that must succeed without a word on standard error, and reads its JSON.
    nlohmann::json Json(Arguments arguments) const
    {
        arguments.insert(arguments.begin(), "--json");
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, 0) << result.error;
        EXPECT_EQ(result.error, "");
        return nlohmann::json::parse(result.out);
    }
    /// Runs a command that must fail with that status, one message and nothing else.
    std::string Refusal(const Arguments& arguments, int status) const
    {
        const auto result = Run(arguments);
        EXPECT_EQ(result.status, status);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.error, testing::MatchesRegex(MessageForm));
        return result.error;
    }
    std::string DataPath(const std::string& name) const { return mProfile + "/Tempodial/" + name; }
    /// Writes a file into the data folder.
    void WriteData(const std::string& name, const std::string& content) const
    {
        std::filesystem::create_directories(mProfile + "/Tempodial");
        std::ofstream(DataPath(name), std::ios::binary) << content;
    }
    /// Writes a day's tracker file of slots.
    void WriteTracker(const std::string& dayKey, const std::vector<std::string>& slots) const
    {
        WriteData("tracker_granules" + dayKey + ".out", TrackerText(slots));
    }
    std::vector<std::string> Subjects(const nlohmann::json& items) const
    {
        std::vector<std::string> subjects;
        for (const auto& item : items) {
            subjects.push_back(item.at("subject"));
        }
        return subjects;
    }

    TempFolder mFolder { TempFolder::InMemory() };
    std::string mProfile = mFolder.Path("profile");
    std::string mNow = "2006-10-10T17:00:00";
};

/// One call of each command that opens the profile.
inline std::vector<std::vector<std::string>> OneOfEachCommand()
{
    return { { "sync" }, { "list" }, { "projects" }, { "projects", "set", "A" }, { "projects", "remove", "Wish" },
        { "projects", "match", "a" }, { "apply", "Wish" },
        { "assign", "Wish", "--from", "2006-10-10T09:00", "--to", "2006-10-10T10:00" }, { "report" },
        { "problem-report", "--expected", "a", "--actual", "b", "--out", "/nonexistent/a.eml" },
        { "export", "--format", "csv" }, { "demo" }, { "trace" }, { "registry", "get", "HKCU", "", "CurrentVersion" },
        { "registry", "set", "HKCU", "", "A", "b" }, { "registry", "delete", "HKCU", "", "CurrentVersion" } };
}

}
