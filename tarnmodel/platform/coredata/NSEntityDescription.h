#pragma once

#include "tarnmodel/platform/foundation/values/Value.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class NSEntityDescription;
class NSManagedObject;
class NSManagedObjectModel;
class NSManagedObjectSeed;

/// Position of a property in its entity; an inherited property has the same one in every sub-entity.
using PropertyIndex = std::uint8_t;
/// One bit for each property of an entity.
using PropertyMask = std::uint64_t;
/// How many properties an entity may have.
inline constexpr std::size_t maximumPropertyCount = 64;
/// The bit of one property.
constexpr PropertyMask propertyBit(PropertyIndex index) noexcept
{
    return PropertyMask{1} << index;
}

enum class NSAttributeType : std::uint8_t { Boolean, Integer16, Integer64, Double, String, Date, Data };
enum class NSDeleteRule : std::uint8_t { NoAction, Nullify, Cascade, Deny };

/// Where the store keeps a relationship.
enum class RelationshipStorage : std::uint8_t {
    Column,        ///< to-one: a foreign key in this entity's table
    InverseColumn, ///< to-one or to-many: the inverse's foreign key
    JoinTable,     ///< many-to-many
};

/// Properties that a merge takes from one side as a whole, besides pairs of an attribute and its companion date.
enum class PropertyGroup : std::uint8_t {
    None,
    Text,       ///< a note's text and what derives from it
    Encryption, ///< what is encrypted, and what it can be read with
};

/// Properties of one entity that a merge takes from one side together.
struct MergeGroup {
    PropertyMask members = 0; ///< all of the group
    PropertyMask leads = 0;   ///< what the group is about: where one side alone changed one of these, that side has it
};

/// An attribute or a relationship of an entity. Owned by its model; immutable.
class NSPropertyDescription {
public:
    virtual ~NSPropertyDescription() = default;
    /// Unique in its entity.
    const std::string& name() const noexcept { return name_; }
    /// Its position in `NSEntityDescription::properties`.
    PropertyIndex index() const noexcept { return index_; }
    /// The entity that declares it (a super-entity for an inherited one).
    const NSEntityDescription& declaringEntity() const noexcept { return *declaringEntity_; }
    /// Whether it may be nil.
    bool isOptional() const noexcept { return optional_; }
    /// The group that a merge takes as a whole.
    PropertyGroup group() const noexcept { return group_; }
    /// What its group is about; the other members follow from it.
    bool leadsGroup() const noexcept { return leadsGroup_; }
    /// A sentence for people.
    const std::string& documentation() const noexcept { return documentation_; }
    /// Whether it is an `NSRelationshipDescription`; an `NSAttributeDescription` otherwise.
    virtual bool isRelationship() const noexcept = 0;

private:
    friend class ModelReader;
    std::string name_;
    std::string documentation_;
    PropertyIndex index_ = 0;
    bool optional_ = true;
    PropertyGroup group_ = PropertyGroup::None;
    bool leadsGroup_ = false;
    const NSEntityDescription* declaringEntity_ = nullptr;
};

/// A property that holds a value. Owned by its model; immutable.
class NSAttributeDescription final : public NSPropertyDescription {
public:
    bool isRelationship() const noexcept override { return false; }
    /// Which values it takes.
    NSAttributeType type() const noexcept { return type_; }
    /// Boolean, integer and floating-point attributes: those with a scalar accessor.
    bool isScalar() const noexcept { return type_ <= NSAttributeType::Double; }
    /// What a new record holds; nil for none.
    const Value& defaultValue() const noexcept { return defaultValue_; }
    /// Name of the date that records when this attribute last changed; empty for none.
    const std::string& companion() const noexcept { return companion_; }
    /// Kept apart from the row and read when first asked for.
    bool isLarge() const noexcept { return large_; }
    /// Has a plain index, for `==` and `IN`.
    bool isIndexed() const noexcept { return indexed_; }
    /// Has a shadow column of the folded value with an index, for `==[cd]` and `BEGINSWITH[cd]`.
    bool isFolded() const noexcept { return folded_; }
    /// Gets a signature for `CONTAINS[cd]` and the literals of `MATCHES`.
    bool isSubstringIndexed() const noexcept { return substringIndexed_; }
    /// Of a flag that few records have: those are listed in an index.
    bool isFlagIndexed() const noexcept { return flagIndexed_; }

private:
    friend class ModelReader;
    NSAttributeType type_ = NSAttributeType::String;
    Value defaultValue_;
    std::string companion_;
    bool large_ = false;
    bool indexed_ = false;
    bool folded_ = false;
    bool substringIndexed_ = false;
    bool flagIndexed_ = false;
};

