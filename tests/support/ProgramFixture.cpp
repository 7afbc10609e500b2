#include "support/ProgramFixture.h"

#include <filesystem>
#include <fstream>

namespace tempodial {

ProgramFixture::~ProgramFixture() = default;

ProgramFixture::Arguments ProgramFixture::Whole(const Arguments& arguments) const
{
    Arguments whole { "--profile", mProfile, "--locale", "en_US", "--now", mNow };
    whole.insert(whole.end(), arguments.begin(), arguments.end());
    return whole;
}

ProgramResult ProgramFixture::Run(const Arguments& arguments) const
{
    return RunTempodial(Whole(arguments));
}

std::string ProgramFixture::Out(const Arguments& arguments) const
{
    const auto result = Run(arguments);
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_EQ(result.error, "");
    return result.out;
}

nlohmann::json ProgramFixture::Json(Arguments arguments) const
{
    arguments.insert(arguments.begin(), "--json");
    return nlohmann::json::parse(Out(arguments));
}

std::string ProgramFixture::Refusal(const Arguments& arguments, int status) const
{
    const auto result = Run(arguments);
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.error, testing::MatchesRegex(MessageForm));
    return result.error;
}

std::string ProgramFixture::DataPath(const std::string& name) const
{
    return mProfile + "/Tempodial/" + name;
}

void ProgramFixture::WriteData(const std::string& name, const std::string& content) const
{
    std::filesystem::create_directories(mProfile + "/Tempodial");
    std::ofstream(DataPath(name), std::ios::binary) << content;
}

void ProgramFixture::WriteTracker(const std::string& dayKey, const std::vector<std::string>& slots) const
{
    WriteData("tracker_granules" + dayKey + ".out", TrackerText(slots));
}

std::vector<std::string> ProgramFixture::Subjects(const nlohmann::json& items) const
{
    std::vector<std::string> subjects;
    for (const auto& item : items) {
        subjects.push_back(item.at("subject"));
    }
    return subjects;
}

std::vector<std::vector<std::string>> OneOfEachReader()
{
    return { { "list" }, { "export", "--format", "csv" }, { "summary" }, { "timesheet", "No Project" },
        { "unassigned" }, { "gaps" }, { "why", "--subject", "a" }, { "log" }, { "trace" },
        { "registry", "get", "HKCU", "", "CurrentVersion" }, { "status" }, { "settings" } };
}

std::vector<std::vector<std::string>> OneOfEachWriter()
{
    return { { "sync" }, { "projects" }, { "projects", "set", "A" }, { "projects", "remove", "Wish" },
        { "projects", "match", "a" }, { "projects", "rename", "Wish", "B" }, { "projects", "export" },
        { "apply", "Wish" }, { "assign", "Wish", "--from", "2006-10-10T09:00", "--to", "2006-10-10T10:00" },
        { "edit", "@1", "--description", "b" }, { "split", "@1", "--at", "09:02" }, { "join", "@1", "@2" },
        { "add", "--from", "08:00", "--to", "08:30" }, { "delete", "@1" }, { "undo" }, { "report" },
        { "problem-report", "--expected", "a", "--actual", "b", "--out", "/nonexistent/a.eml" }, { "demo" },
        { "settings", "set", "author", "A" }, { "forget", "--match", "zz", "--yes" },
        { "registry", "set", "HKCU", "", "A", "b" }, { "registry", "delete", "HKCU", "", "CurrentVersion" } };
}

std::vector<std::vector<std::string>> OneOfEachCommand()
{
    auto commands = OneOfEachWriter();
    const auto readers = OneOfEachReader();
    commands.insert(commands.end(), readers.begin(), readers.end());
    return commands;
}

}
