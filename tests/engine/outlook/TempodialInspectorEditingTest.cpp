#include "engine/outlook/InspectorFixture.h"
#include "engine/outlook/WindowWithTexts.h"

#include <algorithm>

namespace tempodial {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

class TempodialInspectorEditingTest : public InspectorFixture
{
protected:
    static std::vector<std::string> List(const Ref<HostInspector>& inspector, const std::string& name)
    {
        return Control(inspector, name).As<HostPageControl>()->List();
    }
    /// The subject rule of a project.
    std::string Rule(const std::string& project)
    {
        auto rule = mMain->GetProjectSubRule(project);
        ForgetTrace();
        return rule;
    }
    static Date At(int day, int hour, int minute) { return Date::FromParts({ 2006, 10, day, hour, minute, 0 }); }
};

TEST_F(TempodialInspectorEditingTest, InitUnbound_Opening_ShowsTheType)
{
    const auto inspector = Open(Activity("Plan", "", "", "Microsoft Word"));

    EXPECT_EQ(Control(inspector, "ApplicationBox")->Text(), "Microsoft Word");
    EXPECT_THAT(Companions(), Contains("Type: Microsoft Word"));
}

TEST_F(TempodialInspectorEditingTest, UpdateProjectDropdown_Opening_OffersNewAndNoProject)
{
    AddProject("Alpha");
    const auto list = List(Open(Activity()), "ProjectComboBox");

    EXPECT_THAT(list, Contains("<New project..>"));
    EXPECT_THAT(list, Contains("No Project"));
    EXPECT_THAT(list, Contains("Alpha"));
    EXPECT_THAT(list, Not(Contains("All Projects")));
}

TEST_F(TempodialInspectorEditingTest, UpdateProjectDropdown_ProjectAddedMeanwhile_OffersIt)
{
    const auto inspector = OpenAlone(Activity());
    AddProject("Alpha");
    EXPECT_THAT(List(inspector, "ProjectComboBox"), Not(Contains("Alpha")));

    mCompanion->UpdateProjectDropdown();
    EXPECT_THAT(List(inspector, "ProjectComboBox"), Contains("Alpha").Times(1));
    EXPECT_EQ(Value(inspector, "ProjectComboBox"), "No Project");
}

struct KeywordCase
{
    std::string description;
    std::string people;
    std::string application;
    std::vector<std::string> entries;
};

TEST_F(TempodialInspectorEditingTest, UpdateFormDropdowns_Opening_OffersWhatMayBecomeARule)
{
    const std::string eighty = std::string(59, 'a') + "é" + std::string(20, 'b');
    const std::string sixty = std::string(59, 'a') + "é";
    const std::vector<KeywordCase> cases {
        { "Budget.doc - Anna;Ben;", "Anna;Ben;", "Word", { "Budget.doc", "\"Word\"", "Anna", "Ben" } },
        { "Budget.doc - Anna", "Anna;", "Word", { "Budget.doc", "\"Word\"", "Anna" } },
        { "Budget - draft", "X", "", { "Budgetdraft", "X" } },
        { " - Anna;", "Anna;", "", { "", "Anna" } },
        { "Budget - anna;", "Anna;", "", { "Budget - anna;", "Anna" } },
        { "a - Anna;b - Anna;", "Anna;", "", { "ab", "Anna" } },
        { "", "Anna;", "", { "Anna" } },
        { "", "", "", {} },
        { "Budget", ";Anna;;Ben", "", { "Budget", "Anna", "Ben" } },
        { eighty, "", "", { sixty } },
        { "Budget", "", eighty, { "Budget", '"' + sixty + '"' } },
        { "Budget", eighty + ";", "", { "Budget", eighty } },
    };
    for (const auto& sample : cases) {
        SCOPED_TRACE(sample.description + " / " + sample.people + " / " + sample.application);
        const auto inspector = Open(Activity(sample.description, sample.people, "", sample.application));
        auto entries = sample.entries;
        entries.push_back(mMain->mStrings->mSelectAKeyword);

        EXPECT_EQ(List(inspector, "DescCombo"), entries);
        EXPECT_EQ(Control(inspector, "SubjectBox")->Text(), sample.description);
        inspector->Close();
    }
}

TEST_F(TempodialInspectorEditingTest, IsBoundData_AnyOfSixControls_IsAChange)
{
    const std::vector<std::pair<std::string, Variant>> changes {
        { "ProjectComboBox", "Alpha" },
        { "DescCombo", "word" },
        { "SubjectBox", "plan" },
        { "PeopleBox", "Ben;" },
        { "StartBox", At(10, 9, 1) },
        { "EndBox", At(10, 9, 11) },
    };
    for (const auto& [name, value] : changes) {
        SCOPED_TRACE(name);
        const auto inspector = Open(Activity("Plan", "Anna;"));
        Set(inspector, name, value);
        mMessageBox->NextAnswer(Answer::No);
        mMessageBox->shown.clear();
        ForgetTrace();
        EXPECT_TRUE(inspector->Close());

        EXPECT_THAT(mMessageBox->shown, SizeIs(1));
        EXPECT_THAT(Companions(), Contains("bound data changed"));
    }
}

TEST_F(TempodialInspectorEditingTest, IsBoundData_ApplicationOrTickAlone_IsNoChange)
{
    const auto inspector = Open(Activity());
    Control(inspector, "ApplicationBox")->SetText("other");
    Set(inspector, "ApplyCheckBox", true);
    ForgetTrace();
    EXPECT_TRUE(inspector->Close());

    EXPECT_THAT(mMessageBox->shown, IsEmpty());
    EXPECT_THAT(Companions(), Not(Contains("bound data changed")));
}

TEST_F(TempodialInspectorEditingTest, WriteAll_Accepted_TracesItsStepsInOrder)
{
    AddProject("Alpha");
    const auto inspector = Open(Activity());
    Set(inspector, "ProjectComboBox", "Alpha");
    ForgetTrace();
    EXPECT_TRUE(inspector->Save());

    EXPECT_THAT(Companions(),
        ElementsAre("Item write 1", "IsBoundData to write? Alpha", "bound data changed", "WriteAll now", "writeunbound",
            "writeUnbound reset and exit", "ResetUnbound mOldProject: No Project", "Writebound", "Save rules",
            "Desc update?", "mOldProject: Alpha", "ResetKeys mOldProject: Alpha", "Item write - exit"));
}

TEST_F(TempodialInspectorEditingTest, WriteAll_UnknownProject_AddsItToTheList)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "Gamma");
    EXPECT_TRUE(inspector->Save());

    std::vector<std::string> projects;
    mMain->GetProjects(projects, false, false, false);
    EXPECT_THAT(projects, Contains("Gamma"));
    EXPECT_EQ(item->Mileage(), "Gamma");
    EXPECT_EQ(item->Subject(), "[Gamma] Notepad, Plan");
}

