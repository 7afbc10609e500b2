#include "session/Steps.h"
#include "support/DriverFixture.h"

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr auto LogPath = "Calendar/Tempodial";

}

class WindowCommandsTest : public DriverFixture
{
protected:
    WindowCommandsTest() { Do({ { "do", "start" } }); }

    Json Explorer(int number) { return Do({ { "do", "explorer.state" }, { "explorer", number } }); }
    Json Inspector(int number) { return Do({ { "do", "inspector.state" }, { "inspector", number } }); }
    static std::vector<std::string> BarNames(const Json& window)
    {
        std::vector<std::string> names;
        for (const auto& bar : window.at("bars")) {
            names.push_back(bar.at("name"));
        }
        return names;
    }
    static Json Bar(const Json& window, const std::string& name)
    {
        for (const auto& bar : window.at("bars")) {
            if (bar.at("name") == name) {
                return bar;
            }
        }
        return nullptr;
    }
    static Json Control(const Json& bar, const std::string& caption)
    {
        for (const auto& control : bar.at("controls")) {
            if (control.at("caption") == caption) {
                return control;
            }
        }
        return nullptr;
    }
    /// Selects an activity and gives it a project by the dialog.
    void SetProject(const std::string& id, const std::string& project)
    {
        Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", LogPath } });
        Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { id } } });
        Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" },
            { "path", { "&Tempodial", "Set Project for &Activities..." } } });
        Do({ { "do", "form.type" }, { "form", "SetProjectForm" }, { "control", "ProjectComboBox" },
            { "text", project } });
        Do({ { "do", "form.click" }, { "form", "SetProjectForm" }, { "control", "Command1" } });
    }
    int Open(const std::string& entryId)
    {
        const auto answer = Do({ { "do", "inspector.open" }, { "entryId", entryId } });
        EXPECT_EQ(answer.at("cancelled"), false);
        return answer.at("inspector");
    }
    void Set(int inspector, const std::string& control, const Json& value)
    {
        Do({ { "do", "inspector.set" }, { "inspector", inspector }, { "control", control }, { "value", value } });
    }
};

TEST_F(WindowCommandsTest, ExplorerOpen_Window_IsActiveWithItsBars)
{
    EXPECT_EQ(Do({ { "do", "explorer.open" }, { "folder", "Calendar" } }),
        Json::parse(R"({"ok":true,"explorer":2,"messages":[]})"));
    const auto state = Explorer(2);
    EXPECT_EQ(state.at("folder"), "Calendar");
    EXPECT_EQ(state.at("caption"), "Calendar - Mailbox");
    EXPECT_THAT(BarNames(state), ElementsAre("Standard", "Menu Bar"));
    EXPECT_EQ(Bar(state, "Standard").at("visible"), true);
    EXPECT_EQ(Bar(state, "Standard").at("position"), 1);
    const auto refresh = Control(Bar(state, "Standard"), "Refre&sh Tempodial");
    EXPECT_EQ(refresh,
        (Json { { "caption", "Refre&sh Tempodial" }, { "tag", "Refre&sh Tempodial22" }, { "id", 1 }, { "type", 1 },
            { "enabled", true }, { "visible", true }, { "beginGroup", false }, { "style", 3 }, { "picture", true },
            { "controls", Json::array() } }));
    const auto menu = Control(Bar(state, "Menu Bar"), "&Tempodial");
    EXPECT_EQ(menu.at("type"), 10);
    EXPECT_EQ(menu.at("controls").size(), 7);
    EXPECT_EQ(menu.at("controls")[6].at("controls").size(), 4);
    EXPECT_EQ(menu.at("controls")[0].at("beginGroup"), true);
}

TEST_F(WindowCommandsTest, ExplorerOpen_WithoutBars_GetsThemLater)
{
    Do({ { "do", "explorer.open" }, { "commandBars", false } });
    EXPECT_THAT(BarNames(Explorer(2)), IsEmpty());
    Do({ { "do", "explorer.activate" }, { "explorer", 2 } });
    Do({ { "do", "explorer.ready" }, { "explorer", 2 } });
    EXPECT_TRUE(Control(Bar(Explorer(2), "Standard"), "Refre&sh Tempodial").is_null());
    Do({ { "do", "explorer.activate" }, { "explorer", 2 } });
    EXPECT_FALSE(Control(Bar(Explorer(2), "Standard"), "Refre&sh Tempodial").is_null());
}

