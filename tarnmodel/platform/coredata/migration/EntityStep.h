#pragma once

#include "tarnmodel/platform/coredata/NSEntityMigrationPolicy.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

namespace tarn {

class NSAttributeDescription;
class NSEntityDescription;
class NSManagedObjectModel;
class NSRelationshipDescription;

/// One entity mapping with what it means in the two models at hand.
struct EntityStep {
    const NSEntityMapping* mapping = nullptr;
    const NSEntityDescription* from = nullptr; ///< null for an entity that is new
    const NSEntityDescription* to = nullptr;   ///< null for one that goes
    std::unique_ptr<NSEntityMigrationPolicy> policy;
    NSEntityMigrationPolicy::Passes passes; ///< those that go record by record
    /// A record keeps its key, and this is added to it; none where each gets a new key.
    std::optional<std::int64_t> keyOffset;
    int number = 0;              ///< among the steps of a run
    std::size_t recordCount = 0; ///< of the source

    /// Whether there are records to be made of records.
    bool hasBoth() const noexcept { return from && to; }
    /// How an attribute of `to` gets its value.
    const MappingExpression& expressionOf(const NSAttributeDescription& attribute) const;
    /// The attribute of `from` whose values it takes as they are; null for any other expression.
    const NSAttributeDescription* takenFrom(const NSAttributeDescription& attribute) const;
    /// The relationship of `from` that one of `to` is made of; null when that begins empty.
    const NSRelationshipDescription* madeOf(const NSRelationshipDescription& relationship) const;
    /// The record of the destination that a source's record becomes by itself.
    std::int64_t destinationKey(std::int64_t sourceKey) const { return sourceKey + *keyOffset; }
};

/// The entity mappings of a run, and the keys of the records that they make.
///
/// Records of one table keep their keys. Where a second table, or the same entity again, goes into the same table, its
/// keys move behind those of the first; records that policies make beside get keys behind all of them.
class EntitySteps {
public:
    /// By the root entity of the source: the first key that was never given out.
    using NextKeys = std::map<const NSEntityDescription*, std::int64_t>;

    /// Throws a `StoreFailure` for a policy that nobody registered.
    EntitySteps(const NSMappingModel& mapping, const NSManagedObjectModel& source,
        const NSManagedObjectModel& destination, const NextKeys& nextKeys);

    std::vector<EntityStep>& all() noexcept { return steps_; }
    /// Throws a `StoreFailure` for an unknown name.
    EntityStep& named(std::string_view mappingName);
    /// A key for a record of the destination that no record of the source hands its key to.
    std::int64_t takeKey(const NSEntityDescription& root) { return nextKeys_[&root]++; }
    /// By the root entity of the destination: the first key that is free for good.
    const NextKeys& nextKeys() const noexcept { return nextKeys_; }
    /// No key below `next` is free.
    void reserveKeys(const NSEntityDescription& root, std::int64_t next);

private:
    /// The records of some entities of one source table in one table of the destination.
    struct Lane {
        const NSEntityDescription* sourceRoot = nullptr;
        std::vector<const NSEntityDescription*> entities;
        std::int64_t offset = 0;
    };

    std::int64_t offsetFor(const NSEntityDescription& from, const NSEntityDescription& to, const NextKeys& nextKeys);

    std::vector<EntityStep> steps_;
    std::map<const NSEntityDescription*, std::vector<Lane>> lanes_; ///< by root of the destination
    NextKeys nextKeys_;
};

/// What is added to the keys of the records that a relationship names: once for each entity mapping that makes
/// something of them. Where a record was not made there is nothing at its key.
std::set<std::int64_t> targetOffsets(
    const NSRelationshipDescription& from, const NSRelationshipDescription& to, EntitySteps& steps);

} // namespace tarn
