// Conditions on collections: ANY, ALL, NONE, membership, counts and subqueries.

#include "tarnmodel/platform/coredata/query/SQLConditionBuilder.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

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
    SQLScope member;
    member.outer = &scope;
    member.alias = paths_.newAlias();
    member.entity = &end.toMany->destinationEntity();
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

/// SELECT of the members themselves.
std::string SQLConditionBuilder::memberKeys(const Members& members) const
{
    const SQLScope& scope = *members.scope;
    return "SELECT " + scope.alias + ".\"pk\" FROM " + quotedIdentifier(paths_.schema().table(*scope.entity).name)
        + " AS " + scope.alias + scope.joinSQL() + " WHERE " + members.condition;
}

/// SELECT of a foreign key's rows: of the owners of all members, or of the members of the owner at hand.
std::string SQLConditionBuilder::columnSelect(const Members& members, std::string_view columns, SelectForm form) const
{
    const SQLScope& scope = *members.scope;
    const std::string owner = scope.alias + "." + quotedIdentifier(members.relationship->inverseRelationship().name());
    const std::string start = "SELECT " + (columns.empty() ? owner : std::string(columns)) + " FROM "
        + quotedIdentifier(paths_.schema().table(*scope.entity).name) + " AS " + scope.alias + scope.joinSQL()
        + " WHERE " + owner + (form == SelectForm::AllOwners ? " IS NOT NULL" : " = " + members.owner.key);
    return withCondition(start, " AND ", members.condition);
}

/// The same by the rows of a join table.
std::string SQLConditionBuilder::joinSelect(const Members& members, std::string_view columns, SelectForm form) const
{
    const SQLScope& scope = *members.scope;
    const JoinDirection direction = joinDirection(paths_.schema(), *members.relationship);
    const std::string link = scope.alias + "j";
    const std::string from = link + ".\"" + std::string(direction.from) + "\"";
    const std::string to = link + ".\"" + std::string(direction.to) + "\"";
    const std::string start = "SELECT " + (columns.empty() ? from : std::string(columns)) + " FROM "
        + quotedIdentifier(direction.table->name) + " AS " + link;
    if (form == SelectForm::AllOwners)
        return start + " WHERE " + to + " IN (" + memberKeys(members) + ")";
    const std::string ofOwner = " WHERE " + from + " = " + members.owner.key;
    if (members.condition == always)
        return start + ofOwner;
    // The plus makes SQLite look at the few members of the owner, not at each of the set.
    if (form == SelectForm::OfOwnerInSet)
        return start + ofOwner + " AND +" + to + " IN (" + memberKeys(members) + ")";
    return start + " JOIN " + quotedIdentifier(paths_.schema().table(*scope.entity).name) + " AS " + scope.alias
        + " ON " + scope.alias + ".\"pk\" = " + to + scope.joinSQL() + ofOwner + " AND " + members.condition;
}

std::string SQLConditionBuilder::memberSelect(const Members& members, std::string_view columns, SelectForm form) const
{
    return members.relationship->storage() == RelationshipStorage::JoinTable ? joinSelect(members, columns, form)
                                                                             : columnSelect(members, columns, form);
}

/// How to find out whether an owner has such a member:
///
/// - few members: find them first, then their owners
/// - many members, or a condition that depends on the owner: look at the members of each owner
/// - few members with many owners, while an order is walked: look whether a member of each owner is one of them
SQLConditionBuilder::SelectForm SQLConditionBuilder::selectForm(const Members& members) const
{
    if (members.scope->readsOuter || members.condition == always)
        return SelectForm::OfOwner;
    // What needs other tables too is not worth being looked for twice.
    if (!options_.isLargeSet || !members.scope->joins.empty() || members.scope->readsTexts)
        return SelectForm::AllOwners;
    if (options_.isLargeSet({memberKeys(members), text_.bindings}))
        return SelectForm::OfOwner;
    const bool isOfWalkedRow = members.owner.path.empty() && members.owner.scope->outer == nullptr;
    if (!options_.walksOrder || !isOfWalkedRow)
        return SelectForm::AllOwners;
    const bool hasManyOwners = options_.isLargeSet({memberSelect(members, {}, SelectForm::AllOwners), text_.bindings});
    return hasManyOwners ? SelectForm::OfOwnerInSet : SelectForm::AllOwners;
}

std::string SQLConditionBuilder::existence(const Members& members, bool negated) const
{
    if (members.condition == never)
        return std::string(negated ? always : never);
    const std::string prefix = negated ? "NOT " : "";
    const SelectForm form = selectForm(members);
    if (form != SelectForm::AllOwners)
        return prefix + "EXISTS (" + memberSelect(members, "1", form) + ")";
    const std::string found = members.owner.key + " " + prefix + "IN (" + memberSelect(members, {}, form) + ")";
    const bool ownerMayBeMissing = !members.owner.path.empty();
    return negated && ownerMayBeMissing ? "(" + members.owner.key + " IS NULL OR " + found + ")" : found;
}

std::string SQLConditionBuilder::numberOf(const Members& members) const
{
    return "(" + memberSelect(members, "count(*)", SelectForm::OfOwner) + ")";
}

} // namespace tarn
