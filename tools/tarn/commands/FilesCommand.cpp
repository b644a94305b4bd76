#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/files/FileList.h"

#include <algorithm>
#include <memory>
#include <tuple>

namespace tarn {

namespace {

struct FilesOptions {
    std::optional<std::string> note;
    bool toUpload = false;
    bool toDownload = false;
    bool unused = false;
};

bool isWanted(const OVNoteFile& file, const FilesOptions& options)
{
    return (!options.toUpload || file.isToUpload()) && (!options.toDownload || file.isToDownload())
        && (!options.unused || file.isUnused());
}

/// By the titles of the notes, within a note as its text names them, unused ones last.
void sortFiles(std::vector<OVNoteFile*>& files)
{
    using Key = std::tuple<bool, std::string, std::string, bool, std::int64_t, std::string>;
    std::vector<std::pair<Key, OVNoteFile*>> keyed;
    keyed.reserve(files.size());
    for (OVNoteFile* file : files) {
        const OVNote* note = file->note();
        keyed.emplace_back(Key(note == nullptr, note ? fold(note->title().value_or("")) : "",
                               note ? note->uniqueIdentifier().value_or("") : "", file->isUnused(), file->indexValue(),
                               nameOfFile(*file)),
            file);
    }
    std::ranges::stable_sort(keyed, {}, &std::pair<Key, OVNoteFile*>::first);
    std::ranges::transform(keyed, files.begin(), &std::pair<Key, OVNoteFile*>::second);
}

ExitCode listFiles(const Invocation& invocation, const FilesOptions& options)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    session.protection().unlockByFile();
    std::vector<OVNoteFile*> files
        = options.note ? noteForArgument(*options.note, session).filesSet().allObjects() : session.files(std::nullopt);
    std::erase_if(files, [&options](const OVNoteFile* file) { return !isWanted(*file, options); });
    sortFiles(files);
    if (invocation.json) {
        writeJSON(invocation.output, jsonOfFiles(files));
    } else if (!files.empty()) {
        for (const OVNoteFile* file : files)
            writeFileLine(invocation.output, *file);
        invocation.output.writeLine(numbered(files.size(), "file") + ", " + displaySize(bytesOfFiles(files)));
    }
    return session.exitCodeOfSearch(!files.empty(), "there are no such attachments");
}

} // namespace

void addFilesCommand(CommandLine& commandLine)
{
    const auto options = std::make_shared<FilesOptions>();
    const Command command = commandLine.addCommand(
        {.name = "files",
            .summary = "List attachments",
            .explanation = "Of one note, or all. A line holds kind, size, pixels, marks, name and the note's title.\n"
                           "Marks: u unused, ^ to be uploaded, v to be downloaded, e encrypted, ! not on disk although "
                           "it should be.",
            .examples = {"tarn files Groceries", "tarn files --unused"}},
        [options](const Invocation& invocation) { return listFiles(invocation, *options); });
    command.addArgument("NOTE", options->note, "An identifier, the beginning of one, or a title; without it all notes");
    const CommandOption toUpload
        = command.addFlag("--to-upload", options->toUpload, "Only those whose bytes are here and not on the server");
    command.addFlag("--to-download", options->toDownload, "Only those whose bytes are on the server and not here")
        .excludes({toUpload});
    command.addFlag("--unused", options->unused, "Only those that no text names any more");
}

} // namespace tarn
