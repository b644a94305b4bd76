#include "tools/tarn/SearchQuery.h"

#include "corvel/CVKHashtag.h"
#include "platform/foundation/Folding.h"
#include "tools/tarn/NoteFilter.h"

#include <algorithm>

namespace tarn {

namespace {

constexpr std::string_view kWordFormat
    = "(encrypted == NO AND text CONTAINS[cd] %@) OR (encrypted == YES AND title CONTAINS[cd] %@)";
constexpr std::string_view kTagFormat = "SUBQUERY(tags, $tag, $tag.title ==[cd] %@).@count > 0";

/// The end of a tag at the beginning of `text`: behind the `#` that closes it, else at the next blank.
std::size_t endOfTag(std::string_view text)
{
    const std::size_t closing = text.find('#', 1);
    const bool closes = closing != std::string_view::npos && closing > 1 && text[closing - 1] != ' '
        && (closing + 1 == text.size() || text[closing + 1] == ' ');
    return closes ? closing + 1 : std::min(text.find(' '), text.size());
}

NSPredicate clause(const NSPredicate& predicate, bool negated)
{
    return negated ? NSPredicate::notPredicateWithSubpredicate(predicate) : predicate;
}

} // namespace

SearchQuery searchQueryOfText(std::string_view text)
{
    SearchQuery query;
    while (!text.empty()) {
        if (text.front() == ' ') {
            text.remove_prefix(1);
            continue;
        }
        const bool negated = text.front() == '-' && text.size() > 1 && text[1] != ' ';
        if (negated)
            text.remove_prefix(1);
        const bool isTag = text.front() == '#' && text.size() > 1 && text[1] != ' ';
        const std::size_t end = isTag ? endOfTag(text) : std::min(text.find(' '), text.size());
        const std::string word(text.substr(0, end));
        text.remove_prefix(end);

        const std::string tag = isTag ? CVKHashtag::sanitizeTagName(word) : std::string();
        if (!tag.empty()) {
            query.predicate
                = conjunction(query.predicate, clause(NSPredicate::predicateWithFormat(kTagFormat, tag), negated));
            continue;
        }
        query.predicate
            = conjunction(query.predicate, clause(NSPredicate::predicateWithFormat(kWordFormat, word, word), negated));
        if (!negated)
            query.words.push_back(fold(word));
    }
    return query;
}

} // namespace tarn
