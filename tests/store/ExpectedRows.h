#pragma once

#include "tests/store/StoreRows.h"

namespace tarn {

/// The rows of a store of version 2 that a store of version 1 with these rows becomes, worked out by hand. Its links
/// are comparable (`StoreRows::makeNewLinksComparable`).
StoreRows rowsAfterStepToVersion2(StoreRows rows);
/// The same for a store of version 3 that one of version 2 becomes.
StoreRows rowsAfterStepToVersion3(StoreRows rows);

} // namespace tarn
