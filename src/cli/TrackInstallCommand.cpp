#include "cli/Commands.h"
#include "cli/RunningTracker.h"
#include "cli/UserUnits.h"

#include <string>
#include <vector>

namespace tempodial {

namespace {

Reply FilesReply(const std::vector<std::string>& files)
{
    Reply reply;
    reply.document = { { "files", files } };
    std::string text;
    for (const auto& file : files) {
        text += file + "\n";
    }
    reply.text = text;
    return reply;
}

class TrackInstallCommand final : public Command
{
public:
    TrackInstallCommand()
        : Command({ "track install", "Let your session start the recorder, and sync each hour",
            "Writes units of systemd for you alone, and an entry for sessions without it,\n"
            "prints each file, and starts the recorder where your session answers.\n"
            "\"track uninstall\" removes them again.\n"
            "\n"
            "  tempodial track install" })
    {
    }

    void Declare(ArgumentList& /*arguments*/) override { }

    Reply Run(const Options& options) override
    {
        auto reply = FilesReply(UserUnits(RunningTracker(options).Profile()).Install());
        if (!UserUnits::Start()) {
            reply.remarks.emplace_back("your session doesn't answer, so nothing was started: log in again, and run "
                                       "\"systemctl --user enable --now tempodial-track tempodial-sync.timer\" there");
        }
        return reply;
    }
};

class TrackUninstallCommand final : public Command
{
public:
    TrackUninstallCommand()
        : Command({ "track uninstall", "Stop the recorder, and don't let your session start it again",
            "Stops what \"track install\" has started, removes its files and prints each.\n"
            "What was recorded stays.\n"
            "\n"
            "  tempodial track uninstall" })
    {
    }

    void Declare(ArgumentList& /*arguments*/) override { }

    Reply Run(const Options& options) override
    {
        UserUnits::Stop();
        auto reply = FilesReply(UserUnits(RunningTracker(options).Profile()).Uninstall());
        UserUnits::Reload();
        return reply;
    }
};

}

std::unique_ptr<Command> MakeTrackInstallCommand()
{
    return std::make_unique<TrackInstallCommand>();
}

std::unique_ptr<Command> MakeTrackUninstallCommand()
{
    return std::make_unique<TrackUninstallCommand>();
}

}
