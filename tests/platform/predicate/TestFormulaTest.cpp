#include "tarnmodel/platform/predicate/TestFormula.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <random>

namespace tarn {
namespace {

/// A formula beside the plainest way to know what it comes to.
struct Pair {
    TestFormula::Node node;
    std::function<bool(std::uint32_t conditions, std::uint32_t tests)> value;
};

class FormulaMaker {
public:
    explicit FormulaMaker(std::mt19937& random) : random_(random) { }

    Pair part(int depth)
    {
        const bool negated = random_() % 2 == 0;
        const unsigned number = random_() % (random_() % 2 ? 3 : 10);
        switch (depth > 0 ? random_() % 6 : random_() % 3) {
        case 0:
            if (random_() % 4 == 0)
                return {formula.constant(negated), [negated](std::uint32_t, std::uint32_t) { return negated; }};
            return {formula.condition(number % 4, negated), [number, negated](std::uint32_t conditions, std::uint32_t) {
                        return ((conditions >> (number % 4)) & 1U) != (negated ? 1U : 0U);
                    }};
        case 1:
        case 2:
            return {formula.test(number, negated), [number, negated](std::uint32_t, std::uint32_t tests) {
                        return ((tests >> number) & 1U) != (negated ? 1U : 0U);
                    }};
        default:
            return compound(depth);
        }
    }

    TestFormula formula;

private:
    Pair compound(int depth)
    {
        const bool isAnd = random_() % 2 == 0;
        std::vector<TestFormula::Node> nodes;
        std::vector<Pair> members;
        for (auto count = random_() % 6; count > 0; --count) {
            members.push_back(part(depth - 1));
            nodes.push_back(members.back().node);
        }
        return {formula.compound(isAnd ? CompoundType::And : CompoundType::Or, nodes),
            [isAnd, members](std::uint32_t conditions, std::uint32_t tests) {
                for (const Pair& member : members)
                    if (member.value(conditions, tests) != isAnd)
                        return !isAnd;
                return isAnd;
            }};
    }

    std::mt19937& random_;
};

TEST(TestFormula, ComesToWhatItsPartsComeTo)
{
    std::mt19937 random(20261122);
    int settledEarly = 0;
    for (int round = 0; round < 10000; ++round) {
        FormulaMaker maker(random);
        const Pair root = maker.part(4);
        maker.formula.setRoot(root.node);
        for (const std::uint32_t conditions : {0U, 5U, 10U, 15U}) {
            FormulaOfTests left = maker.formula.given(conditions);
            for (int row = 0; row < 8; ++row) {
                const std::uint32_t tests = random() & 0x3FFU;
                left.reset();
                std::optional<bool> settled;
                for (const std::size_t test : left.tests()) {
                    if (left.isSettled() && !settled)
                        settled = left.value();
                    if ((tests >> test) & 1U)
                        left.setHolds(test);
                }
                ASSERT_EQ(left.value(), root.value(conditions, tests)) << round << " " << conditions << " " << tests;
                if (settled) {
                    ++settledEarly;
                    ASSERT_EQ(*settled, left.value()) << "it had said that nothing would change";
                }
            }
        }
    }
    EXPECT_GT(settledEarly, 1000);
}

TEST(TestFormula, AsksOnlyForTestsThatMatter)
{
    TestFormula formula;
    const auto both = [&](TestFormula::Node left, TestFormula::Node right) {
        return formula.compound(CompoundType::And, {left, right});
    };
    formula.setRoot(formula.compound(CompoundType::Or,
        {both(formula.condition(0, false), formula.test(0, false)),
            both(formula.condition(0, true), formula.test(1, false))}));
    EXPECT_EQ(formula.tests(), std::vector<std::size_t>({0, 1}));
    EXPECT_EQ(formula.given(1).tests(), std::vector<std::size_t>{0});
    EXPECT_EQ(formula.given(0).tests(), std::vector<std::size_t>{1});
}

TEST(TestFormula, KnowsEqualPartsAsOne)
{
    TestFormula formula;
    const auto one = formula.compound(CompoundType::Or, {formula.test(0, false), formula.test(1, false)});
    const auto other
        = formula.compound(CompoundType::Or, {formula.test(1, false), formula.test(0, false), formula.constant(false)});
    EXPECT_EQ(one, other);
    EXPECT_EQ(formula.compound(CompoundType::And, {one, other, formula.constant(true)}), one);
    EXPECT_TRUE(formula.isConstant(formula.compound(CompoundType::And, {one, formula.constant(false)})));
}

} // namespace
} // namespace tarn
