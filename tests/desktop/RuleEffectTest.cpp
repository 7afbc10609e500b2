#include "desktop/RuleEffect.h"

#include "desktop/LogFixture.h"
#include "desktop/RuleForm.h"
#include "forms/ModelHands.h"
#include "review/Rules.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <random>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Activities of the days up to Tuesday 10 October 2006, each of half an hour.
class RuleEffectTest : public testing::Test
{
protected:
    void Add(int day, const std::string& project, const std::string& description)
    {
        Activity activity;
        activity.number = static_cast<std::int64_t>(mLog.size()) + 1;
        activity.start = On(day, 9).AddMinutes(static_cast<int>(mLog.size()));
        activity.end = activity.start.AddMinutes(30);
        activity.duration = 30;
        activity.project = project;
        activity.type = "Word";
        activity.description = description;
        mLog.push_back(activity);
    }
    RuleEffect Effect(std::set<std::int64_t> open = {})
    {
        RuleEffect effect(mEdit, mKept, std::move(open), On(10, 0));
        const RuleEffect::Source source { .read =
                                              [this](const Period& days) {
                                                  std::vector<Activity> found;
                                                  std::copy_if(mLog.begin(), mLog.end(), std::back_inserter(found),
                                                      [&days](const Activity& activity) {
                                                          return activity.start >= days.first
                                                              && activity.start < days.last.AddDays(1);
                                                      });
                                                  mRead.push_back(days);
                                                  return found;
                                              },
            .lastStartBefore =
                [this](Date moment) {
                    std::optional<Date> last;
                    for (const auto& activity : mLog) {
                        last = activity.start < moment ? std::optional(activity.start) : last;
                    }
                    return last;
                } };
        while (!effect.IsDone()) {
            effect.GoOn(source);
        }
        return effect;
    }
    static std::vector<std::string> Names(const RuleEffect& effect)
    {
        std::vector<std::string> names;
        for (const auto& activity : effect.Changes()) {
            names.push_back(activity.description);
        }
        return names;
    }

    std::vector<Activity> mLog;
    std::vector<Period> mRead;
    std::vector<RuledProject> mKept { Ruled("Support", "1", "ticket"), Ruled("Riverside", "2", "old", "", "Ann") };
    RuleEdit mEdit { .project = "Riverside",
        .subjectRule = "plan",
        .notSubjectRule = "draft",
        .precedence = "2",
        .days = 7,
        .isAppliedBack = true,
        .isChanged = true };
};

}

TEST_F(RuleEffectTest, ChangedRules_AppliedBack_ListWhatComesToTheProject)
{
    Add(1, "", "plan of long ago");
    Add(4, "", "plan");
    Add(9, "Review", "plan for ticket");
    Add(9, "", "draft plan");
    Add(10, "Riverside", "plan");
    Add(10, "Riverside", "old");
    const auto effect = Effect();
    EXPECT_THAT(Names(effect), ElementsAre("plan for ticket", "plan"));
    EXPECT_EQ(effect.Title(), "Saving changes, in the last 7 days: 2 activities · 1 h");
    EXPECT_THAT(effect.Notes(),
        ElementsAre("1 of these has another project now, which it loses.",
            "1 of these would go to Support by the rules, which is tried first.",
            "1 activity is no longer matched, and keeps Riverside.",
            "The project has a rule for people; saving here takes it away."));
}

TEST_F(RuleEffectTest, NotAppliedBack_SaysThatNothingPastIsChanged)
{
    Add(10, "", "plan");
    mEdit.isAppliedBack = false;
    mEdit.days = 1;
    EXPECT_EQ(Effect().Title(), "Saving changes new activities only. Applied back to today: 1 activity · 30 min");
}

TEST_F(RuleEffectTest, NothingTyped_KeptRulesApply)
{
    Add(10, "", "old");
    Add(10, "", "plan");
    mEdit.isChanged = false;
    EXPECT_THAT(Names(Effect()), ElementsAre("old"));
    EXPECT_THAT(Effect().Notes(), IsEmpty());
}

TEST_F(RuleEffectTest, Open_IsPassedOver)
{
    Add(10, "", "plan");
    const auto effect = Effect({ 1 });
    EXPECT_THAT(effect.Changes(), IsEmpty());
    EXPECT_EQ(effect.Title(), "Saving changes, in the last 7 days: no activity");
    EXPECT_EQ(effect.Notes().front(), "1 more is open in a window of its own, and stays as it is.");
}

TEST_F(RuleEffectTest, NoNumberOfDays_ChangesNothing)
{
    Add(10, "", "plan");
    mEdit.days = 0;
    EXPECT_THAT(Effect().Changes(), IsEmpty());
    EXPECT_EQ(
        Effect().Title(), "Nothing past is changed: put a number of days to see what applying it back would change.");
}

TEST_F(RuleEffectTest, CannotBeSaved_SaysWhatToDo)
{
    Add(10, "", "plan");
    mEdit.precedence = "";
    EXPECT_THAT(Effect().Changes(), IsEmpty());
    EXPECT_EQ(Effect().Title(), "This can't be saved: choose a precedence from its list.");
    mEdit.precedence = "2";
    for (const auto* name : { "No Project", "<New project..>", "a|b" }) {
        mEdit.project = name;
        EXPECT_EQ(Effect().Title(), "This can't be saved: choose another name for the project.") << name;
    }
}

