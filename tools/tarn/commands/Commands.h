#pragma once

namespace tarn {

class CommandLine;

/// Adds every command of the program, in the order of `--help`.
void addCommands(CommandLine& commandLine);

void addParseCommand(CommandLine& commandLine);
void addImportCommand(CommandLine& commandLine);
void addNewCommand(CommandLine& commandLine);
void addShowCommand(CommandLine& commandLine);
/// append, prepend, replace
void addEditCommands(CommandLine& commandLine);
/// edit
void addEditorCommand(CommandLine& commandLine);
void addDuplicateCommand(CommandLine& commandLine);
void addMergeCommand(CommandLine& commandLine);
void addListCommand(CommandLine& commandLine);
void addSearchCommand(CommandLine& commandLine);
void addPredicateCommand(CommandLine& commandLine);
void addHighlightCommand(CommandLine& commandLine);
void addTagsCommand(CommandLine& commandLine);
/// tag add, remove, rename, delete, pin, unpin, prune
void addTagCommands(CommandLine& commandLine);
/// links, backlinks, unresolved, orphans
void addLinkCommands(CommandLine& commandLine);
void addURLCommand(CommandLine& commandLine);
void addConflictsCommand(CommandLine& commandLine);
/// conflict resolve
void addConflictCommand(CommandLine& commandLine);
/// trash, restore, archive, unarchive, pin, unpin, readonly, editable
void addStateCommands(CommandLine& commandLine);
void addDeleteCommand(CommandLine& commandLine);
/// protect, unprotect
void addProtectCommands(CommandLine& commandLine);
void addPasswordsCommand(CommandLine& commandLine);
/// password add, change, rotate, delete
void addPasswordCommands(CommandLine& commandLine);
void addAttachCommand(CommandLine& commandLine);
void addFilesCommand(CommandLine& commandLine);
/// file rename, prune
void addFileCommands(CommandLine& commandLine);
void addThumbCommand(CommandLine& commandLine);
void addExportCommand(CommandLine& commandLine);
void addBackupCommand(CommandLine& commandLine);
void addRestoreBackupCommand(CommandLine& commandLine);
void addChangesCommand(CommandLine& commandLine);
void addBaselineCommand(CommandLine& commandLine);
void addStatsCommand(CommandLine& commandLine);
void addDoctorCommand(CommandLine& commandLine);
void addMigrateCommand(CommandLine& commandLine);

} // namespace tarn
