#pragma once

#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <vector>

namespace tarn {

class KeyArena;
class NSError;

/// Bytes of an arena: a key, or a password while it is used. Wiped and given back when it goes.
class SecretBytes {
public:
    SecretBytes(SecretBytes&& other) noexcept;
    SecretBytes& operator=(SecretBytes&& other) noexcept;
    SecretBytes(const SecretBytes&) = delete;
    SecretBytes& operator=(const SecretBytes&) = delete;
    ~SecretBytes();

    std::span<const std::byte> span() const noexcept { return bytes_; }
    std::span<std::byte> span() noexcept { return bytes_; }

private:
    friend class KeyArena;
    SecretBytes(std::shared_ptr<KeyArena> arena, std::span<std::byte> bytes) noexcept;

    std::shared_ptr<KeyArena> arena_;
    std::span<std::byte> bytes_;
};

/// The one region of memory in which keys and passwords lie: between guard pages, kept out of swap and of core dumps
/// where the system lets us. One region, since each such region costs pages and system calls. Any thread.
class KeyArena : public std::enable_shared_from_this<KeyArena> {
public:
    /// Whether the system locked this memory.
    using MemoryLock = bool (*)(std::span<std::byte> memory);
    static bool lockMemory(std::span<std::byte> memory) noexcept;

    static constexpr std::size_t slotSize = 32;
    /// With what the allocation puts around it 64 KiB, the most that some systems lock for a user.
    static constexpr std::size_t defaultSize = (std::size_t{64} << 10) - slotSize;

    /// The one of this process.
    static std::shared_ptr<KeyArena> shared();
    /// A size of whole slots. Without memory it holds nothing.
    explicit KeyArena(std::size_t size, MemoryLock lock = lockMemory);
    ~KeyArena();
    KeyArena(const KeyArena&) = delete;
    KeyArena& operator=(const KeyArena&) = delete;

    /// Room for so many bytes, all zero; none, and "out of memory", when there is none in one piece.
    std::optional<SecretBytes> take(std::size_t length, NSError* error);
    /// Whether its memory is kept from being swapped out.
    bool isLocked() const noexcept { return isLocked_; }
    std::size_t freeSlots() const;

private:
    friend class SecretBytes;
    friend class KeyArenaOverride;
    void give(std::span<std::byte> bytes) noexcept;
    static std::shared_ptr<KeyArena>& sharedArena();

    mutable std::mutex mutex_;
    std::span<std::byte> memory_;
    std::vector<bool> isTaken_; ///< by slot
    bool isLocked_ = false;
};

/// Another arena for the process, for a scope in which nothing else uses keys. For tests.
class KeyArenaOverride {
public:
    explicit KeyArenaOverride(std::shared_ptr<KeyArena> arena);
    ~KeyArenaOverride();
    KeyArenaOverride(const KeyArenaOverride&) = delete;
    KeyArenaOverride& operator=(const KeyArenaOverride&) = delete;

private:
    std::shared_ptr<KeyArena> previous_;
};

} // namespace tarn