TEST_F(WindowCommandsTest, ExplorerClose_Window_IsGoneAndItsNumberNotReused)
{
    Do({ { "do", "explorer.open" } });
    Do({ { "do", "explorer.close" }, { "explorer", 2 } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers"), Json::parse("[1]"));
    for (const auto* command : { "explorer.state", "explorer.close", "explorer.die", "explorer.ready" }) {
        EXPECT_EQ(Refused({ { "do", command }, { "explorer", 2 } }), "there is no explorer 2");
    }
    EXPECT_EQ(Do({ { "do", "explorer.open" } }).at("explorer"), 3);
    Do({ { "do", "explorer.die" }, { "explorer", 3 } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers"), Json::parse("[1]"));
}

TEST_F(WindowCommandsTest, ExplorerFolderAndView_Window_ShowsThem)
{
    Do({ { "do", "view.set" }, { "folder", "Calendar" }, { "name", "Mine" }, { "type", 2 } });
    Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", "Calendar" } });
    Do({ { "do", "explorer.view" }, { "explorer", 1 }, { "name", "Mine" } });
    EXPECT_EQ(Explorer(1).at("folder"), "Calendar");
    EXPECT_EQ(Explorer(1).at("view"), "Mine");
    Refused({ { "do", "explorer.view" }, { "explorer", 1 }, { "name", "None" } });
    EXPECT_THAT(
        Refused({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", "None" } }), HasSubstr("no folder"));
}

TEST_F(WindowCommandsTest, ExplorerState_FolderIsGone_IsStillThere)
{
    Do({ { "do", "folder.add" }, { "path", "Calendar/Old" } });
    Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", "Calendar/Old" } });
    Do({ { "do", "folder.delete" }, { "path", "Calendar/Old" } });
    EXPECT_TRUE(Explorer(1).at("folder").is_null());
}

TEST_F(WindowCommandsTest, ExplorerBeside_WithTheWorkLog_DisablesTheListUntilTheyPart)
{
    const auto list = [this] {
        return Control(Control(Bar(Explorer(1), "Menu Bar"), "&Tempodial"), "View Activities in a &List").at("enabled");
    };
    Do({ { "do", "explorer.beside" }, { "explorer", 1 }, { "folders", { LogPath, "Calendar" } } });
    EXPECT_EQ(Explorer(1).at("folder"), LogPath);
    EXPECT_EQ(list(), false);
    EXPECT_THAT(Refused({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" },
                    { "path", { "&Tempodial", "View Activities in a &List" } } }),
        HasSubstr("disabled"));
    Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", LogPath } });
    EXPECT_EQ(list(), true);
    EXPECT_THAT(Refused({ { "do", "explorer.beside" }, { "explorer", 1 }, { "folders", Json::array() } }),
        HasSubstr("no folder"));
}

TEST_F(WindowCommandsTest, ExplorerSelect_Items_AreSelected)
{
    const auto id = Activity();
    SetProject(id, "Plan");
    EXPECT_EQ(Do({ { "do", "items" } }).at("items")[0].at("properties").at("Project"), "Plan");
    EXPECT_THAT(
        Refused({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", { "x" } } }), HasSubstr("no item"));
}

TEST_F(WindowCommandsTest, SetProjectDialog_ProjectsOfAPerson_AreAStep)
{
    const auto id = Activity();
    SetProject(id, "Plan");
    const auto& host = mDriver->Host();
    EXPECT_TRUE(host.Mailbox()->ItemById(id)->IsProjectByHand());
    Steps steps(host.Profile());
    const auto newest = steps.Newest(10);
    ASSERT_EQ(newest.size(), 2U);
    EXPECT_EQ(newest[0].command, "Set Project For Selected Activities");
    EXPECT_EQ(newest[0].items, 1);
    steps.Undo(std::nullopt, "undo");
    EXPECT_FALSE(host.Mailbox()->ItemById(id)->IsProjectByHand());
    EXPECT_NE(Do({ { "do", "items" } }).at("items")[0].at("properties").at("Project"), "Plan");
}

TEST_F(WindowCommandsTest, InspectorOpen_Activity_ShowsItsPageAndToolbar)
{
    const auto inspector = Open(Activity());
    EXPECT_EQ(inspector, 1);
    const auto state = Inspector(inspector);
    EXPECT_EQ(Bar(state, "Standard").at("visible"), false);
    EXPECT_EQ(Bar(state, "Tempodial").at("visible"), true);
    const auto& controls = state.at("controls");
    EXPECT_EQ(controls.at("ProjectComboBox").at("value"), "No Project");
    EXPECT_THAT(controls.at("ProjectComboBox").at("list").dump(), HasSubstr("No Project"));
    EXPECT_EQ(controls.at("SubjectBox").at("text"), "a");
    EXPECT_EQ(controls.at("StartBox").at("value"), "2006-10-10T09:00:00");
    EXPECT_EQ(controls.at("StartBox").at("text"), "10/10/2006 9:00:00 AM");
    EXPECT_EQ(controls.at("ApplyCheckBox").at("value"), false);
    EXPECT_EQ(controls.at("ApplyCheckBox").at("list"), Json::array());
}

TEST_F(WindowCommandsTest, InspectorSet_Values_AreStoredBySavesOnly)
{
    const auto inspector = Open(Activity());
    Set(inspector, "SubjectBox", "b");
    Set(inspector, "EndBox", "2006-10-10T09:30:00");
    Set(inspector, "ApplyCheckBox", true);
    EXPECT_EQ(Inspector(inspector).at("controls").at("EndBox").at("value"), "2006-10-10T09:30:00");
    EXPECT_EQ(Inspector(inspector).at("controls").at("ApplyCheckBox").at("value"), true);
    const auto before = Do({ { "do", "items" } }).at("items")[0];
    EXPECT_EQ(before.at("duration"), 5);
    EXPECT_EQ(before.at("properties").at("Description"), "a");
    EXPECT_EQ(Do({ { "do", "inspector.save" }, { "inspector", inspector } }).at("cancelled"), false);
    const auto after = Do({ { "do", "items" } }).at("items")[0];
    EXPECT_EQ(after.at("duration"), 30);
    EXPECT_EQ(after.at("properties").at("Description"), "b");
    EXPECT_EQ(after.at("entryId"), before.at("entryId"));
}

TEST_F(WindowCommandsTest, InspectorSet_BadValues_AreRefused)
{
    const auto inspector = Open(Activity());
    Json command { { "do", "inspector.set" }, { "inspector", inspector }, { "control", "StartBox" },
        { "value", true } };
    EXPECT_THAT(Refused(command), HasSubstr("\"value\" must be a text"));
    command["value"] = "noon";
    EXPECT_THAT(Refused(command), HasSubstr("YYYY-MM-DDTHH:MM:SS"));
    command["control"] = "ApplyCheckBox";
    EXPECT_THAT(Refused(command), HasSubstr("true or false"));
    command["control"] = "None";
    EXPECT_THAT(Refused(command), HasSubstr("no control \"None\""));
    command["inspector"] = 7;
    EXPECT_EQ(Refused(command), "there is no inspector 7");
}

TEST_F(WindowCommandsTest, InspectorClose_ChangedAndCancelled_StaysOpen)
{
    const auto inspector = Open(Activity());
    Set(inspector, "SubjectBox", "b");
    Do({ { "do", "answers" }, { "answers", { "cancel", "no" } } });
    const auto cancelled = Do({ { "do", "inspector.close" }, { "inspector", inspector } });
    EXPECT_EQ(cancelled.at("cancelled"), true);
    EXPECT_EQ(cancelled.at("messages"),
        Json::parse(R"([{"text":"Do you want to save your changes?","buttons":["yes","no","cancel"],
            "icon":"question","answer":"cancel"}])"));
    const auto closed = Do({ { "do", "inspector.close" }, { "inspector", inspector } });
    EXPECT_EQ(closed.at("cancelled"), false);
    EXPECT_EQ(closed.at("messages").size(), 1);
    EXPECT_EQ(Do({ { "do", "windows" } }).at("inspectors"), Json::array());
    EXPECT_EQ(Do({ { "do", "items" } }).at("items")[0].at("properties").at("Description"), "a");
}

TEST_F(WindowCommandsTest, InspectorOpen_Again_IsAFurtherWindow)
{
    const auto id = Activity();
    EXPECT_EQ(Open(id), 1);
    EXPECT_EQ(Open(id), 2);
    EXPECT_EQ(Do({ { "do", "windows" } }).at("inspectors"), Json::parse("[1,2]"));
}

TEST_F(WindowCommandsTest, InspectorOpen_ForeignAppointmentInTheLog_IsRefusedForItsDuplicate)
{
    // An add-in at work would take it over at once.
    Do({ { "do", "stop" } });
    const auto id = Do({ { "do", "item.create" }, { "folder", LogPath }, { "subject", "Meeting" },
                           { "start", "2006-10-10T10:00:00" }, { "end", "2006-10-10T10:30:00" } })
                        .at("entryId");
    Do({ { "do", "start" } });
    const auto open = Do({ { "do", "windows" } }).at("inspectors").size();
    const auto answer = Do({ { "do", "inspector.open" }, { "entryId", id } });
    EXPECT_EQ(answer.at("cancelled"), true);
    EXPECT_TRUE(answer.at("inspector").is_null());
    EXPECT_EQ(Do({ { "do", "windows" } }).at("inspectors").size(), open + 1);
}

TEST_F(WindowCommandsTest, InspectorOpen_Mail_HasNoPage)
{
    const auto inspector = Do({ { "do", "inspector.open" }, { "kind", "mail" } }).at("inspector").get<int>();
    const auto state = Inspector(inspector);
    EXPECT_EQ(state.at("controls"), Json::object());
    EXPECT_THAT(BarNames(state), ElementsAre("Standard"));
    EXPECT_THAT(Refused({ { "do", "inspector.set" }, { "inspector", inspector }, { "control", "A" }, { "value", "" } }),
        HasSubstr("no page"));
    EXPECT_THAT(Refused({ { "do", "inspector.open" }, { "kind", "task" } }), HasSubstr("give mail"));
    EXPECT_THAT(Refused({ { "do", "inspector.open" } }), HasSubstr("\"kind\" is missing"));
    EXPECT_THAT(Refused({ { "do", "inspector.open" }, { "entryId", "x" } }), HasSubstr("no item"));
    const auto mail = Do({ { "do", "mails" } }).at("mails").at(0);
    EXPECT_EQ(mail,
        Json::parse(
            R"({"mail":1,"subject":"","body":"","html":"","recipients":[],"displayed":true,"attachments":[]})"));
    EXPECT_EQ(Do({ { "do", "inspector.close" }, { "inspector", inspector } }).at("cancelled"), false);
}

TEST_F(WindowCommandsTest, Command_PathsThatLeadNowhere_AreRefused)
{
    Json command { { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" }, { "path", { "Tempodial" } } };
    EXPECT_EQ(Refused(command), "there is no command \"Tempodial\"");
    command["path"] = { "&Tempodial" };
    EXPECT_EQ(Refused(command), "\"&Tempodial\" is no button");
    command["path"] = { "&Tempodial", "Help" };
    EXPECT_EQ(Refused(command), "there is no command \"Help\"");
    command["path"] = { "&Tempodial", "Create Activity &Report...", "&Help" };
    EXPECT_EQ(Refused(command), "\"Create Activity &Report...\" is no menu");
    command["path"] = Json::array();
    EXPECT_THAT(Refused(command), HasSubstr("names no command"));
    command["bar"] = "Menu";
    EXPECT_EQ(Refused(command), "there is no bar \"Menu\"");
    command["inspector"] = 1;
    EXPECT_THAT(Refused(command), HasSubstr("either"));
}

TEST_F(WindowCommandsTest, Command_HiddenBar_IsRefused)
{
    const auto inspector = Open(Activity());
    const auto caption = Bar(Inspector(inspector), "Standard").at("controls")[0].at("caption").get<std::string>();
    EXPECT_THAT(
        Refused({ { "do", "command" }, { "inspector", inspector }, { "bar", "Standard" }, { "path", { caption } } }),
        HasSubstr("hidden"));
}

TEST_F(WindowCommandsTest, Mails_Report_IsShownWithItsAttachment)
{
    Activity();
    Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" },
        { "path", { "&Tempodial", "Create Activity &Report..." } } });
    Do({ { "do", "form.click" }, { "form", "ReportForm" }, { "control", "Command1" } });
    const auto mails = Do({ { "do", "mails" } }).at("mails");
    ASSERT_EQ(mails.size(), 1);
    EXPECT_EQ(mails[0].at("displayed"), true);
    EXPECT_THAT(mails[0].at("html").get<std::string>(), HasSubstr("<html"));
    EXPECT_EQ(mails[0].at("body"), "");
    const auto& attachment = mails[0].at("attachments").at(0);
    EXPECT_THAT(attachment.at("name").get<std::string>(), HasSubstr(".csv"));
    EXPECT_EQ(attachment.at("size"), attachment.at("text").get<std::string>().size());
}

}
