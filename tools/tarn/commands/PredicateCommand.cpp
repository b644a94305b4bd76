#include "tools/tarn/arguments/QueryArgument.h"
#include "tools/tarn/commandline/JSON.h"
#include "tools/tarn/commands/Commands.h"

#include <memory>

namespace tarn {

namespace {

ExitCode printPredicate(const Invocation& invocation, const QueryArgument& query)
{
    const auto predicate = query.predicate();
    if (invocation.json) {
        JSON document;
        document["predicate"] = predicate ? JSON(predicate->predicateFormat()) : JSON(nullptr);
        invocation.output.writeLine(textOfJSON(document));
    } else if (predicate) {
        invocation.output.writeLine(invocation.output.shown(predicate->predicateFormat()));
    } else {
        tellOnStandardError("QUERY asks for nothing: every note fits");
    }
    return predicate ? ExitCode::Done : ExitCode::Failed;
}

} // namespace

void addPredicateCommand(CommandLine& commandLine)
{
    const auto query = std::make_shared<QueryArgument>();
    const Command command = commandLine.addCommand(
        {.name = "predicate",
            .summary = "Print the predicate that a search compiles to",
            .explanation
            = "In predicate format syntax. Dates are those of the present, in the current time zone. Needs no\n"
              "store. A query that begins with \"-\" goes after \"--\".",
            .examples = {"tarn predicate '@todo #home -apple'", "tarn predicate '@date(2021-03)'"}},
        [query](const Invocation& invocation) { return printPredicate(invocation, *query); });
    query->addOCRFlagTo(command);
    query->addTo(command);
}

} // namespace tarn
