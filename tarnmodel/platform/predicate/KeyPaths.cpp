#include "tarnmodel/platform/predicate/NSPredicate.h"
#include "tarnmodel/platform/predicate/PredicateNesting.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace tarn {

namespace {

using KeyPath = std::vector<std::string>;

class KeyPathCollector {
public:
    void visit(const PredicateNode& node)
    {
        std::visit(Overloaded{
                       [this](const ComparisonPredicate& comparison) {
                           visit(*comparison.left);
                           visit(*comparison.right);
                       },
                       [this](const CompoundPredicate& compound) {
                           for (const PredicateNodePtr& member : compound.members)
                               visit(*member);
                       },
                       [this](const NotPredicate& negation) { visit(*negation.operand); },
                       [](const ConstantPredicate&) {},
                   },
            node.form);
    }

    std::vector<KeyPath> takePaths() { return std::move(paths_); }

private:
    /// Notes what the expression reads. The path from the root to its members; none when they come from elsewhere.
    std::optional<KeyPath> visit(const Expression& expression)
    {
        using Path = std::optional<KeyPath>;
        return std::visit(Overloaded{
                              [](const ConstantExpression&) { return Path(); },
                              [](const SelfExpression&) { return Path(KeyPath()); },
                              [this](const VariableExpression& variable) { return pathOf(variable.name); },
                              [this](const KeyPathExpression& path) { return visit(path); },
                              [this](const CountExpression& count) {
                                  visit(*count.collection);
                                  return Path();
                              },
                              [this](const SubqueryExpression& subquery) { return visit(subquery); },
                              [this](const AggregateExpression& aggregate) {
                                  for (const ExpressionPtr& member : aggregate.members)
                                      visit(*member);
                                  return Path();
                              },
                          },
            expression.form);
    }

    std::optional<KeyPath> visit(const KeyPathExpression& expression)
    {
        std::optional<KeyPath> path = visit(*expression.base);
        if (!path)
            return std::nullopt;
        path->insert(path->end(), expression.keys.begin(), expression.keys.end());
        if (known_.insert(*path).second)
            paths_.push_back(*path);
        return path;
    }

    std::optional<KeyPath> visit(const SubqueryExpression& subquery)
    {
        std::optional<KeyPath> path = visit(*subquery.collection);
        variables_.emplace_back(subquery.variable, path);
        visit(*subquery.predicate);
        variables_.pop_back();
        return path;
    }

    std::optional<KeyPath> pathOf(const std::string& name) const
    {
        const auto found = std::find_if(
            variables_.rbegin(), variables_.rend(), [&name](const auto& variable) { return variable.first == name; });
        return found == variables_.rend() ? std::nullopt : found->second;
    }

    std::vector<std::pair<std::string, std::optional<KeyPath>>> variables_; // innermost last
    std::set<KeyPath> known_;
    std::vector<KeyPath> paths_;
};

} // namespace

std::vector<std::vector<std::string>> keyPathsReadByPredicate(const NSPredicate& predicate)
{
    requireNestingWithinLimit(predicate.node());
    KeyPathCollector collector;
    collector.visit(predicate.node());
    return collector.takePaths();
}

} // namespace tarn
