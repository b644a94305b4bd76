#pragma once

#include "tarnmodel/platform/coredata/NSEntityDescription.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarn {

/// A store as identifiers name it: its UUID. Interned for the life of the process, so that identifiers stay small.
class StoreIdentity {
public:
    static const StoreIdentity& forUUID(std::string_view uuid);
    const std::string& uuid() const noexcept { return uuid_; }

private:
    explicit StoreIdentity(std::string_view uuid) : uuid_(uuid) { }
    std::string uuid_;
};

/// Which record of which store: a small value. Temporary until the record is saved or a permanent one is asked for.
class NSManagedObjectID {
public:
    NSManagedObjectID() = default;
    /// A key above 0 is permanent, one below 0 temporary; keys are unique within the root entity.
    NSManagedObjectID(const StoreIdentity& store, const NSEntityDescription& entity, std::int64_t key)
        : store_(&store), entity_(&entity), key_(key)
    { }
    /// A new temporary identifier, unique in every process.
    static NSManagedObjectID makeTemporary(const StoreIdentity& store, const NSEntityDescription& entity);

    explicit operator bool() const noexcept { return entity_ != nullptr; }
    const NSEntityDescription& entity() const noexcept { return *entity_; }
    const StoreIdentity& store() const noexcept { return *store_; }
    bool isTemporaryID() const noexcept { return key_ < 0; }
    std::int64_t key() const noexcept { return key_; }
    /// "tarn-store://<store UUID>/<entity>/p<number>", "/t<UUID>" while temporary. The coordinator reads it back.
    std::string URIRepresentation() const;

    /// Same store, same inheritance chain, same key.
    friend bool operator==(const NSManagedObjectID& left, const NSManagedObjectID& right) noexcept
    {
        return left.key_ == right.key_ && left.store_ == right.store_ && left.root() == right.root();
    }
    const NSEntityDescription* root() const noexcept { return entity_ ? &entity_->rootEntity() : nullptr; }

private:
    const StoreIdentity* store_ = nullptr;
    const NSEntityDescription* entity_ = nullptr;
    std::int64_t key_ = 0;
};

/// Reads the UUID of a temporary identifier's URI back into its key; 0 when it is not one of this process.
std::int64_t temporaryKeyForUUID(std::string_view uuid);

} // namespace tarn

template <> struct std::hash<tarn::NSManagedObjectID> {
    std::size_t operator()(const tarn::NSManagedObjectID& id) const noexcept
    {
        return static_cast<std::size_t>(static_cast<std::uint64_t>(id.key()) * 0x9E3779B97F4A7C15ULL)
            ^ std::hash<const void*>()(id.root());
    }
};
