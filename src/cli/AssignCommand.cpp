#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ConnectedRun.h"
#include "cli/KnownProject.h"
#include "cli/ProjectNames.h"
#include "session/ProductFacts.h"
#include "terminal/Arguments.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

namespace tempodial {

namespace {

class AssignCommand final : public Command
{
public:
    AssignCommand()
        : Command({ "assign", "Set a project on the activities of a span of time",
            "Sets the project on the activities that start in the span, the first moment\n"
            "included and the last one not, whatever the rules say. A project that there\n"
            "isn't yet comes into being. Activities that have a project keep it, unless\n"
            "--overwrite is given; \"No Project\" takes it from them.\n"
            "\n"
            "  tempodial assign Riverside --from 2006-10-10T09:00 --to 2006-10-10T12:30\n"
            "  tempodial assign \"No Project\" --from 2006-10-10T09:00 --to 2006-10-10T12:30 \\\n"
            "    --overwrite" })
    {
    }

    void Declare(ArgumentList& arguments) override
    {
        arguments.Required("NAME", mName, "The project");
        arguments.Required("--from YYYY-MM-DDTHH:MM", mFrom, "The first moment");
        arguments.Required("--to YYYY-MM-DDTHH:MM", mTo, "The moment behind the last");
        arguments.Flag("--overwrite", mOverwrite, "Also change activities that have a project");
    }

    Reply Run(const Options& options) override
    {
        RequireProjectName(mName);
        const auto from = ToMoment("--from", mFrom);
        const auto to = ToMoment("--to", mTo);
        if (from >= to) {
            throw UsageError(
                "--from " + mFrom + " isn't earlier than --to " + mTo + ": give the earlier moment as --from");
        }
        ConnectedRun run(options);
        auto& addIn = run.AddIn();
        const auto name = KnownProject::NameOrNew(addIn, mName);
        if (const auto refusal = addIn.ValidateProject(name); !IsNoProject(name) && !refusal.empty()) {
            throw CommandError(refusal);
        }
        const bool wasListed = KnownProject::IsListed(addIn, name);
        const ProjectChanges changes(run.Profile(), { from.Day(), to.Day() });
        addIn.SetProjectForItems(name, false, true, from, to, mOverwrite);
        const bool isNew = !wasListed && KnownProject::IsListed(addIn, name);
        auto reply = run.ConcludedWithChanges(changes);
        if (isNew) {
            reply.notes.push_back("Added: the project " + IsolatedLine(name));
        }
        return reply;
    }

private:
    std::string mName;
    std::string mFrom;
    std::string mTo;
    bool mOverwrite = false;
};

}

std::unique_ptr<Command> MakeAssignCommand()
{
    return std::make_unique<AssignCommand>();
}

}
