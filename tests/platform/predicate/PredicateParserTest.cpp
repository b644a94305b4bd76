#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tests/platform/predicate/DictionaryObject.h"
#include "tests/platform/predicate/PredicateCases.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace tarn {
namespace {

using testing::HasSubstr;

const DictionaryObject kRecord({});

Value valueOfArgument(const std::string& text)
{
    if (text == "object")
        return Value(&kRecord);
    const NSPredicate predicate = NSPredicate::predicateWithFormat("a == " + text);
    const auto& comparison = std::get<ComparisonPredicate>(predicate.node().form);
    return std::get<ConstantExpression>(comparison.right->form).value;
}

NSPredicate parsed(const PredicateCase& example)
{
    std::vector<Value> arguments;
    for (const std::string& argument : example.arguments)
        arguments.push_back(valueOfArgument(argument));
    return NSPredicate::predicateWithFormatAndArguments(example.format, arguments);
}

/// The reason why the format does not parse; empty when it does.
std::string failureOf(std::string_view format, std::span<const Value> arguments = {})
{
    try {
        NSPredicate::predicateWithFormatAndArguments(format, arguments);
        return {};
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), NSInvalidArgumentException);
        return exception.reason();
    }
}

Value constantOnTheRight(const NSPredicate& predicate)
{
    const auto& comparison = std::get<ComparisonPredicate>(predicate.node().form);
    return std::get<ConstantExpression>(comparison.right->form).value;
}

std::string repeated(std::string_view text, int times)
{
    std::string result;
    for (int count = 0; count < times; ++count)
        result += text;
    return result;
}

void expectCanonicalForm(const PredicateCase& example)
{
    const NSPredicate predicate = parsed(example);
    EXPECT_EQ(predicate.predicateFormat(), example.expected);
    if (example.expected.find("<object>") != std::string::npos)
        return;
    const NSPredicate again = NSPredicate::predicateWithFormat(predicate.predicateFormat());
    EXPECT_EQ(again, predicate);
    EXPECT_EQ(again.predicateFormat(), predicate.predicateFormat());
}

void expectFailure(const PredicateCase& example)
{
    const std::size_t colon = example.expected.find(": ");
    const std::string expectation = colon == std::string::npos ? example.expected : example.expected.substr(colon + 2);
    const std::string place = colon == std::string::npos ? "" : " at byte " + example.expected.substr(0, colon) + ",";
    try {
        const NSPredicate predicate = parsed(example);
        ADD_FAILURE() << "parsed as " << predicate.predicateFormat();
    } catch (const NSException& exception) {
        EXPECT_EQ(exception.name(), NSInvalidArgumentException);
        EXPECT_THAT(exception.reason(), HasSubstr(expectation));
        EXPECT_THAT(exception.reason(), HasSubstr(place));
    }
}

class PredicateFormat : public testing::TestWithParam<PredicateCase> { };

TEST_P(PredicateFormat, PrintsCanonicallyOrFailsWhereItGoesWrong)
{
    const PredicateCase& example = GetParam();
    SCOPED_TRACE(example.format);
    if (example.fails)
        expectFailure(example);
    else
        expectCanonicalForm(example);
}

INSTANTIATE_TEST_SUITE_P(Predicates, PredicateFormat, testing::ValuesIn(readPredicateCases()),
    [](const testing::TestParamInfo<PredicateCase>& info) { return "Line" + std::to_string(info.param.line); });

TEST(PredicateFormats, AreMany)
{
    EXPECT_GE(readPredicateCases().size(), 250U);
}

// Arguments -----------------------------------------------------------------------------------------------------------

TEST(PredicateParser, KeepsRecordsGivenAsArguments)
{
    const NSPredicate predicate = NSPredicate::predicateWithFormat("SELF == %@", &kRecord);
    EXPECT_EQ(&constantOnTheRight(predicate).asObject(), &kRecord);
    EXPECT_EQ(predicate, NSPredicate::predicateWithFormat("SELF == %@", &kRecord));
    EXPECT_NE(predicate, NSPredicate::predicateWithFormat("SELF == %@", nullptr));
}

