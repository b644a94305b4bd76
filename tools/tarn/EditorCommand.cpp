#include "platform/foundation/Environment.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/EditableNote.h"
#include "tools/tarn/EditorRun.h"

#include <memory>

namespace tarn {

namespace {

std::string commandOfEditor()
{
    const auto editor = Environment::current().variable("EDITOR");
    if (!editor || editor->empty())
        throw CommandFailure(ExitCode::Usage, "there is no editor; set EDITOR, for example to \"nano\"");
    return *editor;
}

ExitCode edit(const Invocation& invocation, const std::string& argument)
{
    const std::string editor = commandOfEditor();
    StoreSession session(invocation, StoreSession::Access::Write);
    OVNote& note = editableNoteForArgument(argument, session);
    const std::string text = note.text().value_or("");
    EditorRun run(text);
    run.start(editor);
    const std::string edited = run.result();
    if (edited != text) {
        run.keepFile(); // until the edit is safe in the store
        note.updateNoteWithText(edited);
        try {
            session.save();
        } catch (const CommandFailure& failure) {
            throw CommandFailure(
                failure.code(), std::string(failure.what()) + "; the edited text is in " + run.file().string());
        }
        run.dropFile();
    }
    writeNote(invocation, note);
    return ExitCode::Done;
}

} // namespace

void addEditorCommand(CommandLine& commandLine)
{
    const auto note = std::make_shared<std::optional<std::string>>();
    const Command command = commandLine.addCommand(
        {.name = "edit",
            .summary = "Open a note in $EDITOR and save what comes back",
            .explanation = "The shell runs $EDITOR with a file as its last argument. When the editor fails, nothing is "
                           "saved. The store\nis locked for other commands that write until the editor ends.",
            .examples = {"tarn edit Groceries", "EDITOR=nano tarn edit Groceries"}},
        [note](const Invocation& invocation) { return edit(invocation, **note); });
    command.addArgument("NOTE", *note, "An identifier, the beginning of one, or a title").required();
}

} // namespace tarn
