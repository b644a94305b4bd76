#include "tarnmodel/platform/foundation/text/RegularExpression.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <fmt/format.h>

namespace tarn {

namespace {

icu::UnicodeString icuString(const std::u16string& units)
{
    return icu::UnicodeString(units.data(), static_cast<int32_t>(units.size()));
}

uint32_t icuFlags(const RegularExpression::Options& options)
{
    uint32_t flags = 0;
    if (options.caseInsensitive)
        flags |= UREGEX_CASE_INSENSITIVE;
    if (options.anchorsMatchLines)
        flags |= UREGEX_MULTILINE;
    if (options.dotMatchesLineSeparators)
        flags |= UREGEX_DOTALL;
    return flags;
}

bool isPatternCharacter(char character)
{
    return std::string_view("*?+[(){}^$|\\./").find(character) != std::string_view::npos;
}

} // namespace

struct RegularExpression::Compiled {
    std::unique_ptr<const icu::RegexPattern> pattern;
    Options options;
};

namespace {

/// One pass over one text: ICU's matcher with the limits set. It refers to the units, which therefore stand here.
class Search {
public:
    Search(const icu::RegexPattern& pattern, const RegularExpression::Options& options, std::string_view text)
        : units_(utf16FromUTF8(text)), string_(false, units_.c_str(), static_cast<int32_t>(units_.size())),
          matcher_(pattern.matcher(string_, status_))
    {
        if (!matcher_)
            return;
        matcher_->setTimeLimit(options.timeLimit, status_);
        matcher_->setStackLimit(options.stackLimit, status_);
    }

    bool failed() const { return U_FAILURE(status_) || !matcher_; }
    bool matchesWhole() { return !failed() && matcher_->matches(status_) && !failed(); }
    bool findNext() { return !failed() && matcher_->find(status_) && !failed(); }
    bool findFrom(std::size_t offset)
    {
        return offset <= units_.size() && !failed() && matcher_->find(static_cast<int64_t>(offset), status_)
            && !failed();
    }

    RegularExpressionMatch match()
    {
        RegularExpressionMatch match{rangeOfGroup(0), {}};
        for (int32_t group = 1; group <= matcher_->groupCount(); ++group)
            match.groups.push_back(rangeOfGroup(group));
        return match;
    }

private:
    NSRange rangeOfGroup(int32_t group)
    {
        const int32_t start = matcher_->start(group, status_);
        if (start < 0)
            return {NSNotFound, 0};
        const int32_t end = matcher_->end(group, status_);
        return {static_cast<std::size_t>(start), static_cast<std::size_t>(end - start)};
    }

    UErrorCode status_ = U_ZERO_ERROR;
    std::u16string units_;
    icu::UnicodeString string_; // reads units_
    std::unique_ptr<icu::RegexMatcher> matcher_;
};

} // namespace

RegularExpression::RegularExpression(std::string_view pattern) : RegularExpression(pattern, Options()) { }

RegularExpression::RegularExpression(std::string_view pattern, Options options)
{
    UErrorCode status = U_ZERO_ERROR;
    UParseError where{};
    std::unique_ptr<const icu::RegexPattern> compiled(
        icu::RegexPattern::compile(icuString(utf16FromUTF8(pattern)), icuFlags(options), where, status));
    if (U_FAILURE(status) || !compiled)
        throw NSException(NSInvalidArgumentException,
            fmt::format("The regular expression is malformed at line {}, offset {}: {}", where.line, where.offset,
                u_errorName(status)));
    compiled_ = std::make_shared<const Compiled>(Compiled{std::move(compiled), options});
}

std::optional<bool> RegularExpression::matches(std::string_view text) const
{
    Search search(*compiled_->pattern, compiled_->options, text);
    const bool found = search.matchesWhole();
    return search.failed() ? std::nullopt : std::optional(found);
}

std::optional<bool> RegularExpression::matchesSomewhere(std::string_view text) const
{
    Search search(*compiled_->pattern, compiled_->options, text);
    const bool found = search.findNext();
    return search.failed() ? std::nullopt : std::optional(found);
}

std::optional<RegularExpressionMatch> RegularExpression::firstMatch(std::string_view text, std::size_t from) const
{
    Search search(*compiled_->pattern, compiled_->options, text);
    return search.findFrom(from) ? std::optional(search.match()) : std::nullopt;
}

std::vector<RegularExpressionMatch> RegularExpression::allMatches(std::string_view text, bool* limitExceeded) const
{
    Search search(*compiled_->pattern, compiled_->options, text);
    std::vector<RegularExpressionMatch> matches;
    while (search.findNext())
        matches.push_back(search.match());
    if (limitExceeded)
        *limitExceeded = search.failed();
    return matches;
}

std::string RegularExpression::escapedPattern(std::string_view text)
{
    std::string pattern;
    pattern.reserve(text.size());
    for (const char character : text) {
        if (isPatternCharacter(character))
            pattern.push_back('\\');
        pattern.push_back(character);
    }
    return pattern;
}

} // namespace tarn
