#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <optional>
#include <string>

namespace tarn {

/// Registers the record class of every entity with a model.
void registerRecordClasses(NSManagedObjectModel& model);

/// Names an entity whose record class was made for another version than the one in this model; none when all fit.
std::optional<std::string> entityOfOtherVersion(const NSManagedObjectModel& model);

} // namespace tarn
