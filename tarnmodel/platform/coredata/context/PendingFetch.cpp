#include "tarnmodel/platform/coredata/context/PendingFetch.h"

#include "tarnmodel/platform/coredata/context/ContextCore.h"
#include "tarnmodel/platform/coredata/context/RecordAccess.h"
#include "tarnmodel/platform/coredata/context/SortOrder.h"
#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/coredata/description/KeyPathWalk.h"
#include "tarnmodel/platform/coredata/rows/SaturatingSum.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace tarn {

namespace {

/// Turns exceptions of an evaluation (an unknown key, a bad pattern) into the error of a failed fetch.
template <typename Result, typename Work> std::optional<Result> guarded(NSError* error, Work&& work)
{
    try {
        return work();
    } catch (const NSException& exception) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorGeneric, exception.reason()));
        return std::nullopt;
    }
}

std::size_t hashOf(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? 1 : 0;
    case Value::Kind::Integer:
        return std::hash<std::int64_t>()(value.asInteger());
    case Value::Kind::Double:
        return std::hash<double>()(value.asDouble());
    case Value::Kind::Date:
        return std::hash<std::int64_t>()(microsecondsSince1970(value.asDate()));
    case Value::Kind::String:
        return std::hash<std::string>()(value.asString());
    default:
        return 0;
    }
}

std::size_t hashOf(const DictionaryResult& result)
{
    std::size_t hash = 0;
    for (const auto& [name, value] : result)
        hash = hash * 31 + hashOf(value);
    return hash;
}

/// Leaves `limit` from `offset` on; a limit of 0 leaves all from there.
template <typename T> void cut(std::vector<T>& values, std::size_t offset, std::size_t limit)
{
    const std::size_t begin = std::min(offset, values.size());
    const std::size_t end = limit ? std::min(saturatingSum(begin, limit), values.size()) : values.size();
    values.erase(values.begin() + static_cast<std::ptrdiff_t>(end), values.end());
    values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(begin));
}

} // namespace

PendingFetch::PendingFetch(ContextCore& core, const NSFetchRequest& request)
    : core_(core), request_(request), root_(request.entity->rootEntity())
{ }

// Which records the store cannot answer for -------------------------------------------------------------------------

bool PendingFetch::isOfEntity(const NSManagedObject& record) const
{
    return request_.includesSubentities ? record.entity().isKindOfEntity(*request_.entity)
                                        : &record.entity() == request_.entity;
}

bool PendingFetch::hasPending() const
{
    return request_.includesPendingChanges && core_.tracker.hasChanges();
}

void PendingFetch::collectRelevantProperties()
{
    if (request_.predicate)
        for (const auto& keys : keyPathsReadByPredicate(*request_.predicate))
            noteKeyPath(keys);
    for (const NSSortDescriptor& descriptor : completeOrder(request_.sortDescriptors, *request_.entity).descriptors)
        noteKeyPath(keysOfPath(descriptor.key));
}

/// Walks a key path: its first property matters in the fetched records; each later one in the records there, which are
/// traced back to the fetched ones over the inverse relationships.
void PendingFetch::noteKeyPath(const std::vector<std::string>& keys)
{
    walkKeyPath(*request_.entity, keys, [this](const auto& way, const auto& entity, const auto& property) {
        const PropertyMask bit = propertyBit(property.index());
        if (way.empty()) {
            relevant_ |= bit;
            return;
        }
        const PendingRecords* pending = core_.tracker.pending(entity.rootEntity());
        if (!pending)
            return;
        for (NSManagedObject* record : std::vector<NSManagedObject*>(pending->updated))
            if (record->isUpdated() && (RecordAccess::changed(*record) & bit))
                reachBack(way, *record);
    });
}

