#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/files/TextFile.h"

#include <cerrno>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

namespace tarn {

namespace {

/// Any bytes are taken: this shows what the parser makes of them.
std::string markdownOf(const std::optional<std::string>& file)
{
    if (!file || *file == "-")
        return validUTF8(readDescriptor(STDIN_FILENO, "standard input"));
    const int descriptor = ::open(file->c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        throw failureForSystemError(*file, errno);
    std::string bytes;
    try {
        bytes = readDescriptor(descriptor, *file);
    } catch (...) {
        ::close(descriptor);
        throw;
    }
    ::close(descriptor);
    return validUTF8(bytes);
}

JSON jsonOf(const CVKTextSummary& summary)
{
    JSON wikiLinks = JSON::array();
    for (const CVKWikiLink& link : summary.wikiLinks)
        wikiLinks.push_back({{"decodedTitle", link.decodedTitle()}, {"offset", link.offset()}});
    JSON document;
    document["title"] = summary.title;
    document["subtitle"] = summary.subtitle;
    document["tags"] = summary.tags;
    document["todoCount"] = summary.todoCount;
    document["doneCount"] = summary.doneCount;
    document["codeBlockCount"] = summary.codeBlockCount;
    document["wikiLinks"] = std::move(wikiLinks);
    document["links"] = summary.links;
    return document;
}

void writeField(Output& output, std::string_view name, const std::string& value)
{
    if (!value.empty())
        output.writeLine(output.styled(textPaddedToWidth(name, 12), TextStyle::Faint) + displayText(value));
}

void writeSummary(Output& output, const CVKTextSummary& summary)
{
    writeField(output, "title", summary.title);
    writeField(output, "subtitle", summary.subtitle);
    for (const std::string& tag : summary.tags)
        writeField(output, "tag", tag);
    writeField(
        output, "to-dos", std::to_string(summary.todoCount) + " open, " + std::to_string(summary.doneCount) + " done");
    writeField(output, "code blocks", std::to_string(summary.codeBlockCount));
    for (const CVKWikiLink& link : summary.wikiLinks)
        writeField(output, "wiki link", link.decodedTitle() + " (at " + std::to_string(link.offset()) + ")");
    for (const std::string& link : summary.links)
        writeField(output, "link", link.empty() ? "(empty)" : link);
}

} // namespace

void addParseCommand(CommandLine& commandLine)
{
    const auto file = std::make_shared<std::optional<std::string>>();
    const Command command
        = commandLine.addCommand({.name = "parse",
                                     .summary = "Show what the Markdown parser sees in a text",
                                     .explanation = "Needs no store. Offsets count UTF-16 units.",
                                     .examples = {"tarn parse README.md", "echo '# Hi #home' | tarn --json parse"}},
            [file](const Invocation& invocation) {
                const CVKAST document = CVKAST::fromMarkdown(markdownOf(*file));
                if (invocation.json)
                    writeJSON(invocation.output, jsonOf(document.textSummary()));
                else
                    writeSummary(invocation.output, document.textSummary());
                return ExitCode::Done;
            });
    command.addArgument("FILE", *file, "A Markdown file; standard input when there is none, or \"-\"");
}

} // namespace tarn
