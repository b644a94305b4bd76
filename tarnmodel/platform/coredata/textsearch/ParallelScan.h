#pragma once

#include "tarnmodel/platform/coredata/query/SQLGenerator.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarn {

class ConnectionPool;
class SQLiteConnection;

// Two threads go through the rows of a fetch, each with its own connection and half of the keys.
//
// The first connection stands in a read transaction. None when there is nothing to be gained, or when the second one
// could not begin to read at once: then one thread has to do it. What fails throws a `StoreFailure`.

/// How many rows there are.
std::optional<std::size_t> countOnTwoThreads(
    ConnectionPool& pool, SQLiteConnection& first, const SQLGenerator& generator, const StoreFetch& fetch);
/// Their keys, ascending.
std::optional<std::vector<std::int64_t>> keysOnTwoThreads(
    ConnectionPool& pool, SQLiteConnection& first, const SQLGenerator& generator, const StoreFetch& fetch);

/// The same by the thread that asks.
std::vector<std::int64_t> keysOnOneThread(
    SQLiteConnection& connection, const SQLGenerator& generator, const StoreFetch& fetch);

} // namespace tarn
