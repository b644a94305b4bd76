#include "tools/tarn/listing/NearestNames.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/search/HighlightTerms.h"
#include "tarnmodel/tags/TagPredicates.h"
#include "tools/tarn/arguments/NoteFilter.h"
#include "tools/tarn/commandline/DisplayText.h"
#include "tools/tarn/listing/SpellingDistance.h"

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <utility>

namespace tarn {

namespace {

constexpr std::size_t kWordsLookedFor = 3;
constexpr std::size_t kShortestWord = 3; ///< code points
constexpr std::size_t kLongestWord = 40;
constexpr std::size_t kShortestWordInHalves = 5;
constexpr std::size_t kLongWord = 11; ///< from this length on a word may have two slips, and thirds are looked for
constexpr std::size_t kCandidates = 500;
constexpr std::size_t kNamesTold = 3;

using Spelling = std::u32string;

bool isPartOfWord(char32_t letter)
{
    const bool isASCII = letter < 0x80;
    const bool isLetterOrDigit = (letter >= U'a' && letter <= U'z') || (letter >= U'0' && letter <= U'9');
    return isASCII ? isLetterOrDigit : !isWhiteSpace(letter);
}

std::vector<Spelling> wordsOf(std::string_view text)
{
    std::vector<Spelling> words;
    bool isInWord = false;
    for (const char32_t letter : spellingOf(text)) {
        const bool belongs = isPartOfWord(letter);
        if (belongs && !isInWord)
            words.emplace_back();
        if (belongs)
            words.back() += letter;
        isInWord = belongs;
    }
    return words;
}

std::string textOf(std::u32string_view letters)
{
    std::string text;
    for (const char32_t letter : letters)
        appendCodePoint(text, letter);
    return text;
}

/// The longest words of the search, which say the most.
std::vector<Spelling> wordsLookedFor(std::string_view searchString)
{
    std::vector<Spelling> words;
    for (const HighlightTerm& term : highlightTermsOfSearchString(searchString).terms) {
        for (Spelling& word : wordsOf(term.text)) {
            const bool counts = word.size() >= kShortestWord && word.size() <= kLongestWord;
            if (counts && std::ranges::find(words, word) == words.end())
                words.push_back(std::move(word));
        }
    }
    std::ranges::stable_sort(words, std::greater(), &Spelling::size);
    words.resize(std::min(words.size(), kWordsLookedFor));
    return words;
}

/// Parts of a word of which each slip leaves all but one as they were, two neighbours swapped across a border included:
/// there is a letter between parts.
std::vector<std::u32string_view> partsOfName(std::u32string_view word)
{
    const std::size_t size = word.size();
    if (size < kShortestWordInHalves)
        return {word.substr(0, 2), word.substr(size - 2)};
    const std::size_t count = size >= kLongWord ? 3 : 2;
    const std::size_t length = (size - (count - 1)) / count;
    std::vector<std::u32string_view> pieces;
    for (std::size_t piece = 0; piece < count; ++piece) {
        const std::size_t begin = piece * (length + 1);
        pieces.push_back(word.substr(begin, piece + 1 == count ? std::u32string_view::npos : length));
    }
    return pieces;
}

NSPredicate predicateForPieces(const std::vector<Spelling>& words)
{
    std::vector<NSPredicate> holds;
    for (const Spelling& word : words)
        for (const std::u32string_view piece : partsOfName(word))
            holds.push_back(NSPredicate::predicateWithFormat("title CONTAINS[cd] %@", textOf(piece)));
    return NSPredicate::orPredicateWithSubpredicates(holds);
}

/// How near a name is: words of the search that it has nearly, and the slips in them.
struct Nearness {
    std::size_t words = 0;
    std::size_t slips = 0;
    /// Words count before slips.
    std::pair<std::ptrdiff_t, std::size_t> rank() const { return {-static_cast<std::ptrdiff_t>(words), slips}; }
};

Nearness nearnessOf(const std::string& name, const std::vector<Spelling>& wanted)
{
    const std::vector<Spelling> words = wordsOf(name);
    Nearness nearness;
    for (const Spelling& word : wanted) {
        const std::size_t limit = slipsIn(word.size());
        std::size_t fewest = limit + 1;
        for (const Spelling& other : words)
            fewest
                = std::min(fewest, other != word && other.starts_with(word) ? 1 : spellingDistance(word, other, limit));
        if (fewest <= limit) {
            ++nearness.words;
            nearness.slips += fewest;
        }
    }
    return nearness;
}

/// Titles of the entity's records, the nearest first.
std::vector<std::string> nearestTitles(
    NSFetchRequest request, const std::vector<Spelling>& wanted, StoreSession& session)
{
    request.propertiesToFetch = {"title"};
    request.fetchLimit = kCandidates;
    NSError error;
    const auto rows = session.context().executeDictionaryFetchRequest(request, &error);
    if (!rows)
        throw session.failure("cannot read the store", error);
    std::vector<std::pair<Nearness, std::string>> near;
    std::set<std::string> seen;
    for (const DictionaryResult& row : *rows) {
        const auto found = row.find("title");
        if (found == row.end() || found->second.kind() != Value::Kind::String
            || !seen.insert(found->second.asString()).second)
            continue;
        const Nearness nearness = nearnessOf(found->second.asString(), wanted);
        if (nearness.words > 0)
            near.emplace_back(nearness, found->second.asString());
    }
    std::ranges::stable_sort(near, {}, [](const auto& one) { return one.first.rank(); });
    std::vector<std::string> titles;
    for (auto& [nearness, title] : near)
        titles.push_back(std::move(title));
    return titles;
}

std::vector<std::string> nearestTitlesOfNotes(
    const std::vector<Spelling>& wanted, const std::optional<NSPredicate>& among, StoreSession& session)
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(session.context()));
    request.predicate = conjunction(predicateForPieces(wanted), among);
    request.sortDescriptors = {{.key = "modificationDate", .ascending = false}};
    std::vector<std::string> titles = nearestTitles(std::move(request), wanted, session);
    titles.resize(std::min(titles.size(), kNamesTold));
    return titles;
}

