#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/search/HighlightTerms.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/TermFinder.h"
#include "tools/tarn/arguments/ListingOptions.h"
#include "tools/tarn/arguments/NoteFilter.h"
#include "tools/tarn/arguments/QueryArgument.h"
#include "tools/tarn/commandline/CommandLine.h"
#include "tools/tarn/commands/Commands.h"
#include "tools/tarn/listing/MatchingLine.h"
#include "tools/tarn/listing/NearestNames.h"
#include "tools/tarn/listing/NoteJSON.h"
#include "tools/tarn/listing/NoteList.h"
#include "tools/tarn/listing/SearchHints.h"
#include "tools/tarn/session/StoreSession.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <memory>

namespace tarn {

namespace {

constexpr std::size_t kWidthWithoutTerminal = 200;

struct SearchOptions {
    QueryArgument query;
    std::size_t limit = 0;
    bool countOnly = false;
    bool explain = false;
    bool all = false;
    ListingOptions listing;
};

/// What a search asks for, and the notes that it looks at.
struct Wanted {
    std::optional<NSPredicate> query;
    std::optional<NSPredicate> among;
};

/// What a search shows of itself in the notes that it found.
struct Highlight {
    std::string pattern;
    std::string editorTerm;
    TermFinder terms;
};

/// A search that was carried out, and how.
struct SearchResult {
    std::vector<OVNote*> notes;
    std::size_t count = 0;
    std::size_t total = 0; ///< without the limit; for JSON
    std::string predicate;
    std::string plan;
    double compileMilliseconds = 0;
    double fetchMilliseconds = 0;
    std::vector<SearchHint> hints;
};

Highlight highlightOf(const std::string& query)
{
    return {OVNoteSearchManager::likeOrPatternForSearchString(query),
        OVNoteSearchManager::searchStringForNoteEditor(query), TermFinder(highlightTermsOfSearchString(query).terms)};
}

double millisecondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

std::string planOf(StoreSession& session, const NSPredicate& predicate, const SearchOptions& options)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(session.context()));
    request.predicate = predicate;
    request.sortDescriptors = options.listing.order();
    request.fetchLimit = options.limit;
    const std::string plan = session.context().explain(request);
    return std::string(trimmed(plan)); // its lines end with a line feed, also the last one
}

SearchResult searchNotes(StoreSession& session, const Wanted& wanted, const SearchOptions& options, bool asksForTotal)
{
    SearchResult result;
    const auto predicate = conjunction(wanted.query, wanted.among).value_or(NSPredicate::predicateWithValue(true));
    result.predicate = predicate.predicateFormat();
    const auto start = std::chrono::steady_clock::now();
    if (options.countOnly)
        result.count = session.countNotes(predicate);
    else
        result.notes = session.notes(predicate, options.listing.order(), options.limit);
    result.fetchMilliseconds = millisecondsSince(start);
    if (!options.countOnly)
        result.count = result.notes.size();
    const bool isWhole = options.countOnly || options.limit == 0 || result.count < options.limit;
    if (asksForTotal)
        result.total = isWhole ? result.count : session.countNotes(predicate);
    if (options.explain)
        result.plan = planOf(session, predicate, options);
    return result;
}

/// The line of a note that a search shows; none of a protected one.
std::vector<LinePiece> lineOfHit(const OVNote& note, const Highlight& highlight, std::size_t width)
{
    if (highlight.terms.isEmpty() || note.encryptedValue())
        return {};
    return firstMatchingLine(note.text().value_or(""), highlight.terms, width);
}

void writeHit(Output& output, const OVNote& note, const Highlight& highlight, std::string_view end)
{
    std::string text = noteLine(output, note);
    const std::size_t width = output.width().value_or(kWidthWithoutTerminal);
    const std::vector<LinePiece> line = lineOfHit(note, highlight, width > 14 ? width - 4 : 10);
    if (!line.empty())
        text += "\n    ";
    for (const LinePiece& piece : line)
        text += piece.isMatch ? output.styled(piece.text, TextStyle::Match) : piece.text;
    output.write(text.append(end));
}

void writeExplanation(Output& output, const SearchResult& result)
{
    output.writeLine(output.styled("predicate  ", TextStyle::Faint) + output.shown(result.predicate));
    output.writeLine(output.styled("plan       ", TextStyle::Faint) + result.plan);
    output.writeLine(output.styled("times      ", TextStyle::Faint) + "compile "
        + std::to_string(result.compileMilliseconds) + " ms, fetch " + std::to_string(result.fetchMilliseconds)
        + " ms");
}

/// The note with the line that shows a term, and the bytes of it that do.
JSON jsonOfHit(const OVNote& note, const Highlight& highlight)
{
    JSON json = jsonOfNote(note);
    const std::vector<LinePiece> pieces = lineOfHit(note, highlight, kWidthWithoutTerminal);
    std::string line;
    JSON matches = JSON::array();
    for (const LinePiece& piece : pieces) {
        if (piece.isMatch)
            matches.push_back({{"start", line.size()}, {"length", piece.text.size()}});
        line += piece.text;
    }
    json["line"] = pieces.empty() ? JSON() : JSON(line);
    json["matches"] = std::move(matches);
    return json;
}

