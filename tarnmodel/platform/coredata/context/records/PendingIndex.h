#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/context/records/OrderedSet.h"
#include "tarnmodel/platform/coredata/description/EqualityProbes.h"

#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace tarn {

/// Finds pending records by the value of one property, so that a look-up among 10,000 unsaved records does not walk
/// them all.
///
/// Indexes are made when a predicate first asks for one and follow a journal of changed records. What a change costs
/// does not depend on how many records have the same value.
class PendingIndex {
public:
    /// A pending record came or changed.
    void touch(NSManagedObject& object, PropertyMask properties);
    /// The pending records that may match; none when the predicate names no value to look up, so that all have to be
    /// walked.
    std::optional<std::vector<NSManagedObject*>> candidates(
        const NSEntityDescription& root, const NSPredicate& predicate);
    void clear();

private:
    /// What one index is over: a property, by the entity that declares it, its text folded or as it is.
    using Subject = std::tuple<const NSEntityDescription*, PropertyIndex, bool>;
    struct Index {
        std::size_t journalPosition = 0;
        std::unordered_map<std::string, OrderedSet<NSManagedObject*>> records;
        std::unordered_map<NSManagedObject*, std::string> keys;
        void take(NSManagedObject& object);
        void put(NSManagedObject& object, std::string key);
    };
    struct Touch {
        NSManagedObject* object;
        PropertyMask properties;
    };
    Index& upToDate(const Subject& subject);

    std::unordered_map<const NSEntityDescription*, std::vector<Touch>> journals_; ///< by root entity
    std::map<Subject, Index> indexes_;
};

} // namespace tarn
