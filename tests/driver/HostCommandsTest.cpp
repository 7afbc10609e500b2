#include "support/DriverFixture.h"
#include "support/TempFolder.h"

#include <fstream>

namespace tempodial {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

}

class HostCommandsTest : public DriverFixture
{
protected:
    Json Registry(const std::string& action, const std::string& value, Json more = Json::object())
    {
        more.update({ { "do", "registry" }, { "action", action }, { "hive", "HKCU" }, { "value", value } });
        return Do(more);
    }
    std::vector<std::string> Trace(int since = 0)
    {
        return Do({ { "do", "trace" }, { "since", since } }).at("lines").get<std::vector<std::string>>();
    }
    /// True when the add-in is at work: it has added its button.
    bool HasButton(int explorer)
    {
        return Do({ { "do", "explorer.state" }, { "explorer", explorer } }).dump().find("Refre&sh Tempodial")
            != std::string::npos;
    }
};

TEST_F(HostCommandsTest, Start_Defaults_OneExplorerOnTheInboxLoggedOn)
{
    EXPECT_EQ(Do({ { "do", "start" } }), Json::parse(R"({"ok":true,"messages":[]})"));
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers"), Json::parse("[1]"));
    EXPECT_EQ(Do({ { "do", "explorer.state" }, { "explorer", 1 } }).at("folder"), "Inbox");
    EXPECT_TRUE(HasButton(1));
    EXPECT_EQ(Do({ { "do", "folders" } }).dump().find("Calendar/Tempodial") == std::string::npos, false);
}

