#include "cli/PersonsChoice.h"
#include "support/ProgramFixture.h"

#include <map>
#include <random>

namespace tempodial {

namespace {

using testing::HasSubstr;

class ApplyCommandTest : public ProgramFixture
{
protected:
    /// Four activities of today and one of a fortnight ago, none of which has a project.
    void Import()
    {
        WriteTracker("20061010",
            { WordSlot(32400, 32700, "plan.doc"), WordSlot(32700, 33600, "plan draft.doc"),
                WordSlot(33600, 33900, "lunch.doc"), WordSlot(33900, 34200, "zebra plan.doc") });
        WriteTracker("20060926", { WordSlot(32400, 32700, "old plan.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
        Json({ "projects", "set", "Plan", "--subject", "plan" });
        Json({ "projects", "set", "Zebra", "--subject", "zebra", "--precedence", "high" });
    }
    /// The projects of the activities by their starts.
    std::map<std::string, std::string> Projects() const
    {
        std::map<std::string, std::string> projects;
        for (const auto& item : Json({ "list", "2006" })) {
            projects[item.at("start")] = item.at("properties").at("Project");
        }
        return projects;
    }
    static nlohmann::json Parsed(const char* text) { return nlohmann::json::parse(text); }
    static nlohmann::json Change(const std::string& from, const std::string& to, int activities, int minutes)
    {
        return { { "from", from }, { "to", to }, { "activities", activities }, { "minutes", minutes } };
    }
};

}

TEST_F(ApplyCommandTest, ApplyAll_Activities_GetTheProjectByPrecedence)
{
    Import();
    const auto before = Projects();
    const auto preview = Json({ "apply", "--all", "--preview" });
    EXPECT_EQ(preview,
        (nlohmann::json { { "changed", 3 }, { "keptByHand", 0 },
            { "changes", { Change("No Project", "Plan", 2, 20), Change("No Project", "Zebra", 1, 5) } } }));
    EXPECT_EQ(Projects(), before) << "a preview changes nothing";
    EXPECT_EQ(Json({ "apply", "--all" }), preview);
    auto after = before;
    after["2006-10-10T09:00:00"] = after["2006-10-10T09:05:00"] = "Plan";
    after["2006-10-10T09:25:00"] = "Zebra";
    EXPECT_EQ(Projects(), after);
    EXPECT_EQ(Json({ "apply", "--all" }), Parsed(R"({ "changed": 0, "keptByHand": 0, "changes": [] })"));
}

TEST_F(ApplyCommandTest, ApplyAll_Range_IsThatAlone)
{
    Import();
    EXPECT_EQ(Json({ "apply", "--all", "2006-09" }).at("changed"), 1);
    EXPECT_EQ(Projects().at("2006-09-26T09:00:00"), "Plan");
    EXPECT_EQ(Projects().at("2006-10-10T09:00:00"), "No Project");
    EXPECT_EQ(Json({ "apply", "--all", "--from", "2006-10-01" }).at("changed"), 3);
}

TEST_F(ApplyCommandTest, ApplyAll_SetByHand_KeepsItsProject)
{
    Import();
    ChooseProject(mProfile, Date::FromParts({ 2006, 10, 10, 9, 0, 0 }), "Wish");
    ChooseProject(mProfile, Date::FromParts({ 2006, 10, 10, 9, 5, 0 }), "No Project");
    const auto all = Json({ "apply", "--all", "--preview" });
    EXPECT_EQ(all.at("changed"), 1);
    EXPECT_EQ(all.at("keptByHand"), 2);
    const auto unassigned = Json({ "apply", "--all", "--only-unassigned" });
    EXPECT_EQ(unassigned.at("changed"), 2) << "one without a project is taken, by hand or not";
    EXPECT_EQ(unassigned.at("keptByHand"), 0);
    EXPECT_EQ(Projects().at("2006-10-10T09:00:00"), "Wish");
    EXPECT_EQ(Projects().at("2006-10-10T09:05:00"), "Plan");
    EXPECT_EQ(Run({ "apply", "--all" }).out, "0 activities changed\n1 activity keeps the project set by hand\n");
    EXPECT_EQ(Json({ "--quiet", "apply", "Plan" }).at("changed"), 2) << "what was set by hand isn't spared";
    Json({ "projects", "set", "Plan", "--subject", "" });
    Json({ "projects", "set", "Other", "--subject", "plan" });
    EXPECT_EQ(Json({ "apply", "--all" }).at("keptByHand"), 0) << "and is by hand no more";
}

TEST_F(ApplyCommandTest, ApplyOne_BelongingToAnother_IsNamed)
{
    Import();
    const auto message = "tempodial: 1 activity (0:05) of \"Plan\" belongs to \"Zebra\" by precedence: see \"tempodial "
                         "apply --all\" for what all rules give together\n";
    const auto preview = Run({ "--json", "apply", "Plan", "--preview" });
    EXPECT_EQ(preview.error, message);
    EXPECT_EQ(Run({ "apply", "Plan", "--preview", "--quiet" }).error, "");
    EXPECT_EQ(Run({ "apply", "Plan", "--preview" }).out,
        "FROM        TO    ACTIVITIES  TIME\n"
        "No Project  Plan           3  0:25\n"
        "\n"
        "3 activities would change\n");
    const auto applied = Run({ "--json", "apply", "Plan" });
    EXPECT_EQ(applied.error, message);
    EXPECT_EQ(applied.out, preview.out);
    EXPECT_EQ(Projects().at("2006-10-10T09:25:00"), "Plan");
    EXPECT_EQ(Run({ "apply", "Plan" }).error, "") << "nothing changes any more";
}

TEST_F(ApplyCommandTest, Preview_AnyRules_IsWhatApplyThenChanges)
{
    Import();
    const std::vector<std::string> words { "plan", "draft", "lunch", "word", "zebra", "\"plan draft\"", "doc", "x" };
    std::mt19937 random(5); // NOLINT(cert-msc51-cpp): the same each time
    const auto any = [&] {
        std::string rule;
        for (auto count = random() % 3; count > 0; --count) {
            rule += words[random() % words.size()] + (count > 1 ? ", " : "");
        }
        return rule;
    };
    const std::vector<std::string> names { "Plan", "Zebra", "Wish", "Other" };
    for (int i = 0; i < 12; ++i) {
        const auto& name = names[random() % names.size()];
        Arguments edit { "--json", "--quiet", "projects", "set", name, "--subject", any(), "--not-subject", any(),
            "--precedence", random() % 2 == 0 ? "high" : "low" };
        auto previewed = edit;
        previewed.insert(previewed.end(), { "--preview", "-30d" });
        const auto preview = Run(previewed);
        ASSERT_EQ(Run(edit).status, 0);
        EXPECT_EQ(preview.out, Run({ "--json", "--quiet", "apply", name, "--days", "30" }).out);
    }
}

TEST_F(ApplyCommandTest, Apply_BadArguments_AreRefused)
{
    EXPECT_THAT(Refusal({ "apply" }, 2), HasSubstr("NAME is required"));
    EXPECT_THAT(Refusal({ "apply", "Wish", "week" }, 2), HasSubstr("goes with --all"));
    EXPECT_THAT(Refusal({ "apply", "Wish", "--from", "today" }, 2), HasSubstr("goes with --all"));
    EXPECT_THAT(Refusal({ "apply", "Wish", "--only-unassigned" }, 2), HasSubstr("goes with --all"));
    EXPECT_THAT(Refusal({ "apply", "--all", "--days", "3" }, 2), HasSubstr("--days goes with NAME"));
    EXPECT_THAT(Refusal({ "apply", "--all", "someday" }, 2), HasSubstr("RANGE can't be"));
    EXPECT_THAT(Refusal({ "apply", "--all", "today", "today" }, 2), HasSubstr("RANGE"));
    EXPECT_THAT(Refusal({ "apply", "Wish", "--days", "0" }, 2), HasSubstr("--days can't be"));
    EXPECT_THAT(Refusal({ "apply", "Whish" }, 1), HasSubstr("did you mean"));
}

}
