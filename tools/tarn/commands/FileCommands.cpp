#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/files/FileNames.h"
#include "tools/tarn/arguments/NotesToChange.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/files/UnusedFiles.h"
#include "tools/tarn/listing/NoteList.h"

#include <algorithm>
#include <array>
#include <memory>

namespace tarn {

namespace {

// rename --------------------------------------------------------------------------------------------------------------

struct RenameArguments {
    NotesToChange note;
    std::optional<std::string> oldName;
    std::optional<std::string> newName;
};

bool isCalled(const OVNoteFile& file, const std::string& name)
{
    return !isLocked(file) && (nameOfFile(file) == name || file.filenameIsEqualTo(name));
}

/// A used one first.
OVNoteFile& fileCalled(const std::string& name, const OVNote& note)
{
    std::vector<OVNoteFile*> files = note.filesSet().allObjects();
    std::ranges::stable_sort(files, {}, &OVNoteFile::isUnused);
    const auto found = std::ranges::find_if(files, [&](const OVNoteFile* file) { return isCalled(*file, name); });
    if (found != files.end())
        return **found;
    std::vector<std::string> names;
    for (const OVNoteFile* file : files)
        names.push_back(nameOfFile(*file));
    throw CommandFailure(ExitCode::Failed,
        nameOfNote(note) + " has no attachment \"" + name + "\"" + (names.empty() ? "" : "; it has"), std::move(names));
}

void requireUsableName(const std::string& name, const OVNoteFile& renamed, const OVNote& note)
{
    if (name.empty())
        throw CommandFailure(ExitCode::Usage, "NEW is empty; an attachment needs a name");
    if (const std::string possible = fileNameWithinFolder(name); possible != name)
        throw CommandFailure(
            ExitCode::Usage, "\"" + name + "\" cannot be the name of a file; \"" + possible + "\" could be");
    for (const OVNoteFile* file : note.filesSet().allObjects()) {
        if (file != &renamed && !file->isUnused() && isCalled(*file, name))
            throw CommandFailure(
                ExitCode::Failed, nameOfNote(note) + " has an attachment \"" + nameOfFile(*file) + "\" already");
    }
}

OVNoteFile& renameFileOfNote(OVNote& note, const std::string& oldName, const std::string& newName)
{
    OVNoteFile& file = fileCalled(oldName, note);
    requireUsableName(newName, file, note);
    const std::string former = nameOfFile(file);
    NSError error;
    file.renameWithFilename(newName, &error);
    if (nameOfFile(file) != newName)
        throw CommandFailure(ExitCode::InputOutput,
            "cannot rename \"" + former + "\": " + singleLine(error.localizedDescription()) + "; nothing was changed");
    const CVKAST document = CVKAST::fromMarkdown(note.text().value_or(""));
    const auto edits = document.updateLinksURL(former, newName, {});
    if (!file.isUnused() && !edits.edits.empty())
        note.updateNoteWithAST(document.applyTextOperationResults(edits));
    return file;
}

ExitCode renameFile(const Invocation& invocation, const RenameArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return std::vector{&arguments.note.one(session)}; });
    OVNoteFile* file = nullptr;
    session.write([&] {
        OVNote& note = arguments.note.one(session);
        requireEditable(note);
        file = &renameFileOfNote(note, *arguments.oldName, *arguments.newName);
    });
    if (invocation.json)
        writeJSON(invocation.output, jsonOfFiles(std::array{file}));
    else
        writeFileLine(invocation.output, *file);
    return ExitCode::Done;
}

void addRenameCommand(CommandLine& commandLine, Command group)
{
    const auto arguments = std::make_shared<RenameArguments>();
    const Command command = commandLine.addCommand(group,
        {.name = "rename",
            .summary = "Rename an attachment, and rewrite the links of the text to it",
            .explanation = "A name that another attachment of the note has is refused.",
            .examples = {"tarn file rename Groceries IMG_0815.jpg shelf.jpg"}},
        [arguments](const Invocation& invocation) { return renameFile(invocation, *arguments); });
    arguments->note.addOneTo(command, "An identifier, the beginning of one, or a title");
    command.addArgument("OLD", arguments->oldName, "The name that it has").required();
    command.addArgument("NEW", arguments->newName, "The name that it gets").required();
}

// prune ---------------------------------------------------------------------------------------------------------------

void writePruning(const Invocation& invocation, const Pruning& pruning, bool dryRun)
{
    if (invocation.json) {
        writeJSON(invocation.output, {{"files", pruning.files}, {"skipped", pruning.skipped}});
        return;
    }
    for (const std::string& line : pruning.lines)
        invocation.output.writeLine(line);
    invocation.output.writeLine((dryRun ? "would delete " : "deleted ") + numbered(pruning.files.size(), "file") + ", "
        + displaySize(pruning.bytes)
        + (pruning.skipped.empty() ? "" : "; skipped " + numbered(pruning.skipped.size(), "file")));
}

ExitCode pruneFiles(const Invocation& invocation, bool dryRun)
{
    StoreSession session(invocation, dryRun ? StoreSession::Access::Read : StoreSession::Access::Write);
    session.protection().unlockByFile();
    Pruning pruning;
    if (dryRun)
        pruning = pruningOf(session);
    else
        session.write([&] {
            pruning = pruningOf(session);
            deleteUnused(pruning);
        });
    writePruning(invocation, pruning, dryRun);
    return ExitCode::Done;
}

void addPruneCommand(CommandLine& commandLine, Command group)
{
    const auto dryRun = std::make_shared<bool>(false);
    const Command command = commandLine.addCommand(group,
        {.name = "prune",
            .summary = "Delete attachments that no text names any more, with their bytes",
            .explanation = "Each text is read anew. Where it is locked or cannot be read, its attachments are skipped "
                           "and listed: who\ncannot know deletes nothing.",
            .examples = {"tarn file prune --dry-run", "tarn file prune"}},
        [dryRun](const Invocation& invocation) { return pruneFiles(invocation, *dryRun); });
    command.addFlag("--dry-run", *dryRun, "Delete nothing, list what would be deleted");
}

} // namespace

void addFileCommands(CommandLine& commandLine)
{
    const Command group = commandLine.addGroup({.name = "file",
        .summary = "Rename attachments, and delete unused ones",
        .explanation = "",
        .examples = {"tarn file rename Groceries IMG_0815.jpg shelf.jpg", "tarn file prune --dry-run"}});
    addRenameCommand(commandLine, group);
    addPruneCommand(commandLine, group);
}

} // namespace tarn
