#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <span>
#include <string_view>
#include <vector>

namespace tarn {

class NSManagedObject;

/// A record of any version of a model, read and written by names alone.
///
/// This is what migrations hand to policies: today's record classes are never put on rows of another version, whose
/// properties may lie elsewhere or not be there. Good for the call that it is handed to. One thread.
class MigrationRecord {
public:
    virtual ~MigrationRecord() = default;

    /// Which record it is; its entity, and through that its model, tells which properties there are.
    virtual NSManagedObjectID objectID() const = 0;
    /// An attribute. Raises `NSUndefinedKeyException` for a key that the entity does not have, and
    /// `NSInvalidArgumentException` for a relationship.
    virtual Value valueForKey(std::string_view key) const = 0;
    /// The same, and `NSInvalidArgumentException` for a value of another kind than the attribute's; a record of the
    /// source refuses every change with `NSInternalInconsistencyException`.
    virtual void setValueForKey(std::string_view key, const Value& value) = 0;
    /// The records that a relationship names, ascending by key; of the destination only while relationships are made.
    virtual std::vector<NSManagedObjectID> relatedObjectIDs(std::string_view relationship) const = 0;
    /// Makes a relationship name just these, of which a to-one takes one at most.
    virtual void setRelatedObjectIDs(std::string_view relationship, std::span<const NSManagedObjectID> related) = 0;

    /// The entity of `objectID`.
    const NSEntityDescription& entity() const { return objectID().entity(); }
};

/// A record of a context as such a one: writing goes through its accessors and is tracked by its context.
class ManagedMigrationRecord final : public MigrationRecord {
public:
    /// `record` outlives it.
    explicit ManagedMigrationRecord(NSManagedObject& record) : record_(record) { }

    NSManagedObjectID objectID() const override;
    Value valueForKey(std::string_view key) const override;
    void setValueForKey(std::string_view key, const Value& value) override;
    std::vector<NSManagedObjectID> relatedObjectIDs(std::string_view relationship) const override;
    /// Records that are gone are left out.
    void setRelatedObjectIDs(std::string_view relationship, std::span<const NSManagedObjectID> related) override;

private:
    NSManagedObject& record_;
};

} // namespace tarn