TEST(PredicateParser, MakesNumbersOfTruthValues)
{
    const NSPredicate predicate = NSPredicate::predicateWithFormat("%d == %@", true, false);
    EXPECT_EQ(predicate.predicateFormat(), "1 == 0");
    EXPECT_EQ(constantOnTheRight(predicate).kind(), Value::Kind::Integer);
    EXPECT_EQ(NSPredicate::predicateWithFormat("a IN %@", Value::Array{true, Value::Array{false}}).predicateFormat(),
        "a IN {1, {0}}");
}

TEST(PredicateParser, TakesHostileStringsAsPlainText)
{
    const std::string hostile("\" OR TRUEPREDICATE OR a == \"\\\" '\\' %@ %d $x \0 {1}", 50);
    const NSPredicate predicate = NSPredicate::predicateWithFormat("title == %@", hostile);
    EXPECT_EQ(constantOnTheRight(predicate).asString(), hostile);
    const NSPredicate again = NSPredicate::predicateWithFormat(predicate.predicateFormat());
    EXPECT_EQ(constantOnTheRight(again).asString(), hostile);
}

TEST(PredicateParser, ReplacesWhatIsNoUTF8)
{
    EXPECT_EQ(constantOnTheRight(NSPredicate::predicateWithFormat("a == %@", "x\xFFy")).asString(), "x\xEF\xBF\xBDy");
    EXPECT_EQ(constantOnTheRight(NSPredicate::predicateWithFormat("a == 'x\xC3'")).asString(), "x\xEF\xBF\xBD");
    const NSPredicate listed = NSPredicate::predicateWithFormat("a IN %@", Value::Array{"\xFF"});
    EXPECT_EQ(constantOnTheRight(listed).asArray()[0].asString(), "\xEF\xBF\xBD");
    EXPECT_THAT(failureOf("a\xFF == 1"), HasSubstr("at byte 1"));
}

TEST(PredicateParser, KeepsNULInsideALiteral)
{
    const std::string format("a == 'x\0y'", 10);
    EXPECT_EQ(constantOnTheRight(NSPredicate::predicateWithFormat(format)).asString(), std::string("x\0y", 3));
    EXPECT_EQ(NSPredicate::predicateWithFormat(format).predicateFormat(), "a == \"x\\u0000y\"");
    EXPECT_THAT(failureOf(std::string("a == 1\0", 7)), HasSubstr("at byte 6"));
}

TEST(PredicateParser, RefusesNumbersThatAreNotFinite)
{
    const Value infinity(std::numeric_limits<double>::infinity());
    EXPECT_THAT(failureOf("a == %@", std::vector{infinity}), HasSubstr("not finite"));
    EXPECT_THAT(
        failureOf("a == %@", std::vector{Value(std::numeric_limits<double>::quiet_NaN())}), HasSubstr("not finite"));
}

TEST(PredicateParser, CountsItsArguments)
{
    EXPECT_THAT(failureOf("a == %@ AND b == %@", std::vector<Value>{1}), HasSubstr("only 1 slots"));
    EXPECT_THAT(failureOf("a == %@", std::vector<Value>{1, 2}), HasSubstr("has 1 slots, 2 arguments"));
}

TEST(PredicateParser, ShowsOnlyTheBeginningOfALongMistake)
{
    EXPECT_LT(failureOf("a == '" + std::string(1'000'000, 'x')).size(), 200U);
}

// Limits --------------------------------------------------------------------------------------------------------------

