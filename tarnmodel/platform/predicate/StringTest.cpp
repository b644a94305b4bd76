#include "tarnmodel/platform/predicate/StringTest.h"

#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/text/ByteSearch.h"
#include "tarnmodel/platform/foundation/text/RegularExpression.h"
#include "tarnmodel/platform/predicate/FoldedPattern.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tarnmodel/platform/predicate/WholeWordPattern.h"
#include "tarnmodel/platform/predicate/WildcardPattern.h"

#include <atomic>
#include <optional>
#include <utility>

namespace tarn {

namespace {

// Steps of the matcher's clock, not milliseconds: the answer does not depend on how busy the machine is.
constexpr RegularExpression::Options kMatchingLimits{.timeLimit = 2'000, .stackLimit = 8'000'000};

RegularExpression regularExpression(std::string_view pattern, ComparisonOptions options)
{
    RegularExpression::Options compileOptions = kMatchingLimits;
    compileOptions.caseInsensitive = options.caseInsensitive;
    return RegularExpression(foldedPattern(pattern, options), compileOptions);
}

bool hasOptions(ComparisonOptions options)
{
    return options != ComparisonOptions();
}

bool isFullFold(ComparisonOptions options)
{
    return options.caseInsensitive && options.diacriticInsensitive;
}

} // namespace

struct StringTest::State {
    State(ComparisonOperator testOperation, ComparisonOptions testOptions, std::string_view right)
        : operation(testOperation), options(testOptions)
    {
        if (operation != ComparisonOperator::Matches)
            needle = folded(right, options);
        if (operation == ComparisonOperator::Like)
            wildcards.emplace(needle);
        if (operation != ComparisonOperator::Matches)
            return;
        wholeWord = WholeWordPattern::recognise(right, options);
        if (!wholeWord)
            pattern.emplace(regularExpression(right, options));
    }

    bool holdsFor(std::string_view left) const;
    bool matchesPattern(std::string_view left) const;

    ComparisonOperator operation;
    ComparisonOptions options;
    std::string needle;
    std::optional<WildcardPattern> wildcards;
    std::optional<WholeWordPattern> wholeWord;
    std::optional<RegularExpression> pattern;
    mutable std::atomic<bool> hasLoggedLimit = false;
};

// `left` as the options compare it.
bool StringTest::State::holdsFor(std::string_view left) const
{
    switch (operation) {
    case ComparisonOperator::EqualTo:
        return left == needle;
    case ComparisonOperator::NotEqualTo:
        return left != needle;
    case ComparisonOperator::LessThan:
        return left < needle;
    case ComparisonOperator::LessThanOrEqualTo:
        return left <= needle;
    case ComparisonOperator::GreaterThan:
        return left > needle;
    case ComparisonOperator::GreaterThanOrEqualTo:
        return left >= needle;
    case ComparisonOperator::Contains:
        return !needle.empty() && containsBytes(left, needle);
    case ComparisonOperator::BeginsWith:
        return !needle.empty() && left.starts_with(needle);
    case ComparisonOperator::EndsWith:
        return !needle.empty() && left.ends_with(needle);
    case ComparisonOperator::Like:
        return wildcards->matches(left);
    case ComparisonOperator::Matches:
        return wholeWord ? wholeWord->matches(left) : matchesPattern(left);
    case ComparisonOperator::In:
    case ComparisonOperator::Between:
        break;
    }
    return false;
}

bool StringTest::State::matchesPattern(std::string_view left) const
{
    const std::optional<bool> result = pattern->matches(left);
    if (!result && !hasLoggedLimit.exchange(true))
        logMessage("A MATCHES pattern ran over its limit of time or stack; the text counts as no match");
    return result.value_or(false);
}

StringTest::StringTest(ComparisonOperator operation, ComparisonOptions options, std::string_view right)
    : state_(std::make_shared<const State>(operation, options, right))
{ }

bool StringTest::matches(std::string_view left) const
{
    if (!hasOptions(state_->options))
        return state_->holdsFor(left);
    if (state_->operation == ComparisonOperator::Contains && isFullFold(state_->options))
        return foldedContains(left, state_->needle);
    return state_->holdsFor(folded(left, state_->options));
}

bool StringTest::comparesFolded() const noexcept
{
    return isFullFold(state_->options);
}

bool StringTest::matchesFolded(std::string_view folded) const
{
    return state_->holdsFor(folded);
}

bool StringTest::isOfLiteralAlone() const noexcept
{
    return state_->operation == ComparisonOperator::Contains && isFullFold(state_->options);
}

// Without both options the text is not compared folded, and folding may join what stands apart.
std::optional<std::string_view> StringTest::foldedLiteral() const
{
    if (!isFullFold(state_->options))
        return std::nullopt;
    switch (state_->operation) {
    case ComparisonOperator::EqualTo:
    case ComparisonOperator::Contains:
    case ComparisonOperator::BeginsWith:
    case ComparisonOperator::EndsWith:
        return state_->needle;
    case ComparisonOperator::Matches:
        return state_->wholeWord ? std::optional<std::string_view>(state_->wholeWord->literal()) : std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace tarn
