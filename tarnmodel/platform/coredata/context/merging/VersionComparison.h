#pragma once

#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"

#include <vector>

namespace tarn {

/// Which records do not show what is stored.
struct VersionDifferences {
    std::vector<NSManagedObject*> moved; ///< their rows have other versions
    std::vector<NSManagedObject*> gone;  ///< they have no row any more
};

/// Compares records of one inheritance chain with the versions of their rows, and adds what differs, ascending by key.
/// Each has a permanent key and was read. False and an error when the store cannot be read; then nothing is added.
bool compareVersions(RowStore& store, const NSEntityDescription& root, const std::vector<NSManagedObject*>& records,
    VersionDifferences& differences, NSError* error);

} // namespace tarn
