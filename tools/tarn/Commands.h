#pragma once

namespace tarn {

class CommandLine;

/// Adds every command of the program, in the order of `--help`.
void addCommands(CommandLine& commandLine);

void addParseCommand(CommandLine& commandLine);
void addImportCommand(CommandLine& commandLine);
void addNewCommand(CommandLine& commandLine);
void addShowCommand(CommandLine& commandLine);
void addListCommand(CommandLine& commandLine);
void addSearchCommand(CommandLine& commandLine);
void addTagsCommand(CommandLine& commandLine);
/// trash, restore, archive, unarchive, pin, unpin, readonly, editable
void addStateCommands(CommandLine& commandLine);
void addDeleteCommand(CommandLine& commandLine);
void addStatsCommand(CommandLine& commandLine);
void addDoctorCommand(CommandLine& commandLine);

} // namespace tarn
