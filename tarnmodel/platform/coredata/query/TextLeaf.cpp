#include "tarnmodel/platform/coredata/query/TextLeaf.h"

#include "tarnmodel/platform/coredata/description/PredicateKeys.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

namespace tarn {

namespace {

bool isTextOperator(ComparisonOperator operation)
{
    switch (operation) {
    case ComparisonOperator::Contains:
    case ComparisonOperator::BeginsWith:
    case ComparisonOperator::EndsWith:
    case ComparisonOperator::Like:
    case ComparisonOperator::Matches:
        return true;
    default:
        return false;
    }
}

/// `keysFrom` the row of a scope. A scope without a name within another one has none.
const std::vector<std::string>* keysFromRow(const Expression& expression, const SQLScope& scope)
{
    return scope.outer && scope.variable.empty() ? nullptr : keysFrom(expression, scope.variable);
}

const std::string* constantText(const Expression& expression)
{
    const auto* constant = std::get_if<ConstantExpression>(&expression.form);
    return constant && constant->value.kind() == Value::Kind::String ? &constant->value.asString() : nullptr;
}

/// Begins with what an index has in order: that is faster than any look into the text.
bool hasIndexForBeginning(const NSAttributeDescription& attribute)
{
    return hasShadowColumn(attribute) || attribute.isIndexed();
}

const NSAttributeDescription* textOf(
    const ComparisonPredicate& comparison, const NSEntityDescription& entity, const std::string& key)
{
    const NSAttributeDescription* attribute = entity.attributeNamed(key);
    const bool isText = attribute && attribute->type() == NSAttributeType::String
        && isTextOperator(comparison.operation) && constantText(*comparison.right);
    const bool isIndexed
        = isText && comparison.operation == ComparisonOperator::BeginsWith && hasIndexForBeginning(*attribute);
    return isText && !isIndexed ? attribute : nullptr;
}

/// For a count against a constant: whether it says that there is some member, or none. Nothing for any other.
std::optional<bool> meansSome(const ComparisonPredicate& comparison)
{
    const auto* constant = std::get_if<ConstantExpression>(&comparison.right->form);
    if (!constant || constant->value.kind() != Value::Kind::Integer
        || comparison.modifier != ComparisonModifier::Direct)
        return std::nullopt;
    const std::int64_t bound = constant->value.asInteger();
    if (bound == 0 && comparison.operation == ComparisonOperator::EqualTo)
        return false;
    if ((bound == 0 && comparison.operation == ComparisonOperator::NotEqualTo)
        || (bound == 0 && comparison.operation == ComparisonOperator::GreaterThan)
        || (bound == 1 && comparison.operation == ComparisonOperator::GreaterThanOrEqualTo))
        return true;
    return std::nullopt;
}

/// `SUBQUERY(relationship, $member, filter AND test of a text).@count != 0`
std::optional<TextLeaf> leafOfSubquery(const ComparisonPredicate& comparison, const SQLScope& scope)
{
    const auto* count = std::get_if<CountExpression>(&comparison.left->form);
    const auto* subquery = count ? std::get_if<SubqueryExpression>(&count->collection->form) : nullptr;
    const auto some = subquery ? meansSome(comparison) : std::nullopt;
    const auto* keys = some ? keysFromRow(*subquery->collection, scope) : nullptr;
    const NSRelationshipDescription* relationship
        = keys && keys->size() == 1 ? toManyNamed(*scope.entity, keys->front()) : nullptr;
    if (!relationship)
        return std::nullopt;
    TextLeaf leaf;
    leaf.relationship = relationship;
    leaf.variable = subquery->variable;
    leaf.isNegated = !*some;
    std::vector<PredicateNodePtr> parts{subquery->predicate};
    if (const auto* compound = std::get_if<CompoundPredicate>(&subquery->predicate->form))
        if (compound->type == CompoundType::And)
            parts = compound->members;
    for (const PredicateNodePtr& part : parts) {
        const auto* test = std::get_if<ComparisonPredicate>(&part->form);
        const auto* path = test ? keysFrom(*test->left, subquery->variable) : nullptr;
        const bool isDirect = path && path->size() == 1 && test->modifier == ComparisonModifier::Direct;
        const NSAttributeDescription* text
            = isDirect ? textOf(*test, relationship->destinationEntity(), path->front()) : nullptr;
        if (!text) {
            leaf.filter.push_back(part);
        } else if (leaf.comparison) {
            return std::nullopt; // both of one and the same member
        } else {
            leaf.comparison = test;
            leaf.attribute = text;
        }
    }
    return leaf.comparison ? std::optional(std::move(leaf)) : std::nullopt;
}

} // namespace

const std::string& TextLeaf::needle() const
{
    return *constantText(*comparison->right);
}

std::optional<TextLeaf> textLeaf(const ComparisonPredicate& comparison, const SQLScope& scope)
{
    const auto* keys = keysFromRow(*comparison.left, scope);
    if (!keys)
        return leafOfSubquery(comparison, scope);
    TextLeaf leaf;
    leaf.comparison = &comparison;
    const bool isCollective
        = comparison.modifier == ComparisonModifier::Any || comparison.modifier == ComparisonModifier::None;
    if (keys->size() == 1 && comparison.modifier == ComparisonModifier::Direct)
        leaf.attribute = textOf(comparison, *scope.entity, keys->front());
    else if (keys->size() == 2 && isCollective)
        leaf.relationship = toManyNamed(*scope.entity, keys->front());
    if (leaf.relationship)
        leaf.attribute = textOf(comparison, leaf.relationship->destinationEntity(), keys->back());
    leaf.isNegated = comparison.modifier == ComparisonModifier::None;
    return leaf.attribute ? std::optional(std::move(leaf)) : std::nullopt;
}

void countTexts(const PredicateNode& node, const SQLScope& scope, TextCounts& counts)
{
    std::visit(Overloaded{
                   [&](const ComparisonPredicate& comparison) {
                       if (const auto leaf = textLeaf(comparison, scope))
                           ++counts[leaf->attribute];
                   },
                   [&](const CompoundPredicate& compound) {
                       for (const PredicateNodePtr& member : compound.members)
                           countTexts(*member, scope, counts);
                   },
                   [&](const NotPredicate& negation) { countTexts(*negation.operand, scope, counts); },
                   [](const ConstantPredicate&) {},
               },
        node.form);
}

} // namespace tarn
