#include "tools/tarn/arguments/TextArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/editor/EditableNote.h"
#include "tools/tarn/session/StoreSession.h"

#include <memory>

namespace tarn {

void addNewCommand(CommandLine& commandLine)
{
    const auto text = std::make_shared<std::optional<std::string>>();
    const auto action = [text](const Invocation& invocation) {
        // Read before the store is locked: whoever writes into the pipe may take their time.
        const TextArgument markdown(*text);
        std::optional<StoreSession> session;
        const OVNote* note = nullptr;
        markdown.saveBy([&] {
            session.emplace(invocation, StoreSession::Access::Write);
            session->write([&] { note = OVNote::noteWithText(markdown.text(), session->context()); });
        });
        writeNote(invocation, *note);
        return ExitCode::Done;
    };
    const Command command = commandLine.addCommand(
        {.name = "new",
            .summary = "Write a note",
            .explanation
            = "The text is kept to the last byte; nothing is trimmed. A text that begins with \"- \" is a text;\n"
              "one that begins with \"-\" and a letter goes after \"--\".",
            .examples
            = {"tarn new '# Groceries'", "tarn new '- [ ] pears'", "pandoc -t markdown page.html | tarn new"}},
        action);
    command.addArgument("TEXT", *text, "The text; standard input when there is none, or \"-\"");
}

} // namespace tarn
