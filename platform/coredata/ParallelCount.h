#pragma once

#include "platform/coredata/NSPersistentStore.h"
#include "platform/coredata/SQLGenerator.h"

#include <cstddef>
#include <optional>

namespace tarn {

class ConnectionPool;
class SQLiteConnection;

/// Counts the rows of a fetch on two threads, each with its own connection and half of the keys.
///
/// The first connection stands in a read transaction. None when there is nothing to be gained, or when the second one
/// could not begin to read at once: then one thread has to do it. What fails throws a `StoreFailure`.
std::optional<std::size_t> countOnTwoThreads(
    ConnectionPool& pool, SQLiteConnection& first, const SQLGenerator& generator, const StoreFetch& fetch);

} // namespace tarn
