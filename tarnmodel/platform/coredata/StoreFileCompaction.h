#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>
#include <map>
#include <string>

namespace tarn {

class HeldStoreFile;

/// Writes what a store holds into a new file, on disk for good: without the pages that are free, where what was deleted
/// before they were wiped can still be read. The store itself stays as it is.
///
/// `metadata` are values that the new file has besides the store's own, or in their place. Where something lies at
/// `place` it goes first. False and an error, and nothing lies there, when that fails.
bool compactStoreFile(HeldStoreFile& store, const std::filesystem::path& place,
    const std::map<std::string, std::string>& metadata, NSError* error = nullptr);

} // namespace tarn