/// A property that names other records. Owned by its model; immutable.
class NSRelationshipDescription final : public NSPropertyDescription {
public:
    bool isRelationship() const noexcept override { return true; }
    /// Whether it names any number of records; one at most otherwise.
    bool isToMany() const noexcept { return toMany_; }
    /// The entity of the records that it names.
    const NSEntityDescription& destinationEntity() const noexcept { return *destination_; }
    /// The relationship by which those name this record.
    const NSRelationshipDescription& inverseRelationship() const noexcept { return *inverse_; }
    /// What becomes of those when this record is deleted.
    NSDeleteRule deleteRule() const noexcept { return deleteRule_; }
    /// Where the store keeps it.
    RelationshipStorage storage() const noexcept { return storage_; }
    /// Of the two ends of a join table the one whose changes write its rows (the table is named after it).
    bool ownsJoinTable() const noexcept { return ownsJoinTable_; }
    /// Whether the store keeps this end, in a column or a join table of its own; the other end follows from it.
    bool isKept() const noexcept { return storage_ == RelationshipStorage::Column || ownsJoinTable_; }

private:
    friend class ModelReader;
    const NSEntityDescription* destination_ = nullptr;
    const NSRelationshipDescription* inverse_ = nullptr;
    bool toMany_ = false;
    bool ownsJoinTable_ = false;
    NSDeleteRule deleteRule_ = NSDeleteRule::Nullify;
    RelationshipStorage storage_ = RelationshipStorage::Column;
};

/// A composite index of a table: columns in order.
struct IndexDescription {
    /// One column of an index.
    struct Column {
        std::string property;    ///< of the entity
        bool descending = false; ///< from the highest value to the lowest
    };
    std::vector<Column> columns; ///< the leading one first
    bool unique = false;         ///< no two rows have the same values
};

/// Makes the record object of an entity with `new`; the caller owns it. `NSManagedObject` itself where none is
/// registered.
using RecordConstructor = NSManagedObject* (*)(const NSManagedObjectSeed& seed);

/// One record type: its properties, inherited ones first. Owned by its model; immutable but for the constructor.
///
/// Good for as long as its model.
class NSEntityDescription {
public:
    /// Unique in its model.
    const std::string& name() const noexcept { return name_; }
    /// The model that owns it.
    const NSManagedObjectModel& model() const noexcept { return *model_; }
    /// Whether only records of its sub-entities are meant to be made.
    bool isAbstract() const noexcept { return abstract_; }
    /// The entity that it inherits from; null for none.
    const NSEntityDescription* superentity() const noexcept { return superentity_; }
    /// The entities that inherit from it directly.
    const std::vector<const NSEntityDescription*>& subentities() const noexcept { return subentities_; }
    /// The top of its inheritance chain, whose table holds the rows; itself when it has no super-entity.
    const NSEntityDescription& rootEntity() const noexcept { return *root_; }
    /// Whether it is `other`, or inherits from it.
    bool isKindOfEntity(const NSEntityDescription& other) const noexcept;
    /// A sentence for people.
    const std::string& documentation() const noexcept { return documentation_; }

