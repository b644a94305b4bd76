#pragma once

#include "tarnmodel/platform/coredata/rows/RowObject.h"
#include "tarnmodel/platform/coredata/sqlite/RowLayout.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <array>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace tarn {

class SQLiteConnection;

/// The SELECTs of a schema that no predicate changes: rows by key, ends of relationships. Immutable; any thread.
class StoreSelects {
public:
    explicit StoreSelects(const StoreSchema& schema, const NSManagedObjectModel& model);

    const StoreSchema& schema() const noexcept { return schema_; }
    /// How rows of the entity are read.
    const RowLayout& layout(const NSEntityDescription& entity, RowContents contents) const
    {
        return entities_.at(&entity)[static_cast<std::size_t>(contents)].layout;
    }

    std::optional<StoreRow> row(
        SQLiteConnection& connection, const NSEntityDescription& entity, std::int64_t key, RowContents contents) const;
    void appendRows(SQLiteConnection& connection, const NSEntityDescription& entity, std::span<const std::int64_t> keys,
        RowContents contents, std::vector<StoreRow>& rows) const;
    std::vector<RelatedKey> related(
        SQLiteConnection& connection, const NSRelationshipDescription& relationship, std::int64_t key) const;
    std::size_t countOfRelated(
        SQLiteConnection& connection, const NSRelationshipDescription& relationship, std::int64_t key) const;

private:
    struct EntitySelect {
        RowLayout layout;
        std::string byKey;
        std::string byKeys;
    };
    struct RelationshipSelect {
        std::string keys;
        std::string count;
        bool readsEntity = false;
    };
    using EntitySelects = std::vector<EntitySelect>; ///< by RowContents

    EntitySelect entitySelect(const StoreSchema& schema, const NSEntityDescription& entity, RowContents contents) const;
    void addRelationship(const StoreSchema& schema, const NSRelationshipDescription& relationship);

    const StoreSchema& schema_;
    std::unordered_map<const NSEntityDescription*, EntitySelects> entities_;
    std::unordered_map<const NSRelationshipDescription*, RelationshipSelect> relationships_;
};

/// Rows of one connection, for row objects.
class SQLiteRowReader final : public RowReader {
public:
    SQLiteRowReader(const StoreIdentity& identity, const StoreSelects& selects, SQLiteConnection& connection)
        : identity_(identity), selects_(selects), connection_(connection)
    { }
    const StoreIdentity& storeIdentity() const override { return identity_; }
    std::optional<StoreRow> readRow(
        const NSEntityDescription& entity, std::int64_t key, RowContents contents) const override;
    std::vector<RelatedKey> readRelatedKeys(
        const NSRelationshipDescription& relationship, std::int64_t key) const override;

private:
    const StoreIdentity& identity_;
    const StoreSelects& selects_;
    SQLiteConnection& connection_;
};

} // namespace tarn
