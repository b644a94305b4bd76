#include "tarnmodel/platform/predicate/PredicateEvaluator.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tests/platform/predicate/DictionaryObject.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string_view>
#include <vector>

namespace tarn {
namespace {

/// A comparison of two arguments, or of one with what stands in the text.
struct Question {
    std::string_view format;
    std::vector<Value> arguments;
    bool answer;
};

const DictionaryObject kNothing({});

bool holds(std::string_view format, const NSKeyValueCoding& object, std::span<const Value> arguments = {})
{
    return NSPredicate::predicateWithFormatAndArguments(format, arguments).evaluateWithObject(object);
}

void expectAnswers(const std::vector<Question>& questions)
{
    for (const Question& question : questions)
        EXPECT_EQ(holds(question.format, kNothing, question.arguments), question.answer) << question.format;
}

// nil -----------------------------------------------------------------------------------------------------------------

TEST(Evaluator, FindsNilEqualToNilAndInNoOrder)
{
    expectAnswers(
        {{"nil == nil", {}, true}, {"nil != nil", {}, false}, {"nil == 'x'", {}, false}, {"nil != 'x'", {}, true},
            {"'x' != nil", {}, true}, {"nil == 0", {}, false}, {"nil == ''", {}, false}, {"nil < 3", {}, false},
            {"nil >= 3", {}, false}, {"3 > nil", {}, false}, {"nil <= nil", {}, false}, {"nil >= nil", {}, false},
            {"NOT nil < 3", {}, true}, {"nil CONTAINS 'x'", {}, false}, {"'x' CONTAINS nil", {}, false},
            {"nil BEGINSWITH 'x'", {}, false}, {"nil MATCHES '.*'", {}, false}, {"nil LIKE '*'", {}, false},
            {"nil IN {1, 'x'}", {}, false}, {"nil IN {1, nil}", {}, true}, {"nil IN 'x'", {}, false},
            {"'x' IN nil", {}, false}, {"nil BETWEEN {1, 2}", {}, false}, {"1 BETWEEN {nil, 2}", {}, false},
            {"nil.@count == 0", {}, true}, {"nil ==[cd] nil", {}, true}, {"nil ==[cd] 'x'", {}, false}});
}

// Numbers -------------------------------------------------------------------------------------------------------------

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kFirstBeyondDoubles = (std::int64_t{1} << 53) + 1;
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Evaluator, ComparesNumbersExactly)
{
    expectAnswers({{"1 == 1", {}, true}, {"0 == 1", {}, false}, {"YES == 1", {}, true}, {"NO == 0", {}, true},
        {"YES == 2", {}, false}, {"1 == 1.0", {}, true}, {"1 < 1.5", {}, true}, {"1.5 < 2", {}, true},
        {"-1 > -1.5", {}, true}, {"-1.5 < -1", {}, true}, {"-2 < -1.5", {}, true}, {"2 <= 2", {}, true},
        {"0.0 == -0.0", {}, true}, {"%@ == %@", {kFirstBeyondDoubles, 9007199254740992.0}, false},
        {"%@ > %@", {kFirstBeyondDoubles, 9007199254740992.0}, true},
        {"%@ < %@", {9007199254740992.0, kFirstBeyondDoubles}, true},
        {"%@ == %@", {kLargest, 9223372036854775808.0}, false}, {"%@ < %@", {kLargest, 9223372036854775808.0}, true},
        {"%@ == %@", {kSmallest, -9223372036854775808.0}, true},
        {"%@ < %@", {kSmallest, -9223372036854775808.0}, false}, {"%@ > %@", {kSmallest, -1e300}, true},
        {"%@ < %@", {1e300, kLargest}, false}, {"3 BETWEEN {1, 3}", {}, true}, {"1 BETWEEN {1, 3}", {}, true},
        {"3.5 BETWEEN {1, 3}", {}, false}, {"2 IN {1, 2.0}", {}, true}, {"1 == '1'", {}, false}, {"1 != '1'", {}, true},
        {"1 < '2'", {}, false}, {"1 > '0'", {}, false}, {"1 CONTAINS 1", {}, false}, {"1 CONTAINS '1'", {}, false},
        {"1 IN '1'", {}, false}, {"1 MATCHES '1'", {}, false}});
}

TEST(Evaluator, FindsWhatIsNotANumberUnequalToEverything)
{
    const DictionaryObject object({{"a", kNotANumber}, {"b", 1}});
    EXPECT_FALSE(holds("a == a", object));
    EXPECT_TRUE(holds("a != a", object));
    EXPECT_FALSE(holds("a < b OR a >= b OR b < a OR b >= a", object));
}

// Strings -------------------------------------------------------------------------------------------------------------

TEST(Evaluator, ComparesStringsByTheirOptions)
{
    expectAnswers({{"'a' == 'a'", {}, true}, {"'a' == 'A'", {}, false}, {"'a' ==[c] 'A'", {}, true},
        {"'é' ==[c] 'e'", {}, false}, {"'é' ==[c] 'É'", {}, true}, {"'é' ==[d] 'e'", {}, true},
        {"'É' ==[d] 'e'", {}, false}, {"'É' ==[cd] 'e'", {}, true}, {"'e' !=[cd] 'É'", {}, false},
        {"'か' ==[cd] 'が'", {}, false}, {"'straße' ==[cd] 'STRASSE'", {}, true}, {"'B' < 'a'", {}, true},
        {"'B' <[c] 'a'", {}, false}, {"'a' <[cd] 'B'", {}, true}, {"'z' < 'é'", {}, true}, {"'z' <[cd] 'é'", {}, false},
        {"'é' <=[d] 'e'", {}, true}, {"'\\uff5e' < '\\ud83d\\ude00'", {}, true}, {"'x' CONTAINS ''", {}, false},
        {"'x' BEGINSWITH ''", {}, false}, {"'x' ENDSWITH ''", {}, false}, {"'' CONTAINS ''", {}, false},
        {"'abc' CONTAINS 'bc'", {}, true}, {"'abc' BEGINSWITH 'ab'", {}, true}, {"'abc' BEGINSWITH 'b'", {}, false},
        {"'abc' ENDSWITH 'bc'", {}, true}, {"'abc' ENDSWITH 'ab'", {}, false},
        {"'Énorme' BEGINSWITH[cd] 'en'", {}, true}, {"'CAFÉ' ENDSWITH[cd] 'fe'", {}, true},
        {"'a café' CONTAINS[cd] 'CAFE'", {}, true}, {"'a café' CONTAINS[c] 'CAFE'", {}, false},
        {"'bc' IN 'abc'", {}, true}, {"'BC' IN 'abc'", {}, false}, {"'BC' IN[c] 'abc'", {}, true},
        {"'' IN 'abc'", {}, false}, {"'a' IN {'b', 'a'}", {}, true}, {"'A' IN {'b', 'a'}", {}, false},
        {"'Á' IN[cd] {'b', 'a'}", {}, true}, {"'b' BETWEEN {'a', 'c'}", {}, true},
        {"'B' BETWEEN {'a', 'c'}", {}, false}, {"'B' BETWEEN[c] {'a', 'c'}", {}, true}, {"'abc' LIKE 'a*c'", {}, true},
        {"'ABC' LIKE[c] 'a?c'", {}, true}, {"'abc' MATCHES 'a.c'", {}, true}, {"'xabc' MATCHES 'a.c'", {}, false}});
}

// Dates and data ------------------------------------------------------------------------------------------------------

TEST(Evaluator, ComparesDatesAndData)
{
    expectAnswers({{"CAST(1, 'NSDate') == CAST(1.000000, 'NSDate')", {}, true},
        {"CAST(1, 'NSDate') < CAST(1.000001, 'NSDate')", {}, true},
        {"CAST(-1, 'NSDate') < CAST(0, 'NSDate')", {}, true}, {"CAST(1, 'NSDate') == 1", {}, false},
        {"CAST(1, 'NSDate') > 0", {}, false},
        {"CAST(5, 'NSDate') BETWEEN %@",
            {Value::Array{
                dateWithMicrosecondsSinceReferenceDate(0), dateWithMicrosecondsSinceReferenceDate(6'000'000)}},
            true},
        {"CAST('00ff', 'NSData') == CAST('00ff', 'NSData')", {}, true},
        {"CAST('00ff', 'NSData') != CAST('00', 'NSData')", {}, true}, {"CAST('61', 'NSData') == 'a'", {}, false}});
}

// Collections ---------------------------------------------------------------------------------------------------------

TEST(Evaluator, LooksAtCollectionsAsSets)
{
    expectAnswers({{"{1, 2} == {2, 1, 1}", {}, true}, {"{1, 2} == {1}", {}, false}, {"{1} == {1, 2}", {}, false},
        {"{1, 2} != {1}", {}, true}, {"{'É'} ==[cd] {'e'}", {}, true}, {"{} == {}", {}, true}, {"{} == nil", {}, false},
        {"{1} == 1", {}, false}, {"{1, 2} CONTAINS 2", {}, true}, {"{1, 2} CONTAINS 3", {}, false},
        {"{nil} CONTAINS nil", {}, true}, {"{'É'} CONTAINS[cd] 'e'", {}, true}, {"{'abc'} CONTAINS 'b'", {}, false},
        {"{1, 2} < {3}", {}, false}, {"{{1}, {2}} CONTAINS {1}", {}, true}, {"{'ab'} BEGINSWITH 'a'", {}, false},
        {"ANY {1, 2} > 1", {}, true}, {"ANY {1, 2} > 2", {}, false}, {"ALL {1, 2} > 0", {}, true},
        {"ALL {1, 2} > 1", {}, false}, {"NONE {1, 2} > 2", {}, true}, {"NONE {1, 2} > 1", {}, false},
        {"ANY {} == 1", {}, false}, {"ALL {} == 1", {}, true}, {"NONE {} == 1", {}, true},
        {"ANY nil == nil", {}, false}, {"ALL nil == 1", {}, true}, {"ANY {nil} == nil", {}, true},
        {"ANY 1 == 1", {}, true}, {"NONE 1 == 1", {}, false}, {"ANY {1, 2} IN {2, 3}", {}, true},
        {"ALL {1, 2} IN {2, 3}", {}, false}, {"{1, 2}.@count == 2", {}, true}, {"{}.@count == 0", {}, true},
        {"SUBQUERY({1, 2, 3}, $x, $x > 1).@count == 2", {}, true},
        {"SUBQUERY({1, 2, 3}, $x, $x > 1) == {3, 2}", {}, true}, {"SUBQUERY(nil, $x, $x > 1).@count == 0", {}, true},
        {"SUBQUERY({1, 2}, $x, SUBQUERY({1, 2, 3}, $y, $y > $x).@count == 1).@count == 1", {}, true},
        {"SUBQUERY({1, 2}, $x, SUBQUERY({5, 6}, $x, $x > 4).@count == 2 AND $x < 3).@count == 2", {}, true},
        {"SUBQUERY(SUBQUERY({1, 2, 3}, $x, $x > 1), $x, $x < 3).@count == 1", {}, true},
        {"ANY SUBQUERY({1, 2, 3}, $x, $x > 1) == 3", {}, true}});
}

// Joining -------------------------------------------------------------------------------------------------------------

TEST(Evaluator, JoinsAnswers)
{
    expectAnswers({{"TRUEPREDICATE", {}, true}, {"FALSEPREDICATE", {}, false}, {"NOT FALSEPREDICATE", {}, true},
        {"TRUEPREDICATE AND FALSEPREDICATE", {}, false}, {"FALSEPREDICATE OR TRUEPREDICATE", {}, true},
        {"TRUEPREDICATE OR FALSEPREDICATE AND FALSEPREDICATE", {}, true},
        {"NOT TRUEPREDICATE OR TRUEPREDICATE", {}, true}, {"NOT (TRUEPREDICATE OR TRUEPREDICATE)", {}, false},
        {"NOT NOT TRUEPREDICATE", {}, true}});
}

TEST(Evaluator, FindsIdentifiersInALongList)
{
    Value::Array identifiers;
    for (int number = 0; number < 100'000; ++number)
        identifiers.emplace_back("ID-" + std::to_string(number));
    const PredicateEvaluator evaluator(NSPredicate::predicateWithFormat("identifier IN %@", identifiers));
    DictionaryObject object({{"identifier", nullptr}});
    int hits = 0;
    for (int number = 99'000; number < 101'000; ++number) {
        object.setValue("identifier", "ID-" + std::to_string(number));
        hits += evaluator.evaluate(object) ? 1 : 0;
    }
    EXPECT_EQ(hits, 1'000);
    object.setValue("identifier", nullptr);
    EXPECT_FALSE(evaluator.evaluate(object));
    object.setValue("identifier", 5);
    EXPECT_FALSE(evaluator.evaluate(object));
}

TEST(Evaluator, FoldsALongListByTheOptions)
{
    const Value::Array names{"a", "b", "c", "d", "e", "f", "g", "h", "é"};
    EXPECT_TRUE(holds("'H' IN[c] %@", kNothing, std::vector<Value>{names}));
    EXPECT_FALSE(holds("'H' IN %@", kNothing, std::vector<Value>{names}));
    EXPECT_TRUE(holds("'È' IN[cd] %@", kNothing, std::vector<Value>{names}));
    EXPECT_FALSE(holds("'x' IN[cd] %@", kNothing, std::vector<Value>{names}));
}

TEST(Evaluator, WalksFiftyThousandSiblings)
{
    std::string format = "a == 0";
    for (int number = 1; number < 50'000; ++number)
        format += " OR a == " + std::to_string(number);
    const PredicateEvaluator evaluator(NSPredicate::predicateWithFormat(format));
    EXPECT_TRUE(evaluator.evaluate(DictionaryObject({{"a", 49'999}})));
    EXPECT_FALSE(evaluator.evaluate(DictionaryObject({{"a", 50'000}})));
}

TEST(Evaluator, WalksTheDeepestNesting)
{
    std::string format = "a == 1";
    for (int depth = 0; depth < maximumPredicateDepth / 2; ++depth)
        format = "NOT (a == 0 OR " + format + ")";
    EXPECT_TRUE(holds(format, DictionaryObject({{"a", 1}})));
}

TEST(Evaluator, RefusesATreeThatIsTooDeepOrHasAStrayVariable)
{
    PredicateNodePtr node = NSPredicate::predicateWithFormat("a == 1").nodePtr();
    for (int depth = 0; depth < 2'000; ++depth)
        node = std::make_shared<const PredicateNode>(PredicateNode{NotPredicate{node}});
    EXPECT_THROW(PredicateEvaluator{NSPredicate(node)}, NSException);

    ComparisonPredicate stray;
    stray.left = std::make_shared<const Expression>(Expression{VariableExpression{"x"}});
    stray.right = stray.left;
    const NSPredicate predicate(std::make_shared<const PredicateNode>(PredicateNode{stray}));
    EXPECT_THROW(PredicateEvaluator{predicate}, NSException);
}

TEST(Evaluator, RefusesAMalformedPatternBeforeItLooksAtAnything)
{
    EXPECT_THROW(PredicateEvaluator(NSPredicate::predicateWithFormat("title MATCHES[cd] '(x'")), NSException);
}

// Records -------------------------------------------------------------------------------------------------------------

class RecordsWithTags : public testing::Test {
protected:
    static Value listed(std::initializer_list<const DictionaryObject*> objects)
    {
        Value::Array values;
        for (const DictionaryObject* object : objects)
            values.emplace_back(object);
        return Value(std::move(values));
    }
    bool holds(std::string_view format, std::vector<Value> arguments = {}) const
    {
        return NSPredicate::predicateWithFormatAndArguments(format, arguments).evaluateWithObject(note);
    }

    DictionaryObject work{{{"title", "Work"}, {"notes", 3}}, 1};
    DictionaryObject rome{{{"title", "Rome"}, {"notes", nullptr}}, 2};
    DictionaryObject sameAsWork{{{"title", "other"}}, 1};
    DictionaryObject author{{{"name", "Ana"}, {"tags", listed({&work})}}, 3};
    DictionaryObject picture{{{"unused", false}, {"searchText", "A Café"}, {"tags", listed({&rome, &work})}}, 4};
    DictionaryObject scan{{{"unused", true}, {"searchText", nullptr}, {"tags", listed({})}}, 5};
    DictionaryObject note{
        {{"title", "Trip"}, {"trashed", false}, {"count", 2}, {"author", &author}, {"editor", nullptr},
            {"tags", listed({&work, &rome})}, {"files", listed({&picture, &scan})}, {"links", listed({})}},
        6};
};

TEST_F(RecordsWithTags, AreReadAlongKeyPaths)
{
    EXPECT_TRUE(holds("title == 'Trip' AND trashed == NO AND count > 1"));
    EXPECT_TRUE(holds("author.name == 'Ana'"));
    EXPECT_TRUE(holds("SELF.author.name == 'Ana'"));
    EXPECT_TRUE(holds("editor == nil"));
    EXPECT_TRUE(holds("editor.name == nil"));
    EXPECT_FALSE(holds("editor.name == 'Ana'"));
    EXPECT_TRUE(holds("count == tags.@count"));
    EXPECT_TRUE(holds("count IN {count, 9}"));
}

TEST_F(RecordsWithTags, RaiseForAKeyThatIsNotThere)
{
    EXPECT_THROW(holds("missing == 1"), NSException);
    EXPECT_THROW(holds("title.length == 1"), NSException);
}

TEST_F(RecordsWithTags, GiveFlatCollectionsOverToManyPaths)
{
    EXPECT_TRUE(holds("tags.title == {'Rome', 'Work'}"));
    EXPECT_TRUE(holds("tags.title CONTAINS 'Work'"));
    EXPECT_TRUE(holds("files.tags.title == {'Rome', 'Work'}"));
    EXPECT_TRUE(holds("files.tags.@count == 2"));
    EXPECT_TRUE(holds("author.tags.title == {'Work'}"));
    EXPECT_TRUE(holds("'Rome' IN tags.title"));
    EXPECT_FALSE(holds("'rome' IN tags.title"));
    EXPECT_TRUE(holds("'rome' IN[c] tags.title"));
}

TEST_F(RecordsWithTags, CountTheirMembers)
{
    EXPECT_TRUE(holds("tags.@count == 2 AND links.@count == 0 AND editor.tags.@count == 0"));
    EXPECT_TRUE(holds("links.@count != 1"));
}

TEST_F(RecordsWithTags, AnswerForAnyAllOrNoneOfThem)
{
    EXPECT_TRUE(holds("ANY tags.title ==[cd] 'work'"));
    EXPECT_FALSE(holds("NONE tags.title ==[cd] 'work'"));
    EXPECT_FALSE(holds("ALL tags.title ==[cd] 'work'"));
    EXPECT_TRUE(holds("ALL tags.title CONTAINS[cd] 'o'"));
    EXPECT_FALSE(holds("ANY links.title == 'x'"));
    EXPECT_TRUE(holds("ALL links.title == 'x' AND NONE links.title == 'x'"));
    EXPECT_TRUE(holds("ANY files.searchText CONTAINS[cd] 'cafe'"));
    EXPECT_TRUE(holds("ANY files.searchText == nil"));
    EXPECT_TRUE(holds("ANY files.tags.notes == 3"));
    EXPECT_FALSE(holds("ANY editor.tags.title == nil"));
}

TEST_F(RecordsWithTags, AreComparedByIdentity)
{
    EXPECT_TRUE(holds("%@ IN tags", {&work}));
    EXPECT_TRUE(holds("%@ IN tags", {&sameAsWork}));
    EXPECT_FALSE(holds("%@ IN tags", {&author}));
    EXPECT_TRUE(holds("tags CONTAINS %@", {&rome}));
    EXPECT_TRUE(holds("ANY tags == %@", {&rome}));
    EXPECT_TRUE(holds("ANY tags IN %@", {Value::Array{&rome, &author}}));
    EXPECT_FALSE(holds("ANY tags IN %@", {Value::Array{&author}}));
    EXPECT_TRUE(holds("author == %@", {&author}));
    EXPECT_TRUE(holds("author != %@", {&work}));
    EXPECT_TRUE(holds("editor != %@", {&work}));
    EXPECT_TRUE(holds("self == %@", {&note}));
    EXPECT_FALSE(holds("self != %@", {&note}));
    EXPECT_FALSE(holds("author < %@", {&work}));
    EXPECT_TRUE(holds("tags == %@", {Value::Array{&rome, &sameAsWork}}));
}

TEST_F(RecordsWithTags, AreSelectedBySubqueries)
{
    EXPECT_TRUE(
        holds("SUBQUERY(files, $file, $file.unused == NO AND $file.searchText CONTAINS[cd] 'cafe').@count != 0"));
    EXPECT_TRUE(
        holds("SUBQUERY(files, $file, $file.unused == YES AND $file.searchText CONTAINS[cd] 'cafe').@count == 0"));
    EXPECT_TRUE(holds("SUBQUERY(tags, $tag, $tag.title BEGINSWITH[cd] 'w').@count == 1"));
    EXPECT_TRUE(holds("SUBQUERY(files, $f, SUBQUERY($f.tags, $t, $t.title == 'Rome').@count > 0).@count == 1"));
    EXPECT_TRUE(holds("SUBQUERY(files, $f, ANY $f.tags.title == 'Rome').@count == 1"));
    EXPECT_TRUE(holds("SUBQUERY(tags, $t, $t.title == title).@count == 0"));
    EXPECT_TRUE(holds("SUBQUERY(tags, $t, title == 'Trip').@count == 2"));
    EXPECT_TRUE(holds("SUBQUERY(tags, $t, $t IN author.tags).@count == 1"));
    EXPECT_TRUE(holds("SUBQUERY(tags, $t, $t == %@).@count == 1", {&rome}));
    EXPECT_TRUE(holds("%@ IN SUBQUERY(tags, $t, $t.title == 'Rome')", {&rome}));
}

TEST_F(RecordsWithTags, AreLookedAtManyTimesByOneEvaluator)
{
    const PredicateEvaluator evaluator(NSPredicate::predicateWithFormat("ANY tags.title ==[cd] %@", "ROME"));
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_TRUE(evaluator.evaluate(note));
        EXPECT_TRUE(evaluator.evaluate(picture));
        EXPECT_FALSE(evaluator.evaluate(author));
    }
}

} // namespace
} // namespace tarn
