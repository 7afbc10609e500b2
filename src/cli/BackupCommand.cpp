#include "base/Failure.h"
#include "cli/BackupFile.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "host/files/ArchiveFile.h"
#include "host/files/PathOperations.h"
#include "session/Backup.h"
#include "session/OpenProfile.h"
#include "session/ProfilePlace.h"
#include "terminal/TerminalText.h"

namespace tempodial {

namespace {

class BackupCommand final : public Command
{
public:
    BackupCommand()
        : Command({ "backup", "Put the whole profile into one file",
            "FILE ends in .tar.gz. It holds the mailbox, the settings and projects, and the\n"
            "files of the tracker, as they are at this moment, and only you can read it. It\n"
            "waits while a program writes to the profile. \"restore\" brings it back.\n"
            "\n"
            "  tempodial backup ~/backups/tempodial-2006-10-10.tar.gz" })
    {
    }

    void Declare(ArgumentList& arguments) override { mFile.Declare(arguments, "The file to write (.tar.gz)"); }

    Reply Run(const Options& options) override
    {
        mFile.RequireUsable();
        const auto path = ProfilePath(options);
        if (!ProfilePlace(path).HasProfile()) {
            throw CommandError("no profile at " + path + " yet: name another with --profile");
        }
        const auto target = mFile.Target(path);
        const auto profile = OpenProfile(options);
        const auto content = Written(profile, target.Path());
        Reply reply;
        reply.document = { { "file", mFile.Path() }, { "files", content.files },
            { "bytes", StatusOf(target.Path(), Links::Followed).size } };
        reply.summary = (target.WhatItIs() == OutputTarget::Kind::File ? "Replaced: " : "Written: ")
            + IsolatedLine(mFile.Path()) + "\n";
        for (const auto& left : content.leftOut) {
            reply.warnings.push_back(
                left + " isn't in the backup, since it is neither a file nor a folder: keep it elsewhere");
        }
        return reply;
    }

private:
    BackupContent Written(const Profile& profile, const NativePath& target) const
    {
        const auto refuse = [this](const std::string& reason) {
            return CommandError(
                IsolatedLine(mFile.Path()) + " couldn't be written: " + reason + ": see to its folder and its disk");
        };
        try {
            return BackUp(profile, target);
        } catch (const ArchiveError& error) {
            throw refuse(error.what());
        } catch (const Failure& failure) {
            throw refuse(failure.Description());
        }
    }

    BackupFile mFile;
};

}

std::unique_ptr<Command> MakeBackupCommand()
{
    return std::make_unique<BackupCommand>();
}

}
