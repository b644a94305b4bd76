#pragma once

#include "tarnmodel/platform/coredata/migration/EntityStep.h"
#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSelects.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class HeldStoreFile;
class SQLiteConnection;

/// The old store of a migration, read through the one connection that holds its lock. Its main database is the store;
/// the new one is attached as "side" while statements go over many records at once.
class MigrationSource {
public:
    /// Throws a `StoreFailure` when the store is not of this model.
    MigrationSource(HeldStoreFile& held, const NSManagedObjectModel& model);
    /// Leaves the connection as it was.
    ~MigrationSource();
    MigrationSource(const MigrationSource&) = delete;
    MigrationSource& operator=(const MigrationSource&) = delete;

    SQLiteConnection& connection() const noexcept { return connection_; }
    const StoreSchema& schema() const noexcept { return schema_; }
    const StoreSelects& selects() const noexcept { return selects_; }
    const StoreIdentity& identity() const noexcept { return identity_; }
    const StoreMetadata& metadata() const noexcept { return metadata_; }

    /// By root entity: the first key that was never given out.
    EntitySteps::NextKeys nextKeys() const;
    /// How many records are of just this entity.
    std::size_t countOf(const NSEntityDescription& entity) const;
    /// How many rows the table of an inheritance chain has, of whatever entity.
    std::size_t rowCountOf(const NSEntityDescription& root) const;
    /// Some keys of records of just this entity behind `key`, ascending; none at the end.
    std::vector<std::int64_t> keysAfter(const NSEntityDescription& entity, std::int64_t key, std::size_t most) const;
    /// The last of the next `most` keys behind `key`; `key` itself at the end.
    std::int64_t lastKeyOfNext(const NSEntityDescription& entity, std::int64_t key, std::size_t most) const;
    /// Whether folded values of the attribute are there, made as this version of the library makes them.
    bool hasCurrentShadow(const NSAttributeDescription& attribute) const;
    /// Whether some of those have to be made again.
    bool hasStaleShadow(const NSAttributeDescription& attribute) const;
    /// The columns of a table as they are in the file, in their order.
    std::vector<std::string> columnNames(const std::string& table) const;
    /// What made the indexes of a table, sorted.
    std::vector<std::string> indexStatements(const std::string& table) const;
    /// The current signatures of an attribute; null when there are none.
    const SignatureTable* currentSignatures(const NSAttributeDescription& attribute) const;

    /// A record that a policy made of another, beside the one that keeps its key.
    struct Association {
        std::int64_t source = 0;
        const NSEntityDescription* root = nullptr; ///< of the destination
        std::int64_t destination = 0;
    };
    /// Associations are kept in a temporary file.
    void associate(const EntityStep& step, const Association& association);
    /// In the order of the keys.
    std::vector<Association> associationsOf(const EntityStep& step, std::int64_t sourceKey) const;
    std::optional<std::int64_t> associatedSource(
        const EntityStep& step, const NSEntityDescription& root, std::int64_t destinationKey) const;
    /// Those with a destination of this table and a key behind this one, in the order of the keys.
    std::vector<Association> associationsAfter(
        const EntityStep& step, const NSEntityDescription& root, std::int64_t destinationKey, std::size_t most) const;

    /// Makes the new store part of the connection for a scope; nobody else may write to it in that.
    class Attachment {
    public:
        Attachment(MigrationSource& source, const std::filesystem::path& side);
        ~Attachment();
        Attachment(const Attachment&) = delete;
        Attachment& operator=(const Attachment&) = delete;

    private:
        SQLiteConnection& connection_;
    };

private:
    bool hasObject(std::string_view name) const;
    bool hasColumn(std::string_view table, std::string_view column) const;

    SQLiteConnection& connection_;
    StoreMetadata metadata_;
    StoreSchema schema_;
    StoreSelects selects_;
    const StoreIdentity& identity_;
    bool hasCurrentFolding_;
};

} // namespace tarn
