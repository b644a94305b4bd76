#pragma once

#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tarn {

class SQLiteConnection;

// The tables of signatures in a store's file. What fails throws a `StoreFailure`.

/// Whether everything that searches lean on is there: tables, triggers, indexes.
bool hasSearchTables(SQLiteConnection& connection, const StoreSchema& schema);
/// Makes what is missing, with a stale signature for every row. Inside a transaction.
void addSearchTables(SQLiteConnection& connection, const StoreSchema& schema);

/// Writes the signature of a row whose attribute was just written, or a stale one, and notes the change. Inside a
/// transaction.
void writeSignature(SQLiteConnection& connection, const SignatureTable& table, std::int64_t key,
    const std::optional<std::string>& signature);
/// Of a row that was just deleted; notes the change. Inside a transaction.
void removeSignature(SQLiteConnection& connection, const SignatureTable& table, std::int64_t key);
/// Makes all signatures stale. Inside a transaction.
void forgetSignatures(SQLiteConnection& connection, const StoreSchema& schema);
/// Makes the signatures of all rows that have none, and notes nothing: for a file that nobody else has open yet.
/// `madeSome` is called now and then. Inside a transaction.
void completeSignatures(
    SQLiteConnection& connection, const SignatureTable& table, const std::function<void()>& madeSome);
/// Cuts the list of changes when it has become long. Inside a transaction.
void trimChanges(SQLiteConnection& connection, const SignatureTable& table);

/// What is wrong with the signatures of some rows: those without a usable one, and those that would hide something.
struct SignatureProblems {
    std::vector<std::int64_t> staleKeys;
    std::vector<std::int64_t> wrongKeys;
    std::int64_t lastKey = 0; ///< of the rows that were looked at
    bool isLast = false;      ///< no rows are left after them
};
/// Looks at up to `most` rows whose keys come after `key`.
SignatureProblems problemsOfSignatures(
    SQLiteConnection& connection, const SignatureTable& table, std::int64_t key, std::size_t most);
/// Makes the signatures of these rows anew. Inside a transaction.
void rewriteSignatures(SQLiteConnection& connection, const SignatureTable& table, std::span<const std::int64_t> keys);

} // namespace tarn
