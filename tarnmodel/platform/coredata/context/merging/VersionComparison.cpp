#include "tarnmodel/platform/coredata/context/merging/VersionComparison.h"

#include <algorithm>
#include <utility>

namespace tarn {

namespace {

/// More rows than these are not looked up one by one where most of the table is wanted.
constexpr std::size_t kMostLookedUp = 1000;

using RecordsByKey = std::vector<std::pair<std::int64_t, NSManagedObject*>>; ///< by key

/// By key, ascending. Where most rows are held, walking through the table takes half the time of looking each one up.
bool readVersions(RowStore& store, const NSEntityDescription& root, const RecordsByKey& held,
    std::vector<StoreRow>& rows, NSError* error)
{
    const auto highest = static_cast<std::size_t>(held.back().first);
    if (held.size() > kMostLookedUp && held.size() > highest / 2) {
        StoreFetch all;
        all.entity = &root;
        all.contents = RowContents::Keys;
        return store.fetch(all, rows, error); // an unsorted fetch answers by key
    }
    std::vector<std::int64_t> keys;
    keys.reserve(held.size());
    for (const auto& [key, record] : held)
        keys.push_back(key);
    if (!store.rowsForKeys(root, keys, RowContents::Keys, rows, error))
        return false;
    std::sort(
        rows.begin(), rows.end(), [](const StoreRow& left, const StoreRow& right) { return left.key < right.key; });
    return true;
}

} // namespace

bool compareVersions(RowStore& store, const NSEntityDescription& root, const std::vector<NSManagedObject*>& records,
    VersionDifferences& differences, NSError* error)
{
    if (records.empty())
        return true;
    RecordsByKey held;
    held.reserve(records.size());
    for (NSManagedObject* record : records)
        held.emplace_back(record->objectID().key(), record);
    std::sort(held.begin(), held.end());
    std::vector<StoreRow> rows;
    if (!readVersions(store, root, held, rows, error))
        return false;
    auto row = rows.begin();
    for (const auto& [key, record] : held) {
        while (row != rows.end() && row->key < key)
            ++row;
        if (row == rows.end() || row->key != key)
            differences.gone.push_back(record);
        else if (row->version != record->rowVersion())
            differences.moved.push_back(record);
    }
    return true;
}

} // namespace tarn
