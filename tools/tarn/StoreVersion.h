#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/store/StoreMigrationPlan.h"
#include "tools/tarn/CommandFailure.h"

#include <filesystem>
#include <memory>

namespace tarn {

/// The model of the stores that this program reads and writes. Raises `CommandFailure` when its file is not there.
std::shared_ptr<const NSManagedObjectModel> modelOfStores();

/// Opens a store to read its version, and closes it again; changes nothing, and makes no file. Of the options only
/// `whileWaiting` counts. False and an error when it cannot be opened.
bool isStoreCurrent(const std::filesystem::path& database, const StoreOptions& options, NSError* error);

/// What to raise for a store that is not of this program's version: which version it is of, and what to do.
CommandFailure failureForVersionOfStore(const std::filesystem::path& database, const StoreMigrationPlan& plan);
/// The same where it takes a look to know: `error` when the store has become another one since that happened.
CommandFailure failureForVersionOfStore(const std::filesystem::path& database, const NSError& error);

} // namespace tarn
