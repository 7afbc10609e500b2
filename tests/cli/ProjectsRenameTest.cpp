#include "cli/PersonsChoice.h"
#include "support/ProgramFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ProjectsRenameTest : public ProgramFixture
{
protected:
    void Import()
    {
        Json({ "projects", "set", "Plan", "--subject", "budget", "--people", "Ann", "--precedence", "high" });
        WriteTracker("20061010", { WordSlot(32400, 33300, "budget.doc"), WordSlot(33300, 33600, "lunch.doc") });
        WriteTracker("20060926", { WordSlot(32400, 32700, "budget old.doc") });
        ASSERT_EQ(Run({ "sync" }).status, 0);
    }
};

}

TEST_F(ProjectsRenameTest, Rename_Project_TakesItsActivitiesAlong)
{
    Import();
    EXPECT_EQ(Json({ "projects", "rename", "plan", "Budget & Co" }), nlohmann::json::parse(R"({
        "name": "Budget & Co", "precedence": "1", "subject": "budget", "notSubject": "", "people": "Ann",
        "changed": 2 })"));
    const auto items = Json({ "list", "2006" });
    EXPECT_THAT(Subjects(items),
        ElementsAre("[Budget & Co] Microsoft Word, \"budget old.doc\"", "[Budget & Co] Microsoft Word, \"budget.doc\"",
            "Microsoft Word, \"lunch.doc\""));
    EXPECT_EQ(items.at(0).at("properties").at("Project"), "Budget & Co");
    EXPECT_EQ(items.at(0).at("mileage"), "Budget & Co");
    const auto projects = Json({ "projects" });
    EXPECT_EQ(projects.size(), 6U);
    EXPECT_EQ(projects.at(0).at("name"), "Budget & Co");
}

TEST_F(ProjectsRenameTest, Rename_MarkOfAPersonsChoice_Stays)
{
    Import();
    ChooseProject(mProfile, Date::FromParts({ 2006, 10, 10, 9, 15, 0 }), "Plan");
    Json({ "projects", "rename", "Plan", "Other name" });
    EXPECT_EQ(Json({ "why", "09:15" }).at("byHand"), true);
    EXPECT_EQ(Json({ "why", "09:00" }).at("byHand"), false);
}

TEST_F(ProjectsRenameTest, Rename_OtherLettersOrTheSame_AreNoOtherProject)
{
    Import();
    EXPECT_EQ(Json({ "projects", "rename", "plan", "PLAN" }).at("changed"), 2);
    EXPECT_EQ(Json({ "projects" }).at(0).at("name"), "PLAN");
    EXPECT_EQ(Json({ "projects", "rename", "plan", "PLAN" }).at("changed"), 0);
    EXPECT_EQ(Json({ "projects" }).size(), 6U);
}

TEST_F(ProjectsRenameTest, Rename_OfActivitiesAlone_IsKnownToo)
{
    Import();
    Json({ "projects", "remove", "Plan" });
    EXPECT_THAT(Refusal({ "projects", "rename", "Wish", "plan" }, 1), HasSubstr("already"));
    EXPECT_EQ(Json({ "projects", "rename", "Plan", "New" }).at("changed"), 2);
}

TEST_F(ProjectsRenameTest, Rename_WhatCantBe_ChangesNothing)
{
    Import();
    const auto before = Json({ "list", "2006" });
    EXPECT_THAT(Refusal({ "projects", "rename", "Plan", "wish" }, 1), HasSubstr("there is a project \"Wish\" already"));
    EXPECT_THAT(Refusal({ "projects", "rename", "Plam", "New" }, 1), HasSubstr("did you mean \"Plan\"?"));
    EXPECT_THAT(Refusal({ "projects", "rename", "No Project", "New" }, 1), HasSubstr("can't be renamed"));
    for (const auto* name : { "a|b", "no project" }) {
        EXPECT_EQ(Run({ "projects", "rename", "Plan", name }).status, 1) << name;
    }
    EXPECT_THAT(Refusal({ "projects", "rename", "Plan", " " }, 2), HasSubstr("can't be blank"));
    EXPECT_THAT(Refusal({ "projects", "rename", "Plan", "a\x01z" }, 2), HasSubstr("control characters"));
    EXPECT_THAT(Refusal({ "projects", "rename", "Plan" }, 2), HasSubstr("NEW is required"));
    EXPECT_EQ(Json({ "list", "2006" }), before);
}

}