void PendingFetch::reachBack(std::span<const NSRelationshipDescription* const> path, NSManagedObject& record)
{
    std::vector<NSManagedObject*> front{&record};
    for (auto step = path.rbegin(); step != path.rend(); ++step) {
        std::unordered_set<NSManagedObject*> next;
        for (NSManagedObject* member : front)
            for (NSManagedObject* related : core_.relationships.related(*member, (*step)->inverseRelationship()))
                next.insert(related);
        front.assign(next.begin(), next.end());
    }
    for (NSManagedObject* reached : front)
        if (!reached->isInserted() && isOfEntity(*reached))
            reached_.insert(reached);
}

bool PendingFetch::isAffected(const NSManagedObject& record) const
{
    return record.isDeleted() || (RecordAccess::changed(record) & relevant_) || reached_.contains(&record);
}

// The answer in memory ----------------------------------------------------------------------------------------------

std::vector<NSManagedObject*> PendingFetch::candidates()
{
    std::vector<NSManagedObject*> found;
    const PendingRecords* pending = core_.tracker.pending(root_);
    std::optional<std::vector<NSManagedObject*>> narrowed;
    if (pending && request_.predicate)
        narrowed = core_.pendingIndex.candidates(*request_.entity, *request_.predicate);
    const auto take = [&](NSManagedObject* record) {
        const bool isPending = record->isInserted() || (record->isUpdated() && isAffected(*record));
        if (isPending && !reached_.contains(record) && isOfEntity(*record))
            found.push_back(record);
    };
    if (narrowed) {
        std::for_each(narrowed->begin(), narrowed->end(), take);
    } else if (pending) {
        std::for_each(pending->inserted.begin(), pending->inserted.end(), take);
        std::for_each(pending->updated.begin(), pending->updated.end(), take);
    }
    for (const NSManagedObject* reached : reached_)
        if (!reached->isDeleted())
            found.push_back(const_cast<NSManagedObject*>(reached));
    return found;
}

std::vector<NSManagedObject*> PendingFetch::matchingInMemory()
{
    std::vector<NSManagedObject*> found = candidates();
    if (request_.predicate && !found.empty()) {
        const PredicateEvaluator evaluator(*request_.predicate);
        std::erase_if(found, [&](const NSManagedObject* record) { return !evaluator.evaluate(*record); });
    }
    const SortOrder order(request_.sortDescriptors, *request_.entity);
    std::sort(found.begin(), found.end(),
        [&](const NSManagedObject* left, const NSManagedObject* right) { return order.comesBefore(*left, *right); });
    return found;
}

// Both together -----------------------------------------------------------------------------------------------------

std::string PendingFetch::explain()
{
    return core_.store().explain(storeFetch(RowContents::Row));
}

StoreFetch PendingFetch::storeFetch(RowContents contents) const
{
    StoreFetch fetch;
    fetch.entity = request_.entity;
    fetch.includesSubentities = request_.includesSubentities;
    fetch.predicate = request_.predicate ? &*request_.predicate : nullptr;
    fetch.sortDescriptors = request_.sortDescriptors;
    fetch.limit = request_.fetchLimit;
    fetch.offset = request_.fetchOffset;
    fetch.contents = contents;
    return fetch;
}

std::vector<NSManagedObject*> PendingFetch::merged(
    std::vector<NSManagedObject*> stored, std::vector<NSManagedObject*> pending) const
{
    std::vector<NSManagedObject*> all;
    all.reserve(stored.size() + pending.size());
    if (pending.empty()) {
        all = std::move(stored);
    } else {
        const SortOrder order(request_.sortDescriptors, *request_.entity);
        std::merge(stored.begin(), stored.end(), pending.begin(), pending.end(), std::back_inserter(all),
            [&](const NSManagedObject* left, const NSManagedObject* right) {
                return order.comesBefore(*left, *right);
            });
    }
    cut(all, request_.fetchOffset, request_.fetchLimit);
    return all;
}

