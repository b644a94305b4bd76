#include "tarnmodel/backup/BackupRestore.h"
#include "tarnmodel/backup/StoreBackup.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Confirmation.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/BackupProgress.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/import/record/BackedUpRecord.h"
#include "tools/tarn/session/StoreSession.h"
#include "tools/tarn/session/WaitForOthers.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

struct BackupArguments {
    std::optional<std::string> file;
    bool confirmed = false;
};

/// Of the file whose place the backup is to take; none when that is no backup.
std::optional<BackupManifest> manifestOfFormer(const fs::path& file)
{
    std::error_code failure;
    return fs::is_regular_file(file, failure) ? BackupRestore(file).manifest() : std::nullopt;
}

void writeBackupResult(const Invocation& invocation, const BackupManifest& manifest, const fs::path& file)
{
    if (invocation.json) {
        JSON document;
        document["notes"] = manifest.noteCount();
        document["files"] = manifest.fileCount;
        document["bytes"] = manifest.fileBytes;
        writeJSON(invocation.output, document);
        return;
    }
    std::error_code failure;
    const std::uintmax_t size = fs::file_size(file, failure);
    invocation.output.writeLine("backed up " + numbered(manifest.noteCount(), "note") + " and "
        + numbered(manifest.fileCount, "file") + " (" + displaySize(manifest.fileBytes) + "); the backup has "
        + displaySize(failure ? 0 : size));
}

/// A backup that holds less than the one before it may be missed too late.
void tellOfWhatIsLess(const BackupManifest& former, const BackupManifest& manifest)
{
    if (former.storeUUID != manifest.storeUUID) {
        tellOnStandardError("the backup that was replaced was of another store");
        return;
    }
    std::string less;
    const auto compare = [&less](std::uint64_t before, std::uint64_t now, const std::string& what) {
        if (now < before)
            less += (less.empty() ? "" : ", ") + what;
    };
    compare(former.noteCount(), manifest.noteCount(),
        numbered(manifest.noteCount(), "note") + " instead of " + std::to_string(former.noteCount()));
    compare(former.fileCount, manifest.fileCount,
        numbered(manifest.fileCount, "file") + " instead of " + std::to_string(former.fileCount));
    compare(former.fileBytes, manifest.fileBytes,
        displaySize(manifest.fileBytes) + " of files instead of " + displaySize(former.fileBytes));
    if (!less.empty())
        tellOnStandardError("warning: the backup holds less than the one that it replaced: " + less);
}

bool mayReplace(const fs::path& file, const BackupArguments& arguments)
{
    std::error_code failure;
    return arguments.confirmed || !fs::exists(file, failure)
        || confirmedOnTerminal("Replace " + displayText(file.native()) + " once the backup is whole?",
            "backup asks before it replaces a file");
}

ExitCode backUp(const Invocation& invocation, const BackupArguments& arguments)
{
    const Interruption interruption;
    const fs::path file = *arguments.file;
    StoreSession session(invocation, StoreSession::Access::Read);
    if (!session.exists()) {
        if (invocation.json)
            writeBackupResult(invocation, {}, file);
        return ExitCode::Failed;
    }
    std::error_code failure;
    if (fs::is_directory(file, failure))
        throw failureForSystemError(file.string(), EISDIR);
    if (!mayReplace(file, arguments)) {
        tellOnStandardError("nothing was written");
        return ExitCode::Failed;
    }
    const auto former = manifestOfFormer(file);
    const fs::path database = OVLocalFileManager::databaseURLInGroupFolder(session.folder());
    WaitForOthers wait(database);
    NSError error;
    std::optional<BackupManifest> manifest;
    {
        BackupProgress progress("Backing up");
        const BackupOptions options{.replacesFile = fs::exists(file, failure),
            .progress = progress.handler(),
            .whileWaiting = [&wait](std::chrono::milliseconds waited) { return wait.goesOn(waited); },
            .companions = {companionOfImportRecord(session)}};
        manifest = StoreBackup(database).writeToURL(file, options, &error);
    }
    if (!manifest)
        throw failureOfBackup("no backup was made", error);
    writeBackupResult(invocation, *manifest, file);
    if (!manifest->missingFiles.empty())
        tellOnStandardError(numbered(manifest->missingFiles.size(), "attachment")
            + " without bytes on this device: named in the backup, not in it");
    if (former)
        tellOfWhatIsLess(*former, *manifest);
    return ExitCode::Done;
}

} // namespace

void addBackupCommand(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<BackupArguments>();
    const Command command = commandLine.addCommand(
        {.name = "backup",
            .summary = "Write the whole store with its attachments into one file",
            .explanation
            = "The file is written beside the name, read back and compared, and then gets the name. What is protected\n"
              "stays so, and no password is asked for. Other programs may go on meanwhile; what they do is not in the\n"
              "backup. It is a tar file, packed with zstd: notes, tags and links as lines of JSON, attachments as "
              "files.\n"
              "A backup that holds less than the one that it replaces is warned of.",
            .examples = {"tarn backup notes.tarnbackup", "tarn backup --yes notes.tarnbackup"}},
        [arguments](const Invocation& invocation) { return backUp(invocation, *arguments); });
    command.addArgument("FILE", arguments->file, "The file to write").required();
    command.addFlag("--yes", arguments->confirmed, "Replace a file of that name without asking");
}

} // namespace tarn
