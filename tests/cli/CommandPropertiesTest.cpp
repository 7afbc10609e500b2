#include "cli/ConnectedRun.h"
#include "cli/ProjectChanges.h"
#include "cli/RunHere.h"
#include "review/ActivityReader.h"
#include "review/RulePreview.h"
#include "session/InstalledForm.h"
#include "support/ProgramFixture.h"

#include <random>
#include <set>

namespace tempodial {

namespace {

using nlohmann::json;

/// What must hold for any commands, tried on many that are invented. All is done inside the test, so that many are
/// quick; the tests of single commands start the program.
class CommandPropertiesTest : public ProgramFixture
{
protected:
    void SetUp() override
    {
        mProfile = mMemory.Path("profile");
        std::vector<std::string> slots;
        const std::vector<std::string> documents { "plan.doc", "draft plan.doc", "lunch.xls", "a, b.doc", "größe.doc",
            "site; yard.doc", "zebra.doc", "\"quoted\".doc" };
        for (int i = 0; i < 16; ++i) {
            const auto begin = 32400 + i * 600;
            slots.push_back(WordSlot(begin, begin + 600, documents[static_cast<std::size_t>(i) % documents.size()]));
        }
        std::filesystem::create_directories(mProfile + "/Tempodial");
        for (const auto* day : { "20061010", "20061006" }) {
            WriteTracker(day, slots);
        }
        ASSERT_EQ(Here({ "sync" }).status, 0);
    }
    ProgramResult Here(const Arguments& arguments) const { return RunHere(Whole(arguments)); }
    Options Opened() const
    {
        Options options;
        options.profile = mProfile;
        options.locale = "en_US";
        options.now = Date::FromParts({ 2006, 10, 10, 17, 0, 0 });
        options.command = "test";
        return options;
    }
    /// Items, rules and times, as other programs get them.
    std::string Everything() const
    {
        return Here({ "export", "2006", "--format", "json" }).out + Here({ "projects", "--json" }).out;
    }
    std::size_t StepCount() const { return json::parse(Here({ "log", "--json" }).out).size(); }

    std::size_t Below(std::size_t bound) { return mRandom() % bound; }
    template <class Values> const auto& OneOf(const Values& values) { return values[Below(values.size())]; }
    /// So many words at most, with what separates terms or doesn't between them.
    std::string Words(std::size_t most)
    {
        static const std::vector<std::string> words { "plan", "draft", "doc", "zebra", "GRÖSSE", "site", "yard.doc",
            "Word", "\"draft plan\"", "\"a, b\"", "lunch", "x" };
        static const std::vector<std::string> separators { ", ", " ", "; ", ",", "," };
        std::string text;
        for (auto count = Below(most + 1); count > 0; --count) {
            text += OneOf(words) + (count > 1 ? OneOf(separators) : "");
        }
        return text;
    }
    const std::string& Project()
    {
        static const std::vector<std::string> projects { "Plan", "Other", "Wish", "Süd & Ost", "New" };
        return OneOf(projects);
    }
    const std::string& Precedence()
    {
        static const std::vector<std::string> precedences { "1", "2", "3" };
        return OneOf(precedences);
    }
    std::string Minute(std::size_t firstHour, std::size_t hours)
    {
        const auto minute = Below(60);
        return std::to_string(firstHour + Below(hours)) + (minute < 10 ? ":0" : ":") + std::to_string(minute);
    }
    /// A command that changes something, or is refused.
    Arguments Any();

