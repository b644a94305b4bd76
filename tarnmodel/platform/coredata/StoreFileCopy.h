#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <chrono>
#include <filesystem>
#include <functional>

namespace tarn {

/// Writes all that a store holds into a new file, as of one moment, without what was deleted from it. The copy is a
/// store like the one that it was made from, down to its identifier; it is not made durable.
///
/// While it is written others may read the store, and who would write waits. `underLock` runs in that time and sees
/// what the copy holds; false gives up, and then `error` is its own. False and an error, and no copy, when that fails
/// or something stands at `copy`. Waits up to 30 seconds for others; `whileWaiting` as in `StoreOptions`.
bool copyStoreFile(const std::filesystem::path& store, const std::filesystem::path& copy,
    const std::function<bool()>& underLock, const std::function<bool(std::chrono::milliseconds)>& whileWaiting = {},
    NSError* error = nullptr);

} // namespace tarn
