#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/Interruption.h"
#include "session/ProductFacts.h"

namespace tempodial {

namespace {

class SyncCommand final : public Command
{
public:
    SyncCommand()
        : Command({ "sync", "Make activities of the tracker's files",
            "Imports what the tracker wrote today and in the 21 days before: new activities\n"
            "are created, running ones extended, and short ones in between listed as\n"
            "details. What was imported isn't imported again. A file of a past day is then\n"
            "kept under its finished name. Ctrl-C stops it; the next sync goes on from\n"
            "there.\n"
            "\n"
            "  tempodial sync\n"
            "  tempodial sync --quiet --json" })
    {
    }

    void Declare(ArgumentList&) override { }

    Reply Run(const Options& options) override
    {
        const Interruption interruption;
        ConnectedRun run(options);
        if (!Interruption::IsRequested()) {
            run.AddIn().SyncData(SavedDataDays, true);
        }
        if (run.WasAddInRefusing()) {
            run.Complain("no new activity can be made, since the form of activities can't be used: install the program "
                         "again");
        }
        const bool cancelled = Interruption::IsRequested();
        const auto& saves = run.Saves();
        Reply reply;
        reply.document = { { "created", saves.created }, { "extended", saves.extended }, { "detailed", saves.detailed },
            { "cancelled", cancelled } };
        reply.summary = std::to_string(saves.created) + " created, " + std::to_string(saves.extended) + " extended, "
            + std::to_string(saves.detailed) + " detailed" + (cancelled ? ", then interrupted" : "") + "\n";
        return run.Concluded(std::move(reply));
    }
};

}

std::unique_ptr<Command> MakeSyncCommand()
{
    return std::make_unique<SyncCommand>();
}

}
