#include "tarnmodel/platform/coredata/textsearch/CandidateFinder.h"

#include "tarnmodel/platform/coredata/description/PredicateKeys.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// Looking up the owners of more members costs more than it saves.
constexpr std::size_t kMostMembers = 5000;
/// So few are checked faster than they are narrowed.
constexpr std::size_t kFewEnough = 16;

const Value* constantOf(const Expression& expression)
{
    const auto* constant = std::get_if<ConstantExpression>(&expression.form);
    return constant ? &constant->value : nullptr;
}

bool isTrue(const Value& value)
{
    return (value.kind() == Value::Kind::Bool && value.asBool())
        || (value.kind() == Value::Kind::Integer && value.asInteger() == 1);
}

/// What a comparison of two constants comes to; none for any other. The parser leaves "1 == 0" standing.
std::optional<bool> truthOf(const ComparisonPredicate& predicate)
{
    const Value* left = constantOf(*predicate.left);
    const Value* right = constantOf(*predicate.right);
    if (!left || !right || left->kind() != Value::Kind::Integer || right->kind() != Value::Kind::Integer)
        return std::nullopt;
    if (predicate.operation == ComparisonOperator::EqualTo)
        return left->asInteger() == right->asInteger();
    if (predicate.operation == ComparisonOperator::NotEqualTo)
        return left->asInteger() != right->asInteger();
    return std::nullopt;
}

/// Whether the count is such that there is at least one.
bool meansAtLeastOne(const ComparisonPredicate& predicate)
{
    const Value* bound = constantOf(*predicate.right);
    if (!bound || bound->kind() != Value::Kind::Integer || predicate.modifier != ComparisonModifier::Direct)
        return false;
    switch (predicate.operation) {
    case ComparisonOperator::NotEqualTo:
        return bound->asInteger() == 0;
    case ComparisonOperator::GreaterThan:
        return bound->asInteger() >= 0;
    case ComparisonOperator::GreaterThanOrEqualTo:
    case ComparisonOperator::EqualTo:
        return bound->asInteger() >= 1;
    default:
        return false;
    }
}

} // namespace

PrimaryKeySetPtr CandidateFinder::candidates(const NSPredicate& predicate, const NSEntityDescription& entity)
{
    return of(predicate.node(), {entity, {}}, false);
}

// The tree ------------------------------------------------------------------------------------------------------------

PrimaryKeySetPtr CandidateFinder::of(const PredicateNode& node, const Rows& rows, bool negated)
{
    return std::visit(
        Overloaded{
            [&](const ComparisonPredicate& predicate) { return ofComparison(predicate, rows, negated); },
            [&](const CompoundPredicate& predicate) { return ofCompound(predicate, rows, negated); },
            [&](const NotPredicate& predicate) { return of(*predicate.operand, rows, !negated); },
            [&](const ConstantPredicate& predicate) { return predicate.value != negated ? nullptr : noKeys(); },
        },
        node.form);
}

PrimaryKeySetPtr CandidateFinder::ofCompound(const CompoundPredicate& predicate, const Rows& rows, bool negated)
{
    return (predicate.type == CompoundType::And) != negated ? ofAll(predicate, rows, negated)
                                                            : ofAny(predicate, rows, negated);
}

PrimaryKeySetPtr CandidateFinder::ofAll(const CompoundPredicate& predicate, const Rows& rows, bool negated)
{
    const NSAttributeDescription* flag = negated || !rows.variable.empty() ? nullptr : flagAmong(predicate, rows);
    const bool wasFlagged = std::exchange(isFlagged_, isFlagged_ || flag);
    PrimaryKeySetPtr found;
    for (const PredicateNodePtr& member : predicate.members) {
        found = intersection(found, of(*member, rows, negated));
        if (found && found->size() <= kFewEnough)
            break;
    }
    isFlagged_ = wasFlagged;
    return !found && flag && mayAsk() ? flagged(predicate, *flag, rows) : found;
}

bool CandidateFinder::mayAsk()
{
    return ++questions_ <= kMostQuestions;
}

