#include "tools/tarn/arguments/NotesToChange.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"

#include <memory>

namespace tarn {

namespace {

ExitCode duplicateNote(const Invocation& invocation, const NotesToChange& argument)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    const OVNote* copy = nullptr;
    session.write([&] { copy = argument.one(session).duplicate(); });
    writeNote(invocation, *copy);
    return ExitCode::Done;
}

ExitCode mergeNotes(const Invocation& invocation, const NotesToChange& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    session.unlock([&] { return arguments.all(session); });
    const OVNote* merger = nullptr;
    session.write([&] {
        const std::vector<OVNote*> notes = arguments.all(session);
        if (notes.size() < 2)
            throw CommandFailure(ExitCode::Usage, "merge needs two different notes");
        requireUnlocked(notes);
        merger = OVNote::mergeNotes(notes);
    });
    writeNote(invocation, *merger);
    return ExitCode::Done;
}

} // namespace

void addDuplicateCommand(CommandLine& commandLine)
{
    const auto note = std::make_shared<NotesToChange>();
    const Command command = commandLine.addCommand(
        {.name = "duplicate",
            .summary = "Make a copy of a note",
            .explanation
            = "The copy has an identifier of its own; where the text names the note's identifier, it names "
              "the copy's.",
            .examples = {"tarn duplicate 'Packing list'"}},
        [note](const Invocation& invocation) { return duplicateNote(invocation, *note); });
    note->addOneTo(command, "An identifier, the beginning of one, or a title");
}

void addMergeCommand(CommandLine& commandLine)
{
    const auto notes = std::make_shared<NotesToChange>();
    const Command command = commandLine.addCommand(
        {.name = "merge",
            .summary = "Make one note of several, which go to the trash",
            .explanation
            = "The texts follow each other as the notes are named, with a blank line between. The new note is "
              "pinned when all were.",
            .examples = {"tarn merge 'Paris 1' 'Paris 2'"}},
        [notes](const Invocation& invocation) { return mergeNotes(invocation, *notes); });
    notes->addAllTo(command, "Two or more identifiers, beginnings of them, or titles");
}

} // namespace tarn
