#include "desktop/qt/drive/DeskDriver.h"

#include "desktop/qt/AgendaView.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/OffscreenApplication.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <QLineEdit>
#include <QMenuBar>

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
        mDesk = std::make_unique<DeskDriver>(options, mFolder.Path("desktop.toml"));
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

}