std::optional<std::vector<NSManagedObject*>> PendingFetch::mergedObjects(RowContents contents, NSError* error)
{
    collectRelevantProperties();
    StoreFetch fetch = storeFetch(contents);
    fetch.offset = 0;
    if (request_.fetchLimit) {
        // Room for every stored record that may have to be dropped from the answer.
        const PendingRecords* pending = core_.tracker.pending(root_);
        const std::size_t unsure = reached_.size() + (pending ? pending->updated.size() + pending->deleted.size() : 0);
        fetch.limit = saturatingSum(saturatingSum(request_.fetchOffset, request_.fetchLimit), unsure);
    }
    std::vector<StoreRow> rows;
    if (!core_.store().fetch(fetch, rows, error))
        return std::nullopt;
    std::vector<NSManagedObject*> stored;
    stored.reserve(rows.size());
    for (StoreRow& row : rows)
        if (NSManagedObject& record = core_.faulting.adopt(std::move(row)); !isAffected(record))
            stored.push_back(&record);
    return merged(std::move(stored), matchingInMemory());
}

std::optional<std::vector<NSManagedObject*>> PendingFetch::objects(NSError* error)
{
    const RowContents contents = request_.includesPropertyValues ? RowContents::Row : RowContents::Keys;
    return guarded<std::vector<NSManagedObject*>>(error, [&]() -> std::optional<std::vector<NSManagedObject*>> {
        if (hasPending())
            return mergedObjects(contents, error);
        std::vector<StoreRow> rows;
        if (!core_.store().fetch(storeFetch(contents), rows, error))
            return std::nullopt;
        std::vector<NSManagedObject*> found;
        found.reserve(rows.size());
        for (StoreRow& row : rows)
            found.push_back(&core_.faulting.adopt(std::move(row)));
        return found;
    });
}

std::optional<std::size_t> PendingFetch::count(NSError* error)
{
    return guarded<std::size_t>(error, [&]() -> std::optional<std::size_t> {
        if (hasPending()) {
            const auto found = mergedObjects(RowContents::Keys, error);
            return found ? std::optional(found->size()) : std::nullopt;
        }
        std::size_t count = 0;
        return core_.store().count(storeFetch(RowContents::Keys), count, error) ? std::optional(count) : std::nullopt;
    });
}

std::optional<std::vector<DictionaryResult>> PendingFetch::dictionaries(NSError* error)
{
    std::vector<std::string> names = request_.propertiesToFetch;
    if (names.empty())
        for (const NSAttributeDescription* attribute : request_.entity->attributes())
            names.push_back(attribute->name());
    // Offset and limit count distinct results, which only their values tell.
    NSFetchRequest request = request_;
    if (request.returnsDistinctResults)
        request.fetchLimit = request.fetchOffset = 0;
    const auto found = PendingFetch(core_, request).objects(error);
    if (!found)
        return std::nullopt;
    return guarded<std::vector<DictionaryResult>>(error, [&]() -> std::optional<std::vector<DictionaryResult>> {
        std::vector<DictionaryResult> results;
        std::unordered_multimap<std::size_t, std::size_t> places;
        for (const NSManagedObject* record : *found) {
            DictionaryResult result;
            for (const std::string& name : names) {
                Value value = record->storedValueForKey(name);
                if (value.kind() == Value::Kind::Object)
                    value = Value(static_cast<const NSManagedObject&>(value.asObject()).objectID().URIRepresentation());
                result.emplace(name, std::move(value));
            }
            if (request_.returnsDistinctResults) {
                const std::size_t hash = hashOf(result);
                const auto [begin, end] = places.equal_range(hash);
                if (std::any_of(begin, end, [&](const auto& place) { return results[place.second] == result; }))
                    continue;
                places.emplace(hash, results.size());
            }
            results.push_back(std::move(result));
        }
        if (request_.returnsDistinctResults)
            cut(results, request_.fetchOffset, request_.fetchLimit);
        return results;
    });
}

} // namespace tarn
