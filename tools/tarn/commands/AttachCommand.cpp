#include "tools/tarn/arguments/NotesToChange.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"
#include "tools/tarn/files/AttachmentLinks.h"
#include "tools/tarn/files/FileList.h"
#include "tools/tarn/listing/NoteList.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <set>
#include <system_error>

namespace tarn {

namespace {

struct AttachArguments {
    NotesToChange note;
    std::vector<std::string> files;
};

OVNoteFile* attach(const std::string& path, OVNote& note)
{
    const auto cannot = [&path](const std::string& reason) {
        return CommandFailure(
            ExitCode::InputOutput, "cannot attach " + path + ": " + reason + "; nothing was attached");
    };
    std::error_code failure;
    const auto status = std::filesystem::status(path, failure);
    if (failure)
        throw cannot(failure.message());
    // A folder would be taken with all that is in it, and a pipe waited for.
    if (!std::filesystem::is_regular_file(status))
        throw cannot(std::filesystem::is_directory(status) ? "it is a folder" : "it is no file");
    NSError error;
    OVNoteFile* file = OVNoteFile::getOrCreateFileFromURL(path, note, &error);
    if (!file)
        throw cannot(singleLine(error.localizedDescription()));
    return file;
}

std::string linksToUnnamed(const std::vector<OVNoteFile*>& files, std::string_view text)
{
    const std::set<std::string> named = filenamesInText(text);
    std::string links;
    for (const OVNoteFile* file : files) {
        if (!named.contains(file->filename().value_or("")))
            links += (links.empty() ? "" : "\n") + linkToFile(*file);
    }
    return links;
}

bool allAreInUse(const std::vector<OVNoteFile*>& files)
{
    return std::ranges::none_of(files, &OVNoteFile::isUnused);
}

/// The end of a text may lie inside of a block of code that nothing closes: there a link is none.
void addLinks(OVNote& note, const std::vector<OVNoteFile*>& files)
{
    const std::string text = note.text().value_or("");
    const std::string links = linksToUnnamed(files, text);
    if (links.empty())
        note.updateNoteWithText(text);
    else
        note.appendNoteWithText(links);
    if (!allAreInUse(files)) {
        note.updateNoteWithText(text);
        note.prependNoteWithText(links);
    }
    if (!allAreInUse(files))
        throw CommandFailure(
            ExitCode::Failed, "the text of " + nameOfNote(note) + " takes no link; nothing was attached");
}

ExitCode attachFiles(const Invocation& invocation, const AttachArguments& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return std::vector{&arguments.note.one(session)}; });
    std::vector<OVNoteFile*> files;
    session.write([&] {
        OVNote& note = arguments.note.one(session);
        requireEditable(note);
        for (const std::string& path : arguments.files)
            files.push_back(attach(path, note));
        addLinks(note, files);
    });
    if (invocation.json)
        writeJSON(invocation.output, jsonOfFiles(files));
    else
        for (const OVNoteFile* file : files)
            writeFileLine(invocation.output, *file);
    return ExitCode::Done;
}

} // namespace

void addAttachCommand(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<AttachArguments>();
    const Command command = commandLine.addCommand(
        {.name = "attach",
            .summary = "Attach files to a note",
            .explanation
            = "Each is copied into the store. A link to it is added at the end of the text where the text has none; a "
              "name\nthat another attachment of the note has gets a counter. When one file cannot be attached, none "
              "is.",
            .examples = {"tarn attach Groceries receipt.pdf shelf.jpg"}},
        [arguments](const Invocation& invocation) { return attachFiles(invocation, *arguments); });
    arguments->note.addOneTo(command, "An identifier, the beginning of one, or a title");
    command.addArguments("FILE", arguments->files, "The files").required();
}

} // namespace tarn
