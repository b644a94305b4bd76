#pragma once

#include "tarnmodel/platform/coredata/NSPropertyMapping.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// What becomes of the records of an entity.
enum class NSEntityMappingType : std::uint8_t {
    Copy,      ///< every property as it is
    Transform, ///< one record of the destination for each of the source, by the property mappings
    Add,       ///< the entity is new: no records
    Remove,    ///< the entity is gone, and its records with it
    Custom,    ///< whatever the policy makes of the source's records
};

/// How the records of one entity become those of another. Owned by its mapping model; immutable.
class NSEntityMapping {
public:
    /// Unique in its mapping model; "OVNoteToOVNote" where the file names none.
    const std::string& name() const noexcept { return name_; }
    NSEntityMappingType mappingType() const noexcept { return type_; }
    /// Empty for `Add`.
    const std::string& sourceEntityName() const noexcept { return source_; }
    /// Empty for `Remove`.
    const std::string& destinationEntityName() const noexcept { return destination_; }
    /// Under which name its policy is registered; empty for `NSEntityMigrationPolicy` itself.
    const std::string& entityMigrationPolicyClassName() const noexcept { return policy_; }
    /// One for each attribute of the destination, those included that the file does not mention since they stay.
    const std::vector<NSPropertyMapping>& attributeMappings() const noexcept { return attributes_; }
    /// The same for relationships; `$default` for one that begins empty.
    const std::vector<NSPropertyMapping>& relationshipMappings() const noexcept { return relationships_; }

private:
    friend class MappingModelReader;
    std::string name_;
    NSEntityMappingType type_ = NSEntityMappingType::Copy;
    std::string source_;
    std::string destination_;
    std::string policy_;
    std::vector<NSPropertyMapping> attributes_;
    std::vector<NSPropertyMapping> relationships_;
};

} // namespace tarn
