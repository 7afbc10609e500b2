#pragma once

#include "cli/Command.h"

#include <memory>
#include <vector>

namespace tempodial {

/// All commands of the program, in the order in which the help lists them.
std::vector<std::unique_ptr<Command>> AllCommands();

/// The makers of the commands; each stands in the file of its command.
std::unique_ptr<Command> MakeSyncCommand();
std::unique_ptr<Command> MakeStatusCommand();
std::unique_ptr<Command> MakeListCommand();
std::unique_ptr<Command> MakeProjectsCommand();
std::unique_ptr<Command> MakeProjectsSetCommand();
std::unique_ptr<Command> MakeProjectsRemoveCommand();
std::unique_ptr<Command> MakeProjectsMatchCommand();
std::unique_ptr<Command> MakeProjectsRenameCommand();
std::unique_ptr<Command> MakeProjectsExportCommand();
std::unique_ptr<Command> MakeProjectsImportCommand();
std::unique_ptr<Command> MakeApplyCommand();
std::unique_ptr<Command> MakeAssignCommand();
std::unique_ptr<Command> MakeEditCommand();
std::unique_ptr<Command> MakeSplitCommand();
std::unique_ptr<Command> MakeJoinCommand();
std::unique_ptr<Command> MakeAddCommand();
std::unique_ptr<Command> MakeDeleteCommand();
std::unique_ptr<Command> MakeLogCommand();
std::unique_ptr<Command> MakeUndoCommand();
std::unique_ptr<Command> MakeReportCommand();
std::unique_ptr<Command> MakeProblemReportCommand();
std::unique_ptr<Command> MakeExportCommand();
std::unique_ptr<Command> MakeSummaryCommand();
std::unique_ptr<Command> MakeTimesheetCommand();
std::unique_ptr<Command> MakeUnassignedCommand();
std::unique_ptr<Command> MakeGapsCommand();
std::unique_ptr<Command> MakeImportCommand();
std::unique_ptr<Command> MakeTrackCommand();
std::unique_ptr<Command> MakeTrackStatusCommand();
std::unique_ptr<Command> MakeTrackProbeCommand();
std::unique_ptr<Command> MakeTrackPauseCommand();
std::unique_ptr<Command> MakeTrackResumeCommand();
std::unique_ptr<Command> MakeTrackForgetCommand();
std::unique_ptr<Command> MakeTrackProjectCommand();
std::unique_ptr<Command> MakeTrackInstallCommand();
std::unique_ptr<Command> MakeTrackUninstallCommand();
std::unique_ptr<Command> MakeWhyCommand();
std::unique_ptr<Command> MakeDemoCommand();
std::unique_ptr<Command> MakeTraceCommand();
std::unique_ptr<Command> MakeDoctorCommand();
std::unique_ptr<Command> MakeSettingsCommand();
std::unique_ptr<Command> MakeSettingsSetCommand();
std::unique_ptr<Command> MakeForgetCommand();
std::unique_ptr<Command> MakeBackupCommand();
std::unique_ptr<Command> MakeRestoreCommand();
std::unique_ptr<Command> MakeRegistryCommand();
std::unique_ptr<Command> MakeCompletionCommand();

}
