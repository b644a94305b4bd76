#pragma once

#include "tarnmodel/platform/coredata/query/SQLGenerator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarn {

class ConnectionPool;
class RowLayout;
class SQLiteConnection;

/// The first rows of a search, from candidates in the order asked for: a block of them is checked, then the next one,
/// until there are enough. When hardly any candidate is a hit, all of them are checked by key instead, on two threads
/// where there are two. Where nothing is known about the predicate all rows are candidates.
///
/// One thread asks it, on a connection that stands in a read transaction.
class CandidateWalk {
public:
    /// `generator` has a plan that goes by an order, and the fetch a limit.
    CandidateWalk(const StoreFetch& fetch, const StoreSelects& selects, const SQLGenerator& generator,
        SQLiteConnection& connection, ConnectionPool& pool);
    CandidateWalk(const CandidateWalk&) = delete;
    CandidateWalk& operator=(const CandidateWalk&) = delete;

    /// Whether the statements say all of the predicate; else there is no such walk.
    bool isWhole() const noexcept { return !block_.remainder; }
    std::vector<StoreRow> rows();
    /// Both statements and their plans, for people.
    std::string explain() const;

private:
    std::vector<StoreRow> checked(std::span<const std::int64_t> keys);
    std::optional<std::vector<StoreRow>> checkedByKey();
    std::size_t candidateCount() const;
    std::vector<StoreRow> read(const SQLText& select) const;
    bool isHardlyEverAHit(std::size_t tried, std::size_t hits) const;

    const StoreFetch& fetch_;
    const SQLGenerator& generator_;
    SQLiteConnection& connection_;
    ConnectionPool& pool_;
    std::size_t wanted_; ///< rows, those that the offset passes over included
    GeneratedSelect block_;
    SQLBinding* blockKeys_; ///< among the arguments of `block_`
    const RowLayout* layout_;
    mutable std::optional<std::size_t> rowCount_; ///< counted when it is first asked for
};

} // namespace tarn
