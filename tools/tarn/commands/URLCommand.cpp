#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/arguments/TagArgument.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"

#include <memory>

namespace tarn {

namespace {

struct URLArguments {
    std::optional<std::string> note;
    std::optional<std::string> tag;
    std::optional<std::string> header;
    bool title = false;
    bool newWindow = false;
};

std::string urlOfNote(const OVNote& note, const URLArguments& arguments)
{
    std::string url = arguments.title ? note.openNoteWithTitleXCallbackURLString()
        : arguments.newWindow         ? note.openNoteInNewWindowXCallbackURLString()
                                      : note.openNoteXCallbackURLString();
    return arguments.header ? OVNote::appendHeader(*arguments.header, url) : url;
}

ExitCode showURL(const Invocation& invocation, const URLArguments& arguments)
{
    if (arguments.note.has_value() == arguments.tag.has_value())
        throw CommandFailure(ExitCode::Usage, "url needs a note or --tag; see 'tarn url --help'");
    StoreSession session(invocation, StoreSession::Access::Read);
    const std::string url = arguments.tag ? tagForArgument(*arguments.tag, session).openTagXCallbackURLString()
                                          : urlOfNote(noteForArgument(*arguments.note, session), arguments);
    if (invocation.json)
        writeJSON(invocation.output, {{"url", url}});
    else
        invocation.output.writeLine(url);
    return ExitCode::Done;
}

} // namespace

void addURLCommand(CommandLine& commandLine)
{
    const auto arguments = std::make_shared<URLArguments>();
    const Command command = commandLine.addCommand(
        {.name = "url",
            .summary = "Print the URL that opens a note or a tag",
            .explanation = "A URL with the identifier keeps leading to the note when its title changes.",
            .examples = {"tarn url Groceries --header Fruit", "tarn url --tag home/kitchen"}},
        [arguments](const Invocation& invocation) { return showURL(invocation, *arguments); });
    command.addArgument("NOTE", arguments->note, "An identifier, the beginning of one, or a title");
    const CommandOption title = command.addFlag("--title", arguments->title, "Name the note by its title");
    const CommandOption window
        = command.addFlag("--new-window", arguments->newWindow, "Open it in a window of its own");
    const CommandOption header
        = command.addOption("--header", arguments->header, "Open it at this heading").called("TEXT");
    const CommandOption tag = command.addOption("--tag", arguments->tag, "Open this tag").called("NAME");
    title.excludes({window});
    tag.excludes({title, window, header});
}

} // namespace tarn
