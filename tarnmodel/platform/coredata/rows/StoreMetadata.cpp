#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/text/Folding.h"

#include <charconv>

namespace tarn {

namespace {

StoreMetadata entityHashes(const NSManagedObjectModel& model)
{
    StoreMetadata hashes;
    for (const auto& [name, hash] : model.entityVersionHashes())
        hashes.emplace(std::string(StoreEntityHashPrefix) + name, hash);
    return hashes;
}

} // namespace

int foldingVersionOf(const StoreMetadata& metadata)
{
    int version = 0;
    for (const auto& [key, value] : metadata)
        if (key == StoreFoldingVersionKey)
            std::from_chars(value.data(), value.data() + value.size(), version);
    return version;
}

StoreMetadata newStoreMetadata(const NSManagedObjectModel& model)
{
    StoreMetadata metadata = entityHashes(model);
    metadata[std::string(StoreUUIDKey)] = newUUIDString();
    metadata[std::string(StoreFormatVersionKey)] = std::string(currentStoreFormatVersion);
    metadata[std::string(StoreModelVersionKey)] = model.versionIdentifier();
    metadata[std::string(StoreFoldingVersionKey)] = std::to_string(foldingVersion());
    return metadata;
}

bool isMetadataOfModel(const NSManagedObjectModel& model, const StoreMetadata& metadata)
{
    StoreMetadata stored;
    for (const auto& [key, value] : metadata)
        if (key.starts_with(StoreEntityHashPrefix))
            stored.emplace(key, value);
    return stored == entityHashes(model);
}

} // namespace tarn
