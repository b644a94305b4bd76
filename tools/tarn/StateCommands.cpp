#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/Confirmation.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/NoteJSON.h"
#include "tools/tarn/NoteList.h"
#include "tools/tarn/NotesToChange.h"

#include <array>
#include <cstdio>
#include <memory>

namespace tarn {

namespace {

struct StateCommand {
    const char* name;
    const char* summary;
    const char* example;
    void (OVNote::*change)();
};

constexpr const char* kDescription = "Identifiers, beginnings of them, or titles";

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

ExitCode changeState(const Invocation& invocation, const NotesToChange& arguments, const StateCommand& state)
{
    StoreSession session(invocation, StoreSession::Access::Write);
    std::vector<OVNote*> notes;
    session.write([&] {
        notes = arguments.all(session);
        for (OVNote* note : notes)
            (note->*state.change)();
    });
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
    if (notes.size() > 1) {
        for (const OVNote* note : notes)
            std::fprintf(stderr, "  %s\n", displayText(nameOfNote(*note)).c_str());
    }
    const std::string what
        = notes.size() == 1 ? displayText(nameOfNote(*notes.front())) : "these " + numbered(notes.size(), "note");
    return confirmedOnTerminal("Delete " + what + " for good?", "delete asks before it deletes");
}

/// Shows the notes to who has to confirm. The store is nobody's while somebody thinks.
std::vector<std::string> confirmedIdentifiers(const Invocation& invocation, const NotesToChange& arguments)
{
    StoreSession session(invocation, StoreSession::Access::Read);
    const std::vector<OVNote*> notes = arguments.all(session);
    std::vector<std::string> identifiers;
    if (confirmsDeletion(notes)) {
        for (const OVNote* note : notes)
            identifiers.push_back(note->uniqueIdentifier().value_or(""));
    }
    return identifiers;
}

std::vector<OVNote*> notesWithIdentifiers(const std::vector<std::string>& identifiers, StoreSession& session)
{
    std::vector<OVNote*> notes;
    for (const std::string& identifier : identifiers) {
        OVNote* note = noteWithIdentifier(identifier, session);
        if (!note)
            throw CommandFailure(
                ExitCode::Failed, "the note " + identifier + " is gone meanwhile; nothing was deleted");
        notes.push_back(note);
    }
    return notes;
}

ExitCode deleteNotes(const Invocation& invocation, const NotesToChange& arguments, bool confirmed)
{
    std::vector<std::string> identifiers;
    if (!confirmed) {
        identifiers = confirmedIdentifiers(invocation, arguments);
        if (identifiers.empty()) {
            tellOnStandardError("nothing was deleted");
            return ExitCode::Failed;
        }
    }
    StoreSession session(invocation, StoreSession::Access::Write);
    JSON document;
    std::vector<std::string> names;
    session.write([&] {
        const std::vector<OVNote*> notes
            = confirmed ? arguments.all(session) : notesWithIdentifiers(identifiers, session);
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
    return ExitCode::Done;
}

} // namespace

void addStateCommands(CommandLine& commandLine)
{
    for (const StateCommand& state : kStateCommands) {
        const auto notes = std::make_shared<NotesToChange>();
        const Command command
            = commandLine.addCommand({.name = state.name,
                                         .summary = state.summary,
                                         .explanation = "When one of the notes is not found, nothing is changed.",
                                         .examples = {state.example}},
                [notes, &state](const Invocation& invocation) { return changeState(invocation, *notes, state); });
        notes->addAllTo(command, kDescription);
    }
}

void addDeleteCommand(CommandLine& commandLine)
{
    const auto notes = std::make_shared<NotesToChange>();
    const auto confirmed = std::make_shared<bool>(false);
    const Command command = commandLine.addCommand(
        {.name = "delete",
            .summary = "Delete notes for good, trashed or not",
            .explanation = "Asks before it does. Nobody can bring them back; 'tarn trash' is the gentler way.",
            .examples = {"tarn delete 3F2504E0", "tarn delete --yes 'Old list'"}},
        [notes, confirmed](const Invocation& invocation) { return deleteNotes(invocation, *notes, *confirmed); });
    command.addFlag("--yes", *confirmed, "Do not ask");
    notes->addAllTo(command, kDescription);
}

} // namespace tarn
