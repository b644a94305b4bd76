#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"
#include "tests/platform/predicate/DictionaryObject.h"
#include "tests/platform/predicate/RandomPredicate.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>

namespace tarn {
namespace {

NSPredicate predicateWithConstant(Value value)
{
    return NSPredicate::predicateWithFormatAndArguments("a == %@", std::vector{std::move(value)});
}

std::string printed(Value value)
{
    return predicateWithConstant(std::move(value)).predicateFormat();
}

TEST(PredicatePrinter, GivesTextThatParsesToTheSameTree)
{
    constexpr std::uint32_t kFirstSeed = 20'240'601;
    constexpr std::uint32_t kTrees = 30'000;
    for (std::uint32_t seed = kFirstSeed; seed < kFirstSeed + kTrees; ++seed) {
        const int depth = static_cast<int>(seed % 6);
        const NSPredicate predicate(std::make_shared<const PredicateNode>(RandomPredicate(seed).predicate(depth)));
        const std::string format = predicate.predicateFormat();
        const NSPredicate again = NSPredicate::predicateWithFormat(format);
        ASSERT_EQ(again, predicate) << "seed " << seed << ": " << format;
        ASSERT_EQ(again.predicateFormat(), format) << "seed " << seed;
    }
}

TEST(PredicatePrinter, TellsRandomTreesApart)
{
    std::size_t equal = 0;
    for (std::uint32_t seed = 0; seed < 2'000; ++seed) {
        const NSPredicate one(std::make_shared<const PredicateNode>(RandomPredicate(seed).predicate(3)));
        const NSPredicate other(std::make_shared<const PredicateNode>(RandomPredicate(seed + 1).predicate(3)));
        EXPECT_EQ(one == other, one.predicateFormat() == other.predicateFormat()) << "seed " << seed;
        equal += one == other ? 1 : 0;
    }
    EXPECT_LT(equal, 100U);
}

TEST(Predicates, DifferInEveryPart)
{
    const std::vector<std::string> formats{"a == 1", "a == 2", "a == 1.0", "a == '1'", "a == nil", "a != 1", "b == 1",
        "a.b == 1", "a ==[c] 1", "a ==[d] 1", "a ==[cd] 1", "ANY a == 1", "ALL a == 1", "NONE a == 1", "NOT a == 1",
        "1 == a", "a.@count == 1", "SELF == 1", "a == {1}", "a == {1, 1}", "a == {b}", "a == {b, b}",
        "a == CAST(1, 'NSDate')", "a == CAST('31', 'NSData')", "a == 1 AND a == 1", "a == 1 OR a == 1",
        "a == 1 AND a == 1 AND a == 1", "TRUEPREDICATE", "FALSEPREDICATE", "SUBQUERY(a, $x, $x.b == 1).@count == 1",
        "SUBQUERY(a, $y, $y.b == 1).@count == 1", "SUBQUERY(a, $x, $x == 1).@count == 1",
        "SUBQUERY(c, $x, $x.b == 1).@count == 1", "SUBQUERY(a, $x, b == 1).@count == 1"};
    for (std::size_t one = 0; one < formats.size(); ++one) {
        for (std::size_t other = 0; other < formats.size(); ++other) {
            const NSPredicate left = NSPredicate::predicateWithFormat(formats[one]);
            const NSPredicate right = NSPredicate::predicateWithFormat(formats[other]);
            EXPECT_EQ(left == right, one == other) << formats[one] << " and " << formats[other];
            EXPECT_EQ(left.predicateFormat() == right.predicateFormat(), one == other);
        }
    }
}

TEST(PredicatePrinter, WritesDatesToTheMicrosecond)
{
    const auto date = [](std::int64_t microseconds) { return dateWithMicrosecondsSinceReferenceDate(microseconds); };
    EXPECT_EQ(printed(date(0)), "a == CAST(0.000000, \"NSDate\")");
    EXPECT_EQ(printed(date(1)), "a == CAST(0.000001, \"NSDate\")");
    EXPECT_EQ(printed(date(-1)), "a == CAST(-0.000001, \"NSDate\")");
    EXPECT_EQ(printed(date(-1'500'000)), "a == CAST(-1.500000, \"NSDate\")");
    EXPECT_EQ(printed(date(123'456'789'012'345)), "a == CAST(123456789.012345, \"NSDate\")");
    EXPECT_EQ(printed(dateWithMicrosecondsSince1970(-1)), "a == CAST(-978307200.000001, \"NSDate\")");
}

TEST(PredicatePrinter, ReadsBackTheEarliestAndTheLatestDate)
{
    for (const std::int64_t microseconds :
        {std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()}) {
        const NSPredicate predicate = predicateWithConstant(dateWithMicrosecondsSince1970(microseconds));
        EXPECT_EQ(NSPredicate::predicateWithFormat(predicate.predicateFormat()), predicate);
    }
}

TEST(PredicatePrinter, KeepsIntegersAndDoublesApart)
{
    EXPECT_EQ(printed(2), "a == 2");
    EXPECT_EQ(printed(2.0), "a == 2.0");
    EXPECT_NE(predicateWithConstant(2), predicateWithConstant(2.0));
    EXPECT_EQ(printed(std::numeric_limits<std::int64_t>::min()), "a == -9223372036854775808");
    EXPECT_EQ(printed(0.1 + 0.2), "a == 0.30000000000000004");
    EXPECT_EQ(printed(-1e300), "a == -1e+300");
}

TEST(PredicatePrinter, WritesWhatTheLanguageCannotNameSoThatItIsRefused)
{
    const DictionaryObject record({});
    EXPECT_EQ(printed(&record), "a == <object>");
    EXPECT_EQ(printed(Value::Array{1, &record}), "a == {1, <object>}");
    EXPECT_THROW(NSPredicate::predicateWithFormat(printed(&record)), NSException);
}

// Predicates made of predicates ---------------------------------------------------------------------------------------

TEST(JoinedPredicates, BecomeOneNode)
{
    const auto predicate = [](std::string_view format) { return NSPredicate::predicateWithFormat(format); };
    const std::vector both{predicate("a == 1 AND b == 2"), predicate("c == 3 OR d == 4")};
    EXPECT_EQ(
        NSPredicate::andPredicateWithSubpredicates(both).predicateFormat(), "a == 1 AND b == 2 AND (c == 3 OR d == 4)");
    EXPECT_EQ(
        NSPredicate::orPredicateWithSubpredicates(both).predicateFormat(), "(a == 1 AND b == 2) OR c == 3 OR d == 4");
    EXPECT_EQ(NSPredicate::notPredicateWithSubpredicate(both[0]).predicateFormat(), "NOT (a == 1 AND b == 2)");
    EXPECT_EQ(NSPredicate::andPredicateWithSubpredicates(both), predicate("a == 1 AND b == 2 AND (c == 3 OR d == 4)"));
}

TEST(JoinedPredicates, OfOneAreThatOneAndOfNoneAreConstants)
{
    const std::vector one{NSPredicate::predicateWithFormat("a == 1")};
    EXPECT_EQ(NSPredicate::orPredicateWithSubpredicates(one), one[0]);
    EXPECT_EQ(NSPredicate::andPredicateWithSubpredicates({}), NSPredicate::predicateWithValue(true));
    EXPECT_EQ(NSPredicate::orPredicateWithSubpredicates({}), NSPredicate::predicateWithValue(false));
    EXPECT_EQ(NSPredicate::predicateWithValue(false).predicateFormat(), "FALSEPREDICATE");
}

TEST(JoinedPredicates, StopAtTheLimitOfNesting)
{
    NSPredicate predicate = NSPredicate::predicateWithFormat("a == 1");
    for (int depth = 0; depth < maximumPredicateDepth; ++depth)
        predicate = NSPredicate::notPredicateWithSubpredicate(predicate);
    EXPECT_THROW(NSPredicate::notPredicateWithSubpredicate(predicate), NSException);
    EXPECT_EQ(NSPredicate::predicateWithFormat(predicate.predicateFormat()), predicate);
}

TEST(PredicatePrinter, LooksThroughNodesOfOneMember)
{
    const auto leaf = NSPredicate::predicateWithFormat("a == 1 OR b == 2").nodePtr();
    const auto lone
        = std::make_shared<const PredicateNode>(PredicateNode{CompoundPredicate{CompoundType::And, {leaf}}});
    const NSPredicate negation(std::make_shared<const PredicateNode>(PredicateNode{NotPredicate{lone}}));
    EXPECT_EQ(negation.predicateFormat(), "NOT (a == 1 OR b == 2)");
    EXPECT_EQ(NSPredicate(lone).predicateFormat(), "a == 1 OR b == 2");
}

} // namespace
} // namespace tarn