PrimaryKeySetPtr CandidateFinder::ofAny(const CompoundPredicate& predicate, const Rows& rows, bool negated)
{
    PrimaryKeySetPtr found = noKeys();
    for (const PredicateNodePtr& member : predicate.members) {
        found = unionOf(found, of(*member, rows, negated));
        if (!found)
            return nullptr;
    }
    return found;
}

// Comparisons ---------------------------------------------------------------------------------------------------------

PrimaryKeySetPtr CandidateFinder::ofComparison(const ComparisonPredicate& predicate, const Rows& rows, bool negated)
{
    if (const auto truth = truthOf(predicate))
        return *truth != negated ? nullptr : noKeys();
    if (const auto* count = std::get_if<CountExpression>(&predicate.left->form))
        return negated ? nullptr : ofCount(*count, predicate, rows);
    const auto* keys = keysFrom(*predicate.left, rows.variable);
    if (!keys)
        return nullptr;
    if (keys->size() == 1 && predicate.modifier == ComparisonModifier::Direct) {
        const NSAttributeDescription* attribute = rows.entity.attributeNamed(keys->front());
        return attribute ? ofAttribute(*attribute, predicate, negated) : nullptr;
    }
    const bool isAny = predicate.modifier == ComparisonModifier::Any
        ? !negated
        : predicate.modifier == ComparisonModifier::None && negated;
    const NSRelationshipDescription* relationship
        = isAny && keys->size() == 2 ? toManyNamed(rows.entity, keys->front()) : nullptr;
    if (!relationship)
        return nullptr;
    const auto members = [&](const Rows& member) {
        const NSAttributeDescription* attribute = member.entity.attributeNamed(keys->back());
        return attribute ? ofAttribute(*attribute, predicate, false) : nullptr;
    };
    return ofMembers(*relationship, members, {});
}

PrimaryKeySetPtr CandidateFinder::ofAttribute(
    const NSAttributeDescription& attribute, const ComparisonPredicate& predicate, bool negated)
{
    const Value* constant = constantOf(*predicate.right);
    const bool isStringTest = predicate.operation == ComparisonOperator::EqualTo
        || predicate.operation == ComparisonOperator::Contains || predicate.operation == ComparisonOperator::BeginsWith
        || predicate.operation == ComparisonOperator::EndsWith || predicate.operation == ComparisonOperator::Matches;
    const bool isKnown = hasSignature(attribute) || hasShadowColumn(attribute);
    if (negated || !isStringTest || !isKnown || !mayAsk() || !constant || constant->kind() != Value::Kind::String)
        return nullptr;
    const StringTest test(predicate.operation, predicate.options, constant->asString());
    return hasSignature(attribute) ? look_.rowsThatMayMatch(attribute, test) : ofFolded(attribute, test);
}

/// The index of folded values is much smaller than the rows: it is looked through instead of them. Those whose folded
/// value has to be made again are candidates.
PrimaryKeySetPtr CandidateFinder::ofFolded(const NSAttributeDescription& attribute, const StringTest& test)
{
    if (isFlagged_ || !options_.usesShadows || !test.comparesFolded() || ++scans_ > kMostScans)
        return nullptr;
    const std::string table = quotedIdentifier(schema_.table(attribute.declaringEntity()).name);
    const std::string shadow = quotedIdentifier(shadowColumnName(attribute));
    SQLText hits;
    hits.sql = "SELECT \"pk\" FROM " + table + " WHERE folded_test("
        + hits.bind(SQLStringTest{std::make_shared<const StringTest>(test), {}}) + ", " + shadow + ")";
    const SQLText stale{"SELECT \"pk\" FROM " + table + " WHERE " + shadow + " IS NULL AND "
            + quotedIdentifier(attribute.name()) + " IS NOT NULL",
        {}};
    return unionOf(keysOf(hits), keysOf(stale));
}

// Collections ---------------------------------------------------------------------------------------------------------

PrimaryKeySetPtr CandidateFinder::ofCount(
    const CountExpression& count, const ComparisonPredicate& predicate, const Rows& rows)
{
    const auto* subquery = std::get_if<SubqueryExpression>(&count.collection->form);
    if (!subquery || !meansAtLeastOne(predicate))
        return nullptr;
    const auto* keys = keysFrom(*subquery->collection, rows.variable);
    const NSRelationshipDescription* relationship
        = keys && keys->size() == 1 ? toManyNamed(rows.entity, keys->front()) : nullptr;
    if (!relationship)
        return nullptr;
    const auto members = [&](const Rows& member) { return of(*subquery->predicate, member, false); };
    return ofMembers(*relationship, members, subquery->variable);
}

