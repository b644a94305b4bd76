#include "tarnmodel/platform/coredata/query/SQLConditionBuilder.h"

#include "tarnmodel/platform/coredata/query/PredicateGrouping.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>
#include <span>

namespace tarn {

namespace {

constexpr int kDeepestNesting = 30; // SQLite's parser takes about a hundred open parentheses
constexpr int kMostLeaves = 2000;
constexpr std::size_t kLongestFlatChain = 8;

/// What a predicate that reads nothing is evaluated with.
class NoObject final : public NSKeyValueCoding {
public:
    Value storedValueForKey(std::string_view key) const override
    {
        throw NSException(NSUndefinedKeyException, "nothing has the key \"" + std::string(key) + "\"");
    }
};

bool isConstant(const Expression& expression)
{
    if (std::holds_alternative<ConstantExpression>(expression.form))
        return true;
    const auto* aggregate = std::get_if<AggregateExpression>(&expression.form);
    return aggregate
        && std::all_of(aggregate->members.begin(), aggregate->members.end(),
            [](const ExpressionPtr& member) { return isConstant(*member); });
}

/// The operator that says the same with both sides exchanged; none where there is none.
std::optional<ComparisonOperator> mirrored(ComparisonOperator operation)
{
    switch (operation) {
    case ComparisonOperator::EqualTo:
    case ComparisonOperator::NotEqualTo:
        return operation;
    case ComparisonOperator::LessThan:
        return ComparisonOperator::GreaterThan;
    case ComparisonOperator::LessThanOrEqualTo:
        return ComparisonOperator::GreaterThanOrEqualTo;
    case ComparisonOperator::GreaterThan:
        return ComparisonOperator::LessThan;
    case ComparisonOperator::GreaterThanOrEqualTo:
        return ComparisonOperator::LessThanOrEqualTo;
    case ComparisonOperator::In:
        return ComparisonOperator::Contains;
    default:
        return std::nullopt;
    }
}

std::string halved(std::span<const std::string> parts, std::string_view connective)
{
    std::string sql;
    if (parts.size() <= kLongestFlatChain) {
        for (const std::string& part : parts)
            sql += (sql.empty() ? "" : std::string(connective)) + part;
        return sql;
    }
    const std::size_t half = parts.size() / 2;
    return "(" + halved(parts.first(half), connective) + ")" + std::string(connective) + "("
        + halved(parts.subspan(half), connective) + ")";
}

} // namespace

std::string SQLConditionBuilder::joined(const std::vector<std::string>& parts, std::string_view connective)
{
    return halved(parts, connective);
}

SQLConditionBuilder::Condition SQLConditionBuilder::condition(const PredicateNode& node, SQLScope& scope, bool negated)
{
    return std::visit(
        Overloaded{
            [&](const ComparisonPredicate& predicate) { return comparison(predicate, scope, negated); },
            [&](const CompoundPredicate& predicate) { return compound(predicate, scope, negated); },
            [&](const NotPredicate& predicate) { return condition(*predicate.operand, scope, !negated); },
            [&](const ConstantPredicate& predicate) { return Condition(literal(predicate.value != negated)); },
        },
        node.form);
}

SQLConditionBuilder::Condition SQLConditionBuilder::compound(
    const CompoundPredicate& predicate, SQLScope& scope, bool negated)
{
    if (depth_ >= kDeepestNesting)
        return std::nullopt;
    ++depth_;
    const bool isAnd = (predicate.type == CompoundType::And) != negated;
    Condition result = membersOfCompound(groupedMembers(predicate), isAnd, scope, negated);
    --depth_;
    return result;
}

SQLConditionBuilder::Condition SQLConditionBuilder::membersOfCompound(
    std::vector<PredicateNodePtr> members, bool isAnd, SQLScope& scope, bool negated)
{
    const std::string_view neutral = isAnd ? always : never;
    std::vector<PredicateNodePtr> texts = takeTexts(members, scope);
    const std::vector<std::string> ofTexts = textConditions(texts, isAnd, scope, negated);
    members.insert(members.end(), texts.begin(), texts.end());
    std::vector<std::string> parts;
    for (const PredicateNodePtr& member : members) {
        Condition part = condition(*member, scope, negated);
        if (!part)
            return std::nullopt;
        if (*part == neutral)
            continue;
        if (*part == (isAnd ? never : always))
            return part;
        parts.push_back(std::move(*part));
    }
    // What reads texts comes last.
    for (const std::string& part : ofTexts) {
        if (part == (isAnd ? never : always))
            return part;
        if (part != neutral)
            parts.push_back(part);
    }
    if (parts.empty())
        return std::string(neutral);
    if (parts.size() == 1)
        return parts.front();
    return "(" + joined(parts, isAnd ? " AND " : " OR ") + ")";
}

SQLConditionBuilder::Condition SQLConditionBuilder::comparison(
    const ComparisonPredicate& predicate, SQLScope& scope, bool negated)
{
    if (++leafCount_ > kMostLeaves)
        return std::nullopt;
    const bool leftIsConstant = isConstant(*predicate.left);
    if (leftIsConstant && isConstant(*predicate.right)) {
        const NSPredicate constant(std::make_shared<PredicateNode>(PredicateNode{predicate}));
        return literal(constant.evaluateWithObject(NoObject()) != negated);
    }
    if (leftIsConstant) {
        const auto operation = mirrored(predicate.operation);
        if (!operation || predicate.modifier != ComparisonModifier::Direct)
            return std::nullopt;
        ComparisonPredicate turned = predicate;
        std::swap(turned.left, turned.right);
        turned.operation = *operation;
        return comparison(turned, scope, negated);
    }
    if (const auto* counted = std::get_if<CountExpression>(&predicate.left->form)) {
        const auto* constant = std::get_if<ConstantExpression>(&predicate.right->form);
        if (!constant || predicate.modifier != ComparisonModifier::Direct)
            return std::nullopt;
        return count(*counted, predicate.operation, constant->value, scope, negated);
    }
    auto end = pathEnd(*predicate.left, scope);
    if (!end)
        return std::nullopt;
    return end->toMany ? quantified(*end, predicate, scope, false, negated)
                       : comparePath(std::move(*end), predicate, scope, negated);
}

// Where things stand --------------------------------------------------------------------------------------------------

SQLScope* SQLConditionBuilder::scopeOf(const Expression& base, SQLScope& scope) const
{
    const auto* variable = std::get_if<VariableExpression>(&base.form);
    if (!variable && !std::holds_alternative<SelfExpression>(base.form))
        return nullptr;
    SQLScope* found = &scope;
    const auto isWanted = [&] { return variable ? found->variable == variable->name : found->outer == nullptr; };
    while (found && !isWanted())
        found = found->outer;
    for (SQLScope* passed = &scope; found && passed != found; passed = passed->outer)
        passed->readsOuter = true;
    return found;
}

std::optional<SQLPathEnd> SQLConditionBuilder::pathEnd(const Expression& expression, SQLScope& scope)
{
    const auto* path = std::get_if<KeyPathExpression>(&expression.form);
    SQLScope* base = scopeOf(path ? *path->base : expression, scope);
    if (!base)
        return std::nullopt;
    return paths_.follow(paths_.placeOf(*base), path ? std::span(path->keys) : std::span<const std::string>());
}

SQLConditionBuilder::Operand SQLConditionBuilder::operandAt(SQLPathEnd& end)
{
    Operand operand;
    if (!end.attribute) {
        operand.sql = end.place.key;
        operand.kind = Kind::Object;
        operand.entity = end.place.entity;
        operand.indexed = true;
        return operand;
    }
    operand.indexed = end.attribute->isIndexed();
    operand.flagSelect = flagSelect(end);
    operand.settlesTies = options_.walksOrder && end.place.path.empty() && end.place.scope->outer == nullptr
        && std::ranges::find(options_.tieKeys, end.attribute->name()) != options_.tieKeys.end();
    if (options_.rowsThatMayMatch && hasSignature(*end.attribute)) {
        operand.searched = end.attribute;
        operand.key = end.place.key;
    }
    operand.sql
        = operand.searched && end.attribute->isLarge() ? searchedColumn(end) : paths_.column(end.place, *end.attribute);
    if (end.attribute->type() == NSAttributeType::String)
        operand.kind = Kind::String;
    else if (end.attribute->type() == NSAttributeType::Date)
        operand.kind = Kind::Date;
    else if (end.attribute->type() == NSAttributeType::Data)
        operand.kind = Kind::Data;
    if (options_.usesShadows && hasShadowColumn(*end.attribute))
        operand.shadow = paths_.shadowColumn(end.place, *end.attribute);
    return operand;
}

/// Most rows are passed over by their keys alone: the large table is looked at for the others only.
std::string SQLConditionBuilder::searchedColumn(const SQLPathEnd& end) const
{
    end.place.scope->readsTexts = true;
    return "(SELECT " + quotedIdentifier(end.attribute->name()) + " FROM "
        + quotedIdentifier(paths_.schema().table(*end.place.entity).largeName) + " WHERE \"pk\" = " + end.place.key
        + ")";
}

std::string SQLConditionBuilder::flagSelect(const SQLPathEnd& end) const
{
    const bool isOfWalkedRow = end.place.path.empty() && end.place.scope->outer == nullptr;
    if (!options_.isCommonFlag || !options_.walksOrder || !isOfWalkedRow
        || end.attribute->type() != NSAttributeType::Boolean || end.attribute->name() == options_.firstSortKey)
        return {};
    const auto& indexes = end.attribute->declaringEntity().indexes();
    const auto startsWithFlag = [&](const IndexDescription& index) {
        return !index.columns.empty() && index.columns.front().property == end.attribute->name();
    };
    if (!end.attribute->isIndexed() && std::none_of(indexes.begin(), indexes.end(), startsWithFlag))
        return {};
    return "SELECT 1 FROM " + quotedIdentifier(paths_.schema().table(*end.place.entity).name) + " WHERE "
        + quotedIdentifier(end.attribute->name());
}

std::optional<SQLConditionBuilder::Operand> SQLConditionBuilder::operand(const Expression& expression, SQLScope& scope)
{
    auto end = pathEnd(expression, scope);
    if (!end || end->toMany)
        return std::nullopt;
    return operandAt(*end);
}

} // namespace tarn
