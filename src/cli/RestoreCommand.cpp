#include "cli/BackupFile.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "host/system/HostClock.h"
#include "session/Restoring.h"
#include "terminal/TerminalText.h"

namespace tempodial {

namespace {

class RestoreCommand final : public Command
{
public:
    RestoreCommand()
        : Command({ "restore", "Bring back the profile of a backup",
            "Makes a profile from a file that \"backup\" has written, as a whole or not at all.\n"
            "A profile that has activities is only replaced if --replace is given. It is then\n"
            "kept beside the restored one, its name followed by the moment.\n"
            "\n"
            "  tempodial restore ~/backups/tempodial-2006-10-10.tar.gz\n"
            "  tempodial --profile /tmp/look restore backup.tar.gz\n"
            "  tempodial restore backup.tar.gz --replace" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        mFile.Declare(arguments, "The file that \"backup\" has written (.tar.gz)");
        arguments.Flag("--replace", mReplaces, "Also where a profile with activities is, which is kept\nbeside it");
    }

    Reply Run(const Options& options) override
    {
        mFile.RequireUsable();
        const auto restored = Restored(options);
        Reply reply;
        reply.document = { { "profile", restored.path }, { "files", restored.files }, { "former", nullptr } };
        reply.summary = "Restored: " + IsolatedLine(restored.path) + "\n";
        if (restored.former) {
            reply.document.Set("former", *restored.former);
            reply.summary += "The former one is kept: " + IsolatedLine(*restored.former) + "\n";
        }
        return reply;
    }

private:
    RestoredProfile Restored(const Options& options) const
    {
        try {
            return RestoreProfile(options, mFile.Path(), mReplaces, HostClock(options.now).Now());
        } catch (const RestoreError& error) {
            throw CommandError(error.what());
        }
    }

    BackupFile mFile;
    bool mReplaces = false;
};

}

std::unique_ptr<Command> MakeRestoreCommand()
{
    return std::make_unique<RestoreCommand>();
}

}
