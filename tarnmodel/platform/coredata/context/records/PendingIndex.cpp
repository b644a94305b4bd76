#include "tarnmodel/platform/coredata/context/records/PendingIndex.h"

#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <algorithm>

namespace tarn {

namespace {

std::string keyOfRecord(std::int64_t key)
{
    return std::string(reinterpret_cast<const char*>(&key), sizeof key);
}

/// Under which key an index holds the record; none when it does not.
std::optional<std::string> keyOfValue(const NSManagedObject& object, PropertyIndex property, bool folded)
{
    const PropertyValues& values = RecordAccess::values(object);
    if (object.isDeleted() || values.isEmpty() || !values.isLoaded(property) || values.isNil(property))
        return std::nullopt;
    if (object.entity().property(property).isRelationship())
        return keyOfRecord(values.integer(property));
    return folded ? fold(values.bytes(property)) : std::string(values.bytes(property));
}

} // namespace

void PendingIndex::touch(NSManagedObject& object, PropertyMask properties)
{
    journals_[&object.entity().rootEntity()].push_back({&object, properties});
}

void PendingIndex::Index::take(NSManagedObject& object)
{
    const auto former = keys.find(&object);
    if (former == keys.end())
        return;
    const auto equal = records.find(former->second);
    equal->second.erase(&object);
    if (equal->second.isEmpty())
        records.erase(equal);
    keys.erase(former);
}

void PendingIndex::Index::put(NSManagedObject& object, std::string key)
{
    records[key].add(&object);
    keys.emplace(&object, std::move(key));
}

PendingIndex::Index& PendingIndex::upToDate(const Subject& subject)
{
    const auto& [entity, property, folded] = subject;
    Index& index = indexes_[subject];
    const std::vector<Touch>& journal = journals_[&entity->rootEntity()];
    for (; index.journalPosition < journal.size(); ++index.journalPosition) {
        const Touch& touch = journal[index.journalPosition];
        // Sister entities have other properties at this place.
        if (!(touch.properties & propertyBit(property)) || !touch.object->entity().isKindOfEntity(*entity))
            continue;
        index.take(*touch.object);
        if (auto key = keyOfValue(*touch.object, property, folded))
            index.put(*touch.object, std::move(*key));
    }
    return index;
}

std::optional<std::vector<NSManagedObject*>> PendingIndex::candidates(
    const NSEntityDescription& root, const NSPredicate& predicate)
{
    const auto probes = equalityProbes(root, predicate, [](const NSPropertyDescription&, bool) { return true; });
    if (!probes)
        return std::nullopt;
    std::vector<NSManagedObject*> found;
    for (const EqualityProbe& probe : *probes) {
        const NSPropertyDescription& property = *probe.property;
        const Index& index = upToDate(Subject(&property.declaringEntity(), property.index(), probe.folded));
        const auto equal = index.records.find(property.isRelationship() ? keyOfRecord(probe.key) : probe.text);
        if (equal == index.records.end())
            continue;
        const auto& records = equal->second.values();
        found.insert(found.end(), records.begin(), records.end());
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
