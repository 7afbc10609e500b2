#include "cli/Commands.h"

#include <iterator>

namespace tempodial {

std::vector<std::unique_ptr<Command>> AllCommands()
{
    std::unique_ptr<Command> commands[] {
        MakeSyncCommand(),
        MakeStatusCommand(),
        MakeListCommand(),
        MakeProjectsCommand(),
        MakeProjectsSetCommand(),
        MakeProjectsRemoveCommand(),
        MakeProjectsMatchCommand(),
        MakeProjectsRenameCommand(),
        MakeProjectsExportCommand(),
        MakeProjectsImportCommand(),
        MakeApplyCommand(),
        MakeAssignCommand(),
        MakeEditCommand(),
        MakeSplitCommand(),
        MakeJoinCommand(),
        MakeAddCommand(),
        MakeDeleteCommand(),
        MakeLogCommand(),
        MakeUndoCommand(),
        MakeReportCommand(),
        MakeProblemReportCommand(),
        MakeExportCommand(),
        MakeSummaryCommand(),
        MakeTimesheetCommand(),
        MakeUnassignedCommand(),
        MakeGapsCommand(),
        MakeImportCommand(),
        MakeTrackCommand(),
        MakeTrackStatusCommand(),
        MakeTrackProbeCommand(),
        MakeTrackPauseCommand(),
        MakeTrackResumeCommand(),
        MakeTrackForgetCommand(),
        MakeTrackProjectCommand(),
        MakeTrackInstallCommand(),
        MakeTrackUninstallCommand(),
        MakeWhyCommand(),
        MakeDemoCommand(),
        MakeTraceCommand(),
        MakeDoctorCommand(),
        MakeSettingsCommand(),
        MakeSettingsSetCommand(),
        MakeForgetCommand(),
        MakeBackupCommand(),
        MakeRestoreCommand(),
        MakeRegistryCommand(),
        MakeCompletionCommand(),
    };
    return { std::make_move_iterator(std::begin(commands)), std::make_move_iterator(std::end(commands)) };
}

}
