#pragma once

#include "tarnmodel/platform/coredata/memory/InMemoryState.h"

#include <string>
#include <vector>

namespace tarn {

/// The rows that a fetch on this state gives, in order, cut to limit and offset. Raises `NSException` for unknown keys.
std::vector<StoreRow> rowsOfFetch(const StoreFetch& fetch, const InMemoryState& state, const StoreIdentity& identity);
/// In words: how many rows are judged, and whether an index names them.
std::string explanationOfFetch(const StoreFetch& fetch, const InMemoryState& state);

} // namespace tarn