TEST_F(TempodialInspectorEditingTest, WriteAll_BackToNoProject_IsAccepted)
{
    AddProject("Alpha");
    const auto item = Activity("Plan", "", "Alpha");
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "No Project");
    EXPECT_TRUE(inspector->Save());

    EXPECT_THAT(mMessageBox->shown, IsEmpty());
    EXPECT_EQ(item->Mileage(), "No Project");
    EXPECT_EQ(item->Subject(), "Notepad, Plan");
}

TEST_F(TempodialInspectorEditingTest, WriteAll_PromptForANewProject_IsRefused)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "<New project..>");
    EXPECT_FALSE(inspector->Save());

    ASSERT_THAT(mMessageBox->shown, SizeIs(1));
    EXPECT_EQ(mMessageBox->shown[0].text, "Invalid project selected");
    EXPECT_EQ(item->Mileage(), "No Project");
    ForgetTrace();
    EXPECT_FALSE(inspector->Save());
    EXPECT_THAT(Companions(), Contains("bound data changed"));
}

TEST_F(TempodialInspectorEditingTest, Writebound_StartOnAnotherDay_MovesTheDay)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "StartBox", At(12, 9, 0));
    EXPECT_TRUE(inspector->Save());

    EXPECT_EQ(item->Start(), At(12, 9, 0));
    EXPECT_EQ(Property(item, "Day"), Variant(At(12, 0, 0)));
    EXPECT_EQ(Property(item, "StartTime"), Variant("09:00"));
}

TEST_F(TempodialInspectorEditingTest, Writebound_StartOnTheSameDay_LeavesDayAndStartTime)
{
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "StartBox", At(10, 8, 30));
    EXPECT_TRUE(inspector->Save());

    EXPECT_EQ(Property(item, "Day"), Variant(At(10, 0, 0)));
    EXPECT_EQ(Property(item, "StartTime"), Variant("09:00"));
    EXPECT_EQ(item->Start(), At(10, 8, 30));
}

