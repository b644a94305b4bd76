#include "tarnmodel/platform/coredata/description/EqualityProbes.h"

#include "tarnmodel/platform/coredata/IdentifiedObject.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tarnmodel/platform/predicate/PredicateTree.h"

#include <iterator>

namespace tarn {

namespace {

class ProbeFinder {
public:
    ProbeFinder(const NSEntityDescription& entity, const HasIndex& hasIndex) : entity_(entity), hasIndex_(hasIndex) { }
    std::optional<EqualityProbes> ofNode(const PredicateNode& node, int depth) const;

private:
    const NSPropertyDescription* ownProperty(const Expression& expression) const;
    std::optional<EqualityProbe> ofValue(
        const NSPropertyDescription& property, const Value& value, const ComparisonOptions& options) const;
    std::optional<EqualityProbes> ofComparison(const ComparisonPredicate& comparison) const;
    std::optional<EqualityProbes> ofCompound(const CompoundPredicate& compound, int depth) const;

    const NSEntityDescription& entity_;
    const HasIndex& hasIndex_;
};

const NSPropertyDescription* ProbeFinder::ownProperty(const Expression& expression) const
{
    const auto* path = std::get_if<KeyPathExpression>(&expression.form);
    if (!path || path->keys.size() != 1 || (path->base && !std::holds_alternative<SelfExpression>(path->base->form)))
        return nullptr;
    return entity_.propertyNamed(path->keys.front());
}

std::optional<EqualityProbe> ProbeFinder::ofValue(
    const NSPropertyDescription& property, const Value& value, const ComparisonOptions& options) const
{
    if (property.isRelationship()) {
        const bool isToOne = !static_cast<const NSRelationshipDescription&>(property).isToMany();
        if (!isToOne || value.kind() != Value::Kind::Object || !hasIndex_(property, false))
            return std::nullopt;
        const auto* record = dynamic_cast<const IdentifiedObject*>(&value.asObject());
        return record ? std::optional(EqualityProbe{&property, false, {}, record->identifyingObjectID().key()})
                      : std::nullopt;
    }
    const bool folded = options.caseInsensitive && options.diacriticInsensitive;
    if (static_cast<const NSAttributeDescription&>(property).type() != NSAttributeType::String
        || value.kind() != Value::Kind::String || (!folded && options != ComparisonOptions())
        || !hasIndex_(property, folded))
        return std::nullopt;
    return EqualityProbe{&property, folded, folded ? fold(value.asString()) : value.asString(), 0};
}

std::optional<EqualityProbes> ProbeFinder::ofComparison(const ComparisonPredicate& comparison) const
{
    const bool isList = comparison.operation == ComparisonOperator::In;
    if (comparison.modifier != ComparisonModifier::Direct
        || (!isList && comparison.operation != ComparisonOperator::EqualTo))
        return std::nullopt;
    const NSPropertyDescription* property = ownProperty(*comparison.left);
    const auto* constant = std::get_if<ConstantExpression>(&comparison.right->form);
    if (!property || !constant || (isList && constant->value.kind() != Value::Kind::Array))
        return std::nullopt;
    EqualityProbes probes;
    const auto add = [&](const Value& value) {
        auto probe = ofValue(*property, value, comparison.options);
        if (probe)
            probes.push_back(std::move(*probe));
        return probe.has_value();
    };
    if (!isList)
        return add(constant->value) ? std::optional(std::move(probes)) : std::nullopt;
    for (const Value& value : constant->value.asArray())
        if (!add(value))
            return std::nullopt;
    return probes;
}

std::optional<EqualityProbes> ProbeFinder::ofCompound(const CompoundPredicate& compound, int depth) const
{
    EqualityProbes all;
    for (const PredicateNodePtr& member : compound.members) {
        auto probes = ofNode(*member, depth + 1);
        if (compound.type == CompoundType::And && probes)
            return probes; // one member that narrows is enough
        if (compound.type == CompoundType::Or) {
            if (!probes)
                return std::nullopt;
            all.insert(all.end(), std::make_move_iterator(probes->begin()), std::make_move_iterator(probes->end()));
        }
    }
    return compound.type == CompoundType::Or ? std::optional(std::move(all)) : std::nullopt;
}

std::optional<EqualityProbes> ProbeFinder::ofNode(const PredicateNode& node, int depth) const
{
    if (depth > maximumPredicateDepth)
        return std::nullopt;
    return std::visit(Overloaded{
                          [&](const ComparisonPredicate& comparison) { return ofComparison(comparison); },
                          [&](const CompoundPredicate& compound) { return ofCompound(compound, depth); },
                          [](const NotPredicate&) { return std::optional<EqualityProbes>(); },
                          [](const ConstantPredicate& constant) {
                              return constant.value ? std::nullopt : std::optional(EqualityProbes());
                          },
                      },
        node.form);
}

} // namespace

std::optional<EqualityProbes> equalityProbes(
    const NSEntityDescription& entity, const NSPredicate& predicate, const HasIndex& hasIndex)
{
    return ProbeFinder(entity, hasIndex).ofNode(predicate.node(), 0);
}

} // namespace tarn
