#pragma once

#include "tarnmodel/platform/coredata/query/SQLConditionBuilder.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/coredata/sqlite/SQLText.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSelects.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// A SELECT that answers a fetch, or narrows it.
struct GeneratedSelect {
    SQLText text;
    /// What SQL could not say, to be evaluated over the rows; none when the SELECT is the whole answer. Then limit and
    /// offset are in the SELECT, else they count what the predicate leaves.
    std::optional<NSPredicate> remainder;
};

/// Which rows a SELECT looks at, by what the search index says.
struct SearchPlan {
    enum class Kind : std::uint8_t {
        NoIndex,         ///< nothing is known about the predicate as a whole
        CheckCandidates, ///< the candidates one by one, what is left is sorted
        SortCandidates,  ///< the candidates in the order asked for, checked until there are enough
        WalkOrder,       ///< the rows in the order asked for, candidates checked, until there are enough
        Scan,            ///< the rows by key, candidates checked
    };
    Kind kind = Kind::NoIndex;
    PrimaryKeySetPtr candidates; ///< null with `NoIndex`
    /// How many rows there are to search, as far as is known.
    std::size_t rowCount = 0;
};
/// As people read it: "check candidates".
std::string_view nameOfPlan(SearchPlan::Kind kind);

/// The part of a table that one of several scans takes: keys from the first to the last.
struct KeyRange {
    std::int64_t first = 0;
    std::int64_t last = 0;
};

/// Makes the SELECTs of fetches. Pure: the same fetch gives the same text.
///
/// Raises `NSException` for keys that do not exist and for keys that cannot be sorted by.
class SQLGenerator {
public:
    SQLGenerator(const StoreSelects& selects, SQLConditionOptions options, SearchPlan plan = {})
        : selects_(selects), options_(std::move(options)), plan_(std::move(plan))
    { }

    const SearchPlan& plan() const noexcept { return plan_; }
    /// One that walks the same fetches by another plan.
    SQLGenerator withPlan(SearchPlan::Kind kind, PrimaryKeySetPtr candidates) const
    {
        return {selects_, options_, {kind, std::move(candidates), plan_.rowCount}};
    }

    /// SELECT of rows in the order asked for, as a `RowLayout` for these contents reads them; with a remainder,
    /// contents are at least `Row`.
    GeneratedSelect rows(const StoreFetch& fetch, RowContents& contents) const;
    /// SELECT count(*), without limit and offset. With a remainder only that counts: fetch rows instead.
    GeneratedSelect count(const StoreFetch& fetch) const;
    /// The same for part of the rows.
    GeneratedSelect countInRange(const StoreFetch& fetch, KeyRange range) const;
    /// SELECT of the keys of part of the rows, ascending, without limit and offset.
    GeneratedSelect keysInRange(const StoreFetch& fetch, KeyRange range) const;
    /// SELECT of the candidates' keys in the order asked for, whether the predicate picks them or not.
    GeneratedSelect candidatesInOrder(const StoreFetch& fetch) const;

private:
    struct Parts;

    enum class Result : std::uint8_t { Count, Keys };
    GeneratedSelect unsorted(const StoreFetch& fetch, Result result, std::optional<KeyRange> range) const;
    bool startsWithCandidates() const noexcept;
    std::string from(const StoreTable& table, Parts& parts) const;
    std::vector<std::string> conditions(const StoreFetch& fetch, Parts& parts) const;
    void addPredicate(const NSPredicate& predicate, Parts& parts, std::vector<std::string>& conditions) const;
    std::string orderBy(const StoreFetch& fetch, Parts& parts) const;

    const StoreSelects& selects_;
    SQLConditionOptions options_;
    SearchPlan plan_;
};

} // namespace tarn
