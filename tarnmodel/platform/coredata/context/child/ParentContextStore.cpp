#include "tarnmodel/platform/coredata/context/child/ParentContextStore.h"

#include "tarnmodel/platform/coredata/context/child/OverlaidFetch.h"
#include "tarnmodel/platform/coredata/context/child/ParentTransaction.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"

namespace tarn {

bool ParentContextStore::fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error)
{
    const auto snapshot = parent_->snapshot();
    if (snapshot->isEmpty())
        return base_.fetch(fetch, rows, error);
    return reportingFailure(error, [&] {
        for (StoreRow& row : rowsOverSnapshot(base_, *snapshot, fetch))
            rows.push_back(std::move(row));
    });
}

bool ParentContextStore::count(const StoreFetch& fetch, std::size_t& count, NSError* error)
{
    const auto snapshot = parent_->snapshot();
    if (snapshot->isEmpty())
        return base_.count(fetch, count, error);
    return reportingFailure(error, [&] { count = countOverSnapshot(base_, *snapshot, fetch); });
}

bool ParentContextStore::rowsForKeys(const NSEntityDescription& entity, std::span<const std::int64_t> keys,
    RowContents contents, std::vector<StoreRow>& rows, NSError* error)
{
    const auto snapshot = parent_->snapshot();
    if (snapshot->isEmpty())
        return base_.rowsForKeys(entity, keys, contents, rows, error);
    return reportingFailure(error, [&] {
        for (StoreRow& row : OverlaidRows(base_, *snapshot).readRows(entity, keys, contents))
            rows.push_back(std::move(row));
    });
}

bool ParentContextStore::relatedKeys(
    const NSRelationshipDescription& relationship, std::int64_t key, std::vector<RelatedKey>& related, NSError* error)
{
    const auto snapshot = parent_->snapshot();
    if (snapshot->isEmpty())
        return base_.relatedKeys(relationship, key, related, error);
    return reportingFailure(
        error, [&] { related = OverlaidRows(base_, *snapshot).readRelatedKeys(relationship, key); });
}

bool ParentContextStore::countRelated(
    const NSRelationshipDescription& relationship, std::int64_t key, std::size_t& count, NSError* error)
{
    const auto snapshot = parent_->snapshot();
    if (snapshot->isEmpty())
        return base_.countRelated(relationship, key, count, error);
    return reportingFailure(
        error, [&] { count = OverlaidRows(base_, *snapshot).readRelatedKeys(relationship, key).size(); });
}

std::uint64_t ParentContextStore::stateNumber()
{
    constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15; // keeps the two counters apart
    return base_.stateNumber() * kSpread + parent_->snapshot()->generation();
}

std::unique_ptr<StoreTransaction> ParentContextStore::beginTransaction(NSError*)
{
    return std::make_unique<ParentTransaction>(*this, parent_);
}

} // namespace tarn
