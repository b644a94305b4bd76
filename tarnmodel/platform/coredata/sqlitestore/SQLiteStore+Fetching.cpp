#include "tarnmodel/platform/coredata/description/CompleteOrder.h"
#include "tarnmodel/platform/coredata/query/SQLiteFetch.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/sqlitestore/SQLiteStore.h"
#include "tarnmodel/platform/coredata/textsearch/CandidateWalk.h"
#include "tarnmodel/platform/coredata/textsearch/ParallelScan.h"
#include "tarnmodel/platform/coredata/textsearch/StoreSearch.h"

#include <fmt/format.h>

#include <chrono>

namespace tarn {

SQLConditionOptions SQLiteStore::conditionOptions(const StoreFetch& fetch, SQLiteConnection& connection) const
{
    SQLConditionOptions options;
    options.store = identity_;
    options.usesShadows = usesShadows_;
    options.isLargeSet = [&connection](const SQLText& select) { return givesManyRows(connection, select); };
    options.isCommonFlag
        = [this, &connection](const SQLText& select) { return flagStatistics_.contains(connection, select); };
    options.walksOrder = fetch.limit > 0 && !fetch.sortDescriptors.empty();
    if (!options.walksOrder)
        return options;
    options.firstSortKey = fetch.sortDescriptors.front().key;
    const CompleteOrder order = completeOrder(fetch.sortDescriptors, *fetch.entity);
    for (std::size_t i = fetch.sortDescriptors.size(); i < order.descriptors.size(); ++i)
        options.tieKeys.push_back(order.descriptors[i].key);
    return options;
}

bool SQLiteStore::fetch(const StoreFetch& fetch, std::vector<StoreRow>& rows, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        SQLiteConnection& connection = access.connection();
        const StoreSearch search(hasSearchIndex_ ? &searchIndex_ : nullptr, selects_, connection, fetch,
            FetchPurpose::Rows, conditionOptions(fetch, connection));
        rows = rowsOf(fetch, search, connection);
    });
}

std::vector<StoreRow> SQLiteStore::rowsOf(
    const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection)
{
    if (search.goesByOrder())
        if (CandidateWalk walk(fetch, selects_, search.generator(), connection, *pool_); walk.isWhole())
            return walk.rows();
    const SQLiteRowReader reader(*identity_, selects_, connection);
    return SQLiteFetch(fetch, selects_, search.generator(), reader, connection).rows();
}

std::string SQLiteStore::explanationOf(const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection)
{
    if (search.goesByOrder())
        if (const CandidateWalk walk(fetch, selects_, search.generator(), connection, *pool_); walk.isWhole())
            return walk.explain();
    const SQLiteRowReader reader(*identity_, selects_, connection);
    return SQLiteFetch(fetch, selects_, search.generator(), reader, connection).explain();
}

bool SQLiteStore::count(const StoreFetch& fetch, std::size_t& count, NSError* error)
{
    return reportingFailure(error, [&] {
        const ReadAccess access = pool_->read();
        SQLiteConnection& connection = access.connection();
        const SQLiteRowReader reader(*identity_, selects_, connection);
        const StoreSearch search(hasSearchIndex_ ? &searchIndex_ : nullptr, selects_, connection, fetch,
            FetchPurpose::Count, conditionOptions(fetch, connection));
        if (const auto counted = countInParallel(fetch, search, connection))
            count = *counted;
        else
            count = SQLiteFetch(fetch, selects_, search.generator(), reader, connection).count();
    });
}

/// Only what reads most of the texts is worth a second thread.
std::optional<std::size_t> SQLiteStore::countInParallel(
    const StoreFetch& fetch, const StoreSearch& search, SQLiteConnection& connection)
{
    const bool isWhole = fetch.limit == 0 && fetch.offset == 0;
    if (!search.searchesTexts() || !isWhole || search.generator().plan().kind == SearchPlan::Kind::CheckCandidates)
        return std::nullopt;
    return countOnTwoThreads(*pool_, connection, search.generator(), fetch);
}

std::string SQLiteStore::explain(const StoreFetch& fetch)
{
    std::string text;
    NSError error;
    const bool explained = reportingFailure(&error, [&] {
        const ReadAccess access = pool_->read();
        SQLiteConnection& connection = access.connection();
        const StoreSearch search(hasSearchIndex_ ? &searchIndex_ : nullptr, selects_, connection, fetch,
            FetchPurpose::Rows, conditionOptions(fetch, connection));
        text = explanationOf(fetch, search, connection);
        if (!search.searchesTexts())
            return;
        const auto start = std::chrono::steady_clock::now();
        const std::size_t found = rowsOf(fetch, search, connection).size();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        text += search.description() + fmt::format("; {} found in {:.2f} ms\n", found, taken.count());
    });
    return explained ? text : error.localizedDescription();
}

} // namespace tarn
