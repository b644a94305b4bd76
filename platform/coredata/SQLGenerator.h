#pragma once

#include "platform/coredata/NSPersistentStore.h"
#include "platform/coredata/SQLConditionBuilder.h"
#include "platform/coredata/SQLText.h"
#include "platform/coredata/StoreSelects.h"

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

/// Makes the SELECTs of fetches. Pure: the same fetch gives the same text.
///
/// Raises `NSException` for keys that do not exist and for keys that cannot be sorted by.
class SQLGenerator {
public:
    SQLGenerator(const StoreSelects& selects, SQLConditionOptions options)
        : selects_(selects), options_(std::move(options))
    { }

    /// SELECT of rows in the order asked for, as a `RowLayout` for these contents reads them; with a remainder,
    /// contents are at least `Row`.
    GeneratedSelect rows(const StoreFetch& fetch, RowContents& contents) const;
    /// SELECT count(*), without limit and offset. With a remainder only that counts: fetch rows instead.
    GeneratedSelect count(const StoreFetch& fetch) const;

private:
    struct Parts;

    std::string where(const StoreFetch& fetch, Parts& parts) const;
    void addPredicate(const NSPredicate& predicate, Parts& parts, std::vector<std::string>& conditions) const;
    std::string orderBy(const StoreFetch& fetch, Parts& parts) const;

    const StoreSelects& selects_;
    SQLConditionOptions options_;
};

/// `"entity" IN (...)` for the rows of an entity; empty when every row of the table is one.
std::string entityCondition(const NSEntityDescription& entity, bool includesSubentities, std::string_view alias);

} // namespace tarn
