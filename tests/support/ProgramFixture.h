#pragma once

#include "support/Program.h"
#include "support/SlotLines.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace tempodial {

/// What every message is: one line that says what went wrong and what to do.
inline constexpr auto MessageForm = "tempodial: [^\n]+: [^\n]+\n";

/// The built program in a profile of its own, in en_US, at 17:00 on Tuesday, 10 October 2006.
class ProgramFixture : public testing::Test
{
protected:
    ~ProgramFixture() override;

    using Arguments = std::vector<std::string>;

    /// The arguments with those of the surroundings in front.
    Arguments Whole(const Arguments& arguments) const;
    ProgramResult Run(const Arguments& arguments) const;
    /// What a command prints that must succeed without a word on standard error.
    std::string Out(const Arguments& arguments) const;
    /// The same as JSON.
    nlohmann::json Json(Arguments arguments) const;
    /// Runs a command that must fail with that status, one message and nothing else.
    std::string Refusal(const Arguments& arguments, int status) const;
    std::string DataPath(const std::string& name) const;
    /// Writes a file into the data folder.
    void WriteData(const std::string& name, const std::string& content) const;
    /// Writes a day's tracker file of slots.
    void WriteTracker(const std::string& dayKey, const std::vector<std::string>& slots) const;
    std::vector<std::string> Subjects(const nlohmann::json& items) const;

    TempFolder mFolder { TempFolder::InMemory() };
    std::string mProfile = mFolder.Path("profile");
    std::string mNow = "2006-10-10T17:00:00";
};

/// One call of each command that opens the profile and changes nothing in it.
std::vector<std::vector<std::string>> OneOfEachReader();
/// One call of each other one.
std::vector<std::vector<std::string>> OneOfEachWriter();
/// Both.
std::vector<std::vector<std::string>> OneOfEachCommand();

}