TEST_F(HostCommandsTest, Start_Fields_AreTaken)
{
    Do({ { "do", "start" }, { "explorers", 2 }, { "folder", "Calendar" }, { "version", "10.0.0.1" },
        { "logon", false } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers"), Json::parse("[1,2]"));
    EXPECT_EQ(Do({ { "do", "explorer.state" }, { "explorer", 2 } }).at("folder"), "Calendar");
    EXPECT_FALSE(HasButton(1));
    Do({ { "do", "logon" } });
    EXPECT_TRUE(HasButton(1));
    EXPECT_TRUE(HasButton(2));
}

TEST_F(HostCommandsTest, Start_Explorers_HaveABound)
{
    for (const int count : { 1001, 2'000'000'000 }) {
        EXPECT_THAT(Refused({ { "do", "start" }, { "explorers", count } }),
            HasSubstr("the field \"explorers\" must be at most 1000"));
    }
    EXPECT_THAT(Refused({ { "do", "start" }, { "explorers", -1 } }), HasSubstr("at least 0"));
    Do({ { "do", "start" }, { "explorers", 1000 }, { "logon", false } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers").size(), 1000);
}

TEST_F(HostCommandsTest, Start_Remember_LetsImportsGoByLines)
{
    const auto refresh = [&] {
        const auto explorer = Do({ { "do", "windows" } }).at("explorers").at(0);
        Do({ { "do", "command" }, { "explorer", explorer }, { "bar", "Standard" },
            { "path", { "Refre&sh Tempodial" } } });
        return Do({ { "do", "items" } }).at("items").size();
    };
    const auto history = DataPath("TempodialHistory.out");
    Do({ { "do", "start" } });
    WriteTracker("20061010", { Slot(8, 0, "a") });
    EXPECT_EQ(refresh(), 1);
    std::ofstream(history) << "|20061001_00100";
    EXPECT_EQ(refresh(), 2) << "by the history alone the line is new";
    Do({ { "do", "stop" } });

    Do({ { "do", "start" }, { "remember", true } });
    std::ofstream(history) << "|20061001_00100";
    EXPECT_EQ(refresh(), 2);
}

TEST_F(HostCommandsTest, Start_NoExplorer_LeavesTheAddInDormant)
{
    Do({ { "do", "start" }, { "explorers", 0 } });
    EXPECT_EQ(Do({ { "do", "explorer.open" } }).at("explorer"), 1);
    EXPECT_FALSE(HasButton(1));
    Do({ { "do", "stop" } });
}

TEST_F(HostCommandsTest, Start_BadFields_AreRefusedAndStartNothing)
{
    EXPECT_THAT(Refused({ { "do", "start" }, { "folder", "Nowhere" } }), HasSubstr("no folder \"Nowhere\""));
    EXPECT_THAT(Refused({ { "do", "start" }, { "explorers", -1 } }), HasSubstr("at least 0"));
    EXPECT_THAT(Refused({ { "do", "windows" } }), HasSubstr("start"));
}

TEST_F(HostCommandsTest, Start_Twice_IsRefusedUntilStopped)
{
    Do({ { "do", "start" } });
    EXPECT_THAT(Refused({ { "do", "start" } }), HasSubstr("stop"));
    Do({ { "do", "stop" } });
    Do({ { "do", "start" }, { "explorers", 2 } });
    EXPECT_TRUE(HasButton(2));
}

TEST_F(HostCommandsTest, BeforeStart_WindowCommands_AreRefused)
{
    for (const auto* name : { "logon", "stop", "quit", "windows", "explorer.open" }) {
        EXPECT_THAT(Refused({ { "do", name } }), HasSubstr("start")) << name;
    }
    EXPECT_EQ(Do({ { "do", "mails" } }).at("mails"), Json::array());
    EXPECT_EQ(Do({ { "do", "forms" } }).at("forms"), Json::array());
    EXPECT_EQ(Do({ { "do", "items" } }).at("items"), Json::array());
    EXPECT_EQ(Trace(), std::vector<std::string>());
}

TEST_F(HostCommandsTest, Stop_WindowsStayWithoutTheAddIn)
{
    Do({ { "do", "start" } });
    Do({ { "do", "stop" } });
    EXPECT_EQ(Do({ { "do", "windows" } }).at("explorers"), Json::parse("[1]"));
    EXPECT_EQ(Do({ { "do", "forms" } }).at("forms"), Json::array());
    const auto lines = Trace().size();
    Do({ { "do", "explorer.folder" }, { "explorer", 1 }, { "folder", "Calendar/Tempodial" } });
    EXPECT_EQ(Trace().size(), lines);
}

TEST_F(HostCommandsTest, Stop_FormOnTheScreen_GoesWithTheAddIn)
{
    Do({ { "do", "start" } });
    Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" },
        { "path", { "&Tempodial", "Set Project for &Activities..." } } });
    Do({ { "do", "stop" } });
    EXPECT_EQ(Do({ { "do", "forms" } }).at("forms"), Json::array());
}

TEST_F(HostCommandsTest, Quit_IsHeardAndEndsNothing)
{
    Do({ { "do", "start" } });
    Do({ { "do", "quit" } });
    Do({ { "do", "explorer.open" } });
    EXPECT_TRUE(HasButton(2));
    Do({ { "do", "stop" } });
    EXPECT_THAT(Trace(), Contains(HasSubstr("Quit received")));
}

TEST_F(HostCommandsTest, Clock_NowAndAdvance_SetTheMoment)
{
    Do({ { "do", "clock" }, { "now", "2007-01-31T23:59:50" } });
    Do({ { "do", "clock" }, { "advance", 20 } });
    Do({ { "do", "start" } });
    Do({ { "do", "stop" } });
    EXPECT_THAT(Trace(), Contains(HasSubstr(" 2/1/2007 12:00:1")));
    EXPECT_THAT(Refused({ { "do", "clock" } }), HasSubstr("either"));
    EXPECT_THAT(
        Refused({ { "do", "clock" }, { "advance", 1 }, { "now", "2007-01-31T23:59:50" } }), HasSubstr("either"));
    EXPECT_THAT(Refused({ { "do", "clock" }, { "now", "tomorrow" } }), HasSubstr("YYYY-MM-DDTHH:MM:SS"));
}

TEST_F(HostCommandsTest, Answers_UnknownWord_IsRefused)
{
    EXPECT_THAT(Refused({ { "do", "answers" }, { "answers", { "maybe" } } }), HasSubstr("ok, yes, no or cancel"));
}

TEST_F(HostCommandsTest, Fail_Calls_FailWithTheNumberAndText)
{
    Do({ { "do", "fail" }, { "call", "Registry.Write:CurrentVersion" } });
    Do({ { "do", "fail" }, { "call", "CommandBarButton.Caption" }, { "number", 70 } });
    Do({ { "do", "fail" }, { "call", "CommandBarButton.Caption" }, { "skip", 1 }, { "text", "No words" } });
    Do({ { "do", "start" } });
    EXPECT_FALSE(Registry("get", "CurrentVersion").contains("text"));
    Do({ { "do", "stop" } });
    EXPECT_THAT(Trace(), Contains(HasSubstr("toolbars create error Permission denied ")));
    EXPECT_THAT(Trace(), Contains(HasSubstr("toolbars create error No words ")));
}

TEST_F(HostCommandsTest, Fail_BadFields_AreRefused)
{
    EXPECT_THAT(Refused({ { "do", "fail" }, { "call", "Save" } }), HasSubstr("AppointmentItem.Save"));
    EXPECT_THAT(Refused({ { "do", "fail" }, { "call", "Items.Add" }, { "times", -1 } }), HasSubstr("times"));
    EXPECT_THAT(Refused({ { "do", "fail" }, { "call", "Items.Add" }, { "skip", -1 } }), HasSubstr("skip"));
    EXPECT_THAT(Refused({ { "do", "fail" } }), HasSubstr("\"call\" is missing"));
}

TEST_F(HostCommandsTest, Fail_HostsOwnCalls_GoWell)
{
    Do({ { "do", "fail" }, { "call", "Folders.Item" }, { "times", 1000 } });
    Do({ { "do", "fail" }, { "call", "Items.Item" }, { "times", 1000 } });
    Do({ { "do", "fail" }, { "call", "AppointmentItem.Subject" }, { "times", 1000 } });
    const auto made = Do({ { "do", "item.create" }, { "folder", "Calendar" }, { "subject", "a" },
        { "start", "2006-10-10T09:00:00" }, { "end", "2006-10-10T09:05:00" } });
    EXPECT_EQ(Do({ { "do", "items" }, { "folder", "Calendar" } }).at("items").at(0).at("entryId"), made.at("entryId"));
}

TEST_F(HostCommandsTest, Trace_Since_LeavesOutTheFirstLines)
{
    mFolder.Write("x", "");
    std::filesystem::create_directories(mFolder.Path("Tempodial"));
    std::ofstream(DataPath("WorkLogTrace1.out"), std::ios::binary) << "c\r\nd\r\n";
    std::ofstream(DataPath("WorkLogTrace2.out"), std::ios::binary) << "a\r\nb\r\n";
    EXPECT_EQ(Trace(), (std::vector<std::string> { "a", "b", "c", "d" }));
    EXPECT_EQ(Trace(3), (std::vector<std::string> { "d" }));
    EXPECT_EQ(Trace(4), std::vector<std::string>());
    EXPECT_EQ(Trace(100), std::vector<std::string>());
}

TEST_F(HostCommandsTest, Shell_DocumentsOpened_AreNotedAndNotOpened)
{
    Do({ { "do", "start" } });
    Do({ { "do", "command" }, { "explorer", 1 }, { "bar", "Menu Bar" },
        { "path", { "&Tempodial", "&Help", "&Check for Updates" } } });
    const auto opened = Do({ { "do", "shell" } }).at("opened");
    ASSERT_EQ(opened.size(), 1);
    EXPECT_THAT(opened[0].get<std::string>(), HasSubstr("update.asp?version=1.2.0"));
}

TEST_F(HostCommandsTest, Registry_Values_AreReadWrittenAndDeleted)
{
    EXPECT_EQ(Registry("get", "A"), Json::parse(R"({"ok":true,"messages":[]})"));
    Registry("set", "A", { { "text", "1" } });
    Registry("set", "B", { { "number", -7 }, { "key", R"(Software\Other)" } });
    EXPECT_EQ(Registry("get", "a").at("text"), "1");
    EXPECT_EQ(Registry("get", "A", { { "key", R"(Software\Lindenfold\Tempodial)" } }).at("text"), "1");
    EXPECT_EQ(Registry("get", "B", { { "key", R"(Software\Other)" } }).at("number"), -7);
    Restart();
    Registry("delete", "A");
    EXPECT_FALSE(Registry("get", "A").contains("text"));
    Registry("delete", "A");
}

TEST_F(HostCommandsTest, Registry_BadFields_AreRefused)
{
    Json command { { "do", "registry" }, { "action", "copy" }, { "hive", "HKCU" }, { "value", "A" } };
    EXPECT_THAT(Refused(command), HasSubstr("get, set or delete"));
    command["action"] = "set";
    EXPECT_THAT(Refused(command), HasSubstr("either"));
    command["text"] = "a";
    command["number"] = 1;
    EXPECT_THAT(Refused(command), HasSubstr("either"));
    command["hive"] = "HKEY";
    EXPECT_THAT(Refused(command), HasSubstr("no hive"));
}

TEST_F(HostCommandsTest, Exit_ClosesTheWindowsAndKeepsWhatWasDone)
{
    Do({ { "do", "start" }, { "explorers", 2 } });
    Restart();
    const auto lines = Trace();
    EXPECT_THAT(lines, Contains(HasSubstr("Toolbars cleanup: 1")));
    EXPECT_THAT(lines, Contains(HasSubstr("Toolbars cleanup: 2")));
}

}
