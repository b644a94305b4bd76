#pragma once

#include "tarnmodel/platform/coredata/query/SQLGenerator.h"
#include "tarnmodel/platform/coredata/sqlite/TransactionGuards.h"
#include "tarnmodel/platform/coredata/textsearch/SearchIndex.h"

#include <chrono>
#include <optional>
#include <string>

namespace tarn {

class SQLiteConnection;

/// What a fetch is for, as far as its plan depends on it.
enum class FetchPurpose : std::uint8_t { Rows, Count };

/// The search index in the service of one fetch: asks it in one read transaction, which lasts as long as this, and
/// chooses how the fetch is walked. A fetch that searches no text asks nothing and pays nothing.
class StoreSearch {
public:
    /// `index` is null where a store has none.
    StoreSearch(const SearchIndex* index, const StoreSelects& selects, SQLiteConnection& connection,
        const StoreFetch& fetch, FetchPurpose purpose, SQLConditionOptions options);

    /// Whether the fetch looks for something in texts.
    bool searchesTexts() const noexcept { return pass_.has_value(); }
    /// Whether rows are checked in the order asked for until there are enough.
    bool goesByOrder() const noexcept;
    const SQLGenerator& generator() const noexcept { return *generator_; }
    /// One line for people: plan, candidates, time.
    std::string description() const;

private:
    SearchPlan plan(const StoreSchema& schema, SQLiteConnection& connection, const StoreFetch& fetch,
        FetchPurpose purpose, const SQLConditionOptions& options);

    std::optional<ReadTransaction> pass_;
    std::optional<SearchIndexReader> look_;
    std::optional<SQLGenerator> generator_;
    std::chrono::steady_clock::duration probeTime_{};
    bool wantsFirstRows_ = false;
};

} // namespace tarn
