#pragma once

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace tarn {

/// Makes trees of every form that the parser can give, from a seed; hostile strings and extreme numbers among them.
class RandomPredicate {
public:
    explicit RandomPredicate(std::uint32_t seed);

    PredicateNode predicate(int depth);

private:
    PredicateNode compound(int depth, CompoundType type);
    PredicateNode comparison(int depth);
    ExpressionPtr expression(int depth);
    ExpressionPtr collection(int depth);
    ExpressionPtr subquery(int depth);
    ExpressionPtr aggregate(int depth);
    ExpressionPtr keyPath();
    Value constant(int depth);
    std::string string();
    std::int64_t integer();
    double number();
    std::size_t below(std::size_t limit);
    bool chance(std::size_t oneIn) { return below(oneIn) == 0; }

    std::mt19937 random_;
    std::vector<std::string> variables_;
};

} // namespace tarn
