#include "tests/platform/predicate/RandomPredicate.h"

#include "tarnmodel/platform/foundation/text/UTF.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <utility>

namespace tarn {

namespace {

constexpr std::array<std::string_view, 10> kKeys{
    "title", "text", "in", "self", "größe", "_x9", "AND", "any", "nil", "truepredicate"};
constexpr std::array<std::string_view, 4> kVariables{"x", "note", "in", "é"};
constexpr std::array<std::string_view, 14> kPieces{"\"", "\\", "'", "%@", "$x", "\n", "é", "e\xCC\x81", "\xE2\x80\xA8",
    "😀", "{", ") OR TRUEPREDICATE", "\\u0041", " AND "};

ExpressionPtr shared(Expression expression)
{
    return std::make_shared<const Expression>(std::move(expression));
}
ExpressionPtr constantExpression(Value value)
{
    return shared(Expression{ConstantExpression{std::move(value)}});
}
PredicateNodePtr shared(PredicateNode node)
{
    return std::make_shared<const PredicateNode>(std::move(node));
}

} // namespace

RandomPredicate::RandomPredicate(std::uint32_t seed) : random_(seed) { }

std::size_t RandomPredicate::below(std::size_t limit)
{
    return random_() % limit;
}

PredicateNode RandomPredicate::predicate(int depth)
{
    if (depth <= 0 || chance(3))
        return chance(12) ? PredicateNode{ConstantPredicate{chance(2)}} : comparison(depth);
    switch (below(3)) {
    case 0:
        return {NotPredicate{shared(predicate(depth - 1))}};
    case 1:
        return compound(depth, CompoundType::And);
    default:
        return compound(depth, CompoundType::Or);
    }
}

PredicateNode RandomPredicate::compound(int depth, CompoundType type)
{
    CompoundPredicate result{.type = type, .members = {}};
    const std::size_t count = 2 + below(3);
    while (result.members.size() < count) {
        PredicateNode member = predicate(depth - 1);
        const auto* nested = std::get_if<CompoundPredicate>(&member.form);
        if (!nested || nested->type != type)
            result.members.push_back(shared(std::move(member)));
    }
    return {std::move(result)};
}

PredicateNode RandomPredicate::comparison(int depth)
{
    ComparisonPredicate result;
    result.left = expression(depth);
    result.operation = static_cast<ComparisonOperator>(below(13));
    result.modifier = static_cast<ComparisonModifier>(chance(2) ? 0 : below(4));
    result.options = {.caseInsensitive = chance(2), .diacriticInsensitive = chance(2)};
    if (result.operation == ComparisonOperator::Between)
        result.right = constantExpression(Value::Array{constant(0), constant(0)});
    else
        result.right = expression(depth);
    return {std::move(result)};
}

ExpressionPtr RandomPredicate::expression(int depth)
{
    switch (below(depth > 0 ? 8 : 5)) {
    case 0:
    case 1:
        return keyPath();
    case 2:
    case 3:
        return constantExpression(constant(depth));
    case 4:
        if (variables_.empty() || chance(2))
            return shared(Expression{SelfExpression{}});
        return shared(Expression{VariableExpression{variables_[below(variables_.size())]}});
    case 5:
        return shared(Expression{CountExpression{collection(depth - 1)}});
    case 6:
        return subquery(depth - 1);
    default:
        return aggregate(depth - 1);
    }
}

ExpressionPtr RandomPredicate::collection(int depth)
{
    switch (below(depth > 0 ? 4 : 2)) {
    case 0:
        return keyPath();
    case 1:
        return chance(4) ? constantExpression(nullptr) : constantExpression(Value::Array{constant(0)});
    case 2:
        return subquery(depth - 1);
    default:
        return aggregate(depth - 1);
    }
}

ExpressionPtr RandomPredicate::subquery(int depth)
{
    SubqueryExpression result;
    result.collection = collection(depth);
    result.variable = kVariables[below(kVariables.size())];
    variables_.push_back(result.variable);
    result.predicate = shared(predicate(depth));
    variables_.pop_back();
    return shared(Expression{std::move(result)});
}

ExpressionPtr RandomPredicate::aggregate(int depth)
{
    AggregateExpression result{{keyPath()}}; // one that is no constant, or all would be one
    for (std::size_t count = below(3); count > 0; --count)
        result.members.push_back(expression(depth));
    return shared(Expression{std::move(result)});
}

ExpressionPtr RandomPredicate::keyPath()
{
    KeyPathExpression result{.base = shared(Expression{SelfExpression{}}), .keys = {}};
    if (!variables_.empty() && chance(2))
        result.base = shared(Expression{VariableExpression{variables_[below(variables_.size())]}});
    for (std::size_t count = 1 + below(3); count > 0; --count)
        result.keys.emplace_back(kKeys[below(kKeys.size())]);
    return shared(Expression{std::move(result)});
}

Value RandomPredicate::constant(int depth)
{
    switch (below(depth > 0 ? 8 : 7)) {
    case 0:
        return {};
    case 1:
        return Value(integer());
    case 2:
        return Value(number());
    case 3:
    case 4:
        return Value(string());
    case 5:
        return Value(dateWithMicrosecondsSince1970(integer()));
    case 6:
        return Value(NSData::fromText(string()));
    default: {
        Value::Array members;
        for (std::size_t count = below(4); count > 0; --count)
            members.push_back(constant(depth - 1));
        return Value(std::move(members));
    }
    }
}

std::int64_t RandomPredicate::integer()
{
    const std::uint64_t bits = std::uint64_t{random_()} << 32 | random_();
    return std::bit_cast<std::int64_t>(bits) >> below(64);
}

double RandomPredicate::number()
{
    const std::uint64_t bits = std::uint64_t{random_()} << 32 | random_();
    const auto value = std::bit_cast<double>(bits);
    if (std::isfinite(value) && chance(2))
        return value;
    return static_cast<double>(integer()) / static_cast<double>(1 + below(4));
}

std::string RandomPredicate::string()
{
    std::string result;
    for (std::size_t count = below(8); count > 0; --count) {
        if (chance(2))
            result += kPieces[below(kPieces.size())];
        else
            appendCodePoint(result, static_cast<char32_t>(chance(2) ? below(0x80) : below(0x3000)));
    }
    return result;
}

} // namespace tarn
