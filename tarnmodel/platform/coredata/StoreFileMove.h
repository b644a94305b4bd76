#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>

namespace tarn {

/// Gives the file of a store another name in the same file system, together with a journal that lies beside it.
///
/// First the file is locked against every other user, which brings back what an unfinished transaction left; so nothing
/// is torn apart. Whoever had the file open is told at the next write that it was replaced. False and an error, and the
/// file stays where it is, when the lock cannot be had, something stands at `destination`, or the system refuses.
bool moveStoreFile(
    const std::filesystem::path& source, const std::filesystem::path& destination, NSError* error = nullptr);

} // namespace tarn
