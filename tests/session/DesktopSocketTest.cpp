#include "session/DesktopSocket.h"

#include "base/Failure.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace tempodial {

namespace {

class DesktopSocketTest : public testing::Test
{
protected:
    DesktopSocketTest() { ::setenv("XDG_RUNTIME_DIR", mFolder.Path().c_str(), 1); }
    ~DesktopSocketTest() override { ::unsetenv("XDG_RUNTIME_DIR"); }

    /// Asks while the socket answers as it is told to.
    static std::optional<std::string> Asked(const DesktopSocket& socket, const std::string& profile,
        const std::string& line, const DesktopSocket::Answering& answer)
    {
        std::optional<std::string> answered;
        std::thread caller([&] { answered = DesktopSocket::Ask(profile, line); });
        WaitForCaller(socket);
        socket.AnswerCallers(answer);
        caller.join();
        return answered;
    }
    static void WaitForCaller(const DesktopSocket& socket)
    {
        fd_set watched;
        FD_ZERO(&watched);
        FD_SET(socket.Number(), &watched);
        timeval limit { 10, 0 };
        ASSERT_EQ(::select(socket.Number() + 1, &watched, nullptr, nullptr, &limit), 1);
    }
    /// A caller that says only that, without an end, and goes.
    static void Call(const std::string& profile, const std::string& text)
    {
        sockaddr_un address {};
        address.sun_family = AF_UNIX;
        const auto path = DesktopSocket::PathFor(profile);
        std::memcpy(&address.sun_path[0], path.data(), path.size());
        const int number = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ASSERT_EQ(::connect(number, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ASSERT_EQ(::send(number, text.data(), text.size(), MSG_NOSIGNAL), static_cast<ssize_t>(text.size()));
        ::close(number);
    }

    TempFolder mFolder { TempFolder::InMemory() };
};

}

TEST_F(DesktopSocketTest, Ask_SomebodyListens_GetsTheAnswer)
{
    const DesktopSocket socket("/a/profile");
    EXPECT_EQ(Asked(socket, "/a/profile", "hello", [](const std::string& line) { return line + " you"; }), "hello you");
}

TEST_F(DesktopSocketTest, Ask_NobodyListens_IsNothing)
{
    EXPECT_EQ(DesktopSocket::Ask("/a/profile", "hello"), std::nullopt);
    const DesktopSocket socket("/a/profile");
    EXPECT_EQ(DesktopSocket::Ask("/another/profile", "hello"), std::nullopt);
}

TEST_F(DesktopSocketTest, Socket_IsTheUsersAloneAndGoesWithItsOwner)
{
    const auto path = DesktopSocket::PathFor("/a/profile");
    EXPECT_THAT(path, testing::StartsWith(mFolder.Path() + "/tempodial-"));
    struct stat status
    {
    };
    {
        const DesktopSocket socket("/a/profile");
        ASSERT_EQ(::stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777U, 0600U);
    }
    EXPECT_NE(::stat(path.c_str(), &status), 0);
}

TEST_F(DesktopSocketTest, Socket_LeftBehind_IsReplaced)
{
    const DesktopSocket left("/a/profile");
    const DesktopSocket socket("/a/profile");
    EXPECT_EQ(Asked(socket, "/a/profile", "a", [](const std::string&) { return "b"; }), "b");
}

TEST_F(DesktopSocketTest, Caller_SaysNoWholeLineOrTooMuch_GetsNoAnswer)
{
    const DesktopSocket socket("/a/profile");
    int answers = 0;
    const auto answer = [&](const std::string&) { return std::to_string(++answers); };
    Call("/a/profile", "half");
    socket.AnswerCallers(answer);
    std::thread talker([] { (void)DesktopSocket::Ask("/a/profile", std::string(1 << 20, 'x')); });
    WaitForCaller(socket);
    socket.AnswerCallers(answer);
    talker.join();
    EXPECT_EQ(answers, 0);
}

TEST_F(DesktopSocketTest, WithoutARuntimeFolder_IsInTheProfile)
{
    ::unsetenv("XDG_RUNTIME_DIR");
    EXPECT_THAT(DesktopSocket::PathFor("/a/profile"), testing::StartsWith("/a/profile/tempodial-"));
}

TEST_F(DesktopSocketTest, PathTooLong_Fails)
{
    const auto folder = mFolder.Path(std::string(120, 'x'));
    ::setenv("XDG_RUNTIME_DIR", folder.c_str(), 1);
    EXPECT_THROW(DesktopSocket("/a/profile"), Failure);
    EXPECT_EQ(DesktopSocket::Ask("/a/profile", "a"), std::nullopt);
}

}
