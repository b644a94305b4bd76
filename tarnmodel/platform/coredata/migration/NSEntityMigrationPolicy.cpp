#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"

#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/platform/coredata/migration/MigrationPolicies.h"
#include "tarnmodel/platform/coredata/migration/MigrationRun.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <map>
#include <mutex>
#include <string>

namespace tarn {

// What a policy does by itself ----------------------------------------------------------------------------------------

bool NSEntityMigrationPolicy::beginEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError*)
{
    return true;
}

bool NSEntityMigrationPolicy::createDestinationInstancesForSourceInstance(
    const MigrationRecord& source, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error)
{
    return reportingFailure(error, [&] { manager.run().createInstance(source, mapping); });
}

bool NSEntityMigrationPolicy::endInstanceCreationForEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError*)
{
    return true;
}

bool NSEntityMigrationPolicy::createRelationshipsForDestinationInstance(
    MigrationRecord& destination, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error)
{
    return reportingFailure(error, [&] { manager.run().createRelationships(destination, mapping); });
}

bool NSEntityMigrationPolicy::endRelationshipCreationForEntityMapping(
    const NSEntityMapping&, NSMigrationManager&, NSError*)
{
    return true;
}

bool NSEntityMigrationPolicy::performCustomValidationForEntityMapping(
    const NSEntityMapping&, NSMigrationManager&, NSError*)
{
    return true;
}

bool NSEntityMigrationPolicy::endEntityMapping(const NSEntityMapping&, NSMigrationManager&, NSError*)
{
    return true;
}

Value NSEntityMigrationPolicy::valueOfFunction(
    std::string_view name, std::span<const Value>, const NSEntityMapping& mapping)
{
    throw NSException(NSInvalidArgumentException,
        "The policy of \"" + mapping.name() + "\" has no function \"" + std::string(name) + "\"");
}

// By name -------------------------------------------------------------------------------------------------------------

namespace {

struct Registration {
    std::unique_ptr<NSEntityMigrationPolicy> (*maker)();
    NSEntityMigrationPolicy::Passes passes;
};

struct Registry {
    std::mutex mutex;
    std::map<std::string, Registration, std::less<>> policies;

    static Registry& shared()
    {
        static auto* const registry = new Registry; // policies are registered until the process ends
        return *registry;
    }
};

} // namespace

void NSEntityMigrationPolicy::registerMaker(std::string_view name, Maker maker, Passes passes)
{
    MigrationPolicies::add(name, maker, passes);
}

void MigrationPolicies::add(
    std::string_view name, NSEntityMigrationPolicy::Maker maker, NSEntityMigrationPolicy::Passes passes)
{
    Registry& registry = Registry::shared();
    const std::lock_guard lock(registry.mutex);
    registry.policies.insert_or_assign(std::string(name), Registration{maker, passes});
}

MigrationPolicies::Made MigrationPolicies::make(std::string_view name)
{
    if (name.empty())
        return {
            std::make_unique<NSEntityMigrationPolicy>(), {.createsInstances = false, .createsRelationships = false}};
    Registry& registry = Registry::shared();
    const std::lock_guard lock(registry.mutex);
    const auto found = registry.policies.find(name);
    if (found == registry.policies.end())
        throw StoreFailure(StoreErrorGeneric, "The policy \"" + std::string(name) + "\" is not registered.");
    return {found->second.maker(), found->second.passes};
}

} // namespace tarn
