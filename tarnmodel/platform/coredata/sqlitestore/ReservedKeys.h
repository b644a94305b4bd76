#pragma once

#include "tarnmodel/platform/coredata/NSEntityDescription.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace tarn {

class SQLiteConnection;

/// Gives out the next free keys of a record type, for good: returns the first. In a transaction that writes.
std::int64_t takeKeys(
    SQLiteConnection& connection, const std::string& table, const NSEntityDescription& root, std::size_t count);

/// Keys that a transaction gave out and that have not reached the file: they are out in the world, in identifiers of
/// records, whatever becomes of the transaction. Belongs to who has the writer's lock.
class ReservedKeys {
public:
    bool isEmpty() const noexcept { return next_.empty(); }
    /// All keys below `next` are given out.
    void note(const NSEntityDescription& root, std::int64_t next) { next_[&root] = next; }
    /// Writes that no key below those is given out again. In a transaction that writes.
    void keep(SQLiteConnection& connection) const;
    /// They are in the file.
    void clear() { next_.clear(); }

private:
    std::unordered_map<const NSEntityDescription*, std::int64_t> next_; ///< by root entity
};

} // namespace tarn