TEST_F(TempodialInspectorEditingTest, Writebound_DayOutOfStep_FollowsOnlyAChangedStart)
{
    const auto item = Activity();
    item->UserProperties()->Item("Day")->SetValue(At(1, 0, 0));
    item->Save();
    const auto inspector = Open(item);
    Set(inspector, "EndBox", At(10, 9, 30));
    EXPECT_TRUE(inspector->Save());
    EXPECT_EQ(Property(item, "Day"), Variant(At(1, 0, 0)));
    EXPECT_EQ(item->End(), At(10, 9, 30));

    Set(inspector, "StartBox", At(10, 9, 5));
    EXPECT_TRUE(inspector->Save());
    EXPECT_EQ(Property(item, "Day"), Variant(At(10, 0, 0)));
}

TEST_F(TempodialInspectorEditingTest, Moments_ShownAsTexts_AreReadAsMoments)
{
    const auto item = Activity();
    const auto inspector = OpenAlone(item, [this](const auto& window) {
        return MakeRef<WindowWithTexts>(window, [this](Date moment) { return mPlatform->formats->Moment(moment); });
    });
    ForgetTrace();
    EXPECT_TRUE(inspector->Save());
    EXPECT_THAT(Companions(), Not(Contains("bound data changed")));

    Set(inspector, "StartBox", At(12, 9, 0));
    EXPECT_TRUE(inspector->Save());
    EXPECT_THAT(Companions(), Contains("bound data changed"));
    EXPECT_EQ(Property(item, "Day"), Variant(At(12, 0, 0)));
}

TEST_F(TempodialInspectorEditingTest, Moments_ShownAsNoMoments_CountAsChanged)
{
    const auto inspector = OpenAlone(
        Activity(), [](const auto& window) { return MakeRef<WindowWithTexts>(window, [](Date) { return "soon"; }); });
    EXPECT_THAT(Companions(), Contains("Resetbound error Type mismatch"));
    EXPECT_TRUE(inspector->Save());
    EXPECT_THAT(Companions(), Contains("bound data changed"));
}

TEST_F(TempodialInspectorEditingTest, SaveRules_Keyword_BecomesTheRuleOfThePagesProject)
{
    const std::vector<std::pair<std::string, std::string>> keywords {
        { "plan", "plan" },
        { " plan ", "plan" },
        { "annual review", "annual review" },
        { "\"annual review", "\"annual review\"" },
        { "annual review\"", "\"annual review\"" },
        { "\"annual review\"", "\"annual review\"" },
        { " \"plan ", "\"plan\"" },
        { "a\"b", "a\"b" },
        { "\"", "\"" },
    };
    int number = 0;
    for (const auto& [keyword, rule] : keywords) {
        SCOPED_TRACE(keyword);
        const auto project = "Project " + std::to_string(++number);
        AddProject(project);
        const auto inspector = Open(Activity());
        Set(inspector, "ProjectComboBox", project);
        Set(inspector, "DescCombo", keyword);
        ForgetTrace();
        EXPECT_TRUE(inspector->Save());

        EXPECT_THAT(Companions(), testing::IsSupersetOf({ "new desc rule: " + keyword, std::string("add desc rule") }));
        EXPECT_EQ(Rule(project), rule);
        EXPECT_EQ(mMain->GetProjectPeopleRule(project), "");
        inspector->Close();
    }
}

TEST_F(TempodialInspectorEditingTest, SaveRules_Prompt_AddsNoRule)
{
    AddProject("Alpha");
    const auto inspector = Open(Activity());
    Set(inspector, "ProjectComboBox", "Alpha");
    EXPECT_TRUE(inspector->Save());
    EXPECT_EQ(Rule("Alpha"), "");

    Set(inspector, "DescCombo", "word");
    EXPECT_TRUE(inspector->Save());
    Set(inspector, "DescCombo", mMain->mStrings->mSelectAKeyword);
    ForgetTrace();
    EXPECT_TRUE(inspector->Save());
    EXPECT_THAT(Companions(), Not(Contains("add desc rule")));
    EXPECT_EQ(Rule("Alpha"), "word");
}

TEST_F(TempodialInspectorEditingTest, SaveRules_NoProject_MakesAProjectOfThatName)
{
    const auto inspector = Open(Activity());
    Set(inspector, "DescCombo", "word");
    EXPECT_TRUE(inspector->Save());

    EXPECT_EQ(Rule("No Project"), "word");
}

