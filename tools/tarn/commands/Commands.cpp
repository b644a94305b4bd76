#include "tools/tarn/commands/Commands.h"

namespace tarn {

void addCommands(CommandLine& commandLine)
{
    addImportCommand(commandLine);
    addNewCommand(commandLine);
    addShowCommand(commandLine);
    addEditCommands(commandLine);
    addEditorCommand(commandLine);
    addDuplicateCommand(commandLine);
    addMergeCommand(commandLine);
    addListCommand(commandLine);
    addSearchCommand(commandLine);
    addPredicateCommand(commandLine);
    addHighlightCommand(commandLine);
    addTagsCommand(commandLine);
    addTagCommands(commandLine);
    addLinkCommands(commandLine);
    addURLCommand(commandLine);
    addConflictsCommand(commandLine);
    addConflictCommand(commandLine);
    addStateCommands(commandLine);
    addDeleteCommand(commandLine);
    addProtectCommands(commandLine);
    addPasswordsCommand(commandLine);
    addPasswordCommands(commandLine);
    addAttachCommand(commandLine);
    addFilesCommand(commandLine);
    addFileCommands(commandLine);
    addThumbCommand(commandLine);
    addExportCommand(commandLine);
    addBackupCommand(commandLine);
    addRestoreBackupCommand(commandLine);
    addChangesCommand(commandLine);
    addBaselineCommand(commandLine);
    addStatsCommand(commandLine);
    addDoctorCommand(commandLine);
    addMigrateCommand(commandLine);
    addParseCommand(commandLine);
}

} // namespace tarn
