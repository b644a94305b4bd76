// Conditions on collections: ANY, ALL, NONE, membership, counts and subqueries.

#include "platform/coredata/SQLConditionBuilder.h"

#include <array>

namespace tarn {

namespace {

using Condition = SQLConditionBuilder::Condition;

bool holdsForCount(std::int64_t count, ComparisonOperator operation, std::int64_t right)
{
    switch (operation) {
    case ComparisonOperator::EqualTo:
        return count == right;
    case ComparisonOperator::NotEqualTo:
        return count != right;
    case ComparisonOperator::LessThan:
        return count < right;
    case ComparisonOperator::LessThanOrEqualTo:
        return count <= right;
    case ComparisonOperator::GreaterThan:
        return count > right;
    default:
        return count >= right;
    }
}

std::string_view operatorSQL(ComparisonOperator operation)
{
    static constexpr std::array<std::string_view, 6> kTexts{" = ", " <> ", " < ", " <= ", " > ", " >= "};
    return kTexts[static_cast<std::size_t>(operation)];
}

bool isWholeNumber(const Value& value)
{
    return value.kind() == Value::Kind::Integer || value.kind() == Value::Kind::Bool;
}

std::int64_t wholeNumber(const Value& value)
{
    return value.kind() == Value::Kind::Bool ? std::int64_t{value.asBool()} : value.asInteger();
}

std::string withCondition(std::string sql, std::string_view connective, const std::string& condition)
{
    if (condition == SQLConditionBuilder::always)
        return sql;
    sql += connective;
    sql += condition;
    return sql;
}

} // namespace

// Quantifiers ---------------------------------------------------------------------------------------------------------

Condition SQLConditionBuilder::quantified(
    const SQLPathEnd& end, const ComparisonPredicate& predicate, SQLScope& scope, bool leafNegated, bool negated)
{
    ComparisonPredicate leaf = predicate;
    switch (predicate.modifier) {
    case ComparisonModifier::None:
        leaf.modifier = ComparisonModifier::Any;
        return quantified(end, leaf, scope, leafNegated, !negated);
    case ComparisonModifier::All:
        leaf.modifier = ComparisonModifier::Any;
        return quantified(end, leaf, scope, !leafNegated, !negated);
    case ComparisonModifier::Direct:
        if (predicate.operation != ComparisonOperator::Contains)
            return std::nullopt;
        leaf.modifier = ComparisonModifier::Any;
        leaf.operation = ComparisonOperator::EqualTo;
        return quantified(end, leaf, scope, leafNegated, negated);
    case ComparisonModifier::Any:
        break;
    }
    SQLScope member{&scope, {}, paths_.newAlias(), &end.toMany->destinationEntity(), {}, false};
    SQLPathEnd rest = paths_.follow(paths_.placeOf(member), end.rest);
    // An object that is missing on the way would count as a member without value; the evaluator sees to that.
    if (rest.toMany && rest.passedToOne)
        return std::nullopt;
    leaf.modifier = rest.toMany ? ComparisonModifier::Any : ComparisonModifier::Direct;
    const Condition inner = rest.toMany ? quantified(rest, leaf, member, leafNegated, false)
                                        : comparePath(std::move(rest), leaf, member, leafNegated);
    if (!inner)
        return std::nullopt;
    return existence({end.toMany, end.place, &member, *inner}, negated);
}

// Counts --------------------------------------------------------------------------------------------------------------

std::optional<SQLConditionBuilder::Members> SQLConditionBuilder::membersOfCollection(
    const CountExpression& expression, SQLScope& scope, SQLScope& member)
{
    const auto* subquery = std::get_if<SubqueryExpression>(&expression.collection->form);
    const auto end = pathEnd(subquery ? *subquery->collection : *expression.collection, scope);
    if (!end || !end->toMany || !end->rest.empty())
        return std::nullopt;
    member.outer = &scope;
    member.alias = paths_.newAlias();
    member.entity = &end->toMany->destinationEntity();
    if (!subquery)
        return Members{end->toMany, end->place, &member, std::string(always)};
    member.variable = subquery->variable;
    if (depth_ >= 8)
        return std::nullopt;
    depth_ += 4; // a SELECT within a SELECT takes more of the parser's stack than a parenthesis
    const auto inner = condition(*subquery->predicate, member, false);
    depth_ -= 4;
    if (!inner)
        return std::nullopt;
    return Members{end->toMany, end->place, &member, *inner};
}

Condition SQLConditionBuilder::count(
    const CountExpression& expression, ComparisonOperator operation, const Value& right, SQLScope& scope, bool negated)
{
    if (!isWholeNumber(right) || operation > ComparisonOperator::GreaterThanOrEqualTo)
        return std::nullopt;
    SQLScope member;
    const auto members = membersOfCollection(expression, scope, member);
    if (!members)
        return std::nullopt;
    const std::int64_t bound = wholeNumber(right);
    const bool holdsForNone = holdsForCount(0, operation, bound) != negated;
    const bool holdsForOne = holdsForCount(1, operation, bound) != negated;
    const bool isTestForMembers = bound <= 0 || (bound == 1 && operation == ComparisonOperator::LessThan)
        || (bound == 1 && operation == ComparisonOperator::GreaterThanOrEqualTo);
    if (!isTestForMembers) {
        const std::string condition = numberOf(*members) + std::string(operatorSQL(operation)) + text_.bind(bound);
        return negated ? "NOT (" + condition + ")" : condition;
    }
    if (holdsForNone == holdsForOne)
        return std::string(holdsForNone ? always : never);
    return existence(*members, holdsForNone);
}

// Their SELECTs -------------------------------------------------------------------------------------------------------

/// SELECT of the members, or of the rows of the join table that lead to them.
std::string SQLConditionBuilder::memberSelect(const Members& members, std::string_view columns, bool correlated) const
{
    const SQLScope& scope = *members.scope;
    const std::string& alias = scope.alias;
    const std::string table = quotedIdentifier(paths_.schema().table(*scope.entity).name) + " AS " + alias;
    const bool joins = members.relationship->storage() == RelationshipStorage::JoinTable;
    if (!joins) {
        const std::string owner = alias + "." + quotedIdentifier(members.relationship->inverseRelationship().name());
        const std::string start = "SELECT " + (columns.empty() ? owner : std::string(columns)) + " FROM " + table
            + scope.joinSQL() + " WHERE " + owner + (correlated ? " = " + members.owner.key : " IS NOT NULL");
        return withCondition(start, " AND ", members.condition);
    }
    const JoinDirection direction = joinDirection(paths_.schema(), *members.relationship);
    const std::string link = alias + "j";
    const std::string from = link + ".\"" + std::string(direction.from) + "\"";
    const std::string to = link + ".\"" + std::string(direction.to) + "\"";
    std::string sql = "SELECT " + (columns.empty() ? from : std::string(columns)) + " FROM "
        + quotedIdentifier(direction.table->name) + " AS " + link;
    if (correlated) {
        if (members.condition != always)
            sql += " JOIN " + table + " ON " + alias + ".\"pk\" = " + to + scope.joinSQL();
        return withCondition(sql + " WHERE " + from + " = " + members.owner.key, " AND ", members.condition);
    }
    return sql + " WHERE " + to + " IN (SELECT " + alias + ".\"pk\" FROM " + table + scope.joinSQL() + " WHERE "
        + members.condition + ")";
}

/// Only sets of the walked rows themselves, and only where finding them costs little.
bool SQLConditionBuilder::isBetterWalked(const Members& members, const std::string& select) const
{
    const bool isOfWalkedRow = members.owner.path.empty() && members.owner.scope->outer == nullptr;
    if (!options_.isLargeSet || !isOfWalkedRow || !members.scope->joins.empty())
        return false;
    return options_.isLargeSet({select, text_.bindings});
}

std::string SQLConditionBuilder::existence(const Members& members, bool negated) const
{
    if (members.condition == never)
        return std::string(negated ? always : never);
    const std::string prefix = negated ? "NOT " : "";
    if (members.scope->readsOuter || members.condition == always)
        return prefix + "EXISTS (" + memberSelect(members, "1", true) + ")";
    const std::string select = memberSelect(members, {}, false);
    // The plus keeps SQLite from collecting the rows by their keys and sorting them all.
    const std::string plus = !negated && isBetterWalked(members, select) ? "+" : "";
    const std::string found = plus + members.owner.key + " " + prefix + "IN (" + select + ")";
    const bool ownerMayBeMissing = !members.owner.path.empty();
    return negated && ownerMayBeMissing ? "(" + members.owner.key + " IS NULL OR " + found + ")" : found;
}

std::string SQLConditionBuilder::numberOf(const Members& members) const
{
    return "(" + memberSelect(members, "count(*)", true) + ")";
}

} // namespace tarn
