#include "tarnmodel/search/Clauses.h"

#include "tarnmodel/platform/foundation/text/RegularExpression.h"
#include "tarnmodel/platform/predicate/ConstantText.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <vector>

namespace tarn {

namespace {

constexpr std::string_view kFreeText
    = "(encrypted == YES AND title CONTAINS[cd] %@) OR (encrypted = NO AND (text CONTAINS[cd] %@ OR (%d == YES AND "
      "(SUBQUERY(files, $file, $file.unused == NO AND $file.searchText CONTAINS[cd] %@).@count != 0))))";
constexpr std::string_view kQuotedPhrase
    = "(encrypted = YES AND title CONTAINS[cd] %@) OR (encrypted = NO AND (text CONTAINS[cd] %@ OR (%d == YES AND ANY "
      "files.searchText CONTAINS[cd] %@)))";
constexpr std::string_view kQuotedWord
    = "(encrypted = YES AND title MATCHES[CD] %@) OR (encrypted = NO AND (text MATCHES[CD] %@ OR (%d == YES AND ANY "
      "files.searchText MATCHES[Cd] %@)))";
constexpr std::string_view kTag = "ANY tags.title ==[cd] %@";
constexpr std::string_view kNegatedTag = "NONE tags.title ==[cd] %@";
constexpr std::string_view kSubtagPath = "ANY tags.title CONTAINS[cd] %@";
constexpr std::string_view kTagWithoutSubtags
    = "SUBQUERY(tags, $tag, $tag.title CONTAINS[cd] %@).@count != 0 AND SUBQUERY(tags, $tag, $tag.title CONTAINS[cd] "
      "%@).@count == 0";

constexpr std::string_view kBeforeQuotedWord = R"((?mis).*?(?:^|[^\w]))";
constexpr std::string_view kAfterQuotedWord = R"((?:[^\w]|$).*)";

/// The canonical form of a template with open places for its strings.
///
/// Parsing and printing it once and putting each string in gives the same text as doing both for each string, and a
/// search of fifty thousand words in a fraction of the time.
class ClauseTemplate {
public:
    explicit ClauseTemplate(std::string_view format, std::vector<Value> arguments)
    {
        for (Value& argument : arguments)
            if (argument.isNil())
                argument = Value(kPlaceholder);
        const std::string text = NSPredicate::predicateWithFormatAndArguments(format, arguments).predicateFormat();
        const std::string placeholder = quoted(kPlaceholder);
        std::size_t begin = 0;
        for (std::size_t end; (end = text.find(placeholder, begin)) != std::string::npos;) {
            pieces_.push_back(text.substr(begin, end - begin));
            begin = end + placeholder.size();
        }
        pieces_.push_back(text.substr(begin));
    }

    /// One string for all places.
    std::string filledWith(std::string_view text) const
    {
        const std::string value = quoted(text);
        std::string result = pieces_.front();
        for (std::size_t piece = 1; piece < pieces_.size(); ++piece)
            (result += value) += pieces_[piece];
        return result;
    }
    /// A string for each of two places.
    std::string filledWith(std::string_view first, std::string_view second) const
    {
        return pieces_.at(0) + quoted(first) + pieces_.at(1) + quoted(second) + pieces_.at(2);
    }

private:
    static constexpr std::string_view kPlaceholder = "placeholder";

    static std::string quoted(std::string_view text)
    {
        std::string result;
        appendConstantText(result, Value(text));
        return result;
    }

    std::vector<std::string> pieces_;
};

/// A clause over titles, texts and, where wanted, attachments.
class TextClauseTemplate {
public:
    explicit TextClauseTemplate(std::string_view format)
        : plain_(format, {nullptr, nullptr, false, nullptr}), withOCR_(format, {nullptr, nullptr, true, nullptr})
    { }
    std::string filledWith(std::string_view text, bool ocr) const { return (ocr ? withOCR_ : plain_).filledWith(text); }

private:
    ClauseTemplate plain_;
    ClauseTemplate withOCR_;
};

} // namespace

std::string freeTextClause(std::string_view word, bool ocr)
{
    static const TextClauseTemplate clause(kFreeText);
    return clause.filledWith(word, ocr);
}

std::string quotedPhraseClause(std::string_view phrase, bool ocr)
{
    static const TextClauseTemplate clause(kQuotedPhrase);
    return clause.filledWith(phrase, ocr);
}

std::string quotedWordClause(std::string_view word, bool ocr)
{
    static const TextClauseTemplate clause(kQuotedWord);
    std::string pattern(kBeforeQuotedWord);
    (pattern += RegularExpression::escapedPattern(word)) += kAfterQuotedWord;
    return clause.filledWith(pattern, ocr);
}

std::string tagClause(std::string_view name)
{
    static const ClauseTemplate clause(kTag, {nullptr});
    return clause.filledWith(name);
}

std::string negatedTagClause(std::string_view name)
{
    static const ClauseTemplate clause(kNegatedTag, {nullptr});
    return clause.filledWith(name);
}

std::string subtagPathClause(std::string_view path)
{
    static const ClauseTemplate clause(kSubtagPath, {nullptr});
    return clause.filledWith(path);
}

std::string tagWithoutSubtagsClause(std::string_view name)
{
    static const ClauseTemplate clause(kTagWithoutSubtags, {nullptr, nullptr});
    return clause.filledWith(name, std::string(name) + "/");
}

} // namespace tarn
