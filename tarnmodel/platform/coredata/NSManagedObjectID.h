#pragma once

#include "tarnmodel/platform/coredata/NSEntityDescription.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarn {

/// A store as identifiers name it: its UUID. Interned for the life of the process, so that identifiers stay small.
class StoreIdentity {
public:
    /// The one of this UUID; lives until the process ends.
    static const StoreIdentity& forUUID(std::string_view uuid);
    /// As the metadata of the store names it.
    const std::string& uuid() const noexcept { return uuid_; }

private:
    explicit StoreIdentity(std::string_view uuid) : uuid_(uuid) { }
    std::string uuid_;
};

/// Which record of which store: a small value. Temporary until the record is saved or a permanent one is asked for.
///
/// Holds no record and outlives them, the context and the store; but it points into the model, whose end it must not
/// see. To name a record beyond that keep `URIRepresentation()`.
class NSManagedObjectID {
public:
    NSManagedObjectID() = default;
    /// A key above 0 is permanent, one below 0 temporary; keys are unique within the root entity.
    NSManagedObjectID(const StoreIdentity& store, const NSEntityDescription& entity, std::int64_t key)
        : store_(&store), entity_(&entity), key_(key)
    { }
    /// A new temporary identifier, unique in every process.
    static NSManagedObjectID makeTemporary(const StoreIdentity& store, const NSEntityDescription& entity);

    /// Whether it names a record at all; nothing else is to be asked of one that does not.
    explicit operator bool() const noexcept { return entity_ != nullptr; }
    /// The record type; owned by the model.
    const NSEntityDescription& entity() const noexcept { return *entity_; }
    /// The store that the record belongs to.
    const StoreIdentity& store() const noexcept { return *store_; }
    /// Whether the record has not got a permanent one yet.
    bool isTemporaryID() const noexcept { return key_ < 0; }
    /// Above 0: the primary key of the row; below 0: temporary.
    std::int64_t key() const noexcept { return key_; }
    /// "tarn-store://<store UUID>/<entity>/p<number>", "/t<UUID>" while temporary. The coordinator reads it back.
    std::string URIRepresentation() const;

    /// Same store, same inheritance chain, same key.
    friend bool operator==(const NSManagedObjectID& left, const NSManagedObjectID& right) noexcept
    {
        return left.key_ == right.key_ && left.store_ == right.store_ && left.root() == right.root();
    }
    /// The record type whose table the record is in; null for an identifier of nothing.
    const NSEntityDescription* root() const noexcept { return entity_ ? &entity_->rootEntity() : nullptr; }

private:
    const StoreIdentity* store_ = nullptr;
    const NSEntityDescription* entity_ = nullptr;
    std::int64_t key_ = 0;
};

/// Reads the UUID of a temporary identifier's URI back into its key; 0 when it is not one of this process.
std::int64_t temporaryKeyForUUID(std::string_view uuid);

} // namespace tarn

/// Equal identifiers have equal hashes.
template <> struct std::hash<tarn::NSManagedObjectID> {
    /// By key and record type; never to be stored.
    std::size_t operator()(const tarn::NSManagedObjectID& id) const noexcept
    {
        return static_cast<std::size_t>(static_cast<std::uint64_t>(id.key()) * 0x9E3779B97F4A7C15ULL)
            ^ std::hash<const void*>()(id.root());
    }
};
