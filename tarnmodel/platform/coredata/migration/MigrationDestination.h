#pragma once

#include "tarnmodel/platform/coredata/migration/EntityStep.h"
#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteRowWriter.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSelects.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The new store of a migration, by a connection of its own: for what goes record by record, and for all that makes a
/// file with rows a store. Nothing of it is synced.
class MigrationDestination {
public:
    /// Makes the tables, without indexes, where there is no file yet; takes a store of this model otherwise. Throws a
    /// `StoreFailure`.
    MigrationDestination(const std::filesystem::path& file, const NSManagedObjectModel& model);
    MigrationDestination(const MigrationDestination&) = delete;
    MigrationDestination& operator=(const MigrationDestination&) = delete;

    const std::filesystem::path& file() const noexcept { return file_; }
    /// Whether this run has made the file.
    bool isNew() const noexcept { return isNew_; }
    SQLiteConnection& connection() noexcept { return connection_; }
    const StoreSchema& schema() const noexcept { return schema_; }
    const StoreSelects& selects() const noexcept { return selects_; }
    SQLiteRowWriter& writer() noexcept { return writer_; }

    // Rows ------------------------------------------------------------------------------------------------------------
    /// Without signatures, which are made at the end.
    void insert(const StoreRow& row);
    /// A statement has written so many rows to a table.
    void noteRows(const std::string& table, std::int64_t count) { rowCounts_[table] += count; }
    bool exists(const NSEntityDescription& entity, std::int64_t key);
    /// The concrete entity of a row; null when there is none.
    const NSEntityDescription* entityOf(const NSEntityDescription& root, std::int64_t key);
    /// Some keys of records of just this entity in (after, last], ascending.
    std::vector<std::int64_t> keysBetween(
        const NSEntityDescription& entity, std::int64_t after, std::int64_t last, std::size_t most);
    std::vector<std::int64_t> keysOfFoldedValue(
        const NSEntityDescription& entity, const NSAttributeDescription& attribute, std::string_view text);
    /// Makes a relationship of a record name just these records, without those that are not there.
    void relate(const NSEntityDescription& entity, const NSRelationshipDescription& relationship, std::int64_t key,
        std::span<const std::int64_t> targets);

    // Making it a store -----------------------------------------------------------------------------------------------
    /// What the records of one table are found by, when they are there.
    void addIndexes(const StoreTable& table);
    /// What join tables are read from their other end by.
    void addJoinIndexes();
    /// What will make the indexes of a table, as SQLite keeps it, sorted.
    std::vector<std::string> indexStatements(const std::string& table) const;
    /// Makes them now.
    void addIndexesOf(const std::string& table);
    /// Takes references to records away that are not there, or of an entity that does not fit. Join tables have their
    /// indexes.
    void clearDanglingReferences();
    /// The signatures of all texts, and the triggers that keep them and the folded values.
    void completeDerivedValues(const std::function<void()>& madeSome);
    /// Its hashes and versions, with the identifier and the host's own values of the old store.
    void writeMetadata(const NSManagedObjectModel& model, const StoreMetadata& old, const EntitySteps::NextKeys& keys);
    /// By root entity.
    EntitySteps::NextKeys nextKeys();
    /// Throws a `StoreFailure` when a reference leads nowhere.
    void checkReferences();

private:
    void makeTables();
    bool isSigned(const SignatureTable& signature) const;
    void executeOnce(const std::string& statement);
    bool isOfEntity(const NSEntityDescription& entity, std::int64_t key);
    void clearColumn(const StoreTable& table, const StoreColumn& column);
    void clearJoins(const JoinTable& join);
    /// The table of the row that a row of this table points at in vain; none when there is no such row.
    std::optional<std::string> missingTarget(const std::string& table);
    void setColumn(const NSEntityDescription& entity, std::string_view column, std::int64_t key,
        std::optional<std::int64_t> target);

    std::filesystem::path file_;
    SQLiteConnection connection_;
    StoreSchema schema_;
    StoreSelects selects_;
    SQLiteRowWriter writer_;
    bool isNew_ = false;
    std::map<std::string, std::int64_t> rowCounts_; ///< by table, of this run
};

} // namespace tarn
