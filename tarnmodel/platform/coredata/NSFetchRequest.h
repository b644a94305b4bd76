#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// How two values of a sort key are compared.
enum class SortComparison : std::uint8_t {
    Standard,          ///< numbers and dates by value, strings by code point; nil first when ascending
    LocalizedStandard, ///< strings as people sort them: by locale, without case, digits by value
};

/// One key of an order. Ties of all keys go as they lie in the index of that order, else by ascending primary key;
/// unsaved records count as if their keys were the next ones.
struct NSSortDescriptor {
    std::string key; ///< a key path over to-one relationships that ends in an attribute
    bool ascending = true;
    SortComparison comparison = SortComparison::Standard;
    friend bool operator==(const NSSortDescriptor&, const NSSortDescriptor&) = default;
};

/// What to fetch. A plain description; use it with any context on the same model.
struct NSFetchRequest {
    explicit NSFetchRequest(const NSEntityDescription& entityDescription) : entity(&entityDescription) { }

    const NSEntityDescription* entity;
    std::optional<NSPredicate> predicate;
    std::vector<NSSortDescriptor> sortDescriptors;
    std::size_t fetchLimit = 0; ///< 0: no limit
    std::size_t fetchOffset = 0;
    bool includesSubentities = true;
    /// False leaves the records as faults: enough to delete or count them.
    bool includesPropertyValues = true;
    /// False answers from the store alone.
    bool includesPendingChanges = true;
    /// For `executeDictionaryFetchRequest`: names of attributes and to-one relationships (these give object
    /// identifiers); empty: all attributes.
    std::vector<std::string> propertiesToFetch;
    bool returnsDistinctResults = false;
};

} // namespace tarn
