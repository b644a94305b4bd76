#pragma once

#include "tarnmodel/platform/coredata/context/reading/SortOrder.h"
#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/coredata/description/KeyPathWalk.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/rows/SaturatingSum.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <span>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tarn {

/// Leaves `limit` from `offset` on; a limit of 0 leaves all from there.
template <typename T> void cut(std::vector<T>& values, std::size_t offset, std::size_t limit)
{
    const std::size_t begin = std::min(offset, values.size());
    const std::size_t end = limit ? std::min(saturatingSum(begin, limit), values.size()) : values.size();
    values.erase(values.begin() + static_cast<std::ptrdiff_t>(end), values.end());
    values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(begin));
}

/// A fetch from a store that lacks some changes: a context's own, or those of a child's parent.
///
/// The store answers for all records whose answer cannot depend on a change. The others (inserted, deleted, changed in
/// a property that predicate or order read, or reached by these over a changed record) are judged in memory by the
/// same predicate. Order, offset and limit hold for both together.
///
/// `Changes` knows the changes and reads the records. An `Item` is a record of the answer; a `Record` names one that
/// may be changed:
/// - `eachChanged` visits the records of a chain that are changed and not deleted, each with its changed properties.
/// - `related` gives the records at the other end, changes included.
/// - `unsureCount` is at least the number of stored records that are deleted or changed in one of the properties.
/// - `storedKey` is 0 for a record that the store does not have.
/// - `candidates` are inserted records, and those changed in one of the properties, that the predicate may find.
/// - `judged` gives, of these records, the items of those that are there and that the fetch is for.
/// - `Order`, `placeOf` and `comesBefore` compare items.
template <typename Changes> class FetchOverChanges {
public:
    using Item = typename Changes::Item;
    using Record = typename Changes::Record;

    FetchOverChanges(Changes& changes, const StoreFetch& fetch)
        : changes_(changes), fetch_(fetch), root_(fetch.entity->rootEntity())
    {
        if (fetch.predicate)
            for (const auto& keys : keyPathsReadByPredicate(*fetch.predicate))
                noteKeyPath(keys);
    }

    std::vector<Item> items()
    {
        for (const NSSortDescriptor& descriptor : completeOrder(fetch_.sortDescriptors, *fetch_.entity).descriptors)
            noteKeyPath(keysOfPath(descriptor.key));
        StoreFetch asked = fetch_;
        asked.offset = 0;
        // Room for every stored record that may have to be dropped from the answer.
        if (fetch_.limit)
            asked.limit = saturatingSum(saturatingSum(fetch_.offset, fetch_.limit),
                saturatingSum(reached_.size(), changes_.unsureCount(root_, relevant_)));
        std::vector<Item> stored = changes_.itemsFromStore(asked);
        std::erase_if(stored, [&](const Item& item) { return isAffected(item); });
        std::vector<Item> all = merged(std::move(stored), judged());
        cut(all, fetch_.offset, fetch_.limit);
        return all;
    }

    std::size_t count()
    {
        std::vector<std::int64_t> excluded = changes_.deletedKeys(root_);
        const auto exclude = [&](const Record& record) {
            if (const std::int64_t key = changes_.storedKey(record); key != 0)
                excluded.push_back(key);
        };
        changes_.eachChanged(root_, [&](const Record& record, PropertyMask properties) {
            if ((properties & relevant_) && !reached_.contains(record))
                exclude(record);
        });
        for (const Record& record : reached_)
            exclude(record);
        excluded.insert(excluded.end(), fetch_.excludedKeys.begin(), fetch_.excludedKeys.end());
        std::ranges::sort(excluded);
        StoreFetch asked = fetch_;
        asked.sortDescriptors = {};
        asked.offset = asked.limit = 0;
        asked.excludedKeys = excluded;
        const std::size_t all = changes_.countInStore(asked) + judged().size();
        const std::size_t behind = all - std::min(fetch_.offset, all);
        return fetch_.limit ? std::min(fetch_.limit, behind) : behind;
    }

private:
    /// Its first property matters in the fetched records; each later one in the records there, which are traced back to
    /// the fetched ones over the inverse relationships.
    void noteKeyPath(const std::vector<std::string>& keys)
    {
        walkKeyPath(*fetch_.entity, keys, [this](const auto& way, const auto& entity, const auto& property) {
            const PropertyMask bit = propertyBit(property.index());
            if (way.empty())
                relevant_ |= bit;
            else
                changes_.eachChanged(entity.rootEntity(), [&](const Record& record, PropertyMask properties) {
                    if (properties & bit)
                        reachBack(way, record);
                });
        });
    }

    void reachBack(std::span<const NSRelationshipDescription* const> way, const Record& record)
    {
        std::unordered_set<Record> front{record};
        for (auto step = way.rbegin(); step != way.rend(); ++step) {
            std::unordered_set<Record> next;
            for (const Record& member : front)
                for (const Record& related : changes_.related(member, (*step)->inverseRelationship()))
                    next.insert(related);
            front = std::move(next);
        }
        for (const Record& reached : front)
            if (changes_.isOfEntity(reached))
                reached_.insert(reached);
    }

    bool isAffected(const Item& item) const
    {
        return (changes_.changeOf(item) & relevant_) || changes_.isDeleted(item)
            || reached_.contains(changes_.recordOf(item));
    }

    /// What memory answers.
    std::vector<Item> judged()
    {
        std::vector<Record> records = changes_.candidates(root_, relevant_);
        std::erase_if(records, [&](const Record& record) { return reached_.contains(record); });
        records.insert(records.end(), reached_.begin(), reached_.end());
        return records.empty() ? std::vector<Item>() : changes_.judged(std::move(records));
    }

    /// The end of the first items for which `test` holds, which is looked for in growing steps: few items are tested
    /// whether it is near or far.
    template <typename Iterator, typename Test>
    static Iterator endOfPrefix(Iterator begin, Iterator end, const Test& test)
    {
        std::ptrdiff_t step = 1;
        while (step <= end - begin && test(begin[step - 1])) {
            begin += step;
            step *= 2;
        }
        return std::partition_point(begin, begin + std::min(step, end - begin), test);
    }

    /// Puts each judged item in its place among the stored ones, which come in order; few of those are looked at.
    std::vector<Item> merged(std::vector<Item> stored, std::vector<Item> found) const
    {
        if (found.empty())
            return stored;
        const typename Changes::Order order(fetch_.sortDescriptors, *fetch_.entity);
        using Place = decltype(changes_.placeOf(order, found.front()));
        std::vector<std::pair<Place, Item>> placed;
        placed.reserve(found.size());
        for (Item& item : found) {
            Place place = changes_.placeOf(order, item);
            placed.emplace_back(std::move(place), std::move(item));
        }
        const auto isBefore
            = [&](const auto& left, const auto& right) { return changes_.comesBefore(order, left.first, right.first); };
        // Of many only as many as are wanted can be among the first.
        if (const std::size_t wanted = saturatingSum(fetch_.offset, fetch_.limit);
            fetch_.limit && wanted < placed.size()) {
            const auto end = placed.begin() + static_cast<std::ptrdiff_t>(wanted);
            std::ranges::nth_element(placed, end, isBefore);
            placed.erase(end, placed.end());
        }
        std::ranges::sort(placed, isBefore);

        std::vector<Item> all;
        all.reserve(stored.size() + placed.size());
        auto next = stored.begin();
        for (auto& [placeOfItem, item] : placed) {
            const Place& place = placeOfItem;
            const auto behind = endOfPrefix(next, stored.end(),
                [&](const Item& other) { return changes_.comesBefore(order, changes_.placeOf(order, other), place); });
            std::move(next, behind, std::back_inserter(all));
            all.push_back(std::move(item));
            next = behind;
        }
        std::move(next, stored.end(), std::back_inserter(all));
        return all;
    }

    Changes& changes_;
    const StoreFetch& fetch_;
    const NSEntityDescription& root_;
    PropertyMask relevant_ = 0;          ///< properties of the fetched records that predicate and order read
    std::unordered_set<Record> reached_; ///< whose answer depends on a changed record elsewhere
};

} // namespace tarn
