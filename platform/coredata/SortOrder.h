#pragma once

#include "platform/coredata/NSFetchRequest.h"
#include "platform/coredata/NSManagedObject.h"

#include <compare>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// The order that sort descriptors give to records, the same as the store's: nil first when ascending, ties by primary
/// key, unsaved insertions behind in their order.
class SortOrder {
public:
    explicit SortOrder(std::span<const NSSortDescriptor> descriptors);
    bool comesBefore(const NSManagedObject& left, const NSManagedObject& right) const;

private:
    struct Key {
        std::vector<std::string> path;
        bool ascending;
        SortComparison comparison;
    };
    std::vector<Key> keys_;
};

/// "a.b.c" as its keys.
std::vector<std::string> keysOfPath(std::string_view path);

/// nil first; numbers and dates by value, strings by code point or as people sort them.
std::weak_ordering compareForSort(const Value& left, const Value& right, SortComparison comparison);

} // namespace tarn
