#pragma once

#include "tarnmodel/platform/coredata/context/child/OverlaidRows.h"

#include <vector>

namespace tarn {

/// Fetches from a store with what a context has pending over it. Both throw a `StoreFailure`.
std::vector<StoreRow> rowsOverSnapshot(RowStore& base, const UnsavedSnapshot& snapshot, const StoreFetch& fetch);
std::size_t countOverSnapshot(RowStore& base, const UnsavedSnapshot& snapshot, const StoreFetch& fetch);

} // namespace tarn
