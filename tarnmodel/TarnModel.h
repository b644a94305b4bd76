#pragma once

// All of TarnModel's public interface.

// Values and services.
#include "platform/foundation/Environment.h"
#include "platform/foundation/Log.h"
#include "platform/foundation/NSData.h"
#include "platform/foundation/NSDate.h"
#include "platform/foundation/NSError.h"
#include "platform/foundation/NSException.h"
#include "platform/foundation/NSNotificationCenter.h"
#include "platform/foundation/NSProgress.h"
#include "platform/foundation/NSRange.h"
#include "platform/foundation/NSUUID.h"
#include "platform/foundation/Queue.h"
#include "platform/foundation/Value.h"

// The object store.
#include "platform/coredata/NSFetchRequest.h"
#include "platform/coredata/NSManagedObject.h"
#include "platform/coredata/NSManagedObjectContext.h"
#include "platform/coredata/NSManagedObjectID.h"
#include "platform/coredata/NSManagedObjectModel.h"
#include "platform/coredata/NSManagedObjectSet.h"
#include "platform/coredata/NSPersistentStore.h"
#include "platform/coredata/NSPersistentStoreCoordinator.h"
#include "platform/coredata/QueueChecks.h"
#include "platform/predicate/NSPredicate.h"

// What the server keeps of a record.
#include "platform/cloudkit/CKRecord.h"
#include "platform/cloudkit/CKRecordZoneID.h"
#include "platform/cloudkit/CKServerChangeToken.h"
#include "platform/cloudkit/NSKeyedArchiver.h"

// The Markdown parser.
#include "corvel/CVKAST.h"
#include "corvel/CVKHashtag.h"
#include "corvel/CVKTextSummary.h"
#include "corvel/CVKWikiLink.h"

// Protected notes.
#include "encryption/OVEncryptableObject.h"
#include "encryption/OVEncryptionCoreManager.h"
#include "encryption/OVEncryptionCoreManagerProtocol.h"

// The model and its records, with their keys.
#include "model/ManagedObjectModel.h"
#include "model/OVChange.h"
#include "model/OVChangeAttributes.h"
#include "model/OVChangeItem.h"
#include "model/OVChangeItemAttributes.h"
#include "model/OVChangeItemRelationships.h"
#include "model/OVChangeRelationships.h"
#include "model/OVExternalChanges.h"
#include "model/OVExternalChangesAttributes.h"
#include "model/OVInternalChanges.h"
#include "model/OVInternalChangesAttributes.h"
#include "model/OVNote.h"
#include "model/OVNoteAttributes.h"
#include "model/OVNoteBackLink.h"
#include "model/OVNoteBackLinkAttributes.h"
#include "model/OVNoteBackLinkRelationships.h"
#include "model/OVNoteFile.h"
#include "model/OVNoteFileAttributes.h"
#include "model/OVNoteFileRelationships.h"
#include "model/OVNoteFileServerData.h"
#include "model/OVNoteFileServerDataAttributes.h"
#include "model/OVNoteFileServerDataRelationships.h"
#include "model/OVNoteGenericFile.h"
#include "model/OVNoteGenericFileAttributes.h"
#include "model/OVNoteGenericFileRelationships.h"
#include "model/OVNoteImage.h"
#include "model/OVNoteImageAttributes.h"
#include "model/OVNoteImageRelationships.h"
#include "model/OVNoteRelationships.h"
#include "model/OVNoteServerData.h"
#include "model/OVNoteServerDataAttributes.h"
#include "model/OVNoteServerDataRelationships.h"
#include "model/OVNoteTag.h"
#include "model/OVNoteTagAttributes.h"
#include "model/OVNoteTagRelationships.h"
#include "model/OVPassword.h"
#include "model/OVPasswordAttributes.h"
#include "model/OVPasswordRelationships.h"
#include "model/OVServerMetadata.h"
#include "model/OVServerMetadataAttributes.h"
#include "model/Syncable.h"

// The search language.
#include "search/HighlightTerms.h"
#include "search/OVNoteSearchManager.h"
#include "search/OVNoteSearchToken.h"
#include "search/TermFinder.h"

// Devices and their clocks.
#include "sync/HostUUID.h"
#include "sync/OVDeviceUUID.h"
#include "sync/TolVectorClock.h"

// Folders.
#include "files/OVLocalFileManager.h"

// Opening the store, and watching records.
#include "store/OVCoreDataStack.h"
#include "store/OVCoreDataStackDelegate.h"
#include "store/OVCoreDataStackForExtensions.h"
#include "store/OVCoreDataStackForWidgets.h"
#include "store/OVManagedObjectObserver.h"
#include "store/VexMigrationManager.h"
