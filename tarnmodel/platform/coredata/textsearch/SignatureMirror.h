#pragma once

#include "tarnmodel/platform/coredata/sqlite/PrimaryKeySet.h"
#include "tarnmodel/platform/coredata/sqlite/StoreSchema.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <shared_mutex>
#include <span>
#include <string_view>
#include <vector>

namespace tarn {

class SQLiteConnection;

/// The signatures of one attribute in memory, so that a search need not read them. Any thread.
///
/// It holds what is committed. A search asks within a read transaction, during which nobody can commit, and catches up
/// first; what its own thread has written and not committed is added to every answer.
class SignatureMirror {
public:
    explicit SignatureMirror(const SignatureTable& table);

    const SignatureTable& table() const noexcept { return table_; }

    /// The rows whose attribute may contain something with these grams; null when nothing is known about them. The
    /// connection stands in a transaction. What fails throws a `StoreFailure`.
    PrimaryKeySetPtr rowsWithGrams(SQLiteConnection& connection, std::span<const std::uint32_t> hashes);
    /// How many rows it knew when it was last asked; 0 before.
    std::size_t rowCount() const;
    /// Up to `most` rows without a usable signature, each once: whoever asks makes them anew.
    std::vector<std::int64_t> takeStaleKeys(std::size_t most);

private:
    static constexpr std::uint32_t kStale = 0xFFFFFFFF;  ///< as a length
    static constexpr std::uint32_t kAbsent = 0xFFFFFFFE; ///< the row is gone

    struct Slot {
        std::int64_t key;
        std::uint32_t offset;
        std::uint32_t length; ///< in bytes, without the header
    };
    enum class Progress { Done, Lost };

    void catchUp(SQLiteConnection& connection);
    void load(SQLiteConnection& connection);
    Progress follow(SQLiteConnection& connection);
    bool isAnchored(SQLiteConnection& connection) const;
    PrimaryKeySetPtr withUncommitted(SQLiteConnection& connection, PrimaryKeySetPtr committed) const;
    std::vector<std::int64_t> probe(std::span<const std::uint32_t> hashes) const;

    void setSlot(SQLiteConnection& connection, std::int64_t key, bool hasRow, std::string_view signature);
    Slot made(std::int64_t key, std::string_view signature);
    bool rowExists(SQLiteConnection& connection, std::int64_t key) const;

    const SignatureTable& table_;
    struct Statements {
        std::string all, lastChange, change, changesAfter, keysAfter, exists;
    };
    const Statements sql_;

    mutable std::shared_mutex mutex_;
    bool isLoaded_ = false;
    std::vector<Slot> slots_; ///< ascending by key
    std::vector<std::uint8_t> bytes_;
    std::size_t wastedBytes_ = 0;
    std::size_t staleCount_ = 0;
    std::size_t slotsSearchedForStale_ = 0; ///< by `takeStaleKeys`, since it last caught up
    std::int64_t lastChange_ = 0;           ///< as far as it has followed the changes
    std::int64_t lastKey_ = 0;              ///< the key of that change
    std::map<const SQLiteConnection*, std::int64_t> seenVersions_;
};

} // namespace tarn