TEST_F(TempodialInspectorEditingTest, Close_KeywordAndYes_WritesTwiceButAddsOneRule)
{
    AddProject("Alpha");
    const auto item = Activity();
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "Alpha");
    Set(inspector, "DescCombo", "word");
    mMessageBox->NextAnswer(Answer::Yes);
    ForgetTrace();
    EXPECT_TRUE(inspector->Close());

    const auto lines = Companions();
    EXPECT_THAT(lines, Contains("WriteAll now").Times(testing::AnyOf(1, 2)));
    EXPECT_THAT(lines, Contains("add desc rule").Times(1));
    EXPECT_EQ(Rule("Alpha"), "word");
    EXPECT_EQ(StoredProperty(item, "Keyword"), mMain->mStrings->mSelectAKeyword);
}

TEST_F(TempodialInspectorEditingTest, Open_AfterAKeywordWasSaved_BeginsWithThePrompt)
{
    const auto item = Activity();
    const auto first = Open(item);
    Set(first, "DescCombo", "word");
    Set(first, "ApplyCheckBox", true);
    EXPECT_TRUE(first->Save());
    EXPECT_TRUE(first->Close());

    const auto second = Open(item);
    EXPECT_EQ(Value(second, "DescCombo"), mMain->mStrings->mSelectAKeyword);
    EXPECT_EQ(Control(second, "ApplyCheckBox")->Value(), Variant(false));
}

TEST_F(TempodialInspectorEditingTest, Apply_TickedAndSaved_AppliesToTheLastDays)
{
    const auto past = Activity("Plan", "", "", "Notepad", 9);
    const auto old = Activity("Plan", "", "", "Notepad", 1);
    AddProject("Alpha", "plan");
    const auto inspector = Open(Activity("Letter"));
    Set(inspector, "ProjectComboBox", "Alpha");
    Set(inspector, "ApplyCheckBox", true);
    EXPECT_TRUE(inspector->Save());

    EXPECT_EQ(StoredProperty(past, "Project"), "Alpha");
    EXPECT_EQ(StoredProperty(old, "Project"), "No Project");
}

TEST_F(TempodialInspectorEditingTest, Apply_TickAloneAndClose_HasNoEffect)
{
    const auto past = Activity("Plan", "", "", "Notepad", 9);
    AddProject("Alpha", "plan");
    const auto item = Activity("Letter", "", "Alpha");
    const auto inspector = Open(item);
    Set(inspector, "ApplyCheckBox", true);
    EXPECT_TRUE(inspector->Close());

    EXPECT_THAT(mMessageBox->shown, IsEmpty());
    EXPECT_EQ(StoredProperty(past, "Project"), "No Project");
    EXPECT_EQ(StoredProperty(item, "ApplyPast"), "False");
}

TEST_F(TempodialInspectorEditingTest, Apply_TickAloneAndSaveClose_TakesEffect)
{
    const auto past = Activity("Plan", "", "", "Notepad", 9);
    AddProject("Alpha", "plan");
    const auto item = Activity("Letter", "", "Alpha");
    const auto inspector = Open(item);
    Set(inspector, "ApplyCheckBox", true);
    Click(inspector, "&Save and Close");

    EXPECT_EQ(StoredProperty(past, "Project"), "Alpha");
    EXPECT_EQ(StoredProperty(item, "ApplyPast"), "False");
}

TEST_F(TempodialInspectorEditingTest, Apply_ProjectRefusedAndTicked_RunsAllTheSame)
{
    const auto past = Activity("Plan", "", "", "Notepad", 9);
    const auto item = Activity("Letter");
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "a|b");
    Set(inspector, "ApplyCheckBox", true);
    ForgetTrace();
    EXPECT_FALSE(inspector->Save());

    EXPECT_THAT(mMessageBox->shown, SizeIs(1));
    EXPECT_THAT(Traced(), Contains(StartsWith("TDAnalyser ")));
    EXPECT_EQ(StoredProperty(past, "Project"), "No Project");
    EXPECT_EQ(StoredProperty(item, "Project"), "No Project");
    EXPECT_EQ(item->Mileage(), "No Project");
}

TEST_F(TempodialInspectorEditingTest, Apply_ItemInTheWindow_IsPassedOver)
{
    AddProject("Alpha", "plan");
    const auto item = Activity("Letter");
    const auto other = Activity("Plan", "", "No Project");
    Open(other);
    const auto inspector = Open(item);
    Set(inspector, "ProjectComboBox", "Alpha");
    Set(inspector, "ApplyCheckBox", true);
    EXPECT_TRUE(inspector->Save());

    EXPECT_EQ(StoredProperty(other, "Project"), "No Project");
}

}

}
