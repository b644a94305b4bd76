#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace tarn {

/// The records of one context: owns them, and gives one object for each identifier.
///
/// A record that was given a permanent identifier still answers to its temporary one.
class ObjectRegistry {
public:
    NSManagedObject* find(const NSEntityDescription& root, std::int64_t key) const;
    /// Takes ownership and makes the record known under its identifier.
    NSManagedObject& add(std::unique_ptr<NSManagedObject> object);
    /// The record stays owned, but is not found any more. To change a record's identifier: forget it, change it,
    /// remember it.
    void forget(const NSManagedObject& object);
    /// Finds a forgotten record again, under the identifier that it has now.
    void remember(NSManagedObject& object);
    /// Lets a record answer to the temporary key that it had.
    void addFormerKey(std::int64_t key, NSManagedObject& object) { formerKeys_[key] = &object; }
    /// Those that can be found, in order of their arrival.
    std::vector<NSManagedObject*> objects() const;
    void clear();

private:
    /// Open addressing over pointers: the key stands in the record, so a slot costs eight bytes.
    class Table {
    public:
        NSManagedObject* find(std::int64_t key) const noexcept;
        void insert(NSManagedObject& object);
        void erase(std::int64_t key) noexcept;

    private:
        std::size_t home(std::int64_t key) const noexcept;
        void grow();
        std::vector<NSManagedObject*> slots_;
        std::size_t count_ = 0;
    };

    std::vector<std::unique_ptr<NSManagedObject>> owned_;
    std::unordered_map<const NSEntityDescription*, Table> tables_; ///< by root entity
    std::unordered_map<std::int64_t, NSManagedObject*>
        formerKeys_; ///< temporary keys of records that have a permanent one
};

} // namespace tarn
