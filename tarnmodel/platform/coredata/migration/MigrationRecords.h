#pragma once

#include "tarnmodel/platform/coredata/MigrationRecord.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <string_view>
#include <vector>

namespace tarn {

class MigrationDestination;
class MigrationSource;

/// A row of the old store.
class SourceMigrationRecord final : public MigrationRecord {
public:
    SourceMigrationRecord(const MigrationSource& source, StoreRow row) : source_(source), row_(std::move(row)) { }

    NSManagedObjectID objectID() const override;
    Value valueForKey(std::string_view key) const override;
    void setValueForKey(std::string_view key, const Value& value) override;
    std::vector<NSManagedObjectID> relatedObjectIDs(std::string_view relationship) const override;
    void setRelatedObjectIDs(std::string_view relationship, std::span<const NSManagedObjectID> related) override;

    std::int64_t key() const noexcept { return row_.key; }
    std::int64_t version() const noexcept { return row_.version; }

private:
    const MigrationSource& source_;
    mutable StoreRow row_;
};

/// A row of the new store, in memory until it is written.
class DestinationMigrationRecord final : public MigrationRecord {
public:
    /// Whether it is in the file already.
    enum class Kind : std::uint8_t { New, Written };
    DestinationMigrationRecord(
        const StoreIdentity& identity, MigrationDestination& destination, StoreRow row, Kind kind)
        : identity_(identity), destination_(destination), row_(std::move(row)), kind_(kind)
    { }

    NSManagedObjectID objectID() const override;
    Value valueForKey(std::string_view key) const override;
    void setValueForKey(std::string_view key, const Value& value) override;
    std::vector<NSManagedObjectID> relatedObjectIDs(std::string_view relationship) const override;
    void setRelatedObjectIDs(std::string_view relationship, std::span<const NSManagedObjectID> related) override;

    std::int64_t key() const noexcept { return row_.key; }
    /// Writes the row, or what of its values has changed. Inside a transaction.
    void write();

private:
    void checkHasRelationships() const;

    const StoreIdentity& identity_;
    MigrationDestination& destination_;
    mutable StoreRow row_;
    Kind kind_;
    PropertyMask changed_ = 0;
};

} // namespace tarn
