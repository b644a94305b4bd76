#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarn {

/// Writes what the encryption keeps, made of fixed random bytes, into a folder that is there: `password`, `note`,
/// `attachment` and `file`, and `vectors.json`, which says how to open them and what is in them. False when something
/// cannot be written.
bool writeEncryptionVectors(const std::filesystem::path& folder);

} // namespace tarn
