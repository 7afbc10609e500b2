#include "desktop/qt/drive/DeskDriver.h"

#include "desktop/qt/AgendaView.h"
#include "desktop/qt/CommandBarView.h"
#include "desktop/qt/FormView.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/InspectorWindow.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/OffscreenApplication.h"
#include "desktop/qt/drive/AgendaPointer.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>
#include <QToolButton>
#include <stdexcept>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

}

/// The desktop's windows, worked by commands at 9 o'clock on Tuesday, 10 October 2006.
class DeskDriverTest : public testing::Test
{
protected:
    DeskDriverTest()
    {
        OffscreenApplication();
        const ProfileOptions options {
            .profile = mFolder.Path("profile"), .locale = "en_US", .now = Date::FromParts({ 2006, 10, 10, 9, 0, 0 })
        };
        mDesk = std::make_unique<DeskDriver>(OffscreenApplication(), options, mFolder.Path("desktop.toml"));
        Do({ { "do", "start" } });
    }
    ~DeskDriverTest() override { mDesk->Driver().Exit(); }

    Json Answered(const Json& command) { return mDesk->Driver().Do(command); }
    Json Do(const Json& command)
    {
        auto answer = Answered(command);
        EXPECT_EQ(answer.at("ok"), true) << command << "\n" << answer;
        return answer;
    }
    std::string Refused(const Json& command)
    {
        const auto answer = Answered(command);
        EXPECT_EQ(answer.at("ok"), false) << command << "\n" << answer;
        EXPECT_FALSE(answer.contains("differences")) << answer;
        return answer.value("error", "");
    }
    /// An activity until a quarter to; answers its entry id.
    std::string Activity(const std::string& description, const std::string& start)
    {
        return Do(
            { { "do", "item.create" }, { "folder", "Calendar/Tempodial" },
                { "messageClass", "IPM.Appointment.TDActivity1" }, { "subject", "[Alpha] Word, " + description },
                { "start", "2006-10-10T" + start + ":00" }, { "end", "2006-10-10T" + start.substr(0, 3) + "45:00" },
                { "properties", { { "Project", "Alpha" }, { "Type", "Word" }, { "Description", description } } } })
            .at("entryId");
    }
    Json Click(const std::vector<std::string>& path)
    {
        return Answered({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" }, { "path", path } });
    }
    std::vector<std::string> Selected()
    {
        std::vector<std::string> subjects;
        const auto selection = mDesk->Driver().Host().Windows().OpenExplorers().front()->Selection();
        for (std::int32_t i = 1; i <= selection->Count(); ++i) {
            subjects.push_back(selection->Item(i)->Subject());
        }
        return subjects;
    }
    /// The window on the screen that is of a kind.
    template <class Kind> static Kind& Shown()
    {
        for (auto* window : QApplication::topLevelWidgets()) {
            auto* found = dynamic_cast<Kind*>(window);
            if (found != nullptr && found->isVisible()) {
                return *found;
            }
        }
        throw std::runtime_error("no such window");
    }
    Json Form(const std::string& command, const char* control, Json fields = Json::object())
    {
        fields["do"] = command;
        fields["form"] = "ProjectSettingsForm";
        fields["control"] = control;
        return Answered(fields);
    }
    /// A control of the project settings.
    Json Control(const char* name)
    {
        const auto answer = Do({ { "do", "forms" } });
        for (const auto& form : answer.at("forms")) {
            if (form.at("class") == "ProjectSettingsForm") {
                return form.at("controls").at(name);
            }
        }
        return {};
    }
    Json State() { return Do({ { "do", "explorer.state" }, { "explorer", 1 } }); }
    /// Start and end of the first item.
    std::string Times()
    {
        const auto item = Do({ { "do", "items" } }).at("items").at(0);
        return item.at("start").get<std::string>() + " " + item.at("end").get<std::string>();
    }
    MainWindow& Window() { return *mDesk->WindowOf(mDesk->Driver().Host().Windows().OpenExplorers().front()); }
    std::string Difference()
    {
        const auto answer = Answered({ { "do", "shell" } });
        EXPECT_EQ(answer.at("ok"), false);
        return answer.contains("differences") ? answer.at("differences").at(0).get<std::string>() : "";
    }

    TempFolder mFolder { TempFolder::InMemory() };
    std::unique_ptr<DeskDriver> mDesk;
};

TEST_F(DeskDriverTest, Select_ByClicks_ReachesTheModel)
{
    const auto first = Activity("a", "09:00");
    const auto second = Activity("b", "10:30");
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { second } } });
    EXPECT_THAT(Selected(), ElementsAre("[Alpha] Word, b"));
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { first, second } } });
    EXPECT_THAT(Selected(), ElementsAre("[Alpha] Word, a", "[Alpha] Word, b"));
    EXPECT_EQ(Window().Agenda().Selected().size(), 2);
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", Json::array() } });
    EXPECT_TRUE(Window().Agenda().Selected().empty());
}