    TempFolder mMemory { TempFolder::InMemory() };
    std::mt19937 mRandom { 20061010 }; // NOLINT(cert-msc51-cpp): the same each time
};

CommandPropertiesTest::Arguments CommandPropertiesTest::Any()
{
    std::vector<std::string> numbers;
    for (const auto& item : json::parse(Here({ "list", "2006", "--json" }).out)) {
        numbers.push_back("@" + item.at("id").dump());
    }
    const auto one = numbers.empty() ? "@1" : OneOf(numbers);
    const auto other = numbers.empty() ? "@2" : OneOf(numbers);
    const std::string day = Below(2) == 0 ? "2006-10-06T" : "2006-10-10T";
    switch (Below(15)) {
    case 0:
        return { "projects", "set", Project(), "--subject", Words(3), "--precedence", "high" };
    case 1:
        return { "projects", "set", Project(), "--add-subject", "doc", "--not-subject", Words(1) };
    case 2:
        return { "projects", "remove", Project() };
    case 3:
        return { "projects", "rename", Project(), Project() };
    case 4:
        return { "apply", Project() };
    case 5:
        return { "apply", "--all" };
    case 6:
        return { "assign", Project(), "--from", day + "09:05", "--to", day + Minute(10, 3), "--overwrite",
            "--touching" };
    case 7:
        return { "assign", "No Project", one, other, "--overwrite" };
    case 8:
        return { "edit", one, other, "--description", Words(2), "--project", Project() };
    case 9:
        return { "edit", one, "--end", Minute(9, 10) };
    case 10:
        return { "split", one, "--at", Minute(9, 3) };
    case 11:
        return { "join", one, other };
    case 12:
        return { "add", "--from", day + "08:00", "--to", day + Minute(9, 9), "--description", Words(2) };
    case 13:
        return { "undo", std::to_string(1 + Below(StepCount() + 1)) };
    default:
        return { "delete", one };
    }
}

}

TEST_F(CommandPropertiesTest, AnyCommands_AsManyUndos_GiveTheBeginningByteForByte)
{
    constexpr std::size_t Steps = 50;
    const auto beginning = Everything();
    std::set<std::string> done;
    std::string said;
    for (std::size_t steps = 0; steps < Steps;) {
        const auto command = Any();
        ASSERT_LE(Here(command).status, 2);
        said += testing::PrintToString(command) + "\n";
        const auto now = StepCount();
        if (now > steps) {
            done.insert(command.front());
        }
        steps = now;
    }
    SCOPED_TRACE(said);
    EXPECT_GE(done.size(), 8U) << "of each kind some";
    // By their numbers, since undos are among them.
    for (auto step = Steps; step > 0; --step) {
        const auto undone = Here({ "undo", std::to_string(step), "--json" });
        ASSERT_EQ(undone.status, 0) << undone.error;
        ASSERT_EQ(json::parse(undone.out).at("kept"), 0) << step;
    }
    EXPECT_TRUE(Everything() == beginning);
}

TEST_F(CommandPropertiesTest, AnySubject_TrialNamesWhatMatchGives)
{
    ConnectedRun run(Opened());
    constexpr int Lists = 10;
    constexpr int SubjectsOfAList = 100;
    int matched = 0;
    for (int list = 0; list < Lists; ++list) {
        for (int i = 0; i < 4; ++i) {
            run.AddIn().UpdateorAddProject(Project(), Words(4), Words(1), Words(1), Precedence(), false);
        }
        const RuleTrial trial(RuledProject::ReadAll(run.Profile()));
        for (int i = 0; i < SubjectsOfAList; ++i) {
            const auto subject = Words(5);
            const auto people = Words(2);
            const auto* first = trial.First(FoldedText(subject), FoldedText(people));
            const auto byRules = first == nullptr ? "No Project" : first->name;
            ASSERT_EQ(byRules, run.AddIn().WhatProject(subject, people)) << subject << " | " << people;
            std::string tried = "No Project";
            for (const auto& result : trial.Try(subject, people)) {
                if (result.matches) {
                    tried = result.project->name;
                    break;
                }
            }
            ASSERT_EQ(tried, byRules);
            matched += first == nullptr ? 0 : 1;
        }
    }
    EXPECT_GT(matched, 200);
    EXPECT_LT(matched, 900);
}

TEST_F(CommandPropertiesTest, AnyRuleEdit_PreviewIsTheChange)
{
    ConnectedRun run(Opened());
    const Period days { Date::FromYearMonthDay(2006, 10, 4), Date::FromYearMonthDay(2006, 10, 10) };
    std::size_t changed = 0;
    for (int i = 0; i < 100; ++i) {
        const auto name = Project();
        run.AddIn().UpdateorAddProject(name, Words(2), Words(1), "", Precedence(), false);
        const RuleTrial trial(RuledProject::ReadAll(run.Profile()));
        const auto activities = ActivitiesStartingIn(run.Profile(), days);
        const auto preview
            = i % 2 == 0 ? RulePreview::OfOne(trial, name, activities) : RulePreview::OfAll(trial, activities, false);
        const ProjectChanges changes(run.Profile(), days);
        if (i % 2 == 0) {
            run.AddIn().ApplyProject(name, 7);
        } else {
            for (const auto& [number, project] : preview.targets) {
                const Ref<AppointmentItem> item = ItemNumbered(run.Profile(), number);
                if (run.AddIn().ApplyProjectToItem(project, item)) {
                    item->Save();
                }
            }
        }
        const auto moves = changes.Moves();
        ASSERT_EQ(preview.moves.LargestFirst(), moves.LargestFirst()) << name;
        changed += static_cast<std::size_t>(moves.Activities());
    }
    EXPECT_GT(changed, 100U);
}

}
