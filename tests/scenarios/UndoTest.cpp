#include "support/LongTests.h"
#include "support/ProgramFixture.h"

#include <algorithm>
#include <filesystem>
#include <random>
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

TEST_F(UndoTest, KilledAnywhere_StepAndChangeAreThereTogetherOrNotAtAll)
{
    const auto before = State();
    const auto profile = mProfile;
    const auto command = [&](const std::string& folder) {
        mProfile = folder;
        return Whole({ "assign", "New", "@2", "@3" });
    };
    const auto copy = [&](const std::string& name) {
        fs::remove_all(mFolder.Path(name));
        fs::copy(profile, mFolder.Path(name), fs::copy_options::recursive);
        return mFolder.Path(name);
    };
    const auto counted = RunTempodialKilledAt(command(copy("whole")), 0);
    if (!counted) {
        GTEST_SKIP() << "no observation here";
    }
    ASSERT_EQ(counted->status, 0) << counted->error;
    const auto after = State();
    ASSERT_NE(before, after);
    const auto points = std::min<std::int64_t>(counted->systemCalls, ShortOrLong(24, 2000));
    int untouched = 0;
    for (std::int64_t i = 1; i <= points; ++i) {
        const auto call = counted->systemCalls * i / points;
        RunTempodialKilledAt(command(copy("cut")), call);
        const auto state = State();
        if (StepCount() == 0) {
            ++untouched;
            EXPECT_EQ(state, before) << call;
        } else {
            EXPECT_EQ(state, after) << call;
            EXPECT_EQ(Json({ "undo" }).at("restored"), 2) << call;
            EXPECT_EQ(State(), before) << call;
        }
    }
    EXPECT_GT(untouched, 0);
    EXPECT_LT(untouched, points);
}

}
