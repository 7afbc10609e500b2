#include "review/RuledProject.h"

#include "review/Rules.h"
#include "session/OpenProfile.h"
#include "session/ProductFacts.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A record of a list as the add-in writes it.
std::string Record(const std::string& name, const std::string& precedence, const std::string& subject = "")
{
    return "<project><name>" + name + "</name><subjrules>" + subject
        + "</subjrules><peoplerules>p</peoplerules><notsubjrules>n</notsubjrules><precedence>" + precedence
        + "</precedence></project>|";
}

/// The projects of a profile whose list is that text, each as its name with its precedence.
std::vector<std::string> Read(const std::string& list)
{
    const TempFolder folder;
    const auto profile = OpenProfile({ .profile = folder.Path("profile"), .locale = "en_US" });
    profile.Registry()->Write(Hive::CurrentUser, ProductKey, ProjectsValue, list);
    std::vector<std::string> names;
    for (const auto& project : RuledProject::ReadAll(profile)) {
        names.push_back(project.name + project.precedence);
    }
    return names;
}

}

TEST(RuledProjectTest, ReadAll_Lists_AreInTheOrderInWhichTheyAreTried)
{
    EXPECT_THAT(Read(Record("b", "2") + Record("L", "3") + Record("A", "2") + Record("Z", "1")),
        ElementsAre("Z1", "A2", "b2", "L3"));
    EXPECT_THAT(Read(""), IsEmpty());
}

TEST(RuledProjectTest, ReadAll_WhatTheAddInDrops_IsLeftOut)
{
    EXPECT_THAT(Read(Record("A", "7")), ElementsAre("A2"));
    EXPECT_THAT(
        Read(Record("A", "2") + Record("B", "2") + Record("B", "2") + Record("C", "2")), ElementsAre("A2", "B2"));
    EXPECT_THAT(Read(Record("A", "2") + "|" + Record("C", "2")), ElementsAre("A2"));
    EXPECT_THAT(Read(Record("A", "2") + Record("Unknown", "2") + Record("C", "2")), ElementsAre("A2"));
    EXPECT_THAT(
        Read(Record("A", "2") + Record("B", "2") + Record("a", "2") + Record("a", "3")), ElementsAre("A2", "B2"));
    EXPECT_THAT(Read(Record("A", "2") + "<project/>"), ElementsAre("A2")) << "no sign ends it";
    EXPECT_THAT(Read("<project/>|" + Record("A", "2")), ElementsAre("A2", "None2"));
}

TEST(RuledProjectTest, ReadAll_Rules_AreThoseOfTheRecord)
{
    const TempFolder folder;
    const auto profile = OpenProfile({ .profile = folder.Path("profile"), .locale = "en_US" });
    profile.Registry()->Write(Hive::CurrentUser, ProductKey, ProjectsValue, Record("R&amp;D", "1", "a &lt;b&gt;"));
    const auto projects = RuledProject::ReadAll(profile);
    ASSERT_EQ(projects.size(), 1U);
    EXPECT_EQ(projects[0].name, "R&D");
    EXPECT_EQ(projects[0].subject.Text(), "a <b>");
    EXPECT_EQ(projects[0].notSubject.Text(), "n");
    EXPECT_EQ(projects[0].people.Text(), "p");
}

}
