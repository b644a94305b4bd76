#include "tarnmodel/platform/coredata/context/child/OverlaidFetch.h"

#include "tarnmodel/platform/coredata/context/reading/FetchOverChanges.h"
#include "tarnmodel/platform/coredata/description/PredicateKeys.h"
#include "tarnmodel/platform/coredata/rows/RowOrder.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/predicate/PredicateEvaluator.h"

#include <algorithm>

namespace tarn {

namespace {

/// What is unsaved in a parent, by the keys of its rows.
class UnsavedRows {
public:
    using Item = StoreRow;
    /// A row of some inheritance chain; which, the caller knows.
    using Record = std::int64_t;
    using Order = RowOrder;

    UnsavedRows(RowStore& base, const UnsavedSnapshot& snapshot, const StoreFetch& fetch)
        : base_(base), snapshot_(snapshot), fetch_(fetch), overlaid_(base, snapshot),
          entries_(snapshot.entriesOfRoot(fetch.entity->rootEntity()))
    { }

    template <typename Visit> void eachChanged(const NSEntityDescription& root, Visit&& visit) const
    {
        for (const auto& [key, entry] : snapshot_.entriesOfRoot(root))
            if (!entry->isDeleted)
                visit(key, entry->changed);
    }
    std::vector<Record> related(Record record, const NSRelationshipDescription& relationship) const
    {
        std::vector<Record> keys;
        if (!relationship.isToMany() && relationship.storage() == RelationshipStorage::Column) {
            const auto row
                = overlaid_.readRow(relationship.inverseRelationship().destinationEntity(), record, RowContents::Row);
            if (row && !row->values.isNil(relationship.index()))
                keys.push_back(row->values.integer(relationship.index()));
            return keys;
        }
        for (const RelatedKey& related : overlaid_.readRelatedKeys(relationship, record))
            keys.push_back(related.key);
        return keys;
    }
    std::vector<std::int64_t> deletedKeys(const NSEntityDescription& root) const
    {
        std::vector<std::int64_t> keys;
        for (const auto& [key, entry] : snapshot_.entriesOfRoot(root))
            if (entry->isDeleted)
                keys.push_back(key);
        return keys;
    }
    std::size_t unsureCount(const NSEntityDescription& root, PropertyMask properties) const
    {
        const auto isUnsure = [properties](const auto& keyAndEntry) {
            const UnsavedSnapshot::Entry& entry = *keyAndEntry.second;
            return entry.isDeleted || (!entry.isInserted && (entry.changed & properties));
        };
        return static_cast<std::size_t>(std::ranges::count_if(snapshot_.entriesOfRoot(root), isUnsure));
    }
    std::int64_t storedKey(Record record) const { return record; }
    /// Told when its row is read.
    bool isOfEntity(Record) const { return true; }

    std::vector<Item> itemsFromStore(StoreFetch fetch)
    {
        // What is put among others by its values has to have them.
        if (!fetch.sortDescriptors.empty() && fetch.contents == RowContents::Keys)
            fetch.contents = RowContents::Row;
        std::vector<StoreRow> rows;
        if (NSError error; !base_.fetch(fetch, rows, &error))
            throw StoreFailure(std::move(error));
        for (StoreRow& row : rows)
            if (const UnsavedSnapshot::Entry* entry = entryOf(row.key); entry && !entry->isDeleted)
                row = overlaid_.rowOfEntry(*entry, fetch.contents);
        return rows;
    }
    std::size_t countInStore(const StoreFetch& fetch) const
    {
        std::size_t count = 0;
        if (NSError error; !base_.count(fetch, count, &error))
            throw StoreFailure(std::move(error));
        return count;
    }

    Record recordOf(const Item& item) const { return item.key; }
    PropertyMask changeOf(const Item& item) const
    {
        const UnsavedSnapshot::Entry* entry = entryOf(item.key);
        return entry ? entry->changed : 0;
    }
    bool isDeleted(const Item& item) const
    {
        const UnsavedSnapshot::Entry* entry = entryOf(item.key);
        return entry && entry->isDeleted;
    }

    std::vector<Record> candidates(const NSEntityDescription&, PropertyMask relevant) const
    {
        std::vector<Record> found;
        for (const auto& [key, entry] : entries_)
            if (!entry->isDeleted && (entry->isInserted || (entry->changed & relevant)))
                found.push_back(key);
        return found;
    }
    std::vector<Item> judged(std::vector<Record> keys) const
    {
        std::erase_if(keys, [&](Record key) {
            return std::binary_search(fetch_.excludedKeys.begin(), fetch_.excludedKeys.end(), key);
        });
        const bool readsText = fetch_.predicate && readsLargeAttribute(*fetch_.predicate, *fetch_.entity);
        const RowContents contents
            = readsText || fetch_.contents == RowContents::WholeRow ? RowContents::WholeRow : RowContents::Row;
        std::vector<StoreRow> rows = overlaid_.readRows(*fetch_.entity, keys, contents);
        std::erase_if(rows, [&](const StoreRow& row) {
            return fetch_.includesSubentities ? !row.entity->isKindOfEntity(*fetch_.entity)
                                              : row.entity != fetch_.entity;
        });
        if (!fetch_.predicate)
            return rows;
        checkKeysOfPredicate(*fetch_.predicate, *fetch_.entity);
        const PredicateEvaluator evaluator(*fetch_.predicate);
        RowGraph graph(overlaid_);
        std::erase_if(rows, [&](const StoreRow& row) { return !evaluator.evaluate(graph.objectForRow(row)); });
        return rows;
    }

    RowOrder::Place placeOf(const Order& order, const Item& item) const { return order.placeOf(item, overlaid_); }
    bool comesBefore(const Order& order, const RowOrder::Place& left, const RowOrder::Place& right) const
    {
        return order.comesBefore(left, right);
    }

private:
    const UnsavedSnapshot::Entry* entryOf(std::int64_t key) const
    {
        const auto found = entries_.find(key);
        return found == entries_.end() ? nullptr : found->second.get();
    }

    RowStore& base_;
    const UnsavedSnapshot& snapshot_;
    const StoreFetch& fetch_;
    OverlaidRows overlaid_;
    const UnsavedSnapshot::Entries& entries_; ///< of the chain that is fetched
};

} // namespace

std::vector<StoreRow> rowsOverSnapshot(RowStore& base, const UnsavedSnapshot& snapshot, const StoreFetch& fetch)
{
    UnsavedRows unsaved(base, snapshot, fetch);
    std::vector<StoreRow> rows = FetchOverChanges(unsaved, fetch).items();
    if (fetch.contents == RowContents::Keys)
        for (StoreRow& row : rows)
            row.values = PropertyValues();
    return rows;
}

std::size_t countOverSnapshot(RowStore& base, const UnsavedSnapshot& snapshot, const StoreFetch& fetch)
{
    UnsavedRows unsaved(base, snapshot, fetch);
    return FetchOverChanges(unsaved, fetch).count();
}

} // namespace tarn
