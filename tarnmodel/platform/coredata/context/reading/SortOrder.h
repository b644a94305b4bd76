#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"

#include <compare>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The order that sort descriptors give to records, the same as the store's: nil first when ascending, ties as
/// `completeOrder` settles them. Unsaved insertions count as if their keys were the next ones.
class SortOrder {
public:
    SortOrder(std::span<const NSSortDescriptor> descriptors, const NSEntityDescription& entity);
    bool comesBefore(const NSManagedObject& left, const NSManagedObject& right) const;

private:
    struct Key {
        std::vector<std::string> path;
        bool ascending;
        SortComparison comparison;
    };
    static bool hasLowerKey(const NSManagedObject& left, const NSManagedObject& right);

    std::vector<Key> keys_;
    bool keysAscend_;
};

/// "a.b.c" as its keys.
std::vector<std::string> keysOfPath(std::string_view path);

/// nil first; numbers and dates by value, strings by code point or as people sort them.
std::weak_ordering compareForSort(const Value& left, const Value& right, SortComparison comparison);

} // namespace tarn
