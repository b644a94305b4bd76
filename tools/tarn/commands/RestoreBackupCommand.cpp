#include "tarnmodel/backup/BackupRestore.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/store/BackupMigration.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/BackupProgress.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/import/record/BackedUpRecord.h"
#include "tools/tarn/session/StoreSession.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

struct RestoreArguments {
    std::optional<std::string> file;
    bool verify = false;
    bool salvage = false;
};

JSON jsonOfRestoration(const BackupRestoration& restoration)
{
    JSON document;
    document["restored"] = restoration.restored;
    document["kept"] = restoration.kept;
    document["skipped"] = JSON::array();
    for (const BackupOmission& omission : restoration.skipped)
        document["skipped"].push_back({{"title", validUTF8(omission.title)}, {"reason", validUTF8(omission.reason)}});
    document["files"] = restoration.files;
    document["bytes"] = restoration.bytes;
    return document;
}

void tellOmissions(const Invocation& invocation, const std::vector<BackupOmission>& omissions)
{
    for (const BackupOmission& omission : omissions)
        invocation.output.writeLine(displayText(omission.title) + ": " + displayText(omission.reason));
}

// Verifying -----------------------------------------------------------------------------------------------------------

BackupExamination examined(const RestoreArguments& arguments)
{
    BackupProgress progress("Examining");
    BackupReadOptions options;
    options.progress = progress.handler();
    NSError error;
    auto examination = BackupRestore(*arguments.file).examine(options, &error);
    if (!examination)
        throw failureOfBackup("the backup cannot be read", error);
    return std::move(*examination);
}

ExitCode verify(const Invocation& invocation, const RestoreArguments& arguments)
{
    const BackupExamination examination = examined(arguments);
    const BackupManifest& manifest = examination.manifest;
    if (invocation.json) {
        BackupRestoration nothing;
        nothing.skipped = examination.damaged;
        nothing.files = manifest.fileCount;
        nothing.bytes = manifest.fileBytes;
        writeJSON(invocation.output, jsonOfRestoration(nothing));
    } else {
        tellOmissions(invocation, examination.damaged);
        if (examination.damaged.empty())
            invocation.output.writeLine("sound: " + numbered(manifest.noteCount(), "note") + " and "
                + numbered(manifest.fileCount, "file") + " (" + displaySize(manifest.fileBytes) + ")");
    }
    if (examination.damaged.empty())
        return ExitCode::Done;
    tellOnStandardError("the backup is damaged; '--salvage' restores what is whole");
    return ExitCode::Corrupt;
}

// Restoring -----------------------------------------------------------------------------------------------------------

void writeRestoration(const Invocation& invocation, const BackupRestoration& restoration)
{
    if (invocation.json) {
        writeJSON(invocation.output, jsonOfRestoration(restoration));
        return;
    }
    tellOmissions(invocation, restoration.skipped);
    std::string line = "restored " + numbered(restoration.restored, "note") + " and "
        + numbered(restoration.files, "file") + " (" + displaySize(restoration.bytes) + "), kept "
        + numbered(restoration.kept, "note");
    if (restoration.conflicts > 0)
        line += "; " + numbered(restoration.conflicts, "note") + " of the backup became a conflicted copy";
    invocation.output.writeLine(line);
}

/// Where there is no store yet, none is made for a backup that is refused.
void refuseBeforeMakingAStore(const Invocation& invocation, const RestoreArguments& arguments)
{
    std::error_code failure;
    if (fs::exists(OVLocalFileManager::databaseURLInGroupFolder(storeFolderOf(invocation)), failure))
        return;
    const BackupExamination examination = examined(arguments);
    if (!examination.damaged.empty() && !arguments.salvage)
        throw CommandFailure(ExitCode::Corrupt,
            "nothing was restored: the backup is damaged: " + displayText(examination.damaged.front().title));
}

ExitCode restoreBackup(const Invocation& invocation, const RestoreArguments& arguments)
{
    const Interruption interruption;
    if (arguments.verify)
        return verify(invocation, arguments);
    refuseBeforeMakingAStore(invocation, arguments);
    StoreSession session(invocation, StoreSession::Access::Write);
    RestoredRecord record(session, arguments.salvage);
    std::optional<BackupRestoration> restoration;
    NSError error;
    {
        BackupProgress progress("Restoring");
        BackupReadOptions options;
        options.salvages = arguments.salvage;
        options.progress = progress.handler();
        options.migrate = migrateRecordsOfBackup;
        options.recordsChanges = false; // the session does
        options.takeCompanion = record.taker();
        restoration = BackupRestore(*arguments.file).restoreIntoContext(session.context(), options, &error);
    }
    if (!restoration)
        throw failureOfBackup("the backup was not restored, or not all of it", error);
    if (record.omission())
        restoration->skipped.push_back(*record.omission());
    writeRestoration(invocation, *restoration);
    record.finish();
    return restoration->damaged == 0 ? ExitCode::Done : ExitCode::Failed;
}

} // namespace

void addRestoreBackupCommand(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<RestoreArguments>();
    const Command command = commandLine.addCommand(
        {.name = "restore-backup",
            .summary = "Bring what a backup holds back into the store",
            .explanation
            = "Notes that are not in the store are made; those that are there in an earlier state are brought to the\n"
              "backup's, and a later state stays. Where both were edited, both are kept as versions of a conflict. "
              "The\n"
              "whole backup is decoded and compared before anything is written; a damaged one is refused (exit code "
              "5).\n"
              "Doing it twice changes nothing the second time, and completes what was cut off the first time.",
            .examples
            = {"tarn restore-backup --verify notes.tarnbackup", "tarn --store copy restore-backup notes.tarnbackup"}},
        [arguments](const Invocation& invocation) { return restoreBackup(invocation, *arguments); });
    command.addArgument("FILE", arguments->file, "A backup that 'tarn backup' has written").required();
    const CommandOption verifies
        = command.addFlag("--verify", arguments->verify, "Only examine the backup; the store is not looked at");
    command.addFlag("--salvage", arguments->salvage, "Restore what is whole of a damaged backup, and name the rest")
        .excludes({verifies});
}

} // namespace tarn
