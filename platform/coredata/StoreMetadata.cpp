#include "platform/coredata/StoreMetadata.h"

#include "platform/foundation/Folding.h"
#include "platform/foundation/NSUUID.h"

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
    const auto found = metadata.find(StoreMetadata::key_type(StoreFoldingVersionKey));
    int version = 0;
    if (found != metadata.end())
        std::from_chars(found->second.data(), found->second.data() + found->second.size(), version);
    return version;
}

StoreMetadata newStoreMetadata(const NSManagedObjectModel& model)
{
    StoreMetadata metadata = entityHashes(model);
    metadata[std::string(StoreUUIDKey)] = newUUIDString();
    metadata[std::string(StoreFormatVersionKey)] = currentStoreFormatVersion;
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
