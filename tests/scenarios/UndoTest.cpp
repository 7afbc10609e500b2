#include "support/LongTests.h"
#include "support/ProgramFixture.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace tempodial {

namespace {

namespace fs = std::filesystem;

/// Steps of a log of a morning, and what becomes of them when they are taken back or cut off.
class UndoTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        std::vector<std::string> slots;
        for (int i = 0; i < 8; ++i) {
            slots.push_back(
                WordSlot(32400 + i * 600, 33000 + i * 600, std::string(1, static_cast<char>('a' + i)) + ".doc"));
        }
        WriteTracker("20061010", slots);
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
    /// Items, rules and times, as other programs get them.
    std::string State() const
    {
        return Run({ "export", "2006", "--format", "json" }).out + Run({ "--json", "projects" }).out;
    }
    std::vector<std::string> Numbers() const
    {
        std::vector<std::string> numbers;
        for (const auto& item : Json({ "list", "2006" })) {
            numbers.push_back("@" + item.at("id").dump());
        }
        return numbers;
    }
    std::size_t StepCount() const { return Json({ "log" }).size(); }
    int Below(int bound) { return std::uniform_int_distribution<int>(0, bound - 1)(mRandom); }
    template <class Values> auto OneOf(const Values& values)
    {
        return values[static_cast<std::size_t>(Below(static_cast<int>(std::size(values))))];
    }
    std::string Time() { return "2006-10-10T" + std::to_string(10 + Below(10)) + ":" + std::to_string(10 + Below(50)); }

    /// A writing command, which may be refused.
    Arguments Any()
    {
        static const std::vector<std::string> projects { "Plan", "Other", "Wish", "No Project", "S\u00fcd & Ost" };
        static const std::vector<std::string> rules { "doc", "a.doc, b.doc", "\"c.doc\"", "" };
        const auto numbers = Numbers();
        const auto any = numbers.empty() ? std::string("@1") : OneOf(numbers);
        const auto other = numbers.empty() ? std::string("@2") : OneOf(numbers);
        switch (Below(11)) {
        case 0:
            return { "projects", "set", OneOf(projects), "--subject", OneOf(rules), "--precedence",
                OneOf(std::vector<std::string> { "high", "medium", "low" }) };
        case 1:
            return { "projects", "remove", OneOf(projects) };
        case 2:
            return { "apply", OneOf(projects) };
        case 3:
            return { "assign", OneOf(projects), "--from", "08:00", "--to", "09:45", "--overwrite", "--touching" };
        case 4:
            return { "assign", OneOf(projects), any, other, "--overwrite" };
        case 5:
            return { "edit", any, other, "--description", OneOf(rules), "--project", OneOf(projects) };
        case 6:
            return { "edit", any, "--end", Time() };
        case 7:
            return { "split", any, "--at", "09:" + std::to_string(10 + Below(50)) };
        case 8:
            return { "join", any, other };
        case 9:
            return { "add", "--from", "2006-10-10T08:00", "--to", Time(), "--description", OneOf(rules) };
        default:
            return { "delete", any };
        }
    }

    std::mt19937 mRandom { 20061010 };
};

/// A command that writes, and a command that comes before it for it to have something to change.
struct WritingCommand
{
    std::string name;
    std::vector<std::string> arguments;
    std::vector<std::string> before = {};
};

void PrintTo(const WritingCommand& command, std::ostream* stream)
{
    *stream << command.name;
}

class KilledStepTest : public UndoTest, public testing::WithParamInterface<WritingCommand>
{
protected:
    void SetUp() override
    {
        UndoTest::SetUp();
        mFolder.Write("projects.toml", "[[project]]\nname = \"Brought\"\nsubject = \"b.doc\"\n");
        if (!GetParam().before.empty()) {
            ASSERT_EQ(Run(GetParam().before).status, 0);
        }
    }
    Arguments Command() const
    {
        auto arguments = GetParam().arguments;
        for (auto& argument : arguments) {
            if (argument == "FILE") {
                argument = mFolder.Path("projects.toml");
            }
        }
        return arguments;
    }
};

std::vector<WritingCommand> WritingCommands()
{
    const std::vector<std::string> rule { "projects", "set", "Plan", "--subject", "a.doc, c.doc" };
    const std::vector<std::string> named { "assign", "Plan", "@1", "@2" };
    return { { "projectsSet", rule }, { "projectsRemove", { "projects", "remove", "Wish" } },
        { "projectsRename", { "projects", "rename", "Plan", "Better" }, named },
        { "projectsImport", { "projects", "import", "FILE" } }, { "applyOne", { "apply", "Plan" }, rule },
        { "applyAll", { "apply", "--all" }, rule }, { "assign", { "assign", "New", "@2", "@3" } },
        { "assignSpan", { "assign", "New", "--from", "09:00", "--to", "09:30", "--overwrite" } },
        { "edit", { "edit", "@2", "@3", "--description", "other", "--project", "New" } },
        { "split", { "split", "@2", "--at", "09:13" } }, { "join", { "join", "@2", "@4" } },
        { "add", { "add", "--from", "08:00", "--to", "08:30", "--project", "New" } },
        { "delete", { "delete", "@2", "@3" } }, { "undo", { "undo" }, { "delete", "@2", "@3" } } };
}

