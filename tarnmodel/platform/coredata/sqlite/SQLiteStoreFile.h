#pragma once

#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarn {

class SQLiteConnection;

// The file of a store as a whole: making, recognising and checking it. What fails throws a `StoreFailure`.

/// What a database file holds.
enum class StoreFileContents : std::uint8_t {
    Nothing, ///< no table yet
    Store,
    SomethingElse, ///< tables of another program
};
StoreFileContents contentsOfStoreFile(SQLiteConnection& connection);

/// Makes the tables in an empty file. Of several processes that do so at once, one makes them and the others find them.
void createStoreTables(SQLiteConnection& connection, const StoreSchema& schema, const NSManagedObjectModel& model);

StoreMetadata readStoreMetadata(SQLiteConnection& connection);
void writeStoreMetadataValue(SQLiteConnection& connection, std::string_view key, std::string_view value);

/// Makes all shadow columns again and writes the version of folding down. Inside a transaction.
void foldAgain(SQLiteConnection& connection, const StoreSchema& schema);
/// Makes the shadow columns again that another program has left stale. Inside a transaction.
void foldStale(SQLiteConnection& connection, const StoreSchema& schema);
bool hasStaleShadows(SQLiteConnection& connection, const StoreSchema& schema);

/// The name of what a CREATE statement makes: the first quoted one.
std::string madeName(const std::string& statement);
/// Whether everything is there that these CREATE statements make.
bool holdsAll(SQLiteConnection& connection, const std::vector<std::string>& statements);
/// Makes the triggers that are missing of those that count versions for programs that do not. Inside a transaction.
void addVersionTriggers(SQLiteConnection& connection, const StoreSchema& schema);

/// What is wrong with the file; nothing when it is sound.
std::vector<std::string> problemsOfStoreFile(SQLiteConnection& connection, const StoreSchema& schema);

} // namespace tarn
