#include "tarnmodel/store/OVCoreDataStackDelegate.h"

namespace tarn {

void OVCoreDataStackDelegate::coreDataStackDidInitializeManagedObjectContext(OVCoreDataStack&, NSManagedObjectContext&)
{ }

void OVCoreDataStackDelegate::coreDataStackDidBeginMigrationWithProgress(
    OVCoreDataStack&, const std::shared_ptr<NSProgress>&)
{ }

void OVCoreDataStackDelegate::coreDataStackDidEndMigration(
    OVCoreDataStack&, const std::optional<NSError>&, const std::vector<std::string>&)
{ }

bool OVCoreDataStackDelegate::coreDataStackShouldSetStoreAsideAtURL(
    OVCoreDataStack&, StoreStanding, const std::filesystem::path&)
{
    return true;
}

void OVCoreDataStackDelegate::coreDataStackDidFailToSave(OVCoreDataStack&, const NSError&) { }

bool OVCoreDataStackDelegate::coreDataStackShouldKeepLosingText(OVCoreDataStack&, const MergeConflict&)
{
    return true;
}

void OVCoreDataStackDelegate::coreDataStackDidKeepLosingText(OVCoreDataStack&, OVNote&) { }

void OVCoreDataStackDelegate::coreDataStackDidMergeConflict(OVCoreDataStack&, const MergeConflict&) { }

} // namespace tarn
