#pragma once

// All of TarnModel's public interface.

// Values and services.
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/events/NSProgress.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/filetypes/UTType.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/values/FileURL.h"
#include "tarnmodel/platform/foundation/values/NSData.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/foundation/values/NSRange.h"
#include "tarnmodel/platform/foundation/values/Value.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"

// The object store.
#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tarnmodel/platform/coredata/NSEntityDescription.h"
#include "tarnmodel/platform/coredata/NSFetchRequest.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectSet.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/QueueChecks.h"
#include "tarnmodel/platform/coredata/RecordMerge.h"
#include "tarnmodel/platform/coredata/SaveParticipant.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/coredata/ValueLength.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

// Images.
#include "tarnmodel/platform/imaging/Bitmap.h"
#include "tarnmodel/platform/imaging/ImageDrawing.h"
#include "tarnmodel/platform/imaging/ImageEncoding.h"
#include "tarnmodel/platform/imaging/ImageFile.h"
#include "tarnmodel/platform/imaging/ImageLimits.h"
#include "tarnmodel/platform/imaging/ImageSamples.h"

// What the server keeps of a record.
#include "tarnmodel/platform/cloudkit/CKRecord.h"
#include "tarnmodel/platform/cloudkit/CKRecordZoneID.h"
#include "tarnmodel/platform/cloudkit/CKServerChangeToken.h"
#include "tarnmodel/platform/cloudkit/NSKeyedArchiver.h"

// The Markdown parser.
#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKHashtag.h"
#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/corvel/CVKWikiLink.h"

// Protected notes.
#include "tarnmodel/encryption/OVEncryptableObject.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/encryption/OVEncryptionCoreManagerProtocol.h"

// The model and its records, with their keys.
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeAttributes.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/model/OVChangeItemAttributes.h"
#include "tarnmodel/model/OVChangeItemRelationships.h"
#include "tarnmodel/model/OVChangeRelationships.h"
#include "tarnmodel/model/OVExternalChanges.h"
#include "tarnmodel/model/OVExternalChangesAttributes.h"
#include "tarnmodel/model/OVInternalChanges.h"
#include "tarnmodel/model/OVInternalChangesAttributes.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteAttributes.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteBackLinkAttributes.h"
#include "tarnmodel/model/OVNoteBackLinkRelationships.h"
#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVNoteFileAttributes.h"
#include "tarnmodel/model/OVNoteFileRelationships.h"
#include "tarnmodel/model/OVNoteFileServerData.h"
#include "tarnmodel/model/OVNoteFileServerDataAttributes.h"
#include "tarnmodel/model/OVNoteFileServerDataRelationships.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteGenericFileAttributes.h"
#include "tarnmodel/model/OVNoteGenericFileRelationships.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVNoteImageAttributes.h"
#include "tarnmodel/model/OVNoteImageRelationships.h"
#include "tarnmodel/model/OVNoteRelationships.h"
#include "tarnmodel/model/OVNoteServerData.h"
#include "tarnmodel/model/OVNoteServerDataAttributes.h"
#include "tarnmodel/model/OVNoteServerDataRelationships.h"
#include "tarnmodel/model/OVNoteTag.h"
#include "tarnmodel/model/OVNoteTagAttributes.h"
#include "tarnmodel/model/OVNoteTagRelationships.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/OVPasswordAttributes.h"
#include "tarnmodel/model/OVPasswordRelationships.h"
#include "tarnmodel/model/OVServerMetadata.h"
#include "tarnmodel/model/OVServerMetadataAttributes.h"
#include "tarnmodel/model/Syncable.h"

// Lists of notes and tags.
#include "tarnmodel/notes/ConflictGroups.h"
#include "tarnmodel/notes/NoteFilter.h"
#include "tarnmodel/notes/NotePredicates.h"
#include "tarnmodel/tags/TagOrder.h"
#include "tarnmodel/tags/TagPredicates.h"

// The search language.
#include "tarnmodel/search/HighlightTerms.h"
#include "tarnmodel/search/OVNoteSearchManager.h"
#include "tarnmodel/search/OVNoteSearchToken.h"
#include "tarnmodel/search/TermFinder.h"

// Devices and their clocks.
#include "tarnmodel/sync/HostUUID.h"
#include "tarnmodel/sync/OVDeviceUUID.h"
#include "tarnmodel/sync/TolVectorClock.h"

// Folders, thumbnails, and images trimmed and scaled.
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/ImageScaling.h"
#include "tarnmodel/files/thumbnails/OVImageAlphaTrimmer.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"

// What is in a store, and whether it is sound.
#include "tarnmodel/diagnosis/StoreDoctor.h"
#include "tarnmodel/diagnosis/StoreFinding.h"
#include "tarnmodel/diagnosis/StoreStatistics.h"

// Opening the store, and watching records.
#include "tarnmodel/store/MigrationPolicies.h"
#include "tarnmodel/store/Model1toModel2OVNoteBackLinkMigrationPolicy.h"
#include "tarnmodel/store/Model1toModel2OVNoteMigrationPolicy.h"
#include "tarnmodel/store/Model2toModel3OVNoteMigrationPolicy.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tarnmodel/store/OVCoreDataStackDelegate.h"
#include "tarnmodel/store/OVCoreDataStackForExtensions.h"
#include "tarnmodel/store/OVCoreDataStackForWidgets.h"
#include "tarnmodel/store/OVManagedObjectObserver.h"
#include "tarnmodel/store/VexMigrationManager.h"
