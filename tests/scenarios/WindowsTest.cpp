#include "scenarios/Scripts.h"
#include "support/LongTests.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace tempodial {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

}

class WindowsTest : public testing::Test
{
protected:
    std::string View(int explorer)
    {
        return mPerson.Do({ { "do", "explorer.state" }, { "explorer", explorer } }).at("view");
    }
    std::string Folder(int explorer)
    {
        return mPerson.Do({ { "do", "explorer.state" }, { "explorer", explorer } }).at("folder");
    }
    void ShowBeside(const std::string& first, const std::string& second)
    {
        mPerson.Do({ { "do", "explorer.beside" }, { "explorer", 1 }, { "folders", { first, second } } });
    }
    bool HasList() { return mPerson.MenuEntry(1, "View Activities in a &List").at("enabled"); }
    /// How many buttons of the add-in a window's "Standard" has.
    std::size_t Buttons(int explorer)
    {
        const auto controls = mPerson.Bar("explorer", explorer, "Standard").value("controls", Json::array());
        return static_cast<std::size_t>(std::count_if(controls.begin(), controls.end(),
            [](const auto& control) { return control.at("caption") == "Refre&sh Tempodial"; }));
    }

    DrivenPerson mPerson;
};

TEST_F(WindowsTest, Beside_LogInFront_KeepsItsViewAndDisablesTheList)
{
    mPerson.Start();
    mPerson.GoTo(1, DrivenPerson::Log);
    EXPECT_EQ(View(1), "Tempodial Calendar");
    EXPECT_TRUE(HasList());
    ShowBeside(DrivenPerson::Log, "Calendar");
    EXPECT_FALSE(HasList());
    mPerson.GoTo(1, "Calendar");
    EXPECT_TRUE(HasList());
    EXPECT_THAT(View(1), Not(HasSubstr("Tempodial")));
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(WindowsTest, Beside_CalendarInFront_MovesToTheLogOnceInTwoSeconds)
{
    mPerson.Start();
    mPerson.GoTo(1, "Calendar");
    ShowBeside("Calendar", DrivenPerson::Log);
    EXPECT_EQ(Folder(1), DrivenPerson::Log);
    ShowBeside("Calendar", DrivenPerson::Log);
    EXPECT_EQ(Folder(1), "Calendar");
    mPerson.Do({ { "do", "clock" }, { "advance", 2 } });
    ShowBeside("Calendar", DrivenPerson::Log);
    EXPECT_EQ(Folder(1), DrivenPerson::Log);
    EXPECT_FALSE(HasList());
}

TEST_F(WindowsTest, View_NotOfTheLog_IsReplaced)
{
    mPerson.Start();
    mPerson.Do({ { "do", "view.set" }, { "folder", DrivenPerson::Log }, { "name", "Mine" }, { "type", 2 } });
    mPerson.GoTo(1, DrivenPerson::Log);
    mPerson.Do({ { "do", "explorer.view" }, { "explorer", 1 }, { "name", "Mine" } });
    mPerson.Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", Json::array() } });
    EXPECT_EQ(View(1), "Tempodial Calendar");
}

TEST_F(WindowsTest, OneRefusal_SilencesTheSideBySideRulesOfThatWindow)
{
    mPerson.Start();
    mPerson.GoTo(1, DrivenPerson::Log);
    mPerson.Do({ { "do", "fail" }, { "call", "Explorer.IsFolderSelected" } });
    ShowBeside(DrivenPerson::Log, "Calendar");
    ShowBeside(DrivenPerson::Log, "Calendar");
    EXPECT_TRUE(HasList());
    const auto lines = mPerson.Trace().size();
    mPerson.Do({ { "do", "explorer.select" }, { "explorer", 1 }, { "items", Json::array() } });
    EXPECT_EQ(mPerson.Trace().size(), lines);
}

TEST_F(WindowsTest, OldOutlook_HasNoSideBySideRules)
{
    mPerson.Do({ { "do", "start" }, { "version", "10.0.0.1" } });
    ShowBeside(DrivenPerson::Log, "Calendar");
    EXPECT_TRUE(HasList());
}

TEST_F(WindowsTest, LateBars_GetTheirButtonAtTheFirstActivationExactlyOnce)
{
    mPerson.Start();
    mPerson.Do({ { "do", "explorer.open" }, { "commandBars", false } });
    mPerson.Do({ { "do", "explorer.ready" }, { "explorer", 2 } });
    EXPECT_EQ(Buttons(2), 0);
    for (int i = 0; i < 3; ++i) {
        mPerson.Do({ { "do", "explorer.activate" }, { "explorer", 2 } });
        EXPECT_EQ(Buttons(2), 1);
    }
}

TEST_F(WindowsTest, TwoWindows_EachRefreshesAndTheLastEndsTheAddIn)
{
    mPerson.WriteTracker();
    mPerson.Start(2);
    mPerson.GoTo(2, DrivenPerson::Log);
    EXPECT_EQ(mPerson.Items().size(), 24);
    mPerson.Do({ { "do", "explorer.close" }, { "explorer", 1 } });
    mPerson.Refresh(2);
    EXPECT_THAT(mPerson.Trace(), Not(Contains(HasSubstr("last explorer gone"))));
    mPerson.Do({ { "do", "explorer.close" }, { "explorer", 2 } });
    EXPECT_THAT(mPerson.Trace(), Contains(HasSubstr("last explorer gone")));
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
}

TEST_F(WindowsTest, DyingWindow_IsNoticedAtTheNextClose)
{
    mPerson.Start(2);
    mPerson.Do({ { "do", "explorer.die" }, { "explorer", 1 } });
    mPerson.Do({ { "do", "explorer.close" }, { "explorer", 2 } });
    EXPECT_THAT(mPerson.Trace(), Contains(HasSubstr("last explorer gone")));
}

TEST_F(WindowsTest, LastWindow_ClosedInASync_EndsTheAddInAndKeepsWhatWasImported)
{
    LastWindowInASync(mPerson);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
    EXPECT_EQ(mPerson.Pumped().size(), 1);
    EXPECT_THAT(mPerson.Trace(), Contains(HasSubstr("last explorer gone")));
    EXPECT_EQ(mPerson.Do({ { "do", "forms" } }).at("forms"), Json::array());
    const auto imported = mPerson.Items().size();
    EXPECT_GT(imported, 0);
    EXPECT_LT(imported, 24);
    mPerson.Do({ { "do", "stop" } });
    mPerson.Start();
    mPerson.Refresh(1);
    EXPECT_EQ(mPerson.Items().size(), 24);
}

TEST_F(WindowsTest, Windows_AllInOneDay_GoWell)
{
    Windows(mPerson);
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
    EXPECT_THAT(mPerson.Messages(), IsEmpty());
    EXPECT_EQ(mPerson.Do({ { "do", "windows" } }),
        Json::parse(R"({"ok":true,"explorers":[],"inspectors":[],"messages":[]})"));
}

TEST_F(WindowsTest, ThousandWindows_LeaveNothingBehind)
{
    mPerson.WriteTracker();
    mPerson.Start();
    mPerson.GoTo(1, DrivenPerson::Log);
    std::vector<std::weak_ptr<void>> opened;
    const int rounds = ShortOrLong(100, 500);
    for (int i = 0; i < rounds; ++i) {
        const auto inspector = mPerson.OpenFirst("budget");
        opened.emplace_back(mPerson.Application().OpenInspectors().back().Shared());
        const auto explorer = mPerson.Do({ { "do", "explorer.open" } }).at("explorer");
        opened.emplace_back(mPerson.Application().OpenExplorers().back().Shared());
        mPerson.CloseInspector(inspector);
        mPerson.Do({ { "do", "explorer.close" }, { "explorer", explorer } });
    }
    EXPECT_THAT(mPerson.Refusals(), IsEmpty());
    const auto left = std::count_if(opened.begin(), opened.end(), [](const auto& window) { return !window.expired(); });
    EXPECT_EQ(left, 0);
}

}
