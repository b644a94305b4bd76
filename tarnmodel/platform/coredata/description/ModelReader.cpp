#include "tarnmodel/platform/coredata/description/ModelReader.h"

#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <set>

namespace tarn {
namespace {

/// SQLite compares the names of tables and columns without case.
std::string columnName(std::string_view name)
{
    std::string lower(name);
    for (char& character : lower) {
        if (character >= 'A' && character <= 'Z')
            character = static_cast<char>(character - 'A' + 'a');
    }
    return lower;
}

template <typename... Arguments>
[[noreturn]] void failAt(
    const NSEntityDescription& entity, fmt::format_string<Arguments...> format, Arguments&&... arguments)
{
    throw ModelError(
        fmt::format("entity \"{}\"{}", entity.name(), fmt::format(format, std::forward<Arguments>(arguments)...)));
}

} // namespace

std::shared_ptr<NSManagedObjectModel> ModelReader::read(const ModelFile& file)
{
    ModelReader reader(file);
    reader.makeEntities();
    reader.tieParents();
    reader.makeProperties();
    reader.checkColumnNames();
    reader.checkCompanions();
    reader.tieRelationships();
    reader.addIndexes();
    reader.setMasks();
    reader.setVersionHashes();
    return reader.model_;
}

ModelReader::ModelReader(const ModelFile& file) : file_(file), model_(new NSManagedObjectModel)
{
    model_->versionIdentifier_ = file.version;
}

NSEntityDescription* ModelReader::entity(std::string_view name) const
{
    auto found = model_->entitiesByName_.find(name);
    return found == model_->entitiesByName_.end() ? nullptr : found->second;
}

void ModelReader::makeEntities()
{
    std::set<std::string> names;
    for (const ModelFile::Entity& declared : file_.entities) {
        if (!names.insert(columnName(declared.name)).second)
            throw ModelError(fmt::format("entity \"{}\" stands twice", declared.name));
        auto& made = *model_->ownedEntities_.emplace_back(std::make_unique<NSEntityDescription>());
        made.name_ = declared.name;
        made.documentation_ = declared.documentation;
        made.abstract_ = declared.abstract;
        made.model_ = model_.get();
        model_->entities_.push_back(&made);
        model_->entitiesByName_.emplace(made.name_, &made);
    }
}

void ModelReader::tieParents()
{
    for (const ModelFile::Entity& declared : file_.entities) {
        if (declared.parent.empty())
            continue;
        NSEntityDescription& child = *entity(declared.name);
        NSEntityDescription* parent = entity(declared.parent);
        if (!parent)
            failAt(child, ": unknown parent \"{}\"", declared.parent);
        child.superentity_ = parent;
        parent->subentities_.push_back(&child);
    }
    for (const auto& owned : model_->ownedEntities_) {
        const NSEntityDescription* root = owned.get();
        for (std::size_t steps = 0; root->superentity_; root = root->superentity_) {
            if (++steps > model_->ownedEntities_.size())
                failAt(*owned, ": its parents form a circle");
        }
        owned->root_ = root;
    }
}

NSAttributeDescription& ModelReader::makeAttribute(
    const ModelFile::Attribute& declared, const NSEntityDescription& declaring)
{
    auto made = std::make_unique<NSAttributeDescription>();
    made->name_ = declared.name;
    made->documentation_ = declared.documentation;
    made->optional_ = declared.optional;
    made->group_ = declared.group;
    made->leadsGroup_ = declared.leadsGroup;
    made->declaringEntity_ = &declaring;
    made->type_ = declared.type;
    made->defaultValue_ = declared.defaultValue;
    made->companion_ = declared.companion;
    made->large_ = declared.large;
    made->indexed_ = declared.indexed;
    made->folded_ = declared.folded;
    made->substringIndexed_ = declared.substringIndexed;
    made->flagIndexed_ = declared.flagIndexed;
    auto& attribute = *made;
    model_->ownedProperties_.push_back(std::move(made));
    return attribute;
}

NSRelationshipDescription& ModelReader::makeRelationship(
    const ModelFile::Relationship& declared, const NSEntityDescription& declaring)
{
    auto made = std::make_unique<NSRelationshipDescription>();
    made->name_ = declared.name;
    made->documentation_ = declared.documentation;
    made->optional_ = declared.optional;
    made->group_ = declared.group;
    made->declaringEntity_ = &declaring;
    made->toMany_ = declared.toMany;
    made->deleteRule_ = declared.deleteRule;
    auto& relationship = *made;
    model_->ownedProperties_.push_back(std::move(made));
    relationships_.emplace_back(&declared, &relationship);
    return relationship;
}

void ModelReader::makeProperties()
{
    for (const auto& owned : model_->ownedEntities_) {
        if (!owned->superentity_)
            collectProperties(*owned);
    }
}

void ModelReader::collectProperties(NSEntityDescription& entity)
{
    if (entity.superentity_)
        entity.properties_ = entity.superentity_->properties_;
    std::vector<NSPropertyDescription*> own;
    for (const ModelFile::Entity& declared : file_.entities) {
        if (declared.name != entity.name_)
            continue;
        for (const ModelFile::Attribute& attribute : declared.attributes)
            own.push_back(&makeAttribute(attribute, entity));
        for (const ModelFile::Relationship& relationship : declared.relationships)
            own.push_back(&makeRelationship(relationship, entity));
    }
    if (entity.properties_.size() + own.size() > maximumPropertyCount)
        failAt(entity, ": more than {} properties", maximumPropertyCount);
    for (NSPropertyDescription* property : own) {
        property->index_ = static_cast<PropertyIndex>(entity.properties_.size());
        entity.properties_.push_back(property);
    }
    entity.propertiesByName_ = entity.properties_;
    std::ranges::stable_sort(entity.propertiesByName_, {}, &NSPropertyDescription::name);
    for (const NSEntityDescription* child : entity.subentities_)
        collectProperties(*this->entity(child->name_));
}

// The entities of one inheritance chain share a table, so their names have to differ even between cousins.
void ModelReader::checkColumnNames() const
{
    std::map<const NSEntityDescription*, std::set<std::string>> namesByRoot;
    for (const auto& property : model_->ownedProperties_) {
        const NSEntityDescription& declaring = *property->declaringEntity_;
        if (!namesByRoot[declaring.root_].insert(columnName(property->name_)).second)
            failAt(declaring, ": property \"{}\" stands twice", property->name_);
    }
}

void ModelReader::checkCompanions() const
{
    for (const auto& owned : model_->ownedEntities_) {
        for (const NSAttributeDescription* attribute : owned->attributes()) {
            if (attribute->companion_.empty())
                continue;
            const NSAttributeDescription* companion = owned->attributeNamed(attribute->companion_);
            if (!companion || companion->type_ != NSAttributeType::Date)
                failAt(*owned, ", attribute \"{}\": companion \"{}\" is no date of this entity", attribute->name_,
                    attribute->companion_);
        }
    }
}

void ModelReader::addIndexes()
{
    for (const ModelFile::Entity& declared : file_.entities) {
        NSEntityDescription& owner = *entity(declared.name);
        for (const IndexDescription& index : declared.indexes) {
            for (const IndexDescription::Column& column : index.columns) {
                const NSPropertyDescription* property = owner.propertyNamed(column.property);
                if (!property)
                    failAt(owner, ", index: unknown column \"{}\"", column.property);
                const auto* relationship = dynamic_cast<const NSRelationshipDescription*>(property);
                const auto* attribute = dynamic_cast<const NSAttributeDescription*>(property);
                if ((attribute && attribute->large_)
                    || (relationship && relationship->storage_ != RelationshipStorage::Column))
                    failAt(owner, ", index: \"{}\" has no column in the row", column.property);
            }
            owner.indexes_.push_back(index);
        }
    }
}

void ModelReader::setMasks()
{
    for (const auto& owned : model_->ownedEntities_) {
        for (const NSPropertyDescription* property : owned->properties_) {
            if (property->isRelationship())
                noteRelationship(*owned, static_cast<const NSRelationshipDescription&>(*property));
            else
                noteAttribute(*owned, static_cast<const NSAttributeDescription&>(*property));
            const PropertyMask bit = propertyBit(property->index_);
            if (property->group_ == PropertyGroup::Text)
                owned->textGroupMask_ |= bit;
            if (property->group_ != PropertyGroup::None)
                owned->groupedMask_ |= bit;
            if (!(owned->slotlessMask_ & bit))
                owned->slots_[property->index_] = owned->slotCount_++;
        }
        setMergeGroups(*owned);
    }
}

/// A companion date belongs to the group of its attribute, or makes a pair with it.
void ModelReader::setMergeGroups(NSEntityDescription& entity) const
{
    std::map<PropertyGroup, MergeGroup> named;
    for (const NSPropertyDescription* property : entity.properties_) {
        const auto* attribute = dynamic_cast<const NSAttributeDescription*>(property);
        const PropertyMask bit = propertyBit(property->index_);
        const PropertyMask companion = attribute && !attribute->companion_.empty()
            ? propertyBit(entity.propertyNamed(attribute->companion_)->index_)
            : 0;
        if (property->group_ == PropertyGroup::None) {
            if (companion != 0)
                entity.mergeGroups_.push_back({bit | companion, bit});
            continue;
        }
        MergeGroup& group = named[property->group_];
        group.members |= bit | companion;
        if (property->leadsGroup_)
            group.leads |= bit;
    }
    for (const auto& [name, group] : named)
        entity.mergeGroups_.push_back(group);
}

void ModelReader::noteAttribute(NSEntityDescription& entity, const NSAttributeDescription& attribute)
{
    const PropertyMask bit = propertyBit(attribute.index_);
    if (attribute.large_)
        entity.largeMask_ |= bit;
    if (attribute.type_ == NSAttributeType::Boolean)
        entity.slotlessMask_ |= bit;
}

void ModelReader::noteRelationship(NSEntityDescription& entity, const NSRelationshipDescription& relationship)
{
    const PropertyMask bit = propertyBit(relationship.index_);
    entity.relationshipMask_ |= bit;
    if (relationship.storage_ == RelationshipStorage::InverseColumn)
        entity.inverseColumnMask_ |= bit;
    if (relationship.toMany_) {
        entity.toManyMask_ |= bit;
        entity.slotlessMask_ |= bit;
    }
}

} // namespace tarn
