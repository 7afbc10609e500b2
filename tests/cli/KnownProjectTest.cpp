#include "cli/KnownProject.h"

#include "cli/CommandError.h"
#include "support/AddInFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace tempodial {

namespace {

class KnownProjectTest : public AddInFixture
{
protected:
    std::vector<std::string> Names()
    {
        std::vector<std::string> names;
        for (const auto& project : KnownProject::ReadAll(*mAddIn.main)) {
            names.push_back(project.name);
        }
        return names;
    }
    void Remove(const std::vector<std::string>& names)
    {
        for (const auto& name : names) {
            mAddIn.main->DeleteProject(name);
        }
    }
};

using List = std::vector<std::string>;

}

TEST_F(KnownProjectTest, ReadAll_NewProfile_GivesTheDefaultProjects)
{
    EXPECT_EQ(Names(), (List { "Critical", "Other", "Personal", "Supportive", "Wish" }));
}

TEST_F(KnownProjectTest, ReadAll_SeveralPrecedences_AreInTheOrderTried)
{
    mAddIn.main->UpdateorAddProject("Zebra", "", "", "", "1", false);
    mAddIn.main->UpdateorAddProject("Aardvark", "", "", "", "3", false);
    EXPECT_EQ(Names(), (List { "Zebra", "Critical", "Other", "Personal", "Supportive", "Wish", "Aardvark" }));
}

TEST_F(KnownProjectTest, ReadAll_NoProject_IsEmptyWithoutAFailureInTheTrace)
{
    Remove(Names());
    mAddIn.Trace();
    EXPECT_EQ(Names(), List {});
    EXPECT_EQ(mAddIn.Trace(), List {});
}

TEST_F(KnownProjectTest, ToJson_Project_HasItsRulesInTheirFields)
{
    mAddIn.main->UpdateorAddProject("Plan", "subject", "not", "people", "3", false);
    EXPECT_EQ(KnownProject::Read(*mAddIn.main, "Plan").ToJson().Value().dump(),
        R"({"name":"Plan","precedence":"3","subject":"subject","notSubject":"not","people":"people"})");
}

TEST_F(KnownProjectTest, NameOf_OtherCase_GivesTheNameKept)
{
    EXPECT_EQ(KnownProject::NameOf(*mAddIn.main, "wISH"), "Wish");
    EXPECT_EQ(KnownProject::NameOrNew(*mAddIn.main, "wISH"), "Wish");
}

TEST_F(KnownProjectTest, NameOrNew_NoProjectInOtherCase_IsThatWord)
{
    EXPECT_EQ(KnownProject::NameOrNew(*mAddIn.main, "nO proJect"), "No Project");
}

TEST_F(KnownProjectTest, NameOf_Unknown_FailsOrStaysNew)
{
    for (const auto* name : { "", "Wishes", "No Project" }) {
        EXPECT_THROW(KnownProject::NameOf(*mAddIn.main, name), CommandError) << name;
        EXPECT_EQ(KnownProject::NameOrNew(*mAddIn.main, name), name);
    }
}

}
