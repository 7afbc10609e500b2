#include "support/TempFolder.h"
#include "track/ControlClient.h"
#include "track/ControlPath.h"
#include "track/ControlServer.h"
#include "track/ControlSocket.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <sys/socket.h>
#include <thread>

namespace tempodial {

namespace {

TEST(ControlTest, Message_ItsOwnText_IsTheSame)
{
    ControlMessage message;
    message.Set("do", "project");
    message.Set("name", "a=b\nc");
    const ControlMessage read(message.Text() + "nonsense\n");
    EXPECT_EQ(read.Get("name"), "a=b c");
    EXPECT_TRUE(read.Has("do"));
    EXPECT_FALSE(read.Has("nonsense"));
    EXPECT_EQ(read.Get("other"), "");
}

TEST(ControlTest, Server_SomebodyAsks_IsAnswered)
{
    const TempFolder folder;
    const auto path = folder.Path("runtime/track.sock");
    const ControlServer server(path);
    EXPECT_EQ(std::filesystem::status(path).permissions(),
        std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    EXPECT_EQ(std::filesystem::status(folder.Path("runtime")).permissions(), std::filesystem::perms::owner_all);
    std::optional<ControlMessage> answer;
    std::thread asking([&] {
        ControlMessage request;
        request.Set("do", "status");
        answer = AskRecorder(path, request);
    });
    for (int asked = 0; asked == 0;) {
        server.Serve([&asked](const ControlMessage& request) {
            ++asked;
            ControlMessage reply;
            reply.Set("was", request.Get("do"));
            return reply;
        });
    }
    asking.join();
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->Get("was"), "status");
}

TEST(ControlTest, Server_SomebodySaysNothing_IsLeft)
{
    const TempFolder folder;
    const auto path = folder.Path("track.sock");
    const ControlServer server(path);
    const auto silent = ControlSocket::New();
    const auto address = ControlSocket::AddressOf(path);
    ASSERT_EQ(::connect(silent.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    server.Serve([](const ControlMessage& request) { return request; });
    EXPECT_EQ(silent.ReceiveAll(0).value_or("ended"), "");
}

TEST(ControlTest, Server_OneWasKilled_TakesItsPlace)
{
    const TempFolder folder;
    folder.Write("track.sock", "");
    const ControlServer server(folder.Path("track.sock"));
    EXPECT_FALSE(AskRecorder(folder.Path("other.sock"), {}));
}

TEST(ControlTest, Server_PathIsTooLong_FailsWithWhatToDo)
{
    const TempFolder folder;
    EXPECT_THROW(ControlServer(folder.Path(std::string(120, 'a'))), std::runtime_error);
    EXPECT_FALSE(AskRecorder(folder.Path(std::string(120, 'a')), {}));
}

TEST(ControlTest, Path_SystemGivesAFolder_IsThereAndOtherwiseInTheProfile)
{
    const TempFolder folder;
    ::setenv("XDG_RUNTIME_DIR", "/run/user/1", 1);
    const auto path = ControlPathOf(folder.Path());
    EXPECT_THAT(path, testing::MatchesRegex("/run/user/1/tempodial/track-[0-9a-f]+\\.sock"));
    std::filesystem::create_directory_symlink(folder.Path(), folder.Path() + "-link");
    EXPECT_EQ(ControlPathOf(folder.Path() + "-link"), path);
    std::filesystem::remove(folder.Path() + "-link");
    EXPECT_NE(ControlPathOf("/other"), path);
    ::setenv("XDG_RUNTIME_DIR", ("/" + std::string(100, 'r')).c_str(), 1);
    EXPECT_EQ(ControlPathOf(folder.Path()), folder.Path("Tempodial/track.sock"));
    ::unsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(ControlPathOf("/absent"), "/absent/Tempodial/track.sock");
}

TEST(ControlTest, Paths_OtherSessions_AreAllWhereARecorderMayListen)
{
    const TempFolder folder;
    const auto ofUser = "/run/user/" + std::to_string(::getuid()) + "/tempodial/track-[0-9a-f]+\\.sock";
    const auto ofProfile = folder.Path("Tempodial/track.sock");
    ::unsetenv("XDG_RUNTIME_DIR");
    EXPECT_THAT(ControlPathsOf(folder.Path()), testing::ElementsAre(ofProfile, testing::MatchesRegex(ofUser)));
    ::setenv("XDG_RUNTIME_DIR", "/elsewhere", 1);
    EXPECT_THAT(ControlPathsOf(folder.Path()),
        testing::ElementsAre(testing::MatchesRegex("/elsewhere/tempodial/track-[0-9a-f]+\\.sock"),
            testing::MatchesRegex(ofUser), ofProfile));
    ::setenv("XDG_RUNTIME_DIR", "no folder", 1);
    EXPECT_EQ(ControlPathOf(folder.Path()), ofProfile);
    ::unsetenv("XDG_RUNTIME_DIR");
}

}

}
