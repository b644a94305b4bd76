#include "tarnmodel/platform/predicate/PreparedPredicate.h"

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// Fewer are found as fast by looking at each.
constexpr std::size_t kShortestIndexedList = 8;

class Preparation {
public:
    PreparedPredicate prepare(const PredicateNode& node)
    {
        return std::visit(
            Overloaded{
                [this](const ComparisonPredicate& comparison) { return PreparedPredicate{prepare(comparison)}; },
                [this](const CompoundPredicate& compound) {
                    PreparedCompound prepared{.type = compound.type, .members = {}};
                    prepared.members.reserve(compound.members.size());
                    for (const PredicateNodePtr& member : compound.members)
                        prepared.members.push_back(prepare(*member));
                    return PreparedPredicate{std::move(prepared)};
                },
                [this](const NotPredicate& negation) {
                    auto operand = std::make_unique<PreparedPredicate>(prepare(*negation.operand));
                    return PreparedPredicate{PreparedNegation{std::move(operand)}};
                },
                [](const ConstantPredicate& constant) { return PreparedPredicate{PreparedTruth{constant.value}}; },
            },
            node.form);
    }

    std::size_t variableCount() const { return variableCount_; }

private:
    PreparedComparison prepare(const ComparisonPredicate& comparison)
    {
        PreparedComparison prepared{.left = prepare(*comparison.left),
            .right = prepare(*comparison.right),
            .operation = comparison.operation,
            .modifier = comparison.modifier,
            .options = comparison.options,
            .stringTest = {},
            .listedStrings = {}};
        prepareConstants(prepared);
        return prepared;
    }

    static void prepareConstants(PreparedComparison& comparison)
    {
        const bool isIn = comparison.operation == ComparisonOperator::In;
        const Value* needle = constantOf(isIn ? comparison.left : comparison.right);
        const bool isTested = comparison.operation != ComparisonOperator::Between;
        if (isTested && needle && needle->kind() == Value::Kind::String) {
            const ComparisonOperator operation = isIn ? ComparisonOperator::Contains : comparison.operation;
            comparison.stringTest.emplace(operation, comparison.options, needle->asString());
        }
        const Value* list = constantOf(comparison.right);
        if (isIn && list && list->kind() == Value::Kind::Array)
            comparison.listedStrings = listedStrings(list->asArray(), comparison.options);
    }

    static std::optional<std::unordered_set<std::string>> listedStrings(
        const Value::Array& values, ComparisonOptions options)
    {
        const auto isString = [](const Value& value) { return value.kind() == Value::Kind::String; };
        if (values.size() < kShortestIndexedList || !std::ranges::all_of(values, isString))
            return std::nullopt;
        std::unordered_set<std::string> strings;
        strings.reserve(values.size());
        for (const Value& value : values)
            strings.insert(folded(value.asString(), options));
        return strings;
    }

    static const Value* constantOf(const PreparedExpression& expression)
    {
        const auto* constant = std::get_if<PreparedConstant>(&expression.form);
        return constant ? &constant->value : nullptr;
    }

    PreparedExpression prepare(const Expression& expression)
    {
        return std::visit(
            Overloaded{
                [](const ConstantExpression& constant) { return PreparedExpression{PreparedConstant{constant.value}}; },
                [](const SelfExpression&) { return PreparedExpression{PreparedBase{}}; },
                [this](const VariableExpression& variable) {
                    return PreparedExpression{PreparedBase{placeOf(variable.name)}};
                },
                [this](const KeyPathExpression& path) {
                    return PreparedExpression{PreparedKeyPath{baseOf(*path.base), path.keys}};
                },
                [this](const CountExpression& count) {
                    auto collection = std::make_unique<PreparedExpression>(prepare(*count.collection));
                    return PreparedExpression{PreparedCount{std::move(collection)}};
                },
                [this](const SubqueryExpression& subquery) { return PreparedExpression{prepare(subquery)}; },
                [this](const AggregateExpression& aggregate) {
                    PreparedAggregate prepared;
                    for (const ExpressionPtr& member : aggregate.members)
                        prepared.members.push_back(prepare(*member));
                    return PreparedExpression{std::move(prepared)};
                },
            },
            expression.form);
    }

    PreparedSubquery prepare(const SubqueryExpression& subquery)
    {
        PreparedSubquery prepared;
        prepared.collection = std::make_unique<PreparedExpression>(prepare(*subquery.collection));
        prepared.variable = names_.size();
        names_.push_back(subquery.variable);
        variableCount_ = std::max(variableCount_, names_.size());
        prepared.predicate = std::make_unique<PreparedPredicate>(prepare(*subquery.predicate));
        names_.pop_back();
        return prepared;
    }

    PreparedBase baseOf(const Expression& base) const
    {
        if (const auto* variable = std::get_if<VariableExpression>(&base.form))
            return {placeOf(variable->name)};
        return {};
    }

    // The innermost SUBQUERY that binds the name.
    std::size_t placeOf(const std::string& name) const
    {
        const auto found = std::ranges::find(names_.rbegin(), names_.rend(), name);
        if (found == names_.rend())
            throw NSException(NSInvalidArgumentException, "No SUBQUERY binds the variable $" + name);
        return static_cast<std::size_t>(names_.rend() - found) - 1;
    }

    std::vector<std::string> names_;
    std::size_t variableCount_ = 0;
};

} // namespace

PreparedPredicate preparedPredicate(const PredicateNode& node, std::size_t& variableCount)
{
    Preparation preparation;
    PreparedPredicate prepared = preparation.prepare(node);
    variableCount = preparation.variableCount();
    return prepared;
}

} // namespace tarn