TEST_F(DeskDriverTest, Commands_AreClickedInTheMenus)
{
    EXPECT_EQ(Click({ "&Tempodial", "&Help", "Tempodial &Help" }).at("ok"), true);
    EXPECT_EQ(Do({ { "do", "shell" } }).at("opened").size(), 1);
    EXPECT_EQ(Click({ "&Tempodial", "Pro&ject Settings..." }).at("ok"), true);
    Do({ { "do", "form.type" }, { "form", "ProjectSettingsForm" }, { "control", "SubjectText" }, { "text", "plan" } });
    EXPECT_THAT(Click({ "&Tempodial", "No such" }).at("error"), HasSubstr("No such"));
}

TEST_F(DeskDriverTest, Messages_AreClickedInTheirWindows)
{
    Click({ "&Tempodial", "Pro&ject Settings..." });
    const auto type = [&](const char* text) {
        Do({ { "do", "form.type" }, { "form", "ProjectSettingsForm" }, { "control", "ProjectComboBox" },
            { "text", text } });
    };
    type("Plan|s");
    const auto answer = Do({ { "do", "form.click" }, { "form", "ProjectSettingsForm" }, { "control", "SaveButton" } });
    EXPECT_THAT(answer.at("messages").at(0).at("text"), HasSubstr("character"));
    EXPECT_EQ(answer.at("messages").at(0).at("answer"), "ok");
    Do({ { "do", "answers" }, { "answers", { "cancel" } } });
    type("Plan");
    Do({ { "do", "form.click" }, { "form", "ProjectSettingsForm" }, { "control", "SaveButton" } });
    Do({ { "do", "form.type" }, { "form", "ProjectSettingsForm" }, { "control", "SubjectText" }, { "text", "plan" } });
    const auto closed = Do({ { "do", "form.close" }, { "form", "ProjectSettingsForm" } });
    EXPECT_EQ(closed.at("messages").at(0).at("answer"), "cancel") << closed;
}

