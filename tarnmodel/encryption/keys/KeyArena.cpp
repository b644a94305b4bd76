#include "tarnmodel/encryption/keys/KeyArena.h"

#include "tarnmodel/encryption/keys/EncryptionErrors.h"
#include "tarnmodel/encryption/keys/SodiumInternal.h"

#include <algorithm>
#include <utility>

namespace tarn {

SecretBytes::SecretBytes(std::shared_ptr<KeyArena> arena, std::span<std::byte> bytes) noexcept
    : arena_(std::move(arena)), bytes_(bytes)
{ }

SecretBytes::SecretBytes(SecretBytes&& other) noexcept
    : arena_(std::move(other.arena_)), bytes_(std::exchange(other.bytes_, {}))
{ }

SecretBytes& SecretBytes::operator=(SecretBytes&& other) noexcept
{
    std::swap(arena_, other.arena_);
    std::swap(bytes_, other.bytes_);
    return *this;
}

SecretBytes::~SecretBytes()
{
    if (arena_)
        arena_->give(bytes_);
}

bool KeyArena::lockMemory(std::span<std::byte> memory) noexcept
{
    return sodium_mlock(memory.data(), memory.size()) == 0;
}

std::shared_ptr<KeyArena>& KeyArena::sharedArena()
{
    // Never destroyed: keys may be given back while the process ends.
    static auto* const arena = new std::shared_ptr<KeyArena>(std::make_shared<KeyArena>(defaultSize));
    return *arena;
}

std::shared_ptr<KeyArena> KeyArena::shared()
{
    return sharedArena();
}

KeyArena::KeyArena(std::size_t size, MemoryLock lock)
{
    if (sodium_init() < 0)
        return;
    // It tries to lock the memory by itself, but does not tell whether that went well.
    auto* memory = static_cast<std::byte*>(sodium_malloc(size));
    if (!memory)
        return;
    memory_ = {memory, size};
    isLocked_ = lock(memory_);
    isTaken_.resize(size / slotSize);
    sodium_memzero(memory, size);
}

KeyArena::~KeyArena()
{
    sodium_free(memory_.data());
}

std::optional<SecretBytes> KeyArena::take(std::size_t length, NSError* error)
{
    const std::size_t slots = std::max<std::size_t>(1, (length + slotSize - 1) / slotSize);
    std::lock_guard lock(mutex_);
    const auto found = std::search_n(isTaken_.begin(), isTaken_.end(), static_cast<std::ptrdiff_t>(slots), false);
    if (found == isTaken_.end()) {
        failEncryption(error, OVEncryptionErrorOutOfMemory);
        return std::nullopt;
    }
    std::fill_n(found, slots, true);
    const auto first = static_cast<std::size_t>(found - isTaken_.begin());
    return SecretBytes(shared_from_this(), memory_.subspan(first * slotSize, length));
}

void KeyArena::give(std::span<std::byte> bytes) noexcept
{
    sodium_memzero(bytes.data(), bytes.size());
    std::lock_guard lock(mutex_);
    const auto first = static_cast<std::ptrdiff_t>(bytes.data() - memory_.data()) / std::ptrdiff_t{slotSize};
    const std::size_t slots = std::max<std::size_t>(1, (bytes.size() + slotSize - 1) / slotSize);
    std::fill_n(isTaken_.begin() + first, slots, false);
}

std::size_t KeyArena::freeSlots() const
{
    std::lock_guard lock(mutex_);
    return static_cast<std::size_t>(std::ranges::count(isTaken_, false));
}

KeyArenaOverride::KeyArenaOverride(std::shared_ptr<KeyArena> arena)
    : previous_(std::exchange(KeyArena::sharedArena(), std::move(arena)))
{ }

KeyArenaOverride::~KeyArenaOverride()
{
    KeyArena::sharedArena() = std::move(previous_);
}

} // namespace tarn
