#include "host/system/HostShell.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace tempodial {
namespace {

namespace fs = std::filesystem;

/// Puts a program in the place of `xdg-open` that tells through a pipe what it was given.
class HostShellTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(::mkfifo(mFolder.Path("told").c_str(), 0600), 0);
        mFolder.Write("xdg-open",
            "#!/bin/sh\n"
            "{ printf '%s\\n' \"$#\" \"$1\"; readlink /proc/$$/fd/0 /proc/$$/fd/2; } >\"$TOLD\"\n");
        fs::permissions(mFolder.Path("xdg-open"), fs::perms::owner_all);
        ::setenv("TOLD", mFolder.Path("told").c_str(), 1);
        ::setenv("PATH", (mFolder.Path() + ":" + mPath).c_str(), 1);
    }
    void TearDown() override { ::setenv("PATH", mPath.c_str(), 1); }

    /// Waits for the program's end.
    std::string Told() { return mFolder.Read("told"); }

    TempFolder mFolder;

private:
    std::string mPath = std::getenv("PATH");
};

TEST_F(HostShellTest, Open_OtherOpener_GetsTheDocumentAsItIs)
{
    std::vector<std::string> opened;
    HostShell shell([&](const std::string& document) { opened.push_back(document); });
    shell.Open(R"(C:\T\\userguide\FAQ.html)");
    shell.Open("https://example.org/?a=1&b=2");
    EXPECT_EQ(opened, (std::vector<std::string> { R"(C:\T\\userguide\FAQ.html)", "https://example.org/?a=1&b=2" }));
}

TEST_F(HostShellTest, Open_Address_StartsTheDesktopsProgramDetached)
{
    HostShell().Open("https://example.org/?a=$(id)&b='\"; c\\d");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(Told(), "1\nhttps://example.org/?a=$(id)&b='\"; c\\d\n/dev/null\n/dev/null\n");
}

TEST_F(HostShellTest, Open_PathWithBackslashes_IsThatOfTheFile)
{
    HostShell().Open(mFolder.Path() + "\\\\xdg-open");
    EXPECT_EQ(Told(), "1\n" + mFolder.Path() + "//xdg-open\n/dev/null\n/dev/null\n");
}

TEST_F(HostShellTest, Open_NameLikeAnOption_IsNone)
{
    HostShell().Open("--help");
    EXPECT_EQ(Told(), "1\n./--help\n/dev/null\n/dev/null\n");
}

TEST_F(HostShellTest, Open_SignalsIgnoredHere_AreNotIgnoredThere)
{
    mFolder.Write("xdg-open", "#!/bin/sh\nawk '/^SigIgn/ { print $2 }' /proc/$$/status >\"$TOLD\"\n");
    auto* const formerPipe = std::signal(SIGPIPE, SIG_IGN);
    auto* const formerSize = std::signal(SIGXFSZ, SIG_IGN);
    HostShell().Open("x");
    const auto ignored = std::stoull(Told(), nullptr, 16);
    std::signal(SIGPIPE, formerPipe);
    std::signal(SIGXFSZ, formerSize);
    EXPECT_EQ(ignored >> (SIGPIPE - 1) & 1, 0U);
    EXPECT_EQ(ignored >> (SIGXFSZ - 1) & 1, 0U);
}

TEST_F(HostShellTest, Open_NoDesktop_DoesNothing)
{
    ::setenv("PATH", "/nowhere", 1);
    HostShell().Open("x");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(HostShellTest, ThreadId_EachThread_HasItsOwn)
{
    HostShell shell;
    EXPECT_EQ(shell.ThreadId(), ::gettid());
    EXPECT_EQ(shell.ThreadId(), ::gettid());
    std::int32_t other = 0;
    std::thread([&] { other = shell.ThreadId(); }).join();
    EXPECT_NE(other, shell.ThreadId());
    EXPECT_GT(other, 0);
}

}
}
