#pragma once

#include "tarnmodel/model/_OVServerMetadata.h"
#include "tarnmodel/platform/cloudkit/CKRecordZoneID.h"
#include "tarnmodel/platform/cloudkit/CKServerChangeToken.h"

#include <optional>

namespace tarn {

/// What the server told about the store as a whole. One record of a store.
///
/// Zone and token are archived into their attributes, and read back anew each time: what cannot be decoded reads as
/// none. Confined to its context's queue.
///
///     OVServerMetadata* metadata = OVServerMetadata::serverMetadataInManagedObjectContext(context);
///     metadata->setServerChangeToken(token);
class OVServerMetadata : public _OVServerMetadata {
public:
    using _OVServerMetadata::_OVServerMetadata;

    // All in tarnmodel/sync/OVServerMetadata.cpp ---------------------------------------------------------------------
    /// The record of the store, the last should there be several; inserted when there is none or the fetch fails.
    static OVServerMetadata* serverMetadataInManagedObjectContext(NSManagedObjectContext& context);
    /// Forgets the token: the next fetch of server changes starts from the beginning.
    static void resetServerChangeTokenInManagedObjectContext(NSManagedObjectContext& context);
    /// Forgets token, subscription and zone.
    static void resetServerMetadataInManagedObjectContext(NSManagedObjectContext& context);

    /// The zone of the notes.
    std::optional<CKRecordZoneID> noteZoneID() const;
    void setNoteZoneID(const std::optional<CKRecordZoneID>& zoneID);
    /// Up to where the server's changes were read.
    std::optional<CKServerChangeToken> serverChangeToken() const;
    void setServerChangeToken(const std::optional<CKServerChangeToken>& token);
};

} // namespace tarn
