#include "cli/PersonsChoice.h"
#include "support/ProgramFixture.h"

#include <random>

namespace tempodial {

namespace {

using testing::HasSubstr;

class WhyCommandTest : public ProgramFixture
{
protected:
    void Import()
    {
        Json({ "projects", "set", "Plan", "--subject", "budget, \"big plan\"", "--not-subject", "draft", "--people",
            "Ann" });
        Json({ "projects", "set", "Alpha", "--subject", "zebra", "--precedence", "high" });
        WriteTracker("20061010", { WordSlot(32400, 33300, "budget.doc"), WordSlot(33300, 33600, "lunch.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
        for (const auto* name : { "Critical", "Other", "Personal", "Supportive", "Wish" }) {
            Run({ "projects", "remove", name });
        }
    }
    static nlohmann::json Parsed(const char* text) { return nlohmann::json::parse(text); }
};

}

TEST_F(WhyCommandTest, Why_Subject_TellsEachProject)
{
    Import();
    EXPECT_EQ(Json({ "why", "--subject", "the Budget draft" }), Parsed(R"({ "id": null, "stored": null,
        "byRules": "No Project", "byHand": false, "tried": [
        { "project": "Alpha", "precedence": "1", "matches": false, "rule": null, "term": null, "excludedBy": null },
        { "project": "Plan", "precedence": "2", "matches": false, "rule": "subject", "term": "budget",
            "excludedBy": "draft" } ] })"));
    EXPECT_EQ(Json({ "why", "--subject", "a big plan, draft", "--people", "Ann Berger" }).at("tried").at(1),
        Parsed(R"({ "project": "Plan", "precedence": "2", "matches": true, "rule": "people", "term": "Ann",
            "excludedBy": "draft" })"));
    EXPECT_EQ(Json({ "why", "--subject", "a big plan" }).at("tried").at(1).at("term"), "\"big plan\"");
}

TEST_F(WhyCommandTest, Why_Activity_IsNamedByNumberOrMoment)
{
    Import();
    const auto why = Json({ "why", "2006-10-10T09:14" });
    EXPECT_EQ(why.at("stored"), "Plan");
    EXPECT_EQ(why.at("byRules"), "Plan");
    EXPECT_EQ(why.at("byHand"), false);
    EXPECT_EQ(why.at("id"), Json({ "list" }).at(0).at("id"));
    EXPECT_EQ(Json({ "why", "09:00" }), why);
    EXPECT_EQ(Json({ "why", "@" + std::to_string(why.at("id").get<int>()) }), why);
    EXPECT_EQ(Json({ "why", "09:15" }).at("stored"), "No Project") << "the end is no part of an activity";
    EXPECT_THAT(Refusal({ "why", "09:20" }, 1), HasSubstr("there is no activity at 09:20"));
    EXPECT_THAT(Refusal({ "why", "08:59" }, 1), HasSubstr("there is no activity"));
    EXPECT_THAT(Refusal({ "why", "@99999" }, 1), HasSubstr("there is no activity @99999"));
}

TEST_F(WhyCommandTest, Why_SeveralAtAMoment_IsTheLatestStart)
{
    WriteTracker("20061010", { WordSlot(32400, 36000, "long.doc"), WordSlot(33000, 33300, "short.doc") });
    Run({ "sync" });
    const auto id = [this](const char* moment) { return Json({ "why", moment }).at("id"); };
    EXPECT_NE(id("09:11"), id("09:05"));
    EXPECT_EQ(id("09:20"), id("09:05"));
}

TEST_F(WhyCommandTest, Why_SetByHand_TellsSo)
{
    Import();
    ChooseProject(mProfile, Date::FromParts({ 2006, 10, 10, 9, 0, 0 }), "Alpha");
    const auto why = Json({ "why", "09:00" });
    EXPECT_EQ(why.at("stored"), "Alpha");
    EXPECT_EQ(why.at("byRules"), "Plan");
    EXPECT_EQ(why.at("byHand"), true);
    EXPECT_THAT(Run({ "why", "09:00" }).out, HasSubstr("It has: Alpha, set by hand\nThe rules give: Plan\n"));
}

TEST_F(WhyCommandTest, Why_ForPeople_IsATable)
{
    Import();
    EXPECT_EQ(Run({ "why", "--subject", "budget", "--people", "Bob" }).out,
        "budget\n"
        "With: Bob\n"
        "The rules give: Plan\n"
        "\n"
        "PROJECT  PRECEDENCE  MATCHES  RULE     TERM    EXCLUDED BY\n"
        "Alpha    high        no\n"
        "Plan     medium      yes      subject  budget\n");
}

TEST_F(WhyCommandTest, Why_AnySubject_NamesTheProjectOfTheRules)
{
    const std::vector<std::string> words { "plan", "big", "draft", "ann", "x", "zebra", "\"a b\"", "größe" };
    std::mt19937 random(11); // NOLINT(cert-msc51-cpp): the same each time
    const auto any = [&](std::size_t most) {
        std::string text;
        for (auto count = random() % (most + 1); count > 0; --count) {
            text += words[random() % words.size()] + (random() % 2 == 0 ? " " : ", ");
        }
        return text;
    };
    for (int i = 0; i < 6; ++i) {
        Run({ "projects", "set", "P" + std::to_string(i), "--subject", any(3), "--not-subject", any(1), "--people",
            any(1), "--precedence", i % 2 == 0 ? "high" : "low" });
    }
    for (int i = 0; i < 25; ++i) {
        const auto subject = any(4);
        const auto people = any(2);
        const auto why = Json({ "why", "--subject", subject, "--people", people });
        EXPECT_EQ(why.at("byRules"), Json({ "projects", "match", subject, "--people", people }).at("project"))
            << subject;
        std::string first = "No Project";
        for (const auto& tried : why.at("tried")) {
            if (first == "No Project" && tried.at("matches") == true) {
                first = tried.at("project");
            }
        }
        EXPECT_EQ(why.at("byRules"), first);
    }
}

TEST_F(WhyCommandTest, Why_BadArguments_AreRefused)
{
    EXPECT_THAT(Refusal({ "why" }, 2), HasSubstr("give @N, a moment, or --subject"));
    EXPECT_THAT(Refusal({ "why", "@1", "--subject", "a" }, 2), HasSubstr("leave one of them out"));
    EXPECT_THAT(Refusal({ "why", "@1", "--people", "a" }, 2), HasSubstr("--people has no --subject"));
    for (const auto* text : { "@", "@-1", "@x", "@1x" }) {
        EXPECT_THAT(Refusal({ "why", text }, 2), HasSubstr("names no activity")) << text;
    }
    for (const auto* text : { "9:00", "25:00", "2006-10-10", "today", "" }) {
        EXPECT_THAT(Refusal({ "why", text }, 2), HasSubstr("names no activity")) << text;
    }
}

}
