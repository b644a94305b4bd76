#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/store/StoreMigrationPlan.h"
#include "tools/tarn/commandline/CommandFailure.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

namespace tarn {

/// The model of the stores that this program reads and writes. Raises `CommandFailure` when its file is not there.
std::shared_ptr<const NSManagedObjectModel> modelOfStores();

/// Whether a store is of another version than this program's. Changes nothing, makes no file, and costs less than to
/// open it. False and an error when it cannot be read; `whileWaiting` as in `StoreOptions`.
bool isStoreOfOtherVersion(const std::filesystem::path& database,
    const std::function<bool(std::chrono::milliseconds)>& whileWaiting, NSError* error = nullptr);

/// What to raise for a store that is not of this program's version: which version it is of, and what to do.
CommandFailure failureForVersionOfStore(const std::filesystem::path& database, const StoreMigrationPlan& plan);
/// The same where it takes a look to know: `error` when the store has become another one since that happened.
CommandFailure failureForVersionOfStore(const std::filesystem::path& database, const NSError& error);

} // namespace tarn