TEST_F(RuleEffectTest, ManyDays_AreReadInSlicesWithTheEmptyOnesLeftOut)
{
    for (const int day : { -4000, -60, -59, 9 }) {
        Add(1, "", "plan");
        mLog.back().start = On(1, 9).AddDays(day);
    }
    mEdit.days = 2147483647;
    const auto effect = Effect();
    EXPECT_EQ(effect.Changes().size(), 4U);
    EXPECT_LE(mRead.size(), 4U);
    EXPECT_TRUE(std::all_of(
        mRead.begin(), mRead.end(), [](const Period& days) { return DaysBetween(days.first, days.last) < 21; }));
    EXPECT_EQ(RuleEffect(mEdit, mKept, {}, On(10, 0)).Title(),
        "Saving changes, in the last 2147483647 days: no activity, so far");
}

namespace {

/// A person at the form of the project settings, over a real log.
class RuleEditsTest : public LogFixture
{
protected:
    std::size_t Below(std::size_t bound) { return mRandom() % bound; }
    std::string OneOf(const std::vector<std::string>& values) { return values[Below(values.size())]; }
    std::string Words(std::size_t most)
    {
        std::string text;
        for (auto count = Below(most + 1); count > 0; --count) {
            text += OneOf({ "plan", "draft", "zebra", "SITE", "\"a b\"", "Word", "lunch" })
                + (count > 1 ? OneOf({ ", ", ";", "," }) : "");
        }
        return text;
    }
    std::map<std::int64_t, std::string> Projects() const
    {
        std::map<std::int64_t, std::string> projects;
        for (const auto& activity : ActivitiesStartingIn(mSession.Profile(), Period::Always())) {
            projects[activity.number] = activity.project;
        }
        return projects;
    }
    void Edit()
    {
        const FormKey key { RuleForm::FormClass };
        if (Below(3) > 0) {
            mHands.Type(key, "SubjectText", Words(3));
        }
        if (Below(3) == 0) {
            mHands.Type(key, "NotSubjectText", Words(1));
        }
        if (Below(4) == 0) {
            mHands.Choose(key, "PrecedenceCombo", EntryKey { OneOf({ "High", "Medium", "Low" }) });
        }
        mHands.Check(key, "ApplyPastCheck", true);
        mHands.Type(key, "DaysText", OneOf({ "1", "7", "3", "30", "0", "2.5", "x" }));
    }

    std::mt19937 mRandom { 20061010 };
    ModelHands mHands { *mSession.Forms() };
};

}

TEST_F(RuleEditsTest, AnyEdit_ListsExactlyWhatSavingThenChanges)
{
    for (int day = 1; day <= 10; ++day) {
        for (const auto* description : { "plan", "draft plan", "zebra", "site yard", "a b", "lunch" }) {
            Added(description, On(day, 8).AddMinutes(static_cast<int>(Below(900))),
                OneOf({ "No Project", "Plan", "Wish" }));
        }
    }
    auto& addIn = mSession.AddIn();
    addIn.UpdateorAddProject("Plan", "plan", "", "Ann", "2", false);
    addIn.UpdateorAddProject("Wish", "zebra", "", "", "1", false);
    addIn.UpdateorAddProject("Garden", "", "", "", "3", false);
    const RuleEffect::Source source { .read
        = [this](const Period& days) { return ActivitiesStartingIn(mSession.Profile(), days); },
        .lastStartBefore = [this](Date moment) { return LastStartBefore(mSession.Profile(), moment); } };
    std::size_t changed = 0;
    for (int i = 0; i < 100; ++i) {
        addIn.ShowSettingsForm(OneOf({ "Plan", "Wish", "Garden" }), nullptr);
        RuleForm form(mSession.Forms()->NewestVisible(RuleForm::FormClass));
        form.Edit();
        const FormKey key { RuleForm::FormClass };
        mHands.Choose(key, "ProjectComboBox", EntryKey { OneOf({ "Plan", "Wish", "Garden" }) });
        form.Edit();
        if (Below(5) == 0) {
            mHands.Type(key, "ProjectComboBox", OneOf({ "wish", "New", "PLAN" }));
        }
        Edit();
        const auto edit = form.Edit();
        RuleEffect effect(edit, RuledProject::ReadAll(mSession.Profile()), {}, On(10, 0));
        while (!effect.IsDone()) {
            effect.GoOn(source);
        }
        auto expected = Projects();
        for (const auto& activity : effect.Changes()) {
            expected[activity.number] = edit.project;
        }
        changed += effect.Changes().size();
        mHands.Click(key, "SaveandCloseButton");
        ASSERT_EQ(Projects(), expected) << i << ": " << edit.project << " | " << edit.subjectRule << " | "
                                        << edit.notSubjectRule << " | " << edit.days << " | " << edit.isChanged;
    }
    EXPECT_GT(changed, 100U);
}

}