TEST_F(DeskDriverTest, ItemsAndWindows_AreWorkedByHand)
{
    const auto id = Activity("a", "09:00");
    const auto answer = Do({ { "do", "inspector.open" }, { "entryId", id } });
    EXPECT_EQ(answer.at("cancelled"), false);
    EXPECT_EQ(answer.at("inspector"), 1);
    Do({ { "do", "inspector.close" }, { "inspector", 1 } });
    Do({ { "do", "item.delete" }, { "entryId", id } });
    EXPECT_TRUE(Do({ { "do", "items" } }).at("items").empty());
    Do({ { "do", "explorer.open" } });
    Do({ { "do", "explorer.close" }, { "explorer", 1 } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers"), Json::array({ 2 }));
}

TEST_F(DeskDriverTest, Forms_AreWorkedInTheirWindows)
{
    Click({ "&Tempodial", "Pro&ject Settings..." });
    EXPECT_EQ(Form("form.type", "ProjectComboBox", { { "text", "Plän" } }).at("ok"), true);
    EXPECT_EQ(Form("form.type", "SubjectText", { { "text", "plan, \u4e00" } }).at("ok"), true);
    EXPECT_EQ(Form("form.choose", "PrecedenceCombo", { { "index", 0 } }).at("ok"), true);
    EXPECT_EQ(Form("form.check", "ApplyPastCheck", { { "checked", true } }).at("ok"), true);
    EXPECT_EQ(Control("ProjectComboBox").at("text"), "Plän");
    EXPECT_EQ(Control("SubjectText").at("text"), "plan, \u4e00");
    EXPECT_EQ(Control("PrecedenceCombo").at("index"), 0);
    EXPECT_EQ(Control("ApplyPastCheck").at("checked"), true);
    EXPECT_EQ(Form("form.check", "ApplyPastCheck", { { "checked", false } }).at("ok"), true);
    EXPECT_EQ(Form("form.type", "SubjectText", { { "text", "" } }).at("ok"), true);
    EXPECT_EQ(Control("SubjectText").at("text"), "");
    EXPECT_EQ(Form("form.click", "SaveButton").at("ok"), true);
    const auto closed = Do({ { "do", "form.close" }, { "form", "ProjectSettingsForm" } });
    EXPECT_EQ(closed.at("cancelled"), false);
}

TEST_F(DeskDriverTest, Forms_WhatAWindowDoesntLetAPersonDo_IsRefused)
{
    Click({ "&Tempodial", "Pro&ject Settings..." });
    auto* field = Shown<FormWindow>().View().WidgetOf("SubjectText");
    field->setEnabled(false);
    EXPECT_THAT(Form("form.type", "SubjectText", { { "text", "x" } }).at("error"), HasSubstr("can be worked"));
    EXPECT_THAT(Form("form.click", "SaveButton").at("error"), HasSubstr("is disabled or hidden"));
    EXPECT_THAT(Form("form.choose", "SubjectText", { { "index", 0 } }).at("error"), HasSubstr("is no combo box"));
    EXPECT_THAT(
        Form("form.choose", "PrecedenceCombo", { { "text", "Huge" } }).at("error"), HasSubstr("has no such entry"));
}

TEST_F(DeskDriverTest, Differences_OfForms_AreTold)
{
    Click({ "&Tempodial", "Pro&ject Settings..." });
    auto& window = Shown<FormWindow>();
    auto* box = qobject_cast<QComboBox*>(window.View().WidgetOf("PrecedenceCombo"));
    // What a window shows otherwise for a moment it mends by itself, but for what it never looks at again.
    box->setToolTip("another");
    EXPECT_THAT(Difference(), HasSubstr("\"PrecedenceCombo\""));
}

TEST_F(DeskDriverTest, Pages_AreFilledInByHand)
{
    const auto id = Activity("a", "09:00");
    Do({ { "do", "inspector.open" }, { "entryId", id } });
    const auto set = [&](const char* control, const Json& value) {
        return Answered({ { "do", "inspector.set" }, { "inspector", 1 }, { "control", control }, { "value", value } });
    };
    EXPECT_EQ(set("ProjectComboBox", "Beta").at("ok"), true);
    EXPECT_EQ(set("ApplyCheckBox", true).at("ok"), true);
    EXPECT_EQ(set("ApplyCheckBox", false).at("ok"), true);
    EXPECT_EQ(set("StartBox", "2006-10-10T09:10:00").at("ok"), true);
    EXPECT_THAT(set("EndBox", "2006-10-10T08:00:00").value("error", ""), testing::Not(""));
    const auto state = Do({ { "do", "inspector.state" }, { "inspector", 1 } }).at("controls");
    EXPECT_EQ(state.at("ProjectComboBox").at("value"), "Beta");
    EXPECT_EQ(state.at("ApplyCheckBox").at("value"), false);
    EXPECT_EQ(state.at("StartBox").at("value"), "2006-10-10T09:10:00");
    EXPECT_THAT(Times(), HasSubstr("T09:00:00 "));
    EXPECT_EQ(Do({ { "do", "inspector.save" }, { "inspector", 1 } }).at("cancelled"), false);
    EXPECT_THAT(Times(), HasSubstr("T09:10:00 "));
    auto* button = Shown<InspectorWindow>().Commands().ButtonOf("Save and Close");
    button->defaultAction()->setText("Other");
    EXPECT_THAT(Difference(), HasSubstr("commands"));
    button->defaultAction()->setText("Save and Close");
    Do({ { "do", "command" }, { "inspector", 1 }, { "bar", "Tempodial" }, { "path", { "&Save and Close" } } });
    EXPECT_TRUE(Do({ { "do", "windows" } }).at("inspectors").empty());
}

TEST_F(DeskDriverTest, FoldersAndViews_AreChosenInTheMenu)
{
    const auto folder = [&](const char* path) {
        Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", path } });
    };
    folder("Inbox");
    EXPECT_EQ(State().at("folder"), "Inbox");
    EXPECT_EQ(Window().windowTitle(), "Inbox - Mailbox");
    folder("Calendar/Tempodial");
    EXPECT_EQ(Window().windowTitle(), "Tempodial");
    Do({ { "do", "explorer.beside" }, { "explorer", 1 }, { "folders", { "Calendar", "Calendar/Tempodial" } } });
    EXPECT_THAT(State().at("folder"), testing::AnyOf("Calendar", "Calendar/Tempodial"));
    folder("Calendar/Tempodial");
    Do({ { "do", "view.set" }, { "folder", "Calendar/Tempodial" }, { "name", "A & B" }, { "xml", "<view/>" },
        { "type", 2 } });
    Do({ { "do", "explorer.view" }, { "explorer", 1 }, { "name", "A & B" } });
    EXPECT_EQ(State().at("view"), "A & B");
    EXPECT_THAT(Refused({ { "do", "explorer.view" }, { "explorer", 1 }, { "name", "No such" } }), HasSubstr("No such"));
}

TEST_F(DeskDriverTest, Change_OfASelectedItem_IsDragged)
{
    const auto id = Activity("a", "09:00");
    const auto change = [&](const Json& times) {
        auto command = times;
        command["do"] = "item.change";
        command["entryId"] = id;
        Do(command);
    };
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { id } } });
    change({ { "start", "2006-10-11T10:01:00" } });
    EXPECT_EQ(Times(), "2006-10-11T10:01:00 2006-10-11T10:46:00");
    change({ { "end", "2006-10-11T11:30:00" } });
    EXPECT_EQ(Times(), "2006-10-11T10:01:00 2006-10-11T11:30:00");
    change({ { "start", "2006-10-11T10:02:03" }, { "end", "2006-11-11T10:00:00" } });
    EXPECT_EQ(Times(), "2006-10-11T10:02:03 2006-11-11T10:00:00");
}

