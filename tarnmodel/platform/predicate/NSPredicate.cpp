#include "tarnmodel/platform/predicate/NSPredicate.h"

#include "tarnmodel/platform/predicate/PredicateEquality.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"
#include "tarnmodel/platform/predicate/PredicateNesting.h"
#include "tarnmodel/platform/predicate/PredicateParser.h"
#include "tarnmodel/platform/predicate/PredicatePrinter.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <utility>

namespace tarn {

namespace {

NSPredicate predicateWithNode(PredicateNode node)
{
    return NSPredicate(std::make_shared<const PredicateNode>(std::move(node)));
}

NSPredicate joined(CompoundType type, std::span<const NSPredicate> predicates)
{
    CompoundPredicate compound{.type = type, .members = {}};
    for (const NSPredicate& predicate : predicates) {
        const auto* nested = std::get_if<CompoundPredicate>(&predicate.node().form);
        if (nested && nested->type == type)
            compound.members.insert(compound.members.end(), nested->members.begin(), nested->members.end());
        else
            compound.members.push_back(predicate.nodePtr());
    }
    if (compound.members.empty())
        return NSPredicate::predicateWithValue(type == CompoundType::And);
    if (compound.members.size() == 1)
        return NSPredicate(compound.members.front());
    PredicateNode node{std::move(compound)};
    requireNestingWithinLimit(node);
    return predicateWithNode(std::move(node));
}

} // namespace

NSPredicate::NSPredicate(PredicateNodePtr node) : node_(std::move(node)) { }

NSPredicate NSPredicate::predicateWithFormatAndArguments(std::string_view format, std::span<const Value> arguments)
{
    return predicateWithNode(PredicateParser(format, arguments).parse());
}

NSPredicate NSPredicate::predicateWithValue(bool value)
{
    return predicateWithNode({ConstantPredicate{value}});
}

NSPredicate NSPredicate::andPredicateWithSubpredicates(std::span<const NSPredicate> predicates)
{
    return joined(CompoundType::And, predicates);
}

NSPredicate NSPredicate::orPredicateWithSubpredicates(std::span<const NSPredicate> predicates)
{
    return joined(CompoundType::Or, predicates);
}

NSPredicate NSPredicate::notPredicateWithSubpredicate(const NSPredicate& predicate)
{
    PredicateNode node{NotPredicate{predicate.nodePtr()}};
    requireNestingWithinLimit(node);
    return predicateWithNode(std::move(node));
}

std::string NSPredicate::predicateFormat() const
{
    requireNestingWithinLimit(*node_);
    std::string result;
    PredicatePrinter(result).print(*node_);
    return result;
}

bool NSPredicate::evaluateWithObject(const NSKeyValueCoding& object) const
{
    return PredicateEvaluator(*this).evaluate(object);
}

bool operator==(const NSPredicate& left, const NSPredicate& right)
{
    return isSamePredicate(*left.node_, *right.node_);
}

} // namespace tarn
