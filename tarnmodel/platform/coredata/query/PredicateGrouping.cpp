#include "tarnmodel/platform/coredata/query/PredicateGrouping.h"

#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <string>
#include <unordered_map>

namespace tarn {

namespace {

constexpr char kSeparator = '\x1F';

/// Names what a comparison looks at; empty when it cannot be part of a list.
std::string groupKey(const ComparisonPredicate& comparison, CompoundType type)
{
    const bool isOr = type == CompoundType::Or;
    const bool direct = comparison.modifier == ComparisonModifier::Direct
        && comparison.operation == (isOr ? ComparisonOperator::EqualTo : ComparisonOperator::NotEqualTo);
    const bool collective = comparison.modifier == (isOr ? ComparisonModifier::Any : ComparisonModifier::None)
        && comparison.operation == ComparisonOperator::EqualTo;
    const auto* constant = std::get_if<ConstantExpression>(&comparison.right->form);
    const auto* path = std::get_if<KeyPathExpression>(&comparison.left->form);
    if ((!direct && !collective) || !constant || !path)
        return {};
    if (constant->value.isNil() || constant->value.kind() == Value::Kind::Array)
        return {};
    std::string key(collective ? "many" : "one");
    key += comparison.options.caseInsensitive ? 'c' : '-';
    key += comparison.options.diacriticInsensitive ? 'd' : '-';
    const auto* variable = std::get_if<VariableExpression>(&path->base->form);
    key += variable ? variable->name : std::string();
    for (const std::string& step : path->keys)
        key += kSeparator + step;
    return key;
}

struct Group {
    std::size_t place; ///< in the result
    const ComparisonPredicate* first;
    Value::Array values;
};

PredicateNodePtr listComparison(const Group& group, CompoundType type)
{
    ComparisonPredicate list = *group.first;
    list.operation = ComparisonOperator::In;
    list.right = std::make_shared<Expression>(Expression{ConstantExpression{Value(group.values)}});
    auto node = std::make_shared<PredicateNode>(PredicateNode{std::move(list)});
    if (type == CompoundType::Or || group.first->modifier == ComparisonModifier::None)
        return node;
    return std::make_shared<PredicateNode>(PredicateNode{NotPredicate{node}});
}

} // namespace

std::vector<PredicateNodePtr> groupedMembers(const CompoundPredicate& compound)
{
    std::vector<PredicateNodePtr> members;
    std::unordered_map<std::string, Group> groups;
    for (const PredicateNodePtr& member : compound.members) {
        const auto* comparison = std::get_if<ComparisonPredicate>(&member->form);
        const std::string key = comparison ? groupKey(*comparison, compound.type) : std::string();
        if (key.empty()) {
            members.push_back(member);
            continue;
        }
        const auto [group, isNew] = groups.try_emplace(key, Group{members.size(), comparison, {}});
        if (isNew)
            members.push_back(member);
        group->second.values.push_back(std::get<ConstantExpression>(comparison->right->form).value);
    }
    for (const auto& [key, group] : groups)
        if (group.values.size() > 1)
            members[group.place] = listComparison(group, compound.type);
    return members;
}

} // namespace tarn
