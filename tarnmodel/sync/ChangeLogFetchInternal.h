#pragma once

#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <optional>
#include <vector>

namespace tarn {

class NSManagedObjectContext;
class OVChange;
class OVChangeItem;

// Look-ups that tell a failure, which is logged, from an empty log: whoever goes on to change the log must know.

/// The change with the greatest order, null in an empty log; none on failure.
std::optional<OVChange*> fetchLatestChange(NSManagedObjectContext& context);
/// The items that the predicate finds, all without one; none on failure.
std::optional<std::vector<OVChangeItem*>> fetchChangeItems(
    const std::optional<NSPredicate>& predicate, NSManagedObjectContext& context);

} // namespace tarn