/// Tags that notes of those carry, as they are written.
std::vector<std::string> nearestTags(
    const std::vector<Spelling>& wanted, const std::optional<NSPredicate>& among, StoreSession& session)
{
    NSFetchRequest request(OVNoteTag::entityInManagedObjectContext(session.context()));
    request.predicate = predicateForPieces(wanted);
    std::vector<std::string> tags;
    for (const std::string& title : nearestTitles(std::move(request), wanted, session)) {
        if (tags.size() == kNamesTold)
            break;
        if (session.countNotes(conjunction(predicateForNotesTagged(title), among)) > 0)
            tags.push_back("#" + title + (title.find(' ') == std::string::npos ? "" : "#"));
    }
    return tags;
}

void addHint(std::vector<SearchHint>& hints, const char* kind, const char* beginning, std::vector<std::string> names)
{
    if (names.empty())
        return;
    std::string text = beginning;
    for (const std::string& name : names)
        text += (&name == &names.front() ? " " : ", ") + textFittedToWidth(displayText(name), 60);
    hints.push_back({kind, "", std::move(text), std::move(names)});
}

} // namespace

std::vector<SearchHint> hintsOfNearestNames(
    std::string_view searchString, const std::optional<NSPredicate>& among, StoreSession& session)
{
    const std::vector<Spelling> wanted = wordsLookedFor(searchString);
    std::vector<SearchHint> hints;
    if (!session.exists() || wanted.empty())
        return hints;
    addHint(hints, "titles", "the nearest titles:", nearestTitlesOfNotes(wanted, among, session));
    addHint(hints, "tags", "the nearest tags:", nearestTags(wanted, among, session));
    return hints;
}

} // namespace tarn