TEST(PredicateParser, TakesALiteralOfAMegabyte)
{
    const std::string text = repeated("\"\\ü", 250'000);
    const NSPredicate predicate = NSPredicate::predicateWithFormat("a == %@", text);
    const NSPredicate again = NSPredicate::predicateWithFormat(predicate.predicateFormat());
    EXPECT_EQ(constantOnTheRight(again).asString(), text);
}

TEST(PredicateParser, NestsAsDeepAsTheLimitAndNoDeeper)
{
    const auto parentheses = [](int depth) { return repeated("(", depth) + "a == 1" + repeated(")", depth); };
    EXPECT_EQ(failureOf(parentheses(maximumPredicateDepth)), "");
    EXPECT_THAT(failureOf(parentheses(maximumPredicateDepth + 1)), HasSubstr("at most 500 levels"));
    EXPECT_EQ(failureOf(repeated("NOT ", maximumPredicateDepth) + "a == 1"), "");
    EXPECT_THAT(failureOf(repeated("NOT ", maximumPredicateDepth + 1) + "a == 1"), HasSubstr("at most 500 levels"));
}

TEST(PredicateParser, RefusesBottomlessNestingOfEveryKind)
{
    constexpr int kDepth = 100'000;
    EXPECT_THAT(failureOf(repeated("(", kDepth) + "a == 1" + repeated(")", kDepth)), HasSubstr("at byte 500"));
    EXPECT_THAT(failureOf(repeated("!", kDepth) + "a == 1"), HasSubstr("at byte 500"));
    EXPECT_THAT(failureOf("a IN " + repeated("{", kDepth)), HasSubstr("at byte 505"));
    EXPECT_THAT(failureOf(repeated("SUBQUERY(", kDepth)), HasSubstr("at most 500 levels"));
    EXPECT_THAT(failureOf(repeated("SUBQUERY(a, $x, ", kDepth)), HasSubstr("at most 500 levels"));
}

TEST(PredicateParser, RefusesArgumentsNestedTooDeeply)
{
    Value nested(1);
    for (int depth = 0; depth <= maximumPredicateDepth; ++depth)
        nested = Value(Value::Array{nested});
    EXPECT_THAT(failureOf("a IN %@", std::vector{nested}), HasSubstr("nested too deeply"));
}

// The parentheses that precedence makes needless are needed in the canonical form.
TEST(PredicateParser, RefusesWhatItsOwnCanonicalFormCouldNotSay)
{
    const auto nested = [](int depth) {
        return repeated("a == 1 OR b == 2 AND SUBQUERY(c, $x, ", depth) + "d == 3" + repeated(").@count == 0", depth);
    };
    const NSPredicate predicate = NSPredicate::predicateWithFormat(nested(maximumPredicateDepth / 2));
    EXPECT_EQ(NSPredicate::predicateWithFormat(predicate.predicateFormat()), predicate);
    EXPECT_THAT(failureOf(nested(maximumPredicateDepth / 2 + 1)), HasSubstr("nested more than 500 levels deep"));
}

TEST(PredicateParser, TakesFiftyThousandSiblings)
{
    constexpr int kCount = 50'000;
    std::string format = "title ==[cd] 'x'";
    for (int count = 1; count < kCount; ++count)
        format += " OR title ==[cd] 'x'";
    const NSPredicate predicate = NSPredicate::predicateWithFormat(format);
    EXPECT_EQ(std::get<CompoundPredicate>(predicate.node().form).members.size(), std::size_t{kCount});
    EXPECT_EQ(NSPredicate::predicateWithFormat(predicate.predicateFormat()), predicate);
}

TEST(PredicateParser, JoinsDeeplyNestedSiblingsIntoOneNode)
{
    constexpr int kDepth = maximumPredicateDepth - 1;
    const std::string leaning = repeated("(", kDepth) + "a == 0" + repeated(" OR a == 1)", kDepth);
    const NSPredicate predicate = NSPredicate::predicateWithFormat(leaning);
    EXPECT_EQ(std::get<CompoundPredicate>(predicate.node().form).members.size(), std::size_t{kDepth} + 1);
}

} // namespace
} // namespace tarn
