#pragma once

#include "tarnmodel/platform/coredata/NSEntityMapping.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

namespace tarn {

class MigrationRecord;
class NSMigrationManager;

/// What happens to the records of one entity mapping. Subclasses do more, or something else, and are named in mapping
/// files by the name under which they are registered.
///
/// One is made for each entity mapping of a run. All calls come on the thread that migrates, inside the transaction
/// that makes the new store: it must not touch any store but through what it is handed. False and an error, or an
/// exception, ends the migration, and the old store stays.
///
///     class NotePolicy : public NSEntityMigrationPolicy { ... };
///     NSEntityMigrationPolicy::registerClass<NotePolicy>("NotePolicy");
class NSEntityMigrationPolicy {
public:
    NSEntityMigrationPolicy() = default;
    virtual ~NSEntityMigrationPolicy() = default;
    NSEntityMigrationPolicy(const NSEntityMigrationPolicy&) = delete;
    NSEntityMigrationPolicy& operator=(const NSEntityMigrationPolicy&) = delete;

    /// Before the first record.
    virtual bool beginEntityMapping(const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error);
    /// First pass, for each record of the source: makes one record with the values that the attribute mappings give.
    virtual bool createDestinationInstancesForSourceInstance(
        const MigrationRecord& source, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error);
    /// After the last one.
    virtual bool endInstanceCreationForEntityMapping(
        const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error);
    /// Second pass, when the records of all entities are there, for each record that the first one made: sets what the
    /// relationship mappings say.
    virtual bool createRelationshipsForDestinationInstance(
        MigrationRecord& destination, const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error);
    /// After the last one.
    virtual bool endRelationshipCreationForEntityMapping(
        const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error);
    /// When all relationships of all entities are there.
    virtual bool performCustomValidationForEntityMapping(
        const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error);
    /// At the end.
    virtual bool endEntityMapping(const NSEntityMapping& mapping, NSMigrationManager& manager, NSError* error);
    /// What a function of the policy in a value expression stands for; an answer that does not fit the attribute ends
    /// the migration. The base raises `NSInvalidArgumentException`: it has no functions.
    virtual Value valueOfFunction(
        std::string_view name, std::span<const Value> arguments, const NSEntityMapping& mapping);

    // By name -----------------------------------------------------------------------------------------------------
    /// Which of the two passes a policy has its own way of. The others are done for many records at once.
    struct Passes {
        bool createsInstances = true;     ///< the first
        bool createsRelationships = true; ///< the second
    };
    /// Makes `Policy` known under a name, for the life of the process; the last one of a name counts. Any thread.
    template <typename Policy> static void registerClass(std::string_view name)
    {
        static_assert(std::is_base_of_v<NSEntityMigrationPolicy, Policy>);
        // A member that a class does not override is still one of the base's.
        using Creation = decltype(&NSEntityMigrationPolicy::createDestinationInstancesForSourceInstance);
        using Relationships = decltype(&NSEntityMigrationPolicy::createRelationshipsForDestinationInstance);
        registerMaker(name, [] { return std::unique_ptr<NSEntityMigrationPolicy>(std::make_unique<Policy>()); },
            {.createsInstances
                = !std::is_same_v<decltype(&Policy::createDestinationInstancesForSourceInstance), Creation>,
                .createsRelationships
                = !std::is_same_v<decltype(&Policy::createRelationshipsForDestinationInstance), Relationships>});
    }

private:
    friend class MigrationPolicies;
    using Maker = std::unique_ptr<NSEntityMigrationPolicy> (*)();
    static void registerMaker(std::string_view name, Maker maker, Passes passes);
};

} // namespace tarn
