#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tools/tarn/arguments/NotesToChange.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"
#include "tools/tarn/editor/EditorRun.h"
#include "tools/tarn/files/TitledText.h"
#include "tools/tarn/listing/NoteList.h"

#include <memory>
#include <optional>

namespace tarn {

namespace {

struct EditorArguments {
    NotesToChange note;
    bool allowEmpty = false;
    bool create = false;
};

/// A note as it was when the editor began with it.
struct NoteBefore {
    std::string identifier;
    std::string name;
    std::string text;
    bool isProtected = false;
};

std::string commandOfEditor()
{
    for (const char* name : {"VISUAL", "EDITOR"}) {
        if (auto editor = Environment::current().variable(name); editor && !editor->empty())
            return std::move(*editor);
    }
    throw CommandFailure(ExitCode::Usage, "there is no editor; set VISUAL or EDITOR, for example to \"nano\"");
}

/// The note that is to be edited; none where it is to be made, for which no store is made yet.
std::optional<NoteBefore> readNote(const Invocation& invocation, const EditorArguments& arguments)
{
    if (arguments.create && !storeExists(invocation))
        return std::nullopt;
    StoreSession session(invocation, StoreSession::Access::Write);
    OVNote* found = arguments.create ? arguments.note.find(session) : &arguments.note.one(session);
    if (!found)
        return std::nullopt;
    OVNote& note = *found;
    session.unlock([&] { return std::vector{&note}; });
    requireEditable(note);
    return NoteBefore{
        note.uniqueIdentifier().value_or(""), nameOfNote(note), note.text().value_or(""), note.encryptedValue()};
}

OVNote& noteAsItIsNow(const NoteBefore& before, StoreSession& session)
{
    OVNote* note = noteWithIdentifier(before.identifier, session);
    if (!note)
        throw CommandFailure(ExitCode::Failed, before.name + " was deleted while the editor was open");
    return *note;
}

/// Whether a text that somebody else saved meanwhile is neither the one that the editor began with nor the edited one.
bool isOutdated(const NoteBefore& before, const std::string& edited, const OVNote& note)
{
    const std::string text = note.text().value_or("");
    return text != before.text && text != edited;
}

/// A note of its own for the edited text, in a conflict with the one that somebody else has changed.
OVNote& conflictedCopyWithText(const std::string& edited, OVNote& note)
{
    OVNote& copy = *note.duplicate();
    copy.updateNoteWithText(edited);
    copy.markAsConflictedFromNote(note);
    return copy;
}

/// The note that holds the edited text.
OVNote& save(const NoteBefore& before, const std::string& edited, StoreSession& session)
{
    session.unlock([&] { return std::vector{&noteAsItIsNow(before, session)}; });
    OVNote* note = nullptr;
    OVNote* copy = nullptr;
    session.write([&] {
        note = &noteAsItIsNow(before, session);
        requireEditable(*note);
        if (isOutdated(before, edited, *note))
            copy = &conflictedCopyWithText(edited, *note);
        else if (note->text() != edited)
            note->updateNoteWithText(edited);
    });
    if (!copy)
        return *note;
    tellOnStandardError(nameOfNote(*note)
        + " was changed while the editor was open; the edited text is kept beside it, in " + nameOfNote(*copy)
        + "; 'tarn conflict resolve' keeps one of them");
    return *copy;
}

bool isBlank(const std::string& text)
{
    return text.find_first_not_of(" \t\r\n") == std::string::npos;
}

ExitCode leaveUnchanged(const Invocation& invocation, const NoteBefore& before, const EditorRun& run)
{
    const std::string place = run.placeOfUnsaved();
    tellOnStandardError("nothing was changed" + (place.empty() ? "" : "; what the editor left is in " + place));
    StoreSession session(invocation, StoreSession::Access::Read);
    writeNote(invocation, noteAsItIsNow(before, session));
    return ExitCode::Done;
}

void refuseBlank(const std::string& edited, const std::string& before, const EditorArguments& arguments)
{
    if (isBlank(edited) && !isBlank(before) && !arguments.allowEmpty)
        throw CommandFailure(ExitCode::Failed, "the text came back empty, and was not saved; --allow-empty saves it");
}

ExitCode editNote(
    const Invocation& invocation, const EditorArguments& arguments, const NoteBefore& before, const std::string& editor)
{
    const Interruption interruption;
    EditorRun run(before.text,
        before.isProtected ? PrivateTextFile::Content::OfProtectedNote : PrivateTextFile::Content::OfOpenNote);
    const std::string edited = run.textFromEditor(editor);
    if (edited == before.text)
        return leaveUnchanged(invocation, before, run);
    std::optional<StoreSession> session;
    const OVNote* note = nullptr;
    run.saveBy([&] {
        refuseBlank(edited, before.text, arguments);
        session.emplace(invocation, StoreSession::Access::Write);
        note = &save(before, edited, *session);
    });
    writeNote(invocation, *note);
    return ExitCode::Done;
}

/// A new note of this text. Somebody else may have made one of the same title meanwhile; it stays, and is told of.
OVNote& make(const std::string& text, const EditorArguments& arguments, StoreSession& session)
{
    OVNote* note = nullptr;
    const OVNote* other = nullptr;
    session.write([&] {
        other = arguments.note.findLatest(session);
        note = OVNote::noteWithText(text, session.context());
    });
    if (other)
        tellOnStandardError(
            nameOfNote(*other) + " was made while the editor was open; the edited text is in " + nameOfNote(*note));
    return *note;
}

ExitCode createNote(const Invocation& invocation, const EditorArguments& arguments, const std::string& editor)
{
    const std::string text = textWithTitle(arguments.note.title());
    const Interruption interruption;
    EditorRun run(text, PrivateTextFile::Content::OfOpenNote);
    const std::string edited = run.textFromEditor(editor);
    if (edited == text) {
        const std::string place = run.placeOfUnsaved();
        tellOnStandardError("no note was made" + (place.empty() ? "" : "; what the editor left is in " + place));
        return ExitCode::Failed;
    }
    std::optional<StoreSession> session;
    const OVNote* note = nullptr;
    run.saveBy([&] {
        refuseBlank(edited, text, arguments);
        session.emplace(invocation, StoreSession::Access::Write);
        note = &make(edited, arguments, *session);
    });
    writeNote(invocation, *note);
    return ExitCode::Done;
}

ExitCode edit(const Invocation& invocation, const EditorArguments& arguments)
{
    const std::string editor = commandOfEditor();
    const std::optional<NoteBefore> before = readNote(invocation, arguments);
    return before ? editNote(invocation, arguments, *before, editor) : createNote(invocation, arguments, editor);
}

} // namespace

void addEditorCommand(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<EditorArguments>();
    const Command command = commandLine.addCommand(
        {.name = "edit",
            .summary = "Open a note in an editor and save what comes back",
            .explanation = "The shell runs $VISUAL, or else $EDITOR, with a file as its last argument. The store is "
                           "locked only to read\nand to save. Where somebody else has changed the text meanwhile, both "
                           "texts are kept, as versions of one\nnote (see 'tarn conflicts'). When the editor fails, "
                           "nothing is saved. A file that was changed and could not\nbe saved stays, and is named.",
            .examples
            = {"tarn edit Groceries", "EDITOR=nano tarn edit Groceries", "tarn edit --create 'Packing list'"}},
        [arguments](const Invocation& invocation) { return edit(invocation, *arguments); });
    command.addFlag("--allow-empty", arguments->allowEmpty, "Save also a text that came back empty");
    command.addFlag("--create", arguments->create,
        "Where there is no such note, make one of this title; none when the editor changes nothing");
    arguments->note.addOneTo(command, "An identifier, the beginning of one, or a title");
}

} // namespace tarn
