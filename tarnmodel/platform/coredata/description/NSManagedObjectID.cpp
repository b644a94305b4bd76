#include "tarnmodel/platform/coredata/NSManagedObjectID.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <span>
#include <unordered_map>

namespace tarn {

namespace {

using UUIDBytes = std::array<std::byte, 16>;

constexpr std::size_t kCounterStart = 9; // seven bytes of counter after nine that name the process

/// The part that all temporary identifiers of this process share, in the form of a random UUID.
const UUIDBytes& processBytes()
{
    static const UUIDBytes bytes = [] {
        UUIDBytes made{};
        Environment::current().fillWithRandomBytes(std::span(made).first(kCounterStart));
        made[6] = (made[6] & std::byte{0x0F}) | std::byte{0x40}; // version 4
        made[8] = (made[8] & std::byte{0x3F}) | std::byte{0x80}; // variant
        return made;
    }();
    return bytes;
}

std::atomic<std::int64_t>& temporaryCounter()
{
    static std::atomic<std::int64_t> counter{0};
    return counter;
}

std::string temporaryUUID(std::int64_t key)
{
    UUIDBytes bytes = processBytes();
    auto counter = static_cast<std::uint64_t>(-key);
    for (std::size_t i = bytes.size(); i-- > kCounterStart; counter >>= 8)
        bytes[i] = static_cast<std::byte>(counter & 0xFF);
    return uuidString(bytes);
}

} // namespace

const StoreIdentity& StoreIdentity::forUUID(std::string_view uuid)
{
    static std::mutex mutex;
    static std::unordered_map<std::string, std::unique_ptr<const StoreIdentity>> identities;
    std::scoped_lock lock(mutex);
    auto& identity = identities[std::string(uuid)];
    if (!identity)
        identity.reset(new StoreIdentity(uuid));
    return *identity;
}

NSManagedObjectID NSManagedObjectID::makeTemporary(const StoreIdentity& store, const NSEntityDescription& entity)
{
    return {store, entity, -(temporaryCounter().fetch_add(1, std::memory_order_relaxed) + 1)};
}

std::string NSManagedObjectID::URIRepresentation() const
{
    if (!entity_)
        return {};
    const std::string tail = isTemporaryID() ? "/t" + temporaryUUID(key_) : "/p" + std::to_string(key_);
    return "tarn-store://" + store_->uuid() + "/" + entity_->name() + tail;
}

std::int64_t temporaryKeyForUUID(std::string_view uuid)
{
    const auto bytes = bytesOfUUIDString(uuid);
    if (!bytes)
        return 0;
    const UUIDBytes& ours = processBytes();
    std::uint64_t counter = 0;
    for (std::size_t i = 0; i < bytes->size(); ++i) {
        if (i < kCounterStart && (*bytes)[i] != ours[i])
            return 0;
        if (i >= kCounterStart)
            counter = counter << 8 | std::to_integer<std::uint64_t>((*bytes)[i]);
    }
    const auto made = static_cast<std::uint64_t>(temporaryCounter().load(std::memory_order_relaxed));
    return counter == 0 || counter > made ? 0 : -static_cast<std::int64_t>(counter);
}

} // namespace tarn
