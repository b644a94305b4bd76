#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/Confirmation.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/NoteArgument.h"
#include "tools/tarn/NoteJSON.h"
#include "tools/tarn/NoteList.h"

#include <array>
#include <memory>

namespace tarn {

namespace {

struct StateCommand {
    const char* name;
    const char* summary;
    const char* example;
    void (OVNote::*change)();
};

constexpr std::array kStateCommands{
    StateCommand{"trash", "Move notes to the trash", "tarn trash 'Old list' 3F2504E0", &OVNote::trash},
    StateCommand{"restore", "Take notes out of the trash", "tarn restore 3F2504E0", &OVNote::restoreFromTrash},
    StateCommand{"archive", "Move notes to the archive", "tarn archive 'Tax 2019'", &OVNote::archive},
    StateCommand{"unarchive", "Take notes out of the archive", "tarn unarchive 'Tax 2019'", &OVNote::unarchive},
    StateCommand{"pin", "Keep notes on top of the list", "tarn pin Groceries", &OVNote::pin},
    StateCommand{"unpin", "No longer keep notes on top", "tarn unpin Groceries", &OVNote::unpin},
    StateCommand{"readonly", "Protect notes from being edited", "tarn readonly 'House manual'", &OVNote::makeReadOnly},
    StateCommand{"editable", "Let notes be edited again", "tarn editable 'House manual'", &OVNote::makeEditable},
};

using Arguments = std::shared_ptr<std::vector<std::string>>;

Arguments addNoteArguments(const Command& command)
{
    auto arguments = std::make_shared<std::vector<std::string>>();
    command.addArguments("NOTE", *arguments, "Identifiers, beginnings of them, or titles").required();
    return arguments;
}

ExitCode changeState(const Invocation& invocation, const std::vector<std::string>& arguments, const StateCommand& state)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    const std::vector<OVNote*> notes = notesForArguments(arguments, session);
    for (OVNote* note : notes)
        (note->*state.change)();
    session.save();
    if (invocation.json) {
        writeJSON(invocation.output, jsonOfNotes(notes));
        return ExitCode::Done;
    }
    for (const OVNote* note : notes)
        writeNoteLine(invocation.output, *note);
    return ExitCode::Done;
}

bool confirmsDeletion(const std::vector<OVNote*>& notes)
{
    const std::string what = notes.size() == 1 ? "\"" + displayText(notes.front()->title().value_or("")) + "\""
                                               : numbered(notes.size(), "note");
    return confirmedOnTerminal("Delete " + what + " for good?", "delete asks before it deletes");
}

ExitCode deleteNotes(const Invocation& invocation, const std::vector<std::string>& arguments, bool confirmed)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    const std::vector<OVNote*> notes = notesForArguments(arguments, session);
    if (!confirmed && !confirmsDeletion(notes)) {
        tellOnStandardError("nothing was deleted");
        return ExitCode::Failed;
    }
    const JSON document = jsonOfNotes(notes); // as they were
    for (OVNote* note : notes)
        note->permanentlyDelete();
    session.save();
    if (invocation.json)
        writeJSON(invocation.output, document);
    else
        invocation.output.writeLine("deleted " + numbered(notes.size(), "note"));
    return ExitCode::Done;
}

} // namespace

void addStateCommands(CommandLine& commandLine)
{
    for (const StateCommand& state : kStateCommands) {
        const auto arguments = std::make_shared<Arguments>();
        const Command command = commandLine.addCommand(
            {.name = state.name,
                .summary = state.summary,
                .explanation = "When one of the notes is not found, nothing is changed.",
                .examples = {state.example}},
            [arguments, &state](const Invocation& invocation) { return changeState(invocation, **arguments, state); });
        *arguments = addNoteArguments(command);
    }
}

void addDeleteCommand(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<Arguments>();
    const auto confirmed = std::make_shared<bool>(false);
    const Command command = commandLine.addCommand(
        {.name = "delete",
            .summary = "Delete notes for good, trashed or not",
            .explanation = "Asks before it does. Nobody can bring them back; 'tarn trash' is the gentler way.",
            .examples = {"tarn delete 3F2504E0", "tarn delete --yes 'Old list'"}},
        [arguments, confirmed](
            const Invocation& invocation) { return deleteNotes(invocation, **arguments, *confirmed); });
    command.addFlag("--yes", *confirmed, "Do not ask");
    *arguments = addNoteArguments(command);
}

} // namespace tarn
