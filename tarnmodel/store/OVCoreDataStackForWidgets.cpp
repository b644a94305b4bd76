#include "tarnmodel/store/OVCoreDataStackForWidgets.h"

#include <system_error>

namespace tarn {

OVCoreDataStackForWidgets::OVCoreDataStackForWidgets() = default;

OVCoreDataStackForWidgets::~OVCoreDataStackForWidgets()
{
    if (NSManagedObjectContext* const context = managedObjectContext())
        context->performBlockAndWait([] {});
}

std::unique_ptr<OVCoreDataStackForWidgets> OVCoreDataStackForWidgets::initStack(NSError* error)
{
    std::unique_ptr<OVCoreDataStackForWidgets> stack(new OVCoreDataStackForWidgets);
    if (stack->refusesToMigrate("OVCoreDataStackForWidgets", error) || !stack->makeMissingStore(error)
        || !stack->openStore(NSManagedObjectContext::ConcurrencyType::PrivateQueue, error))
        return nullptr;
    return stack;
}

bool OVCoreDataStackForWidgets::makeMissingStore(NSError* error) const
{
    std::error_code failure;
    // An empty file is one that another program is about to make a store of.
    if (const auto size = std::filesystem::file_size(persistentStoreURL(), failure); !failure && size > 0)
        return true;
    const auto model = managedObjectModel(error);
    if (!model)
        return false;
    NSPersistentStoreCoordinator coordinator(model);
    return coordinator.addPersistentStoreWithType(
               persistentStoreType(), persistentStoreURL(), OVCoreDataStack::persistentStoreOptions(), error)
        != nullptr;
}

void OVCoreDataStackForWidgets::setupStackWithDelegate(OVCoreDataStackDelegate*) { }

void OVCoreDataStackForWidgets::setupStack() { }

void OVCoreDataStackForWidgets::migrate() { }

StoreOptions OVCoreDataStackForWidgets::persistentStoreOptions() const
{
    StoreOptions options = OVCoreDataStack::persistentStoreOptions();
    options.readOnly = true;
    return options;
}

} // namespace tarn