PrimaryKeySetPtr CandidateFinder::ofMembers(const NSRelationshipDescription& relationship,
    const std::function<PrimaryKeySetPtr(const Rows&)>& members, const std::string& variable)
{
    const PrimaryKeySetPtr found = members({relationship.destinationEntity(), variable});
    return found && found->size() <= kMostMembers ? ownersOf(relationship, found) : nullptr;
}

PrimaryKeySetPtr CandidateFinder::ownersOf(
    const NSRelationshipDescription& relationship, const PrimaryKeySetPtr& members)
{
    if (members->size() == 0)
        return members;
    SQLText select;
    const std::string list = "(SELECT \"value\" FROM value_list(" + select.bind(SQLKeyList{members}) + "))";
    if (relationship.storage() == RelationshipStorage::JoinTable) {
        const JoinDirection direction = joinDirection(schema_, relationship);
        select.sql = "SELECT DISTINCT \"" + std::string(direction.from) + "\" FROM "
            + quotedIdentifier(direction.table->name) + " WHERE \"" + std::string(direction.to) + "\" IN " + list
            + " ORDER BY 1";
    } else {
        const std::string owner = quotedIdentifier(relationship.inverseRelationship().name());
        select.sql = "SELECT DISTINCT +" + owner + " FROM "
            + quotedIdentifier(schema_.table(relationship.destinationEntity()).name) + " WHERE \"pk\" IN " + list
            + " AND +" + owner + " IS NOT NULL ORDER BY 1";
    }
    return keysOf(select);
}

// Flags ---------------------------------------------------------------------------------------------------------------

const NSAttributeDescription* CandidateFinder::flagAmong(const CompoundPredicate& predicate, const Rows& rows) const
{
    for (const PredicateNodePtr& member : predicate.members) {
        const auto* comparison = std::get_if<ComparisonPredicate>(&member->form);
        if (!comparison || comparison->operation != ComparisonOperator::EqualTo
            || comparison->modifier != ComparisonModifier::Direct)
            continue;
        const auto* keys = keysFrom(*comparison->left, rows.variable);
        const Value* value = constantOf(*comparison->right);
        const NSAttributeDescription* attribute
            = keys && keys->size() == 1 ? rows.entity.attributeNamed(keys->front()) : nullptr;
        if (attribute && attribute->isFlagIndexed() && value && isTrue(*value))
            return attribute;
    }
    return nullptr;
}

/// The index of the flag gives the rows; what else is asked of them is tested at once, since there may be many.
PrimaryKeySetPtr CandidateFinder::flagged(
    const CompoundPredicate& predicate, const NSAttributeDescription& flag, const Rows& rows)
{
    SQLText select;
    SQLPaths paths(schema_);
    SQLScope scope;
    scope.alias = paths.newAlias();
    scope.entity = &rows.entity;
    SQLConditionBuilder builder(paths, select, options_);
    const auto condition = builder.condition(PredicateNode{predicate}, scope, false);
    if (!condition)
        return nullptr;
    // The index is used where its own condition stands in the query, number and all.
    select.sql = "SELECT " + scope.alias + ".\"pk\" FROM " + quotedIdentifier(schema_.table(rows.entity).name) + " AS "
        + scope.alias + scope.joinSQL() + " WHERE " + scope.alias + "." + quotedIdentifier(flag.name()) + " = 1 AND "
        + *condition + " ORDER BY " + scope.alias + ".\"pk\"";
    return keysOf(select);
}

PrimaryKeySetPtr CandidateFinder::keysOf(const SQLText& select)
{
    std::vector<std::int64_t> keys;
    SQLiteStatement statement = connection_.prepare(select.sql);
    bindAll(statement, select.bindings);
    while (statement.step())
        keys.push_back(statement.integer(0));
    std::ranges::sort(keys);
    return std::make_shared<const PrimaryKeySet>(std::move(keys));
}

} // namespace tarn