    /// All properties by index.
    const std::vector<const NSPropertyDescription*>& properties() const noexcept { return properties_; }
    /// The property at this index, which is below their number.
    const NSPropertyDescription& property(PropertyIndex index) const noexcept { return *properties_[index]; }
    /// Null for an unknown name.
    const NSPropertyDescription* propertyNamed(std::string_view name) const noexcept;
    const NSAttributeDescription* attributeNamed(std::string_view name) const noexcept;
    const NSRelationshipDescription* relationshipNamed(std::string_view name) const noexcept;
    /// By kind, in the order of their indexes.
    std::vector<const NSAttributeDescription*> attributes() const;
    std::vector<const NSRelationshipDescription*> relationships() const;
    /// Those that the model asks for beside the plain and folded ones.
    const std::vector<IndexDescription>& indexes() const noexcept { return indexes_; }

    /// Properties by kind: relationships; those to many; attributes that are large; those of the text's group.
    PropertyMask relationshipMask() const noexcept { return relationshipMask_; }
    PropertyMask toManyMask() const noexcept { return toManyMask_; }
    PropertyMask largeMask() const noexcept { return largeMask_; }
    PropertyMask textGroupMask() const noexcept { return textGroupMask_; }
    /// Properties of all groups that have a name.
    PropertyMask groupedMask() const noexcept { return groupedMask_; }
    /// What goes together in a merge: named groups, and attributes with their companion dates. Disjoint.
    const std::vector<MergeGroup>& mergeGroups() const noexcept { return mergeGroups_; }
    /// Relationships that the row of a record says nothing about.
    PropertyMask inverseColumnMask() const noexcept { return inverseColumnMask_; }

    // How `PropertyValues` keeps the values of a record.
    /// Boolean attributes, which take a bit each, and to-many relationships, which take nothing.
    PropertyMask slotlessMask() const noexcept { return slotlessMask_; }
    /// The place of any other property; an inherited one has the same in every sub-entity.
    std::uint8_t slot(PropertyIndex index) const noexcept { return slots_[index]; }
    /// How many places a record takes, of eight bytes each.
    std::size_t slotCount() const noexcept { return slotCount_; }

    /// Equal for two versions of a model exactly when rows of one can be read as rows of the other; 16 hex digits.
    const std::string& versionHash() const noexcept { return versionHash_; }
    /// Equal only when the properties have the same places too, which generated accessors go by; 16 hex digits.
    const std::string& accessorHash() const noexcept { return accessorHash_; }

    /// Which class its records are of; null for `NSManagedObject` itself.
    RecordConstructor recordConstructor() const noexcept { return constructor_; }

private:
    friend class ModelReader;
    friend class NSManagedObjectModel;
    std::string name_;
    std::string documentation_;
    const NSManagedObjectModel* model_ = nullptr;
    bool abstract_ = false;
    const NSEntityDescription* superentity_ = nullptr;
    const NSEntityDescription* root_ = nullptr;
    std::vector<const NSEntityDescription*> subentities_;
    std::vector<const NSPropertyDescription*> properties_;
    std::vector<const NSPropertyDescription*> propertiesByName_; ///< sorted, for finding one
    std::vector<IndexDescription> indexes_;
    PropertyMask relationshipMask_ = 0;
    PropertyMask toManyMask_ = 0;
    PropertyMask largeMask_ = 0;
    PropertyMask textGroupMask_ = 0;
    PropertyMask groupedMask_ = 0;
    std::vector<MergeGroup> mergeGroups_;
    PropertyMask inverseColumnMask_ = 0;
    PropertyMask slotlessMask_ = 0;
    std::array<std::uint8_t, maximumPropertyCount> slots_{};
    std::uint8_t slotCount_ = 0;
    std::string versionHash_;
    std::string accessorHash_;
    RecordConstructor constructor_ = nullptr;
};

} // namespace tarn
