#include "tarnmodel/platform/predicate/PredicateNesting.h"

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <fmt/format.h>

namespace tarn {

namespace {

// `levels` counts what is left; stopping at 0 bounds the recursion for any tree.
void descend(int levels)
{
    if (levels < 0) {
        throw NSException(NSInvalidArgumentException,
            fmt::format("The predicate is nested more than {} levels deep", maximumPredicateDepth));
    }
}

void visit(const PredicateNode& node, int levels);

void visit(const Value& value, int levels)
{
    if (value.kind() != Value::Kind::Array)
        return;
    descend(levels - 1);
    for (const Value& member : value.asArray())
        visit(member, levels - 1);
}

void visit(const Expression& expression, int levels)
{
    descend(levels);
    std::visit(Overloaded{
                   [&](const ConstantExpression& constant) { visit(constant.value, levels); },
                   [](const SelfExpression&) {},
                   [](const VariableExpression&) {},
                   [](const KeyPathExpression&) {},
                   [&](const CountExpression& count) { visit(*count.collection, levels); },
                   [&](const SubqueryExpression& subquery) {
                       visit(*subquery.collection, levels - 1);
                       visit(withoutLoneCompounds(*subquery.predicate), levels - 1);
                   },
                   [&](const AggregateExpression& aggregate) {
                       descend(levels - 1);
                       for (const ExpressionPtr& member : aggregate.members)
                           visit(*member, levels - 1);
                   },
               },
        expression.form);
}

void visitNested(const PredicateNode& nested, int levels)
{
    const PredicateNode& node = withoutLoneCompounds(nested);
    visit(node, isParenthesised(node) ? levels - 1 : levels);
}

void visit(const PredicateNode& node, int levels)
{
    descend(levels);
    std::visit(Overloaded{
                   [&](const ComparisonPredicate& comparison) {
                       visit(*comparison.left, levels);
                       visit(*comparison.right, levels);
                   },
                   [&](const CompoundPredicate& compound) {
                       for (const PredicateNodePtr& member : compound.members)
                           visitNested(*member, levels);
                   },
                   [&](const NotPredicate& negation) { visitNested(*negation.operand, levels - 1); },
                   [](const ConstantPredicate&) {},
               },
        node.form);
}

} // namespace

void requireNestingWithinLimit(const PredicateNode& node)
{
    visit(withoutLoneCompounds(node), maximumPredicateDepth);
}

const PredicateNode& withoutLoneCompounds(const PredicateNode& node)
{
    const PredicateNode* result = &node;
    for (;;) {
        const auto* compound = std::get_if<CompoundPredicate>(&result->form);
        if (!compound || compound->members.size() != 1)
            return *result;
        result = compound->members.front().get();
    }
}

bool isParenthesised(const PredicateNode& node)
{
    const auto* compound = std::get_if<CompoundPredicate>(&node.form);
    return compound && compound->members.size() > 1;
}

} // namespace tarn
