#include "support/DriverFixture.h"

namespace tempodial {

namespace {

using testing::HasSubstr;

}

class FormCommandsTest : public DriverFixture
{
protected:
    FormCommandsTest() { Do({ { "do", "start" } }); }

    void Menu(const std::string& caption)
    {
        Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" }, { "path", { "&Tempodial", caption } } });
    }
    /// The newest form of a class.
    Json Form(const std::string& name)
    {
        Json found;
        const auto answer = Do({ { "do", "forms" } });
        for (const auto& form : answer.at("forms")) {
            if (form.at("class") == name) {
                found = form;
            }
        }
        return found;
    }
    Json Control(const std::string& form, const std::string& name) { return Form(form).at("controls").at(name); }
    Json Work(
        const std::string& command, const std::string& form, const std::string& control, Json more = Json::object())
    {
        more.update({ { "do", command }, { "form", form }, { "control", control } });
        return Do(more);
    }
    std::string Refusal(
        const std::string& command, const Json& form, const std::string& control, Json more = Json::object())
    {
        more.update({ { "do", command }, { "form", form }, { "control", control } });
        return Refused(more);
    }
};

TEST_F(FormCommandsTest, Forms_Hidden_AreToldToo)
{
    EXPECT_EQ(Form("ReportForm").at("visible"), false);
    Menu("Create Activity &Report...");
    const auto form = Form("ReportForm");
    EXPECT_EQ(form.at("visible"), true);
    EXPECT_EQ(form.at("title"), "Create a report in e-mail format ");
}

TEST_F(FormCommandsTest, Forms_Controls_AreToldByKind)
{
    Menu("Create Activity &Report...");
    EXPECT_EQ(Control("ReportForm", "Label3"),
        Json::parse(R"({"kind":"label","text":"Report","enabled":true,"visible":true,"tip":""})"));
    EXPECT_EQ(Control("ReportForm", "Command1"),
        Json::parse(R"({"kind":"button","text":"OK","enabled":true,"visible":true,"tip":""})"));
    EXPECT_EQ(Control("ReportForm", "ProjectOption"),
        Json::parse(
            R"({"kind":"option","text":"by &project","checked":false,"enabled":true,"visible":true,"tip":""})"));
    const auto check = Control("ReportForm", "csvcheck");
    EXPECT_EQ(check.at("kind"), "check");
    EXPECT_EQ(check.at("checked"), true);
    EXPECT_THAT(check.at("tip").get<std::string>(), HasSubstr("comma separated"));
    const auto combo = Control("ReportForm", "MonthComboFrom");
    EXPECT_EQ(combo.at("kind"), "combo");
    EXPECT_EQ(combo.at("list").size(), 12);
    EXPECT_EQ(combo.at("index"), -1);
    EXPECT_EQ(combo.at("text"), combo.at("list")[9]);
    Menu("Pro&ject Settings...");
    EXPECT_EQ(Control("ProjectSettingsForm", "SubjectText").at("kind"), "text");
}

TEST_F(FormCommandsTest, FormType_Text_IsAChange)
{
    Menu("Pro&ject Settings...");
    EXPECT_EQ(Control("ProjectSettingsForm", "SaveButton").at("enabled"), false);
    Work("form.type", "ProjectSettingsForm", "SubjectText", { { "text", "plan" } });
    EXPECT_EQ(Control("ProjectSettingsForm", "SubjectText").at("text"), "plan");
    EXPECT_EQ(Control("ProjectSettingsForm", "SaveButton").at("enabled"), true);
    Work("form.type", "ProjectSettingsForm", "ProjectComboBox", { { "text", "Plan" } });
    EXPECT_EQ(Control("ProjectSettingsForm", "ProjectComboBox").at("index"), -1);
    Work("form.click", "ProjectSettingsForm", "SaveandCloseButton");
    EXPECT_EQ(Form("ProjectSettingsForm").at("visible"), false);
    Menu("Pro&ject Settings...");
    EXPECT_THAT(Control("ProjectSettingsForm", "ProjectComboBox").at("list").dump(), HasSubstr("\"Plan\""));
}

TEST_F(FormCommandsTest, FormChoose_ByIndexOrText_IsAClick)
{
    Menu("Pro&ject Settings...");
    Work("form.choose", "ProjectSettingsForm", "PrecedenceCombo", { { "index", 0 } });
    EXPECT_EQ(Control("ProjectSettingsForm", "PrecedenceCombo").at("text"), "High");
    EXPECT_EQ(Control("ProjectSettingsForm", "SaveButton").at("enabled"), true);
    Work("form.choose", "ProjectSettingsForm", "PrecedenceCombo", { { "text", "Low" } });
    EXPECT_EQ(Control("ProjectSettingsForm", "PrecedenceCombo").at("index"), 2);
    const auto refuse
        = [this](const Json& entry) { return Refusal("form.choose", "ProjectSettingsForm", "PrecedenceCombo", entry); };
    EXPECT_THAT(refuse({ { "index", 3 } }), HasSubstr("no such entry"));
    EXPECT_THAT(refuse({ { "index", -1 } }), HasSubstr("no such entry"));
    EXPECT_THAT(refuse({ { "text", "Highest" } }), HasSubstr("no such entry"));
    EXPECT_THAT(refuse(Json::object()), HasSubstr("either"));
    EXPECT_EQ(Control("ProjectSettingsForm", "PrecedenceCombo").at("index"), 2);
}

TEST_F(FormCommandsTest, FormCheck_BoxesAndOptions_AreSet)
{
    Menu("Create Activity &Report...");
    Work("form.check", "ReportForm", "csvcheck", { { "checked", false } });
    Work("form.check", "ReportForm", "DateOption", { { "checked", true } });
    EXPECT_EQ(Control("ReportForm", "csvcheck").at("checked"), false);
    EXPECT_EQ(Control("ReportForm", "DateOption").at("checked"), true);
    EXPECT_EQ(Control("ReportForm", "ApplicationOption").at("checked"), false);
    EXPECT_THAT(
        Refusal("form.check", "ReportForm", "DateOption", { { "checked", false } }), HasSubstr("choosing another"));
}

TEST_F(FormCommandsTest, Controls_OfAnotherKindOrUnknown_AreRefused)
{
    Menu("Create Activity &Report...");
    EXPECT_THAT(Refusal("form.type", "ReportForm", "Command1", { { "text", "" } }), HasSubstr("text box"));
    EXPECT_THAT(Refusal("form.choose", "ReportForm", "Command1", { { "index", 0 } }), HasSubstr("combo box"));
    EXPECT_THAT(Refusal("form.check", "ReportForm", "Command1", { { "checked", true } }), HasSubstr("check box"));
    EXPECT_THAT(Refusal("form.click", "ReportForm", "csvcheck"), HasSubstr("no button"));
    EXPECT_THAT(Refusal("form.click", "ReportForm", "Command9"), HasSubstr("no control \"Command9\""));
    EXPECT_THAT(Refusal("form.click", 4711, "Command1"), HasSubstr("no form 4711"));
}

TEST_F(FormCommandsTest, Controls_HiddenOrDisabled_CantBeWorked)
{
    EXPECT_THAT(Refusal("form.click", "ReportForm", "Command1"), HasSubstr("no visible form"));
    EXPECT_THAT(Refusal("form.click", Form("ReportForm").at("form"), "Command1"), HasSubstr("disabled or hidden"));
    Menu("Pro&ject Settings...");
    EXPECT_THAT(Refusal("form.click", "ProjectSettingsForm", "SaveButton"), HasSubstr("disabled or hidden"));
    EXPECT_THAT(
        Refusal("form.type", "ProjectSettingsForm", "DaysText", { { "text", "1" } }), HasSubstr("disabled or hidden"));
    EXPECT_EQ(Control("ProjectSettingsForm", "DaysText").at("text"), "7");
}

TEST_F(FormCommandsTest, FormClose_ByFrame_CanBeRefused)
{
    Menu("Pro&ject Settings...");
    Work("form.type", "ProjectSettingsForm", "SubjectText", { { "text", "plan" } });
    Do({ { "do", "answers" }, { "answers", { "cancel", "no" } } });
    EXPECT_EQ(Do({ { "do", "form.close" }, { "form", "ProjectSettingsForm" } }).at("cancelled"), true);
    EXPECT_EQ(Form("ProjectSettingsForm").at("visible"), true);
    EXPECT_EQ(Do({ { "do", "form.close" }, { "form", "ProjectSettingsForm" } }).at("cancelled"), false);
    EXPECT_EQ(Form("ProjectSettingsForm").at("visible"), false);
    EXPECT_THAT(
        Refused({ { "do", "form.close" }, { "form", Form("ProjectSettingsForm").at("form") } }), HasSubstr("hidden"));
}

TEST_F(FormCommandsTest, Form_ClassName_IsTheNewestVisibleOne)
{
    Menu("Set Project for &Activities...");
    Menu("Set Project for &Activities...");
    const auto newest = Form("SetProjectForm").at("form");
    Work("form.type", "SetProjectForm", "ProjectComboBox", { { "text", "Plan" } });
    EXPECT_EQ(Form("SetProjectForm").at("form"), newest);
    EXPECT_EQ(Control("SetProjectForm", "ProjectComboBox").at("text"), "Plan");
    Work("form.click", "SetProjectForm", "Command2");
    Work("form.click", "SetProjectForm", "Command2");
    EXPECT_THAT(Refusal("form.click", "SetProjectForm", "Command2"), HasSubstr("no visible form"));
}

TEST_F(FormCommandsTest, OnPump_CancelInTheMidstOfASync_StopsIt)
{
    std::vector<std::string> slots;
    for (int i = 0; i < 12; ++i) {
        slots.push_back(Slot(8, i * 5, "document" + std::to_string(i)));
    }
    WriteTracker("20061010", slots);
    Do({ { "do", "onPump" }, { "at", 3 }, { "then", { { "do", "forms" } } } });
    Do({ { "do", "onPump" }, { "at", 3 },
        { "then", { { "do", "form.click" }, { "form", "ProgressBarForm" }, { "control", "LoadCancel" } } } });
    const auto answer
        = Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Standard" }, { "path", { "Refre&sh Tempodial" } } });
    ASSERT_EQ(answer.at("pumped").size(), 2);
    EXPECT_THAT(answer.at("pumped")[0].dump(), HasSubstr(R"("kind":"progress")"));
    EXPECT_EQ(answer.at("pumped")[1], Json::parse(R"({"ok":true,"messages":[]})"));
    const auto items = Do({ { "do", "items" } }).at("items").size();
    EXPECT_GT(items, 0);
    EXPECT_LT(items, 12);
}

}
