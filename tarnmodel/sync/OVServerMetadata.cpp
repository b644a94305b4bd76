#include "tarnmodel/model/OVServerMetadata.h"

#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

namespace tarn {

OVServerMetadata* OVServerMetadata::serverMetadataInManagedObjectContext(NSManagedObjectContext& context)
{
    // A failed fetch leads to a new record too, kept: without a token everything is read again, and nothing is missed.
    const std::vector<NSManagedObject*> records
        = context.executeFetchRequest(NSFetchRequest(entityInManagedObjectContext(context)));
    return records.empty() ? insertInManagedObjectContext(context) : static_cast<OVServerMetadata*>(records.back());
}

void OVServerMetadata::resetServerChangeTokenInManagedObjectContext(NSManagedObjectContext& context)
{
    serverMetadataInManagedObjectContext(context)->setServerChangeToken(std::nullopt);
}

void OVServerMetadata::resetServerMetadataInManagedObjectContext(NSManagedObjectContext& context)
{
    OVServerMetadata* metadata = serverMetadataInManagedObjectContext(context);
    metadata->setServerChangeToken(std::nullopt);
    metadata->setNoteZoneSubscriptionID(std::nullopt);
    metadata->setNoteZoneID(std::nullopt);
}

std::optional<CKRecordZoneID> OVServerMetadata::noteZoneID() const
{
    const auto archive = noteZoneIDData();
    return archive ? CKRecordZoneID::unarchivedFromData(archive->span()) : std::nullopt;
}

void OVServerMetadata::setNoteZoneID(const std::optional<CKRecordZoneID>& zoneID)
{
    setNoteZoneIDData(zoneID ? zoneID->archivedData() : std::nullopt);
}

std::optional<CKServerChangeToken> OVServerMetadata::serverChangeToken() const
{
    const auto archive = serverChangeTokenData();
    return archive ? CKServerChangeToken::unarchivedFromData(archive->span()) : std::nullopt;
}

void OVServerMetadata::setServerChangeToken(const std::optional<CKServerChangeToken>& token)
{
    setServerChangeTokenData(token ? token->archivedData() : std::nullopt);
}

} // namespace tarn
