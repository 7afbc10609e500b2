#include "session/Session.h"

#include "base/Failure.h"
#include "host/windows/HostExplorer.h"
#include "session/ProfileError.h"
#include "session/TraceTail.h"
#include "session/WorkLogFolder.h"
#include "support/CannedMessageBox.h"
#include "support/TempFolder.h"
#include "support/TestApplication.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <memory>

namespace tempodial {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

class SessionTest : public testing::Test
{
protected:
    ~SessionTest() override { mSession.End(); }

    Platform Surroundings()
    {
        auto surroundings = mSession.Surroundings();
        surroundings.messageBox = mMessageBox;
        return surroundings;
    }
    void Start(const HostSettings& settings = {}) { mSession.Start(Surroundings(), settings); }
    bool HasWorkLog() const { return static_cast<bool>(WorkLogOf(mSession.Profile())); }
    std::vector<std::string> Trace() const
    {
        TraceTail tail(std::numeric_limits<std::size_t>::max());
        tail.Read(mSession.Profile());
        return tail.Lines();
    }

    TempFolder mFolder { TempFolder::InMemory() };
    ProfileOptions mOptions {
        .profile = mFolder.Path(), .locale = "en_US", .now = Date::FromParts({ 2006, 10, 10, 9, 0, 0 })
    };
    Ref<CannedMessageBox> mMessageBox = MakeRef<CannedMessageBox>();
    Session mSession { mOptions };
};

TEST_F(SessionTest, Opened_HoldsTheProfileAndHasNoHost)
{
    EXPECT_THROW(Session { mOptions }, ProfileInUse);
    EXPECT_FALSE(mSession.IsStarted());
    EXPECT_FALSE(mSession.IsConnected());
    EXPECT_THROW(mSession.Windows(), Failure);
    EXPECT_THROW(mSession.AddIn(), Failure);
}

TEST_F(SessionTest, Start_Plain_ConnectsTheAddInWithOneExplorerOnTheInbox)
{
    Start();
    EXPECT_TRUE(mSession.IsConnected());
    ASSERT_EQ(mSession.Windows().OpenExplorers().size(), 1U);
    EXPECT_EQ(mSession.Mailbox()->PathOf(mSession.Windows().OpenExplorers().front()->CurrentFolder()), "Inbox");
    EXPECT_TRUE(HasWorkLog());
    EXPECT_EQ(mSession.AddIn().WhatProject("plan", ""), "No Project");
}

TEST_F(SessionTest, Start_Settings_MakeTheHost)
{
    Start({ .explorers = 2, .folder = mSession.Mailbox()->FolderByPath("Calendar"), .version = "12.0.0.1" });
    ASSERT_EQ(mSession.Windows().OpenExplorers().size(), 2U);
    EXPECT_EQ(mSession.Mailbox()->PathOf(mSession.Windows().OpenExplorers().back()->CurrentFolder()), "Calendar");
    EXPECT_EQ(mSession.Windows().Version(), "12.0.0.1");
}

TEST_F(SessionTest, Start_Made_IsCalledBeforeTheFirstWindowOpens)
{
    int opened = 0;
    Subscription watching;
    Start({ .made = [&](const Ref<HostApplication>& application) {
        EXPECT_TRUE(application->OpenExplorers().empty());
        watching = application->SubscribeToExplorers({ [&](const auto&) { ++opened; } });
    } });
    EXPECT_EQ(opened, 1);
}

TEST_F(SessionTest, Start_NoLogon_LetsTheAddInWaitForIt)
{
    Start({ .logon = false });
    EXPECT_FALSE(HasWorkLog());
    mSession.Windows().RaiseMapiLogonComplete();
    EXPECT_TRUE(HasWorkLog());
}

TEST_F(SessionTest, Start_Seen_IsWhatTheAddInGets)
{
    Ref<TestApplication> seen;
    Start({ .seen = [&](const Ref<Application>& application) -> Ref<Application> {
        seen = MakeRef<TestApplication>(application.As<HostApplication>());
        seen->version = "9.8.7.6";
        return seen;
    } });
    EXPECT_EQ(seen->host.Get(), &mSession.Windows());
    EXPECT_THAT(Trace(), Contains(HasSubstr("version: 9.8.7.6")));
}

TEST_F(SessionTest, Start_Surroundings_AreThoseOfTheAddIn)
{
    const auto elsewhere = MakeRef<FormModelFactory>();
    auto surroundings = Surroundings();
    EXPECT_EQ(surroundings.forms, Ref<FormFactory>(mSession.Forms()));
    surroundings.forms = elsewhere;
    mSession.Start(surroundings);
    mSession.AddIn().ShowAboutForm();
    EXPECT_TRUE(elsewhere->NewestVisible("AboutBoxForm"));
    EXPECT_FALSE(mSession.Forms()->NewestVisible("AboutBoxForm"));
    elsewhere->CloseAll();
}

TEST_F(SessionTest, Start_RegistryFileRefuses_FailsAndLetsTheHostGo)
{
    std::filesystem::create_directories(mFolder.Path("registry.toml/in it"));
    EXPECT_THROW(Start(), Failure);
    EXPECT_FALSE(mSession.IsStarted());
    std::filesystem::remove_all(mFolder.Path("registry.toml"));
    Start();
    EXPECT_TRUE(mSession.IsConnected());
    EXPECT_THAT(mFolder.Read("registry.toml"), HasSubstr("ProjectXML"));
}

TEST_F(SessionTest, Stop_Form_GoesAndTheWindowsStay)
{
    Start();
    mSession.AddIn().ShowAboutForm();
    ASSERT_TRUE(mSession.Forms()->NewestVisible("AboutBoxForm"));
    mSession.Stop();
    EXPECT_FALSE(mSession.IsConnected());
    EXPECT_FALSE(mSession.Forms()->NewestVisible("AboutBoxForm"));
    EXPECT_EQ(mSession.Windows().OpenExplorers().size(), 1U);
    EXPECT_THROW(mSession.AddIn(), Failure);
    EXPECT_THAT(Trace(), Contains(HasSubstr("TRACE SESSION STOP")));
    EXPECT_THAT(Trace(), Not(Contains(HasSubstr("Quit received"))));
}

TEST_F(SessionTest, Start_AfterStop_KeepsTheOldHostUntilItIsDropped)
{
    Start();
    const std::weak_ptr<HostExplorer> old = mSession.Windows().OpenExplorers().front().Shared();
    mSession.Stop();
    Start();
    EXPECT_TRUE(mSession.IsConnected());
    EXPECT_NE(mSession.Windows().OpenExplorers().front(), Ref<HostExplorer>(old.lock()));
    EXPECT_FALSE(old.expired());
    mSession.DropReplaced();
    EXPECT_TRUE(old.expired());
}

TEST_F(SessionTest, Exit_Windows_AreClosedAndTheAddInDisconnected)
{
    mSession.Exit();
    Start({ .explorers = 2 });
    mSession.Exit();
    EXPECT_FALSE(mSession.IsConnected());
    EXPECT_TRUE(mSession.Windows().OpenExplorers().empty());
    EXPECT_THAT(Trace(), Contains(HasSubstr("TRACE SESSION STOP")));
}

TEST_F(SessionTest, End_Connected_DisconnectsAndLetsTheHostGo)
{
    Start();
    mSession.End();
    EXPECT_FALSE(mSession.IsStarted());
    const auto trace = Trace();
    EXPECT_THAT(trace, Contains(HasSubstr("TRACE SESSION STOP")));
    mSession.End();
    EXPECT_EQ(Trace(), trace);
}

TEST_F(SessionTest, ShownMail_SeveralMails_IsTheOneThatCameLast)
{
    Start();
    mSession.Windows().CreateItem();
    EXPECT_FALSE(mSession.ShownMail());
    mSession.Windows().CreateItem()->Display();
    const auto last = mSession.Windows().CreateItem();
    last->SetSubject("last");
    last->Display();
    ASSERT_TRUE(mSession.ShownMail());
    EXPECT_EQ(mSession.ShownMail()->Subject(), "last");
}

}
