#pragma once

#include "tarnmodel/platform/coredata/NSFetchRequest.h"

#include <span>
#include <vector>

namespace tarn {

/// An order that leaves no two rows equal: the one asked for, and what settles its ties.
///
/// Where an index has the rows in the order asked for, ties go as they lie in the index, in the direction in which it
/// is walked: by the columns that it goes on with, then by key. So the first rows are read from the index alone,
/// however many are equal. Without such an index ties go by ascending key. Every store, and what is pending on top of
/// one, goes by this.
struct CompleteOrder {
    std::vector<NSSortDescriptor> descriptors;
    bool keysAscend = true;
    bool isIndexed = false; ///< an index has it; keys alone are one too
};

CompleteOrder completeOrder(std::span<const NSSortDescriptor> wanted, const NSEntityDescription& entity);

} // namespace tarn
