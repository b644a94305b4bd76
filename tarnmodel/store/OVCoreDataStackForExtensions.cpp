#include "tarnmodel/store/OVCoreDataStackForExtensions.h"

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVExternalChanges.h"

namespace tarn {

OVCoreDataStackForExtensions::OVCoreDataStackForExtensions() = default;

std::unique_ptr<OVCoreDataStackForExtensions> OVCoreDataStackForExtensions::initStackOutputError(NSError* error)
{
    std::unique_ptr<OVCoreDataStackForExtensions> stack(new OVCoreDataStackForExtensions);
    if (stack->refusesToMigrate("OVCoreDataStackForExtensions", error)
        || !stack->openStore(NSManagedObjectContext::ConcurrencyType::MainQueue, error))
        return nullptr;
    stack->setupStack();
    stack->setupObserver();
    return stack;
}

void OVCoreDataStackForExtensions::setupStackWithDelegate(OVCoreDataStackDelegate*) { }

void OVCoreDataStackForExtensions::migrate() { }

void OVCoreDataStackForExtensions::setupObserver()
{
    NSManagedObjectContext& context = *managedObjectContext();
    // The queue between processes comes first: the change log takes no notice of its records.
    saveObserver_ = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextWillSaveNotification, &context, [&context](const NSNotification&) {
            OVExternalChanges::updateExternalChangesInManagedObjectContext(context);
            OVChange::updateChangesInInManagedObjectContext(context);
        });
}

void OVCoreDataStackForExtensions::tearDownObservers()
{
    saveObserver_ = NSNotificationSubscription();
}

} // namespace tarn
