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
    std::string key;       ///< a key path over to-one relationships that ends in an attribute
    bool ascending = true; ///< from the lowest value to the highest
    SortComparison comparison = SortComparison::Standard; ///< how two values of the key are compared
    friend bool operator==(const NSSortDescriptor&, const NSSortDescriptor&) = default;
};

/// What to fetch. A plain description; use it with any context on the same model.
///
/// It borrows the entity, and through its predicate the objects that were given as arguments: use it while the model
/// and those live.
struct NSFetchRequest {
    /// All records of the entity and of its sub-entities, by primary key.
    explicit NSFetchRequest(const NSEntityDescription& entityDescription) : entity(&entityDescription) { }

    const NSEntityDescription* entity;             ///< borrowed from the model; never null
    std::optional<NSPredicate> predicate;          ///< which records; all without one
    std::vector<NSSortDescriptor> sortDescriptors; ///< the most important key first; empty: by primary key
    std::size_t fetchLimit = 0;                    ///< 0: no limit
    std::size_t fetchOffset = 0;                   ///< how many of the first hits are left out
    bool includesSubentities = true;               ///< false leaves out records of sub-entities
    /// False leaves the records as faults: enough to delete or count them.
    bool includesPropertyValues = true;
    /// False answers from the store alone.
    bool includesPendingChanges = true;
    /// For `executeDictionaryFetchRequest`: names of attributes and to-one relationships (these give object
    /// identifiers); empty: all attributes.
    std::vector<std::string> propertiesToFetch;
    /// For `executeDictionaryFetchRequest`: equal rows once.
    bool returnsDistinctResults = false;
};

} // namespace tarn
