#include "tarnmodel/tags/TagPredicates.h"
#include "tools/tarn/arguments/ListingOptions.h"
#include "tools/tarn/arguments/NoteFilter.h"
#include "tools/tarn/arguments/TagArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"
#include "tools/tarn/session/StoreSession.h"

#include <memory>

namespace tarn {

namespace {

struct ListOptions {
    std::optional<std::string> filter;
    std::optional<std::string> tag;
    std::size_t limit = 0;
    ListingOptions listing;
};

ExitCode list(const Invocation& invocation, const ListOptions& options)
{
    const auto tagPredicate
        = options.tag ? std::optional(predicateForNotesTagged(tagNameForArgument(*options.tag))) : std::nullopt;
    options.listing.refuseNULInJSON(invocation);
    const auto since = options.listing.predicate();
    StoreSession session(invocation, StoreSession::Access::Read);
    const auto predicate
        = conjunction(conjunction(tagPredicate, since), predicateOfFilter(options.filter.value_or("active")));
    const auto notes = session.notes(predicate, options.listing.order(), options.limit);
    if (invocation.json) {
        const bool isWhole = options.limit == 0 || notes.size() < options.limit;
        writeNoteList(invocation.output, notes.size(), notes,
            {{"total", isWhole ? notes.size() : session.countNotes(predicate)}});
    } else {
        for (const OVNote* note : notes)
            invocation.output.write(noteLine(invocation.output, *note).append(options.listing.end()));
    }
    return session.exitCodeOfSearch(!notes.empty(), "no notes found; 'tarn list --filter all' shows every note");
}

} // namespace

void addListCommand(CommandLine& commandLine)
{
    const auto options = std::make_shared<ListOptions>();
    const Command command = commandLine.addCommand(
        {.name = "list",
            .summary = "List notes: pinned ones first, then the latest modified",
            .explanation
            = "A line holds the beginning of the identifier, the date of the last change, marks and the title.\n"
              "Marks: * pinned, x trashed, a archived, r read-only, e encrypted, ! in conflict.",
            .examples = {"tarn list --limit 20", "tarn list --filter trashed", "tarn --json list --tag home/kitchen",
                "tarn list --since 2021-03-15 --sort title"}},
        [options](const Invocation& invocation) { return list(invocation, *options); });
    command
        .addOption("--filter", options->filter,
            "Which notes: active (the default), trashed, archived, pinned, conflicted, encrypted, all")
        .oneOf(namesOfFilters())
        .called("NAME");
    command.addOption("--tag", options->tag, "Only notes with this tag, or one below it").called("NAME");
    command.addCount("--limit", options->limit, "At most so many notes");
    options->listing.addTo(command);
}

} // namespace tarn
