#pragma once

#include "tarnmodel/platform/foundation/values/NSError.h"

#include <filesystem>

namespace tarn {

/// Brings the records of a backup of an older version, in a temporary store, forward to the current model: what
/// `BackupReadOptions::migrate` is to be. False and an error when no installed mapping leads there.
bool migrateRecordsOfBackup(const std::filesystem::path& store, NSError* error = nullptr);

} // namespace tarn
