#include "engine/projects/TempodialProjectManager.h"

#include "base/Text.h"
#include "support/EngineFixture.h"

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::Not;

namespace tempodial {

namespace {

class TempodialProjectManagerTest : public EngineFixture
{
protected:
    TempodialProjectManagerTest()
    {
        mMain->mNewVersion = false;
        Start();
    }

    void Start()
    {
        mProjects = MakeRef<TempodialProjectManager>(mPlatform);
        mProjects->Initialize(mMain, mApplication, mNamespace, mLog);
        ForgetTrace();
    }
    /// Reads the lists from a value.
    void Load(const std::string& value)
    {
        Register("ProjectXML", value);
        Start();
        mProjects->InitProjects();
    }
    std::vector<std::string> Names()
    {
        std::vector<std::string> names;
        mProjects->GetProjects(names, false, false, false);
        return names;
    }
    void Add(const std::string& name, const std::string& subRule, const std::string& peopleRule = "",
        const std::string& precedence = "2", const std::string& notSubRule = "")
    {
        EXPECT_EQ(mProjects->UpdateorAddProject(name, subRule, notSubRule, peopleRule, precedence, false), "");
    }
    static std::string Record(const std::string& name, const std::string& precedence = "2")
    {
        return "<project><name>" + name
            + "</name><subjrules></subjrules><peoplerules></peoplerules><notsubjrules></notsubjrules><precedence>"
            + precedence + "</precedence></project>";
    }

