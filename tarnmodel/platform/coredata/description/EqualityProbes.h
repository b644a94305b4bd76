#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarn {

/// One value of one property to look up: a record that a predicate takes has it.
struct EqualityProbe {
    const NSPropertyDescription* property = nullptr; ///< a string, or a to-one
    bool folded = false;                             ///< `text` is folded, and so is what is compared with it
    std::string text;
    std::int64_t key = 0; ///< of a to-one's target
};
using EqualityProbes = std::vector<EqualityProbe>;

/// Whether there is an index for a property, its text folded or as it is.
using HasIndex = std::function<bool(const NSPropertyDescription& property, bool folded)>;

/// Probes that together find every record of the entity that the predicate takes, and some more maybe; none when it
/// names no value that can be looked up in an index, so that all records have to be walked.
std::optional<EqualityProbes> equalityProbes(
    const NSEntityDescription& entity, const NSPredicate& predicate, const HasIndex& hasIndex);

} // namespace tarn