std::string NameOfCommand(const testing::TestParamInfo<WritingCommand>& info)
{
    return info.param.name;
}

}

TEST_F(UndoTest, AnyCommands_AsManyUndos_GiveTheBeginningByteForByte)
{
    for (int round = 0; round < ShortOrLong(2, 30); ++round) {
        const auto beginning = State();
        std::vector<std::string> states { beginning };
        const auto stepsBefore = StepCount();
        std::string said;
        while (StepCount() < stepsBefore + 8) {
            const auto command = Any();
            const auto status = Run(command).status;
            ASSERT_TRUE(status == 0 || status == 1 || status == 2);
            for (const auto& argument : command) {
                said += argument + " ";
            }
            said += "\n";
        }
        SCOPED_TRACE(said);
        for (int i = 0; i < 8; ++i) {
            EXPECT_EQ(Json({ "undo" }).at("kept"), 0);
        }
        ASSERT_EQ(State(), beginning);
    }
}

TEST_P(KilledStepTest, KilledAnywhere_StepAndChangeAreThereTogetherOrNotAtAll)
{
    const auto before = State();
    const auto stepsBefore = StepCount();
    const auto profile = mProfile;
    const auto arguments = [&](const std::string& name) {
        fs::remove_all(mFolder.Path(name));
        fs::copy(profile, mFolder.Path(name), fs::copy_options::recursive);
        mProfile = mFolder.Path(name);
        return Whole(Command());
    };
    const auto counted = RunTempodialKilledAt(arguments("whole"), 0);
    if (!counted) {
        GTEST_SKIP() << "no observation here";
    }
    ASSERT_EQ(counted->status, 0) << counted->error;
    const auto after = State();
    ASSERT_NE(before, after);
    ASSERT_EQ(StepCount(), stepsBefore + 1);
    const auto step = std::to_string(stepsBefore + 1);
    // What is written is written in the last third.
    const auto points = std::min<std::int64_t>(counted->systemCalls / 3, StopPoints(7, 700));
    int untouched = 0;
    for (std::int64_t i = 1; i <= points; ++i) {
        const auto call = counted->systemCalls * 2 / 3 + counted->systemCalls * i / points / 3;
        SCOPED_TRACE(call);
        RunTempodialKilledAt(arguments("cut"), call);
        const auto state = State();
        if (StepCount() == stepsBefore) {
            ++untouched;
            EXPECT_EQ(state, before);
        } else {
            EXPECT_EQ(state, after);
            EXPECT_EQ(Json({ "undo", step }).at("kept"), 0);
            EXPECT_EQ(State(), before);
        }
    }
    EXPECT_GT(untouched, 0);
    EXPECT_LT(untouched, points);
}

INSTANTIATE_TEST_SUITE_P(Commands, KilledStepTest, testing::ValuesIn(WritingCommands()), NameOfCommand);

TEST_F(UndoTest, Import_KilledAnywhere_IsAStepAsFarAsItCame)
{
    const auto before = State();
    const auto profile = mProfile;
    std::string table = "start,end,program,title\n";
    for (const auto* day : { "2006-10-02", "2006-10-03", "2006-07-04" }) {
        table += std::string(day) + "T09:00," + day + "T10:00,atlas,map\n";
    }
    const auto file = mFolder.Write("export.csv", table);
    const auto import = [&] {
        fs::remove_all(mFolder.Path("cut"));
        fs::copy(profile, mFolder.Path("cut"), fs::copy_options::recursive);
        mProfile = mFolder.Path("cut");
        return Whole({ "import", "csv", file, "--as", "sightings" });
    };
    const auto counted = RunTempodialKilledAt(import(), 0);
    if (!counted) {
        GTEST_SKIP() << "no observation here";
    }
    ASSERT_EQ(counted->status, 0) << counted->error;
    const auto after = Json({ "summary", "2006", "--rows", "application", "--columns", "none" });
    const auto points = ShortOrLong(8, 300);
    std::set<std::size_t> steps;
    for (std::int64_t i = 1; i <= points; ++i) {
        const auto call = counted->systemCalls / 3 + counted->systemCalls * i / points * 2 / 3;
        SCOPED_TRACE(call);
        RunTempodialKilledAt(import(), call);
        steps.insert(StepCount());
        // The rest comes with the next one, which makes it a step too.
        EXPECT_EQ(Run({ "import", "csv", file, "--as", "sightings" }).status, 0);
        EXPECT_EQ(Json({ "summary", "2006", "--rows", "application", "--columns", "none" }), after);
        for (auto left = StepCount(); left > 0; --left) {
            EXPECT_EQ(Json({ "undo" }).at("kept"), 0);
        }
        EXPECT_EQ(State(), before);
    }
    EXPECT_EQ(steps, (std::set<std::size_t> { 0, 1 }));
}

}