    Ref<TempodialProjectManager> mProjects;
};

TEST_F(TempodialProjectManagerTest, Initialize_Registry_IsNotRead)
{
    Register("ProjectXML", Record("A") + "|");
    mProjects->Initialize(mMain, mApplication, mNamespace, mLog);
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_EQ(Traced().front(), "TDProjectMan revision 1 TempodialProjectManager");
}

TEST_F(TempodialProjectManagerTest, InitProjects_FirstRunOfANewVersion_TakesTheDefaultList)
{
    mMain->mNewVersion = true;
    Load("");
    EXPECT_THAT(Names(), ElementsAre("Critical", "Other", "Personal", "Supportive", "Wish"));
    EXPECT_EQ(Registered("ProjectXML"),
        Record("Critical") + "|" + Record("Other") + "|" + Record("Personal") + "|" + Record("Supportive") + "|"
            + Record("Wish") + "|");
    EXPECT_EQ(Registered("Project List"), "Critical|Other|Personal|Supportive|Wish");
}

TEST_F(TempodialProjectManagerTest, InitProjects_NothingSavedAndNoNewVersion_WritesEmptyTexts)
{
    Load("");
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_EQ(Registered("ProjectXML"), "");
    EXPECT_EQ(Registered("Project List"), "");
}

TEST_F(TempodialProjectManagerTest, InitProjects_SavedListAndNewVersion_KeepsTheSavedList)
{
    mMain->mNewVersion = true;
    Load(Record("A") + "|");
    EXPECT_THAT(Names(), ElementsAre("A"));
}

TEST_F(TempodialProjectManagerTest, InitProjects_OneRecord_TracesTheWholeRoad)
{
    const auto record = Record("A");
    Load(record + "|");
    EXPECT_THAT(Traced(),
        ElementsAre("TDProjectMan Init Projects " + record + "| new version? False",
            "TDProjectMan offset " + std::to_string(record.size() + 1) + " in line " + record + "|",
            "TDProjectMan line: " + record, "TDProjectMan project: A", "TDProjectMan AddProject called",
            "TDProject Initialize revision 1 TempodialProject", "TDProject Project Init: A   ",
            "TDProjectMan PM AlphaAdd: A", "TDProjectMan offset 0 in line ", "TDProjectMan Flush Projects",
            "TDProjectMan after: A", "TDProjectMan after: ", "TDProjectMan after: ", "TDProjectMan after: ",
            "TDProjectMan after: 2", "TDProjectMan XML: " + record, "TDUtils SetRegistryValue: Project List to A",
            "TDUtils SetRegistryValue: ProjectXML to " + record + "|"));
}

struct LoadCase
{
    std::string value;
    std::vector<std::string> names;
};

TEST_F(TempodialProjectManagerTest, InitProjects_Records_AreLoadedUpToTheOneThatEndsIt)
{
    const auto bar = [](const std::string& name) { return Record(name) + "|"; };
    for (const auto& [value, names] : { LoadCase { bar("A") + bar("B") + bar("B") + bar("C"), { "A", "B" } },
             LoadCase { bar("A") + bar("Unknown") + bar("C"), { "A" } },
             LoadCase { bar("A") + "|" + bar("C"), { "A" } }, LoadCase { Record("A"), {} },
             LoadCase { bar("A") + Record("B"), { "A" } }, LoadCase { "junk|", { "None" } },
             LoadCase { bar("") + bar("B"), { "", "B" } }, LoadCase { "|" + bar("A"), {} },
             LoadCase { bar("A") + bar("a"), { "A" } }, LoadCase { bar("A") + bar("B") + bar("A"), { "A", "B" } } }) {
        Load(value);
        EXPECT_THAT(Names(), ElementsAreArray(names)) << value;
        std::string kept;
        for (const auto& name : names) {
            kept += name == "None"
                ? "<project><name>None</name><subjrules>None</subjrules><peoplerules>None</peoplerules>"
                  "<notsubjrules>None</notsubjrules><precedence>2</precedence></project>|"
                : bar(name);
        }
        EXPECT_EQ(Registered("ProjectXML"), kept);
    }
}

TEST_F(TempodialProjectManagerTest, InitProjects_RecordThatEndsTheLoading_IsTraced)
{
    Load(Record("A") + "|" + Record("A") + "|" + Record("B") + "|");
    const auto traced = Traced();
    EXPECT_THAT(traced, Contains("TDProjectMan drop out").Times(1));
    EXPECT_THAT(traced, Not(Contains("TDProjectMan project: B")));
}

TEST_F(TempodialProjectManagerTest, InitProjects_OtherPrecedence_IsMedium)
{
    Load(Record("B", "7") + "|" + Record("A", "1") + "|" + Record("C", "3") + "|");
    EXPECT_EQ(mProjects->GetProjectPrecedence("B"), "2");
    EXPECT_THAT(Names(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(Registered("ProjectXML"), Record("A", "1") + "|" + Record("B", "2") + "|" + Record("C", "3") + "|");
}

TEST_F(TempodialProjectManagerTest, InitProjects_NodesAbsent_RulesAreTheWordForAbsentThings)
{
    Load("<project><name>A</name><subjrules>s</subjrules><precedence>1</precedence></project>|");
    EXPECT_EQ(mProjects->GetProjectSubRule("A"), "s");
    EXPECT_EQ(mProjects->GetProjectPeopleRule("A"), "None");
    EXPECT_EQ(mProjects->GetProjectNotSubRule("A"), "None");
    EXPECT_EQ(mProjects->GetProjectPrecedence("A"), "1");
}

TEST_F(TempodialProjectManagerTest, InitProjects_RulesWithMarkup_ComeBackUnchanged)
{
    const std::string rule = "a & b < c > d 'e' \"f\", &amp;";
    Add("R&D <1>", rule, rule, "3", rule);
    Start();
    mProjects->InitProjects();
    EXPECT_EQ(mProjects->GetProjectSubRule("R&D <1>"), rule);
    EXPECT_EQ(mProjects->GetProjectPeopleRule("R&D <1>"), rule);
    EXPECT_EQ(mProjects->GetProjectNotSubRule("R&D <1>"), rule);
    EXPECT_EQ(mProjects->GetProjectPrecedence("R&D <1>"), "3");
}

TEST_F(TempodialProjectManagerTest, InitProjects_BarInARule_RuinsTheRecordForGood)
{
    Add("A", "x|y");
    Add("B", "z");
    Start();
    mProjects->InitProjects();
    EXPECT_THAT(Names(), ElementsAre("None"));
    EXPECT_EQ(mProjects->GetProjectSubRule("None"), "None");
    EXPECT_EQ(Registered("Project List"), "None");
}

TEST_F(TempodialProjectManagerTest, xmlize_Signs_AreEscapedInPlace)
{
    std::string text = "R&D <'\">";
    EXPECT_EQ(mProjects->xmlize(text), Variant("R&amp;D &lt;&apos;&quot;&gt;"));
    EXPECT_EQ(text, "R&amp;D &lt;&apos;&quot;&gt;");
    EXPECT_THAT(Traced(), ElementsAre("TDProjectMan after: R&amp;D &lt;&apos;&quot;&gt;"));
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProject_Names_StandInTheirOrderWhateverTheirCase)
{
    Add("alpha", "");
    Add("Gamma", "");
    Add("beta", "");
    EXPECT_THAT(Names(), ElementsAre("alpha", "beta", "Gamma"));
    EXPECT_EQ(Registered("Project List"), "alpha|beta|Gamma");
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProject_NewProject_TracesTheWalkThroughTheList)
{
    Add("alpha", "");
    Add("Gamma", "");
    ForgetTrace();
    EXPECT_EQ(mProjects->UpdateorAddProject("beta", "s", "n", "p", "2", true), "");
    auto traced = Traced();
    traced.resize(11);
    EXPECT_THAT(traced,
        ElementsAre("TDProjectMan PM Update Proj: beta s n p 2 True", "TDProjectMan PM Validate Proj",
            "TDProjectMan PM add", "TDProjectMan AddProject called", "TDProject Initialize revision 1 TempodialProject",
            "TDProject Project Init: beta s p n", "TDProjectMan PM AlphaAdd: beta",
            "TDProjectMan PM AlphaAdd 1 - alpha", "TDProjectMan PM AlphaAdd 2 - Gamma",
            "TDProjectMan PM Addit: ", "TDProjectMan Flush Projects"));
    EXPECT_EQ(mProjects->GetProjectSubRule("beta"), "s");
    EXPECT_EQ(mProjects->GetProjectNotSubRule("beta"), "n");
    EXPECT_EQ(mProjects->GetProjectPeopleRule("beta"), "p");
}

TEST_F(TempodialProjectManagerTest, InitProjects_NameTwiceButForCase_IsRefusedByTheList)
{
    Load(Record("alpha") + "|" + Record("Gamma") + "|" + Record("ALPHA") + "|");
    EXPECT_THAT(Names(), ElementsAre("alpha", "Gamma"));
    EXPECT_THAT(Traced(),
        Contains("TDProjectMan PM AlphaAdd error This key is already associated with an element of this collection:"
                 "ReadLine"));
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProject_NamesNotAllowed_AreAnsweredByAMessage)
{
    EXPECT_EQ(
        mProjects->UpdateorAddProject("a|b", "", "", "", "2", false), "Project names may not include the | character.");
    EXPECT_EQ(mProjects->UpdateorAddProject("No Project", "", "", "", "2", true), "Invalid project selected");
    EXPECT_THAT(Names(), IsEmpty());
    EXPECT_THAT(Traced(), Not(Contains("TDProjectMan Flush Projects")));
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProject_ExistingProject_IsNeverValidated)
{
    mProjects->UpdateorAddProjectRule("No Project", "old", "");
    ForgetTrace();
    EXPECT_EQ(mProjects->UpdateorAddProject("No Project", "new", "", "", "2", false), "");
    EXPECT_EQ(mProjects->GetProjectSubRule("No Project"), "new");
    EXPECT_THAT(Traced(), Not(Contains("TDProjectMan PM Validate Proj")));
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProject_ExistingProjectToBeAddedOnly_ChangesNothing)
{
    Add("A", "s");
    ForgetTrace();
    EXPECT_EQ(mProjects->UpdateorAddProject("a", "other", "", "", "1", true), "");
    EXPECT_EQ(mProjects->GetProjectSubRule("A"), "s");
    EXPECT_EQ(mProjects->GetProjectPrecedence("A"), "2");
    EXPECT_THAT(Traced(), ElementsAre("TDProjectMan PM Update Proj: a other   1 True"));
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProject_OtherPrecedence_MovesTheProjectInOrder)
{
    Add("A", "", "", "1");
    Add("C", "", "", "1");
    Add("B", "");
    ForgetTrace();
    EXPECT_EQ(mProjects->UpdateorAddProject("b", "s", "n", "p", "1", false), "");
    EXPECT_THAT(Names(), ElementsAre("A", "B", "C"));
    EXPECT_EQ(mProjects->GetProjectPrecedence("B"), "1");
    EXPECT_EQ(mProjects->GetProjectSubRule("B"), "s");
    EXPECT_EQ(mProjects->GetProjectNotSubRule("B"), "n");
    EXPECT_EQ(mProjects->GetProjectPeopleRule("B"), "p");
    EXPECT_THAT(Traced(), Contains("TDProjectMan PM update"));
    EXPECT_EQ(mProjects->UpdateorAddProject("A", "", "", "", "3", false), "");
    EXPECT_THAT(Names(), ElementsAre("B", "C", "A"));
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProject_PrecedenceOfTheSameList_KeepsTheProject)
{
    Add("A", "s");
    EXPECT_EQ(mProjects->UpdateorAddProject("A", "s", "", "", "7", false), "");
    EXPECT_THAT(Names(), ElementsAre("A"));
    EXPECT_EQ(mProjects->GetProjectPrecedence("A"), "7");
    EXPECT_EQ(Registered("Project List"), "A");
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProjectRule_UnknownProject_IsAddedWithoutValidation)
{
    mProjects->UpdateorAddProjectRule("No Project", "s", "p");
    EXPECT_EQ(mProjects->GetProjectSubRule("No Project"), "s");
    EXPECT_EQ(mProjects->GetProjectNotSubRule("No Project"), "");
    EXPECT_EQ(mProjects->GetProjectPeopleRule("No Project"), "p");
    EXPECT_EQ(mProjects->GetProjectPrecedence("No Project"), "2");
    EXPECT_EQ(Registered("Project List"), "No Project");
    const auto traced = Traced();
    EXPECT_EQ(traced[0], "TDProjectMan PM Update Proj Rule: No Project s p");
    EXPECT_EQ(traced[1], "TDProjectMan add new project");
    EXPECT_THAT(traced, Not(Contains("TDProjectMan no item")));
}

TEST_F(TempodialProjectManagerTest, UpdateorAddProjectRule_KnownProject_GetsTheTerms)
{
    Add("A", "s", "p");
    mProjects->UpdateorAddProjectRule("A", "t", "q");
    EXPECT_EQ(mProjects->GetProjectSubRule("A"), "s,t");
    EXPECT_EQ(mProjects->GetProjectPeopleRule("A"), "p;q");
    ForgetTrace();
    mProjects->UpdateorAddProjectRule("A", "t", "q");
    EXPECT_EQ(mProjects->GetProjectSubRule("A"), "s,t");
    EXPECT_EQ(mProjects->GetProjectPeopleRule("A"), "p;q");
    const auto traced = Traced();
    EXPECT_EQ(traced[1], "TDProjectMan update existing project");
    EXPECT_EQ(traced[2], "TDProjectMan Flush Projects");
}

TEST_F(TempodialProjectManagerTest, DeleteProject_Name_LeavesNoList)
{
    Load(Record("A", "1") + "|" + Record("B") + "|" + Record("a", "3") + "|");
    EXPECT_THAT(Names(), ElementsAre("A", "B", "a"));
    ForgetTrace();
    mProjects->DeleteProject("A");
    EXPECT_THAT(Names(), ElementsAre("B"));
    EXPECT_EQ(Registered("Project List"), "B");
    const auto traced = Traced();
    EXPECT_EQ(traced[0], "TDProjectMan PM Del Proj: A");
    EXPECT_EQ(traced[1], "TDProjectMan Flush Projects");
    mProjects->DeleteProject("unknown");
    EXPECT_THAT(Names(), ElementsAre("B"));
}

TEST_F(TempodialProjectManagerTest, ValidateProject_Name_IsAnsweredByAMessageOrNone)
{
    const std::string character = "Project names may not include the | character.";
    const std::string invalid = "Invalid project selected";
    EXPECT_EQ(mProjects->ValidateProject("a|b"), character);
    EXPECT_EQ(mProjects->ValidateProject("No Project|"), character);
    ForgetTrace();
    EXPECT_EQ(mProjects->ValidateProject("No Project"), invalid);
    EXPECT_THAT(Traced(), ElementsAre("TDProjectMan PM Validate Proj", "TDProjectMan PM Validate Proj - invalid"));
    EXPECT_EQ(mProjects->ValidateProject("<New project..>"), invalid);
    ForgetTrace();
    EXPECT_EQ(mProjects->ValidateProject(""), "");
    EXPECT_THAT(Traced(), ElementsAre("TDProjectMan PM Validate Proj"));
    EXPECT_EQ(mProjects->ValidateProject("All Projects"), "");
    EXPECT_EQ(mProjects->ValidateProject("no project"), "");
}

TEST_F(TempodialProjectManagerTest, GetProjects_Flags_PutTheirEntriesBehindTheNames)
{
    Add("Low", "", "", "3");
    Add("High", "", "", "1");
    std::vector<std::string> names;
    EXPECT_EQ(mProjects->GetProjects(names, true, true, true), Variant(4));
    EXPECT_THAT(names, ElementsAre("High", "Low", "<New project..>", "No Project", "All Projects"));
    EXPECT_EQ(mProjects->GetProjects(names, false, true, false), Variant(2));
    EXPECT_THAT(names, ElementsAre("High", "Low", "No Project"));
}

TEST_F(TempodialProjectManagerTest, GetProjects_NothingToPutIn_FailsAndLeavesTheArray)
{
    std::vector<std::string> names { "before" };
    EXPECT_EQ(mProjects->GetProjects(names, false, false, false), Variant(-1));
    EXPECT_THAT(names, ElementsAre("before"));
    EXPECT_THAT(Traced(), ElementsAre("TDProjectMan GetProjects error Subscript out of range "));
    EXPECT_EQ(mProjects->GetProjects(names, true, false, false), Variant(0));
    EXPECT_THAT(names, ElementsAre("<New project..>"));
}

TEST_F(TempodialProjectManagerTest, WhatProject_NothingMatches_IsNoProject)
{
    Add("A", "plan");
    ForgetTrace();
    EXPECT_EQ(mProjects->WhatProject("other", ""), "No Project");
    EXPECT_THAT(Traced(), ElementsAre("TDProjectMan PM What Proj: other  = No Project"));
}

TEST_F(TempodialProjectManagerTest, WhatProject_HigherPrecedence_BeatsAnEarlierName)
{
    Add("Z", "plan", "", "1");
    Add("A", "plan");
    ForgetTrace();
    EXPECT_EQ(mProjects->WhatProject("Plan", "Ann"), "Z");
    EXPECT_THAT(Traced(), ElementsAre("TDProject unquoted match", "TDProjectMan PM What Proj: Plan Ann = Z"));
}

TEST_F(TempodialProjectManagerTest, WhatProject_LowerLists_AreTriedInTurn)
{
    Add("H", "high", "", "1");
    Add("M", "medium");
    Add("L", "low", "", "3");
    EXPECT_EQ(mProjects->WhatProject("low and medium", ""), "M");
    EXPECT_EQ(mProjects->WhatProject("low", ""), "L");
    EXPECT_EQ(mProjects->WhatProject("high, low", ""), "H");
}

TEST_F(TempodialProjectManagerTest, WhatProject_PeopleOfAnEarlierProject_BeatASubjectOfALaterOne)
{
    Add("Alpha", "x", "Ann");
    Add("Beta", "plan");
    EXPECT_EQ(mProjects->WhatProject("plan", "Ann"), "Alpha");
    EXPECT_EQ(mProjects->WhatProject("plan", ""), "Beta");
}

TEST_F(TempodialProjectManagerTest, WhatProject_ExcludedWord_StopsTheSubjectAlone)
{
    Add("Alpha", "plan", "Ann", "2", "draft");
    Add("Beta", "draft");
    EXPECT_EQ(mProjects->WhatProject("plan draft", ""), "Beta");
    EXPECT_EQ(mProjects->WhatProject("plan draft", "Ann"), "Alpha");
}

TEST_F(TempodialProjectManagerTest, IsProject_Rules_AreAskedForSubjectAndPeople)
{
    Add("A", "plan", "Ann", "2", "draft");
    ForgetTrace();
    EXPECT_TRUE(mProjects->IsProject("a", "Plan", ""));
    EXPECT_THAT(Traced(), ElementsAre("TDProjectMan PM isProject: a desc: Plan", "TDProject unquoted match"));
    EXPECT_TRUE(mProjects->IsProject("A", "x", "Ann"));
    EXPECT_FALSE(mProjects->IsProject("A", "plan draft", "Bob"));
    ForgetTrace();
    EXPECT_TRUE(mProjects->IsProject("A", "plan", "Ann"));
    EXPECT_THAT(Traced(), Contains("TDProject unquoted match").Times(2));
}

TEST_F(TempodialProjectManagerTest, IsProject_UnknownProject_IsFalseWithOneFailure)
{
    EXPECT_FALSE(mProjects->IsProject("A", "x", "y"));
    EXPECT_THAT(Traced(),
        ElementsAre("TDProjectMan PM isProject: A desc: x",
            "TDProjectMan PM Is proj error Object variable or With block variable not set:low"));
}

TEST_F(TempodialProjectManagerTest, GetProjectRules_UnknownProject_FailOnceEach)
{
    const std::string text = "Object variable or With block variable not set:low";
    EXPECT_EQ(mProjects->GetProjectSubRule("A"), "");
    EXPECT_EQ(mProjects->GetProjectNotSubRule("A"), "");
    EXPECT_EQ(mProjects->GetProjectPeopleRule("A"), "");
    EXPECT_EQ(mProjects->GetProjectPrecedence("A"), "2");
    EXPECT_THAT(Traced(),
        ElementsAre("TDProjectMan PM get projectsubrule error " + text,
            "TDProjectMan PM get projectnosubrule error " + text, "TDProjectMan PM get projectpeoplerule error " + text,
            "TDProjectMan PM get projectpeoplerule error " + text));
}

TEST_F(TempodialProjectManagerTest, Flush_Names_ArePlainInTheListAndEscapedInTheRecords)
{
    Add("R&D", "a&b");
    Add("A", "");
    Add("B", "");
    EXPECT_EQ(Registered("Project List"), "A|B|R&D");
    EXPECT_THAT(Registered("ProjectXML"), testing::HasSubstr("<name>R&amp;D</name><subjrules>a&amp;b</subjrules>"));
    EXPECT_EQ(mProjects->GetProjectSubRule("R&D"), "a&b");
}

TEST_F(TempodialProjectManagerTest, Flush_RegistryRefuses_KeepsTheProjects)
{
    mRegistry->refusesWriting = true;
    Add("A", "s");
    EXPECT_THAT(Names(), ElementsAre("A"));
    mRegistry->refusesWriting = false;
    Add("B", "");
    EXPECT_EQ(Registered("Project List"), "A|B");
}

TEST_F(TempodialProjectManagerTest, Flush_WithinAFlush_DoesNothing)
{
    class ReenteringRegistry : public MapRegistry
    {
    public:
        std::function<void()> onWrite;

        void Write(Hive hive, const std::string& key, const std::string& value, const std::string& text) override
        {
            if (const auto once = std::exchange(onWrite, nullptr)) {
                once();
            }
            MapRegistry::Write(hive, key, value, text);
        }
    };
    const auto registry = MakeRef<ReenteringRegistry>();
    mPlatform->registry = registry;
    registry->onWrite = [&] { Add("B", ""); };
    Add("A", "");
    const auto value = [&](const char* name) {
        return registry->Read(Hive::CurrentUser, ProductKey, name, RegistryAccess::Query).ToText();
    };
    EXPECT_THAT(Names(), ElementsAre("A", "B"));
    EXPECT_EQ(value("Project List"), "A");
    Add("C", "");
    EXPECT_EQ(value("Project List"), "A|B|C");
}

TEST_F(TempodialProjectManagerTest, Terminate_Manager_LetsGoOfTheMainObject)
{
    const auto uses = mMain.Shared().use_count();
    mProjects->Terminate();
    EXPECT_EQ(mMain.Shared().use_count(), uses - 1);
}

}

}
