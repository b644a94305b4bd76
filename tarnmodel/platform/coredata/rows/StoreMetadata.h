#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"

#include <map>
#include <string>
#include <string_view>

namespace tarn {

/// Values kept with a store, by name. The names are part of the file format.
using StoreMetadata = std::map<std::string, std::string>;

inline constexpr std::string_view StoreUUIDKey = "storeUUID";
inline constexpr std::string_view StoreFormatVersionKey = "formatVersion";
inline constexpr std::string_view StoreModelVersionKey = "modelVersion";     ///< the model's version identifier
inline constexpr std::string_view StoreFoldingVersionKey = "foldingVersion"; ///< of shadow columns and signatures
/// Followed by an entity's name: the hash of the entity.
inline constexpr std::string_view StoreEntityHashPrefix = "entityHash.";

/// Of the tables that this library makes; another one is refused.
inline constexpr std::string_view currentStoreFormatVersion = "1";

/// By which version of folding the shadow columns and signatures were made; 0 when nobody wrote it down.
int foldingVersionOf(const StoreMetadata& metadata);
/// What a new store of this model begins with.
StoreMetadata newStoreMetadata(const NSManagedObjectModel& model);
/// Whether every entity's hash, and no other, stands in the metadata.
bool isMetadataOfModel(const NSManagedObjectModel& model, const StoreMetadata& metadata);

} // namespace tarn
