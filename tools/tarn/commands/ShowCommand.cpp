#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"

#include <memory>

namespace tarn {

namespace {

void writeText(Output& output, const OVNote& note)
{
    const std::optional<std::string> text = note.text();
    output.write(text.value_or(""));
    // A prompt on the last line of the text is ugly; a pipe gets the bytes and nothing else.
    if (output.isTerminal() && text && !text->empty() && !text->ends_with('\n'))
        output.write("\n");
}

} // namespace

void addShowCommand(CommandLine& commandLine)
{
    const auto argument = std::make_shared<std::optional<std::string>>();
    const auto action = [argument](const Invocation& invocation) {
        StoreSession session(invocation, StoreSession::Access::Read);
        OVNote& note = noteForArgument(argument->value_or(""), session);
        session.unlock([&] { return std::vector{&note}; });
        const bool isLocked = note.encryptedValue() && note.hasEncryptionAndIsLocked();
        if (invocation.json)
            writeJSON(invocation.output, jsonOfNoteWithText(note));
        if (isLocked)
            throw CommandFailure(ExitCode::Locked,
                nameOfNote(note)
                    + " is protected by a password; name a file with --password-file whose first line is it");
        if (!invocation.json)
            writeText(invocation.output, note);
        return ExitCode::Done;
    };
    const Command command
        = commandLine.addCommand({.name = "show",
                                     .summary = "Print the text of a note",
                                     .explanation = "With --json the whole record, with the text as a key.",
                                     .examples = {"tarn show Groceries", "tarn --json show 3F2504E0"}},
            action);
    command.addArgument("NOTE", *argument, "Identifier, beginning of one, or title").required();
}

} // namespace tarn
