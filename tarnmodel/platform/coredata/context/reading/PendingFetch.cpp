#include "tarnmodel/platform/coredata/context/reading/PendingFetch.h"

#include "tarnmodel/platform/coredata/context/reading/Faulting.h"
#include "tarnmodel/platform/coredata/context/reading/FetchOverChanges.h"
#include "tarnmodel/platform/coredata/context/records/HeldRecords.h"
#include "tarnmodel/platform/coredata/context/records/RecordAccess.h"
#include "tarnmodel/platform/coredata/context/records/RelationshipMaintenance.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>
#include <functional>
#include <unordered_map>

namespace tarn {

namespace {

/// Turns exceptions of an evaluation (an unknown key, a bad pattern) and failures of the store into the error of a
/// failed fetch.
template <typename Work> auto guarded(NSError* error, Work&& work) -> std::optional<decltype(work())>
{
    try {
        return work();
    } catch (const NSException& exception) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorGeneric, exception.reason()));
    } catch (const StoreFailure& failure) {
        assignError(error, failure.error());
    }
    return std::nullopt;
}

/// What is unsaved in a context, by its records.
class UnsavedRecords {
public:
    using Item = NSManagedObject*;
    using Record = NSManagedObject*;
    using Order = SortOrder;

    UnsavedRecords(
        HeldRecords& records, Faulting& faulting, RelationshipMaintenance& relationships, const StoreFetch& fetch)
        : records_(records), faulting_(faulting), relationships_(relationships), fetch_(fetch)
    { }

    template <typename Visit> void eachChanged(const NSEntityDescription& root, Visit&& visit) const
    {
        const PendingRecords* pending = records_.tracker.pending(root);
        if (!pending)
            return;
        // What is read on a visit may change the list.
        for (NSManagedObject* record : std::vector<NSManagedObject*>(pending->updated))
            if (record->isUpdated())
                visit(record, RecordAccess::changed(*record));
    }
    std::vector<Record> related(Record record, const NSRelationshipDescription& relationship) const
    {
        return relationships_.related(*record, relationship);
    }
    std::vector<std::int64_t> deletedKeys(const NSEntityDescription& root) const
    {
        std::vector<std::int64_t> keys;
        if (const PendingRecords* pending = records_.tracker.pending(root))
            for (const NSManagedObject* record : pending->deleted)
                if (record->isDeleted())
                    keys.push_back(record->objectID().key());
        return keys;
    }
    /// Without looking at each, which would cost every fetch of a long edit.
    std::size_t unsureCount(const NSEntityDescription& root, PropertyMask) const
    {
        const PendingRecords* pending = records_.tracker.pending(root);
        return pending ? pending->updated.size() + pending->deleted.size() : 0;
    }
    std::int64_t storedKey(Record record) const { return record->isInserted() ? 0 : record->objectID().key(); }
    bool isOfEntity(Record record) const
    {
        return fetch_.includesSubentities ? record->entity().isKindOfEntity(*fetch_.entity)
                                          : &record->entity() == fetch_.entity;
    }

    std::vector<Item> itemsFromStore(const StoreFetch& fetch)
    {
        std::vector<StoreRow> rows;
        if (NSError error; !records_.store().fetch(fetch, rows, &error))
            throw StoreFailure(std::move(error));
        std::vector<Item> items;
        items.reserve(rows.size());
        for (StoreRow& row : rows)
            items.push_back(&faulting_.adopt(std::move(row)));
        return items;
    }
    std::size_t countInStore(const StoreFetch& fetch) const
    {
        std::size_t count = 0;
        if (NSError error; !records_.store().count(fetch, count, &error))
            throw StoreFailure(std::move(error));
        return count;
    }

    Record recordOf(Item item) const { return item; }
    PropertyMask changeOf(Item item) const { return RecordAccess::changed(*item); }
    bool isDeleted(Item item) const { return item->isDeleted(); }

    std::vector<Record> candidates(const NSEntityDescription& root, PropertyMask relevant)
    {
        std::vector<Record> found;
        const PendingRecords* pending = records_.tracker.pending(root);
        if (!pending)
            return found;
        const auto take = [&](NSManagedObject* record) {
            if (record->isInserted() || (record->isUpdated() && (RecordAccess::changed(*record) & relevant)))
                found.push_back(record);
        };
        const auto narrowed
            = fetch_.predicate ? records_.pendingIndex.candidates(*fetch_.entity, *fetch_.predicate) : std::nullopt;
        if (narrowed) {
            std::ranges::for_each(*narrowed, take);
        } else {
            std::ranges::for_each(pending->inserted, take);
            std::ranges::for_each(pending->updated, take);
        }
        return found;
    }
    std::vector<Item> judged(std::vector<Record> records) const
    {
        std::erase_if(records, [&](Record record) { return record->isDeleted() || !isOfEntity(record); });
        if (!fetch_.predicate || records.empty())
            return records;
        const PredicateEvaluator evaluator(*fetch_.predicate);
        std::erase_if(records, [&](Record record) { return !evaluator.evaluate(*record); });
        return records;
    }

    const NSManagedObject* placeOf(const Order&, Item item) const { return item; }
    bool comesBefore(const Order& order, const NSManagedObject* left, const NSManagedObject* right) const
    {
        return order.comesBefore(*left, *right);
    }

private:
    HeldRecords& records_;
    Faulting& faulting_;
    RelationshipMaintenance& relationships_;
    const StoreFetch& fetch_;
};

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

} // namespace

PendingFetch::PendingFetch(
    HeldRecords& records, Faulting& faulting, RelationshipMaintenance& relationships, const NSFetchRequest& request)
    : records_(records), faulting_(faulting), relationships_(relationships), request_(request)
{ }

bool PendingFetch::hasPending() const
{
    return request_.includesPendingChanges && records_.tracker.hasChanges();
}

std::string PendingFetch::explain()
{
    return records_.store().explain(storeFetch(RowContents::Row));
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

std::optional<std::vector<NSManagedObject*>> PendingFetch::objects(NSError* error)
{
    const StoreFetch fetch = storeFetch(request_.includesPropertyValues ? RowContents::Row : RowContents::Keys);
    return guarded(error, [&] {
        UnsavedRecords unsaved(records_, faulting_, relationships_, fetch);
        return hasPending() ? FetchOverChanges(unsaved, fetch).items() : unsaved.itemsFromStore(fetch);
    });
}

std::optional<std::size_t> PendingFetch::count(NSError* error)
{
    const StoreFetch fetch = storeFetch(RowContents::Keys);
    return guarded(error, [&] {
        UnsavedRecords unsaved(records_, faulting_, relationships_, fetch);
        return hasPending() ? FetchOverChanges(unsaved, fetch).count() : unsaved.countInStore(fetch);
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
    const auto found = PendingFetch(records_, faulting_, relationships_, request).objects(error);
    if (!found)
        return std::nullopt;
    return guarded(error, [&] {
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
