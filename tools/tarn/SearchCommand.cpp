#include "tools/tarn/CommandLine.h"
#include "tools/tarn/Commands.h"
#include "tools/tarn/MatchingLine.h"
#include "tools/tarn/NoteFilter.h"
#include "tools/tarn/NoteJSON.h"
#include "tools/tarn/NoteList.h"
#include "tools/tarn/SearchQuery.h"
#include "tools/tarn/StoreSession.h"

#include <CLI/Validators.hpp>

#include <chrono>
#include <memory>

namespace tarn {

namespace {

constexpr std::size_t kWidthWithoutTerminal = 200;

struct SearchOptions {
    std::vector<std::string> words;
    std::size_t limit = 0;
    bool countOnly = false;
    bool explain = false;
    bool all = false;
};

/// A search that was carried out, and how.
struct SearchResult {
    std::vector<OVNote*> notes;
    std::size_t count = 0;
    std::string predicate;
    std::string plan;
    double compileMilliseconds = 0;
    double fetchMilliseconds = 0;
};

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

double millisecondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

std::string planOf(StoreSession& session, const NSPredicate& predicate, std::size_t limit)
{
    const std::vector<NSSortDescriptor> order = standardNoteOrder();
    StoreFetch fetch;
    fetch.entity = &OVNote::entityInManagedObjectContext(session.context());
    fetch.predicate = &predicate;
    fetch.sortDescriptors = order;
    fetch.limit = limit;
    return session.store().explain(fetch);
}

SearchResult searchNotes(StoreSession& session, const SearchQuery& query, const SearchOptions& options)
{
    SearchResult result;
    const auto predicate = conjunction(query.predicate, options.all ? std::nullopt : predicateOfFilter("active"))
                               .value_or(NSPredicate::predicateWithValue(true));
    result.predicate = predicate.predicateFormat();
    const auto start = std::chrono::steady_clock::now();
    if (options.countOnly)
        result.count = session.countNotes(predicate);
    else
        result.notes = session.notes(predicate, options.limit);
    result.fetchMilliseconds = millisecondsSince(start);
    if (!options.countOnly)
        result.count = result.notes.size();
    if (options.explain)
        result.plan = planOf(session, predicate, options.limit);
    return result;
}

void writeHit(Output& output, const OVNote& note, const SearchQuery& query)
{
    writeNoteLine(output, note);
    if (query.words.empty() || note.encryptedValue())
        return;
    const std::size_t width = output.width().value_or(kWidthWithoutTerminal);
    const auto line = firstMatchingLine(note.text().value_or(""), query.words, width > 14 ? width - 4 : 10);
    if (line)
        output.writeLine("    " + line->before + output.styled(line->match, TextStyle::Match) + line->after);
}

void writeExplanation(Output& output, const SearchResult& result)
{
    output.writeLine(output.styled("predicate  ", TextStyle::Faint) + result.predicate);
    output.writeLine(output.styled("plan       ", TextStyle::Faint) + result.plan);
    output.writeLine(output.styled("times      ", TextStyle::Faint) + "compile "
        + std::to_string(result.compileMilliseconds) + " ms, fetch " + std::to_string(result.fetchMilliseconds)
        + " ms");
}

JSON jsonOfExtras(const SearchResult& result, bool explain)
{
    JSON extras;
    extras["predicate"] = result.predicate;
    if (explain) {
        extras["plan"] = result.plan;
        extras["times"]
            = {{"compileMilliseconds", result.compileMilliseconds}, {"fetchMilliseconds", result.fetchMilliseconds}};
    }
    return extras;
}

void writeResult(
    const Invocation& invocation, const SearchResult& result, const SearchQuery& query, const SearchOptions& options)
{
    Output& output = invocation.output;
    if (invocation.json) {
        writeNoteList(output, result.count, result.notes, jsonOfExtras(result, options.explain));
        return;
    }
    if (options.explain)
        writeExplanation(output, result);
    if (options.countOnly)
        output.writeLine(std::to_string(result.count));
    for (const OVNote* note : result.notes)
        writeHit(output, *note, query);
}

ExitCode search(const Invocation& invocation, const SearchOptions& options)
{
    const auto start = std::chrono::steady_clock::now();
    const SearchQuery query = searchQueryOfText(joined(options.words));
    const double compileMilliseconds = millisecondsSince(start);
    StoreSession session(invocation, StoreSession::Access::Read);
    SearchResult result = searchNotes(session, query, options);
    result.compileMilliseconds = compileMilliseconds;
    writeResult(invocation, result, query, options);
    if (result.count > 0)
        return ExitCode::Done;
    if (session.exists() && !options.countOnly)
        tellOnStandardError(
            options.all ? "nothing found" : "nothing found; --all looks into archive and trash as well");
    return ExitCode::Failed;
}

} // namespace

void addSearchCommand(CommandLine& commandLine)
{
    const auto options = std::make_shared<SearchOptions>();
    CLI::App& command = commandLine.addCommand(
        {.name = "search",
            .summary = "Find notes by their words and tags",
            .explanation
            = "Every word must be in the text (of an encrypted note: in the title), in any case, with or without\n"
              "accents. #tag asks for a tag, '#tag of words#' for one with blanks; -word and -#tag for notes\n"
              "without. A query that begins with \"-\" goes after \"--\". Trashed and archived notes are left out.\n"
              "--json prints count, notes and predicate; highlight and editorTerm are not told yet.",
            .examples = {"tarn search garden", "tarn search '#home/kitchen tiles -blue'", "tarn search -- -#work"}},
        [options](const Invocation& invocation) { return search(invocation, *options); });
    command.add_option("--limit", options->limit, "At most so many notes")
        ->check(CLI::PositiveNumber)
        ->option_text("N");
    command.add_flag("--count", options->countOnly, "Print how many notes there are, and none of them");
    command.add_flag("--explain", options->explain, "Tell how the store finds them: predicate, plan and times");
    command.add_flag("--all", options->all, "Look into archive and trash as well");
    CommandLine::addArguments(command, "QUERY", options->words, "What to find; several words are one query")
        ->required();
}

} // namespace tarn
