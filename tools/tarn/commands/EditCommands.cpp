#include "tools/tarn/arguments/NotesToChange.h"
#include "tools/tarn/arguments/TextArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"

#include <array>
#include <memory>

namespace tarn {

namespace {

struct EditCommand {
    const char* name;
    const char* summary;
    const char* explanation;
    std::array<const char*, 2> examples;
    void (OVNote::*edit)(std::string_view);
    void (OVNote::*editWhole)(std::string_view); ///< with --whole; null where there is no such flag
};

constexpr std::array kEditCommands{
    EditCommand{"append", "Add text at the end of a note",
        "The text stands on lines of its own, above a last line of the note's tags.",
        {"tarn append Groceries '- [ ] pears'", "date | tarn append Diary"}, &OVNote::appendNoteWithText, nullptr},
    EditCommand{"prepend", "Add text at the beginning of a note",
        "The text stands below a first line that begins with \"# \", else in front of everything.",
        {"tarn prepend Groceries '- [ ] plums'", "date | tarn prepend Diary"}, &OVNote::prependNoteWithText, nullptr},
    EditCommand{"replace", "Replace the text of a note",
        "A heading of level 1 to 3 on the first of several lines stays; without one the new text begins with an empty "
        "line.",
        {"tarn replace Groceries '- [ ] pears'", "curl -s https://example.org/list.md | tarn replace --whole List"},
        &OVNote::replaceNoteWithText, &OVNote::updateNoteWithText},
};

struct EditArguments {
    NotesToChange note;
    std::optional<std::string> text;
    bool whole = false;
};

ExitCode editNote(const Invocation& invocation, const EditArguments& arguments, const EditCommand& edit)
{
    // Read before the store is locked: whoever writes into the pipe may take their time.
    TextArgument text(arguments.text);
    std::optional<StoreSession> session;
    OVNote* note = nullptr;
    text.saveBy([&] {
        session.emplace(invocation, StoreSession::Access::Write);
        session->unlock([&] {
            OVNote& found = arguments.note.one(*session);
            if (found.hasEncryption())
                text.setIsForProtectedNote();
            return std::vector{&found};
        });
        session->write([&] {
            note = &arguments.note.one(*session);
            requireEditable(*note);
            (note->*(arguments.whole ? edit.editWhole : edit.edit))(text.text());
        });
    });
    writeNote(invocation, *note);
    return ExitCode::Done;
}

} // namespace

void addEditCommands(CommandLine& commandLine)
{
    for (const EditCommand& edit : kEditCommands) {
        const auto arguments = std::make_shared<EditArguments>();
        const Command command = commandLine.addCommand({.name = edit.name,
                                                           .summary = edit.summary,
                                                           .explanation = edit.explanation,
                                                           .examples = {edit.examples.begin(), edit.examples.end()}},
            [arguments, &edit](const Invocation& invocation) { return editNote(invocation, *arguments, edit); });
        if (edit.editWhole)
            command.addFlag("--whole", arguments->whole, "Replace everything, a heading and the tags included");
        arguments->note.addOneTo(command, "An identifier, the beginning of one, or a title");
        command.addArgument("TEXT", arguments->text, "The text; standard input when there is none, or \"-\"");
    }
}

} // namespace tarn
