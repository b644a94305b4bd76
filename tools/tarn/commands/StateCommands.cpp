#include "tools/tarn/arguments/NotesOrQuery.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Confirmation.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"

#include <array>
#include <memory>

namespace tarn {

namespace {

struct StateCommand {
    const char* name;
    const char* summary;
    const char* example;
    void (OVNote::*change)();
    const char* searched = "active"; ///< the notes among which --query finds, as a filter of lists
};

constexpr std::array kStateCommands{
    StateCommand{"trash", "Move notes to the trash", "tarn trash 'Old list' 3F2504E0", &OVNote::trash},
    StateCommand{
        "restore", "Take notes out of the trash", "tarn restore 3F2504E0", &OVNote::restoreFromTrash, "trashed"},
    StateCommand{"archive", "Move notes to the archive", "tarn archive 'Tax 2019'", &OVNote::archive},
    StateCommand{
        "unarchive", "Take notes out of the archive", "tarn unarchive 'Tax 2019'", &OVNote::unarchive, "archived"},
    StateCommand{"pin", "Keep notes on top of the list", "tarn pin Groceries", &OVNote::pin},
    StateCommand{"unpin", "No longer keep notes on top", "tarn unpin Groceries", &OVNote::unpin},
    StateCommand{"readonly", "Protect notes from being edited", "tarn readonly 'House manual'", &OVNote::makeReadOnly},
    StateCommand{"editable", "Let notes be edited again", "tarn editable 'House manual'", &OVNote::makeEditable},
};

ExitCode writeNotes(const Invocation& invocation, const std::vector<OVNote*>& notes)
{
    if (invocation.json)
        writeJSON(invocation.output, jsonOfNotes(notes));
    else
        for (const OVNote* note : notes)
            writeNoteLine(invocation.output, *note);
    return notes.empty() ? ExitCode::Failed : ExitCode::Done;
}

ExitCode changeState(const Invocation& invocation, const NotesOrQuery& arguments, const StateCommand& state)
{
    const ChosenNotes chosen = arguments.choose(invocation, state.name);
    if (chosen.areNone())
        return writeNotes(invocation, {});
    StoreSession session(invocation, StoreSession::Access::Write);
    std::vector<OVNote*> notes;
    session.write([&] {
        notes = chosen.all(session);
        for (OVNote* note : notes)
            (note->*state.change)();
    });
    return writeNotes(invocation, notes);
}

bool confirmsDeletionOfNotes(const std::vector<OVNote*>& notes)
{
    if (notes.size() > 1)
        showNotesToAskAbout(notes);
    const std::string what
        = notes.size() == 1 ? displayText(nameOfNote(*notes.front())) : "these " + numbered(notes.size(), "note");
    return confirmedOnTerminal("Delete " + what + " for good?", "delete asks before it deletes");
}

ExitCode deleteNotes(const Invocation& invocation, const NotesOrQuery& arguments)
{
    const ChosenNotes chosen = arguments.chooseAsking(invocation, confirmsDeletionOfNotes);
    if (chosen.areNone())
        return writeNotes(invocation, {});
    StoreSession session(invocation, StoreSession::Access::Write);
    JSON document;
    std::vector<std::string> names;
    session.write([&] {
        const std::vector<OVNote*> notes = chosen.all(session);
        document = jsonOfNotes(notes); // as they were
        for (OVNote* note : notes) {
            names.push_back(nameOfNote(*note));
            note->permanentlyDelete();
        }
    });
    if (invocation.json)
        writeJSON(invocation.output, document);
    for (const std::string& name : names) {
        if (!invocation.json)
            invocation.output.writeLine("deleted " + displayText(name));
    }
    return names.empty() ? ExitCode::Failed : ExitCode::Done;
}

} // namespace

void addStateCommands(CommandLine& commandLine)
{
    for (const StateCommand& state : kStateCommands) {
        const auto notes = std::make_shared<NotesOrQuery>();
        const std::string among = state.searched == std::string_view("active")
            ? ""
            : " --query looks at " + std::string(state.searched) + " notes.";
        const Command command = commandLine.addCommand(
            {.name = state.name,
                .summary = state.summary,
                .explanation = "When one of the notes is not found, nothing is changed." + among,
                .examples = {state.example, "tarn " + std::string(state.name) + " --query '#home @last7days'"}},
            [notes, &state](const Invocation& invocation) { return changeState(invocation, *notes, state); });
        notes->addTo(command, state.searched);
    }
}

void addDeleteCommand(CommandLine& commandLine)
{
    const auto notes = std::make_shared<NotesOrQuery>();
    const Command command = commandLine.addCommand(
        {.name = "delete",
            .summary = "Delete notes for good, trashed or not",
            .explanation = "Asks before it does. Nobody can bring them back; 'tarn trash' is "
                           "the gentler way.",
            .examples = {"tarn delete 3F2504E0", "tarn delete --yes 'Old list'", "tarn delete --all --query '@empty'"}},
        [notes](const Invocation& invocation) { return deleteNotes(invocation, *notes); });
    notes->addTo(command, "active");
}

} // namespace tarn
