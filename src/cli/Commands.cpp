#include "cli/Commands.h"

#include <iterator>

namespace tempodial {

std::vector<std::unique_ptr<Command>> AllCommands()
{
    std::unique_ptr<Command> commands[] {
        MakeSyncCommand(),
        MakeListCommand(),
        MakeProjectsCommand(),
        MakeProjectsSetCommand(),
        MakeProjectsRemoveCommand(),
        MakeProjectsMatchCommand(),
        MakeApplyCommand(),
        MakeAssignCommand(),
        MakeReportCommand(),
        MakeProblemReportCommand(),
        MakeExportCommand(),
        MakeSummaryCommand(),
        MakeUnassignedCommand(),
        MakeGapsCommand(),
        MakeDemoCommand(),
        MakeTraceCommand(),
        MakeRegistryCommand(),
    };
    return { std::make_move_iterator(std::begin(commands)), std::make_move_iterator(std::end(commands)) };
}

}
