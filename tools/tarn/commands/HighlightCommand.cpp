#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tools/tarn/arguments/QueryArgument.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"

#include <memory>

namespace tarn {

namespace {

void writeField(Output& output, std::string_view name, const std::string& value)
{
    if (!value.empty())
        output.writeLine(output.styled(textPaddedToWidth(name, 12), TextStyle::Faint) + output.shown(value));
}

ExitCode printHighlight(const Invocation& invocation, const QueryArgument& query)
{
    bool title = false;
    bool ocr = false;
    const std::string text = query.text();
    const std::string pattern = OVNoteSearchManager::likeOrPatternForSearchString(text, &title, &ocr);
    const std::string term = OVNoteSearchManager::searchStringForNoteEditor(text);
    Output& output = invocation.output;
    if (invocation.json) {
        JSON document;
        document["pattern"] = pattern;
        document["titleSearch"] = title;
        document["ocrSearch"] = ocr;
        document["editorTerm"] = term;
        output.writeLine(textOfJSON(document));
    } else {
        writeField(output, "pattern", pattern);
        writeField(output, "searches",
            std::string(title ? "titles" : "") + (title && ocr ? ", " : "") + (ocr ? "attachments" : ""));
        writeField(output, "editor term", term);
    }
    if (!pattern.empty() || !term.empty())
        return ExitCode::Done;
    tellOnStandardError("there is nothing to highlight: QUERY holds no word, phrase or tag that is wanted");
    return ExitCode::Failed;
}

} // namespace

void addHighlightCommand(CommandLine& commandLine)
{
    const auto query = std::make_shared<QueryArgument>();
    const Command command = commandLine.addCommand(
        {.name = "highlight",
            .summary = "Print what a search highlights in a note",
            .explanation
            = "The pattern, a regular expression in ICU's syntax that ignores letter case, and the term for an\n"
              "editor's own find function. Needs no store. A query that begins with \"-\" goes after \"--\".",
            .examples = {"tarn highlight 'apple -pear \"big red\" #fruit'"}},
        [query](const Invocation& invocation) { return printHighlight(invocation, *query); });
    query->addTo(command);
}

} // namespace tarn