TEST_F(DeskDriverTest, Drag_OfAnActivity_LeadsToTheMinute)
{
    const auto id = Activity("a", "09:00");
    auto& window = Window();
    const auto number = window.Log().Activities().front().number;
    AgendaPointer pointer(window);
    const auto to = [](int day, int hour, int minute) { return Date::FromParts({ 2006, 10, day, hour, minute, 0 }); };
    ASSERT_TRUE(pointer.Reach(number, to(10, 9, 0)));
    EXPECT_TRUE(pointer.Drag(number, { to(11, 9, 0), to(11, 9, 45) }));
    EXPECT_EQ(Times(), "2006-10-11T09:00:00 2006-10-11T09:45:00");
    ASSERT_TRUE(pointer.Reach(number, to(11, 9, 0)));
    EXPECT_TRUE(pointer.Drag(number, { to(11, 9, 7), to(11, 9, 45) }));
    EXPECT_EQ(Times(), "2006-10-11T09:07:00 2006-10-11T09:45:00");
    ASSERT_TRUE(pointer.Reach(number, to(11, 9, 0)));
    EXPECT_FALSE(pointer.Drag(number, { to(21, 9, 7), to(21, 9, 45) }));
    EXPECT_FALSE(pointer.Drag(number, { to(11, 9, 8), to(11, 9, 55) }));
}

