#include "platform/coredata/PendingIndex.h"

#include "platform/coredata/RecordAccess.h"
#include "platform/foundation/Folding.h"

#include <algorithm>

namespace tarn {

namespace {

/// One value to look up in one index.
struct Probe {
    PropertyIndex property = 0;
    bool folded = false;
    std::string key;
};
using Probes = std::vector<Probe>;

std::string keyOfRecord(std::int64_t key)
{
    return std::string(reinterpret_cast<const char*>(&key), sizeof key);
}

const NSPropertyDescription* ownProperty(const NSEntityDescription& root, const Expression& expression)
{
    const auto* path = std::get_if<KeyPathExpression>(&expression.form);
    if (!path || path->keys.size() != 1 || (path->base && !std::holds_alternative<SelfExpression>(path->base->form)))
        return nullptr;
    return root.propertyNamed(path->keys.front());
}

std::optional<Probe> probeForValue(
    const NSPropertyDescription& property, const Value& value, const ComparisonOptions& options)
{
    const bool folded = options.caseInsensitive && options.diacriticInsensitive;
    if (property.isRelationship()) {
        const bool isToOne = !static_cast<const NSRelationshipDescription&>(property).isToMany();
        if (!isToOne || value.kind() != Value::Kind::Object)
            return std::nullopt;
        const auto* record = dynamic_cast<const NSManagedObject*>(&value.asObject());
        return record ? std::optional(Probe{property.index(), false, keyOfRecord(record->objectID().key())})
                      : std::nullopt;
    }
    if (static_cast<const NSAttributeDescription&>(property).type() != NSAttributeType::String
        || value.kind() != Value::Kind::String)
        return std::nullopt;
    if (folded)
        return Probe{property.index(), true, fold(value.asString())};
    return options == ComparisonOptions() ? std::optional(Probe{property.index(), false, value.asString()})
                                          : std::nullopt;
}

std::optional<Probes> probesForComparison(const NSEntityDescription& root, const ComparisonPredicate& comparison)
{
    const bool isList = comparison.operation == ComparisonOperator::In;
    if (comparison.modifier != ComparisonModifier::Direct
        || (!isList && comparison.operation != ComparisonOperator::EqualTo))
        return std::nullopt;
    const NSPropertyDescription* property = ownProperty(root, *comparison.left);
    const auto* constant = std::get_if<ConstantExpression>(&comparison.right->form);
    if (!property || !constant || (isList && constant->value.kind() != Value::Kind::Array))
        return std::nullopt;
    Probes probes;
    const auto add = [&](const Value& value) {
        auto probe = probeForValue(*property, value, comparison.options);
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

std::optional<Probes> probesForNode(const NSEntityDescription& root, const PredicateNode& node, int depth);

std::optional<Probes> probesForCompound(const NSEntityDescription& root, const CompoundPredicate& compound, int depth)
{
    Probes all;
    for (const PredicateNodePtr& member : compound.members) {
        auto probes = probesForNode(root, *member, depth + 1);
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

std::optional<Probes> probesForNode(const NSEntityDescription& root, const PredicateNode& node, int depth)
{
    if (depth > maximumPredicateDepth)
        return std::nullopt;
    return std::visit(
        Overloaded{
            [&](const ComparisonPredicate& comparison) { return probesForComparison(root, comparison); },
            [&](const CompoundPredicate& compound) { return probesForCompound(root, compound, depth); },
            [](const NotPredicate&) { return std::optional<Probes>(); },
            [](const ConstantPredicate& constant) { return constant.value ? std::nullopt : std::optional(Probes()); },
        },
        node.form);
}

} // namespace

void PendingIndex::touch(NSManagedObject& object, PropertyMask properties)
{
    journals_[&object.entity().rootEntity()].push_back({&object, properties});
}

PendingIndex::Index& PendingIndex::upToDate(const Subject& subject)
{
    const auto& [root, property, folded] = subject;
    Index& index = indexes_[subject];
    const std::vector<Touch>& journal = journals_[root];
    for (; index.journalPosition < journal.size(); ++index.journalPosition) {
        const Touch& touch = journal[index.journalPosition];
        if (!(touch.properties & propertyBit(property)))
            continue;
        NSManagedObject& object = *touch.object;
        if (const auto former = index.keys.find(&object); former != index.keys.end()) {
            const auto [begin, end] = index.records.equal_range(former->second);
            const auto entry = std::find_if(begin, end, [&](const auto& record) { return record.second == &object; });
            index.records.erase(entry);
            index.keys.erase(former);
        }
        const PropertyValues& values = RecordAccess::values(object);
        if (object.isDeleted() || values.isEmpty() || !values.isLoaded(property) || values.isNil(property))
            continue;
        std::string key;
        if (object.entity().property(property).isRelationship())
            key = keyOfRecord(values.integer(property));
        else
            key = folded ? fold(values.bytes(property)) : std::string(values.bytes(property));
        index.records.emplace(key, &object);
        index.keys.emplace(&object, std::move(key));
    }
    return index;
}

std::optional<std::vector<NSManagedObject*>> PendingIndex::candidates(
    const NSEntityDescription& root, const NSPredicate& predicate)
{
    const std::optional<Probes> probes = probesForNode(root, predicate.node(), 0);
    if (!probes)
        return std::nullopt;
    std::vector<NSManagedObject*> found;
    for (const Probe& probe : *probes) {
        Index& index = upToDate(Subject(&root.rootEntity(), probe.property, probe.folded));
        const auto [begin, end] = index.records.equal_range(probe.key);
        for (auto record = begin; record != end; ++record)
            found.push_back(record->second);
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    return found;
}

void PendingIndex::clear()
{
    journals_.clear();
    indexes_.clear();
}

} // namespace tarn
