#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/EditableNote.h"

#include <memory>

namespace tarn {

namespace {

ExitCode duplicateNote(const Invocation& invocation, const std::string& argument)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    const OVNote& copy = *noteForArgument(argument, session).duplicate();
    session.save();
    writeNote(invocation, copy);
    return ExitCode::Done;
}

ExitCode mergeNotes(const Invocation& invocation, const std::vector<std::string>& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    const std::vector<OVNote*> notes = notesForArguments(arguments, session);
    if (notes.size() < 2)
        throw CommandFailure(ExitCode::Usage, "merge needs two different notes");
    requireUnlocked(notes);
    const OVNote& merger = *OVNote::mergeNotes(notes);
    session.save();
    writeNote(invocation, merger);
    return ExitCode::Done;
}

} // namespace

void addDuplicateCommand(CommandLine& commandLine)
{
    const auto note = std::make_shared<std::optional<std::string>>();
    const Command command = commandLine.addCommand(
        {.name = "duplicate",
            .summary = "Make a copy of a note",
            .explanation
            = "The copy has an identifier of its own; where the text names the note's identifier, it names "
              "the copy's.",
            .examples = {"tarn duplicate 'Packing list'"}},
        [note](const Invocation& invocation) { return duplicateNote(invocation, **note); });
    command.addArgument("NOTE", *note, "An identifier, the beginning of one, or a title").required();
}

void addMergeCommand(CommandLine& commandLine)
{
    const auto notes = std::make_shared<std::vector<std::string>>();
    const Command command = commandLine.addCommand(
        {.name = "merge",
            .summary = "Make one note of several, which go to the trash",
            .explanation
            = "The texts follow each other as the notes are named, with a blank line between. The new note is "
              "pinned when all were.",
            .examples = {"tarn merge 'Paris 1' 'Paris 2'"}},
        [notes](const Invocation& invocation) { return mergeNotes(invocation, *notes); });
    command.addArguments("NOTE", *notes, "Two or more identifiers, beginnings of them, or titles").required();
}

} // namespace tarn