TEST_F(DeskDriverTest, Activate_BringsTheWindowToTheFront)
{
    Do({ { "do", "explorer.open" } });
    EXPECT_FALSE(Window().isActiveWindow());
    Do({ { "do", "explorer.activate" }, { "explorer", 1 } });
    EXPECT_TRUE(Window().isActiveWindow());
    EXPECT_EQ(mDesk->Driver().Host().Windows().ActiveExplorer(), Window().Explorer());
}

TEST_F(DeskDriverTest, Open_OneOfSeveralShortOnes_OpensItsWindow)
{
    const auto first = Activity("a", "09:41");
    Activity("b", "10:41");
    const auto near = Activity("c", "09:40");
    Do({ { "do", "inspector.open" }, { "entryId", first } });
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { near } } });
    EXPECT_EQ(Do({ { "do", "inspector.open" }, { "entryId", near } }).at("inspector"), 2);
    EXPECT_EQ(Do({ { "do", "inspector.open" }, { "entryId", near } }).at("inspector"), 3);
}

TEST_F(DeskDriverTest, Stopped_SelectionStays_WindowsShowWhatThereIs)
{
    const auto id = Activity("a", "09:00");
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { id } } });
    Do({ { "do", "stop" } });
    EXPECT_EQ(Window().Agenda().Selected().size(), 1);
}

TEST_F(DeskDriverTest, Started_Again_ShowsTheNewHost)
{
    Activity("a", "09:00");
    Do({ { "do", "stop" } });
    Do({ { "do", "start" }, { "explorers", 2 } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers"), Json::array({ 1, 2 }));
    EXPECT_EQ(Window().Log().Activities().size(), 1);
}

TEST_F(DeskDriverTest, Differences_OfMenusActivitiesAndWindows_AreTold)
{
    Activity("a", "09:00");
    auto* action = Window().menuBar()->actions().front();
    const auto caption = action->text();
    action->setText("Other");
    EXPECT_THAT(Difference(), HasSubstr("menu"));
    action->setText(caption);
    Window().Bar().SearchField().setText("nothing like it");
    EXPECT_THAT(Difference(), HasSubstr("agenda"));
    Window().Bar().SearchField().clear();
    Window().hide();
    EXPECT_THAT(Difference(), HasSubstr("0 windows"));
    Window().show();
    // What a window shows otherwise for a moment it mends by itself.
    Window().Agenda().ShowSelected({ 99 });
    Do({ { "do", "shell" } });
}

TEST_F(DeskDriverTest, EventOfTheToolkit_Fails_IsADifferenceOfTheNextAnswer)
{
    QTimer::singleShot(0, [] { throw std::runtime_error("no such card"); });
    const auto answer = Answered({ { "do", "windows" } });
    EXPECT_EQ(answer.at("ok"), false) << answer;
    EXPECT_THAT(answer.at("differences"), ElementsAre("an event failed: no such card"));
    EXPECT_FALSE(Do({ { "do", "windows" } }).contains("differences")) << "it is told once";
}

TEST_F(DeskDriverTest, WhatADeskRefuses_IsDoneAsTheModelDoesIt)
{
    const auto id = Activity("plan", "10:00");
    EXPECT_EQ(Do({ { "do", "inspector.open" }, { "entryId", id } }).at("inspector"), 1);
    EXPECT_EQ(Do({ { "do", "inspector.open" }, { "entryId", id } }).at("inspector"), 2);
    Do({ { "do", "inspector.set" }, { "inspector", 1 }, { "control", "SubjectBox" }, { "value", "sketch" } });
    Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { id } } });
    Do({ { "do", "item.change" }, { "entryId", id }, { "start", "2006-10-10T11:00:00" },
        { "end", "2006-10-10T11:45:00" } });
    EXPECT_EQ(Times(), "2006-10-10T11:00:00 2006-10-10T11:45:00");
    Do({ { "do", "inspector.set" }, { "inspector", 1 }, { "control", "SubjectBox" }, { "value", "sketches" } });
    Do({ { "do", "explorer.close" }, { "explorer", 1 } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("inspectors").size(), 2U) << "the product has stopped, the host hasn't";
}

}