JSON jsonOfExtras(const SearchResult& result, const Highlight& highlight, bool explain)
{
    JSON extras;
    extras["total"] = result.total;
    extras["predicate"] = result.predicate;
    extras["highlight"] = highlight.pattern;
    extras["editorTerm"] = highlight.editorTerm;
    if (explain) {
        extras["plan"] = result.plan;
        extras["times"]
            = {{"compileMilliseconds", result.compileMilliseconds}, {"fetchMilliseconds", result.fetchMilliseconds}};
    }
    extras["hints"] = jsonOfHints(result.hints);
    return extras;
}

void writeResult(
    const Invocation& invocation, const SearchResult& result, const Highlight& highlight, const SearchOptions& options)
{
    Output& output = invocation.output;
    if (invocation.json) {
        writeNoteList(output, result.count, result.notes, jsonOfExtras(result, highlight, options.explain),
            [&](const OVNote& note) { return jsonOfHit(note, highlight); });
        return;
    }
    if (options.explain)
        writeExplanation(output, result);
    if (options.countOnly)
        output.writeLine(std::to_string(result.count));
    for (const OVNote* note : result.notes)
        writeHit(output, *note, highlight, options.listing.end());
}

/// What may have been meant, where somebody wrote what is no term, or nothing was found.
void addHints(SearchResult& result, StoreSession& session, const std::string& query, const Wanted& wanted)
{
    result.hints = hintsForSearch(query);
    if (result.count > 0)
        return;
    std::ranges::move(hintsOfNearestNames(query, wanted.among, session), std::back_inserter(result.hints));
}

ExitCode search(const Invocation& invocation, const SearchOptions& options)
{
    const auto start = std::chrono::steady_clock::now();
    options.listing.refuseNULInJSON(invocation);
    const Wanted wanted{options.query.predicate(),
        conjunction(options.listing.predicate(), options.all ? std::nullopt : predicateOfFilter("active"))};
    const double compileMilliseconds = millisecondsSince(start);
    StoreSession session(invocation, StoreSession::Access::Read);
    SearchResult result = searchNotes(session, wanted, options, invocation.json);
    result.compileMilliseconds = compileMilliseconds;
    addHints(result, session, options.query.text(), wanted);
    writeResult(invocation, result, highlightOf(options.query.text()), options);
    const bool found = result.count > 0;
    if (!found && !options.countOnly)
        session.exitCodeOfSearch(
            false, options.all ? "nothing found" : "nothing found; --all looks into archive and trash as well");
    tellHints(result.hints);
    return found ? ExitCode::Done : ExitCode::Failed;
}

} // namespace

void addSearchCommand(CommandLine& commandLine)
{
    const auto options = std::make_shared<SearchOptions>();
    const Command command = commandLine.addCommand(
        {.name = "search",
            .summary = "Find notes by words, phrases, tags, dates and states",
            .explanation
            = "Words of the text (of an encrypted note: of the title), in any case, with or without accents:\n"
              "  apple pie          both words            \"big red\"          this phrase; \"apple\" as a whole word\n"
              "  apple or pear      either                -apple             not this word; also -\"...\", -#tag, "
              "-@todo\n"
              "  #home #two words#  notes with these tags !#home  #*/ideas   without its subtags; anywhere below a "
              "tag\n"
              "  @todo @done @task  by to-dos             @tagged @untagged @untitled @empty @pinned @locked "
              "@readonly\n"
              "  @images @files @attachments @code        @wikilinks @backlinks\n"
              "  @today @yesterday @last7days             by the date of the last change; @ctoday @created7days made\n"
              "  @date(2021-03) @date(>2020) @cdate(...)  a day, a month or a year; after it, before it\n"
              "  @title apple       in titles only        @ocr apple         in attachments only (with --ocr)\n"
              "Words that stand together bind tighter than \"or\". The terms are known in six languages. A query that\n"
              "begins with \"-\" goes after \"--\". Trashed and archived notes are left out. Standard error tells of "
              "words\n"
              "that look like terms and are none, and, where nothing is found, of the nearest titles and tags.",
            .examples = {"tarn search '@todo #home -apple'", "tarn search '\"big red\" or @date(2021-03)'",
                "tarn search -- -#work"}},
        [options](const Invocation& invocation) { return search(invocation, *options); });
    command.addCount("--limit", options->limit, "At most so many notes");
    const CommandOption count
        = command.addFlag("--count", options->countOnly, "Print how many notes there are, and none of them");
    const CommandOption explain
        = command.addFlag("--explain", options->explain, "Tell how the store finds them: predicate, plan and times");
    command.addFlag("--all", options->all, "Look into archive and trash as well");
    options->listing.addTo(command).excludes({count, explain});
    options->query.addOCRFlagTo(command);
    options->query.addTo(command);
}

} // namespace tarn
