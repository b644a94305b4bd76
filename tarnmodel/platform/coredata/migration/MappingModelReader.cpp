#include "tarnmodel/platform/coredata/migration/MappingModelReader.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/description/Declaration.h"
#include "tarnmodel/platform/coredata/migration/AttributeConversion.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace tarn {

namespace {

using Json = nlohmann::json;

constexpr std::array kMappingTypes{
    NamedMeaning<NSEntityMappingType>{"copy", NSEntityMappingType::Copy},
    NamedMeaning<NSEntityMappingType>{"transform", NSEntityMappingType::Transform},
    NamedMeaning<NSEntityMappingType>{"add", NSEntityMappingType::Add},
    NamedMeaning<NSEntityMappingType>{"remove", NSEntityMappingType::Remove},
    NamedMeaning<NSEntityMappingType>{"custom", NSEntityMappingType::Custom},
};

bool hasSource(NSEntityMappingType type)
{
    return type != NSEntityMappingType::Add;
}

bool hasDestination(NSEntityMappingType type)
{
    return type != NSEntityMappingType::Remove;
}

const NSEntityDescription* entityNamed(
    const Declaration& declaration, const NSManagedObjectModel& model, const std::string& name)
{
    const NSEntityDescription* entity = model.entityNamed(name);
    if (!entity)
        declaration.fail(fmt::format("\"{}\" has no entity \"{}\"", model.versionIdentifier(), name));
    return entity;
}

const NSPropertyMapping* mappingNamed(const std::vector<NSPropertyMapping>& mappings, std::string_view name)
{
    const auto found = std::ranges::find(mappings, name, &NSPropertyMapping::name);
    return found == mappings.end() ? nullptr : &*found;
}

/// Whether a relationship of one model is what one of another was.
bool isSameRelationship(const NSRelationshipDescription& left, const NSRelationshipDescription& right)
{
    return left.isToMany() == right.isToMany() && left.destinationEntity().name() == right.destinationEntity().name()
        && left.inverseRelationship().name() == right.inverseRelationship().name()
        && left.inverseRelationship().isToMany() == right.inverseRelationship().isToMany();
}

/// Whether an attribute can begin with this value.
bool isFitting(const Value& value, NSAttributeType type)
{
    return isValueOfType(value, type) || (value.kind() == Value::Kind::Integer && type == NSAttributeType::Double);
}

} // namespace

// The file ------------------------------------------------------------------------------------------------------------

MappingModelReader::MappingModelReader(const NSManagedObjectModel& source, const NSManagedObjectModel& destination)
    : source_(source), destination_(destination), model_(new NSMappingModel)
{ }

std::pair<std::string, std::string> MappingModelReader::versionsOf(std::string_view text)
{
    const Json json = parseDeclarations(text);
    Declaration declaration(json, "mapping model");
    std::string source = declaration.requiredString("source");
    return {std::move(source), declaration.requiredString("destination")};
}

std::shared_ptr<const NSMappingModel> MappingModelReader::read(
    std::string_view text, const NSManagedObjectModel& source, const NSManagedObjectModel& destination)
{
    const Json json = parseDeclarations(text);
    MappingModelReader reader(source, destination);
    Declaration declaration(json, "mapping model");
    reader.readVersions(declaration);
    const Json entities = declaration.array("entities");
    declaration.refuseOtherKeys();
    for (const Json& entity : entities)
        reader.readEntity(entity);
    reader.checkEntities();
    reader.checkTargets();
    return reader.model_;
}

void MappingModelReader::readVersions(Declaration& declaration)
{
    model_->sourceVersion_ = declaration.requiredString("source");
    model_->destinationVersion_ = declaration.requiredString("destination");
    model_->isPartial_ = declaration.boolean("partial", false);
    if (model_->sourceVersion_ != source_.versionIdentifier()
        || model_->destinationVersion_ != destination_.versionIdentifier())
        declaration.fail(fmt::format("leads from \"{}\" to \"{}\", not from \"{}\" to \"{}\"", model_->sourceVersion_,
            model_->destinationVersion_, source_.versionIdentifier(), destination_.versionIdentifier()));
}

void MappingModelReader::readEntity(const Json& json)
{
    Declaration declaration(json, "entity mapping");
    mapping_ = std::make_unique<NSEntityMapping>();
    used_.clear();
    dropped_.clear();
    mapping_->type_
        = declaration.meaning<NSEntityMappingType>("kind", declaration.requiredString("kind"), kMappingTypes);
    if (hasSource(mapping_->type_))
        mapping_->source_ = declaration.requiredString("source");
    if (hasDestination(mapping_->type_))
        mapping_->destination_ = declaration.requiredString("destination");
    mapping_->name_ = declaration.string("name");
    if (mapping_->name_.empty())
        mapping_->name_ = mapping_->source_ + "To" + mapping_->destination_;
    declaration.setPlace(fmt::format("entity mapping \"{}\"", mapping_->name_));
    if (model_->entityMappingNamed(mapping_->name_))
        declaration.fail("there are two of this name");
    from_ = hasSource(mapping_->type_) ? entityNamed(declaration, source_, mapping_->source_) : nullptr;
    to_ = hasDestination(mapping_->type_) ? entityNamed(declaration, destination_, mapping_->destination_) : nullptr;
    if (from_ && to_)
        readProperties(declaration);
    declaration.refuseOtherKeys();
    complete(declaration);
    model_->mappings_.push_back(std::move(mapping_));
}

void MappingModelReader::readProperties(Declaration& declaration)
{
    mapping_->policy_ = declaration.string("policy");
    if (mapping_->type_ == NSEntityMappingType::Custom && mapping_->policy_.empty())
        declaration.fail("needs a policy");
    if (mapping_->type_ == NSEntityMappingType::Copy)
        return;
    readMappings(declaration, "attributes", mapping_->attributes_);
    readMappings(declaration, "relationships", mapping_->relationships_);
    for (const Json& name : declaration.array("dropped")) {
        if (!name.is_string() || !from_->propertyNamed(name.get<std::string>()))
            declaration.fail(
                fmt::format("\"dropped\" names {}, which \"{}\" does not have", name.dump(), from_->name()));
        dropped_.insert(name.get<std::string>());
    }
}

void MappingModelReader::readMappings(
    Declaration& declaration, std::string_view key, std::vector<NSPropertyMapping>& mappings)
{
    for (const Json& json : declaration.array(key)) {
        Declaration property(json, fmt::format("{}, {}", declaration.place(), key));
        NSPropertyMapping mapping;
        mapping.name = property.requiredName("name");
        property.setPlace(fmt::format("{}, \"{}\"", declaration.place(), mapping.name));
        try {
            mapping.valueExpression = MappingExpression::parse(property.requiredString("value"));
        } catch (const NSException& problem) {
            property.fail(problem.reason());
        }
        property.refuseOtherKeys();
        if (mappingNamed(mappings, mapping.name))
            property.fail("stands twice");
        mappings.push_back(std::move(mapping));
    }
}

// Completing an entity mapping ----------------------------------------------------------------------------------------

void MappingModelReader::complete(const Declaration& declaration)
{
    switch (mapping_->type_) {
    case NSEntityMappingType::Add:
    case NSEntityMappingType::Remove:
        return;
    case NSEntityMappingType::Custom:
        completeAttributes(declaration, false);
        completeRelationships(declaration, false);
        return;
    case NSEntityMappingType::Copy:
    case NSEntityMappingType::Transform:
        completeAttributes(declaration, true);
        completeRelationships(declaration, true);
        break;
    }
    checkNothingIsLost(declaration);
}

void MappingModelReader::completeAttributes(const Declaration& declaration, bool keepsUnmentioned)
{
    for (const NSPropertyMapping& mapping : mapping_->attributes_)
        if (!to_->attributeNamed(mapping.name))
            declaration.fail(fmt::format("\"{}\" has no attribute \"{}\"", to_->name(), mapping.name));
    std::vector<NSPropertyMapping> all;
    for (const NSAttributeDescription* attribute : to_->attributes()) {
        NSPropertyMapping mapping{attribute->name(), {}};
        if (const NSPropertyMapping* written = mappingNamed(mapping_->attributes_, attribute->name())) {
            mapping = *written;
        } else if (keepsUnmentioned) {
            const NSAttributeDescription* same = from_->attributeNamed(attribute->name());
            if (!same || same->type() != attribute->type())
                declaration.fail(fmt::format(
                    "attribute \"{}\" is {}: what is its value?", attribute->name(), same ? "of another type" : "new"));
            mapping.valueExpression = MappingExpression::sourceKey(attribute->name());
        }
        checkAttribute(declaration, *attribute, mapping.valueExpression);
        all.push_back(std::move(mapping));
    }
    mapping_->attributes_ = std::move(all);
}

void MappingModelReader::checkAttribute(
    const Declaration& declaration, const NSAttributeDescription& attribute, const MappingExpression& expression)
{
    const auto fail = [&](const std::string& what) {
        declaration.fail(fmt::format("attribute \"{}\": {}", attribute.name(), what));
    };
    switch (expression.kind()) {
    case MappingExpression::Kind::Default:
        return;
    case MappingExpression::Kind::Constant:
        if (!isFitting(expression.constant(), attribute.type()))
            fail(fmt::format("a {} cannot be this value", nameOfType(attribute.type())));
        return;
    case MappingExpression::Kind::PolicyFunction:
        return checkFunction(declaration, expression);
    case MappingExpression::Kind::SourceKey:
        break;
    }
    const NSAttributeDescription* source = from_->attributeNamed(expression.name());
    if (!source)
        return fail(fmt::format("\"{}\" has no attribute \"{}\"", from_->name(), expression.name()));
    if (!isConvertible(source->type(), attribute.type()))
        fail(fmt::format("a {} does not become a {} by itself; use a function of the policy",
            nameOfType(source->type()), nameOfType(attribute.type())));
    used_.insert(expression.name());
}

void MappingModelReader::checkFunction(const Declaration& declaration, const MappingExpression& expression)
{
    if (mapping_->policy_.empty())
        declaration.fail(fmt::format("\"{}\" is a function of a policy, and there is none", expression.name()));
    for (const MappingExpression& argument : expression.arguments()) {
        if (argument.kind() != MappingExpression::Kind::SourceKey)
            continue;
        if (!from_->attributeNamed(argument.name()))
            declaration.fail(fmt::format("\"{}\" has no attribute \"{}\"", from_->name(), argument.name()));
        used_.insert(argument.name());
    }
}

void MappingModelReader::completeRelationships(const Declaration& declaration, bool keepsUnmentioned)
{
    for (const NSPropertyMapping& mapping : mapping_->relationships_)
        if (!to_->relationshipNamed(mapping.name))
            declaration.fail(fmt::format("\"{}\" has no relationship \"{}\"", to_->name(), mapping.name));
    std::vector<NSPropertyMapping> all;
    for (const NSRelationshipDescription* relationship : to_->relationships()) {
        NSPropertyMapping mapping{relationship->name(), {}};
        if (const NSPropertyMapping* written = mappingNamed(mapping_->relationships_, relationship->name())) {
            mapping = *written;
        } else if (keepsUnmentioned) {
            const NSRelationshipDescription* same = from_->relationshipNamed(relationship->name());
            if (!same || !isSameRelationship(*same, *relationship))
                declaration.fail(fmt::format("relationship \"{}\" is {}: what is its value?", relationship->name(),
                    same ? "another one" : "new"));
            mapping.valueExpression = MappingExpression::sourceKey(relationship->name());
        }
        checkRelationship(declaration, *relationship, mapping.valueExpression);
        all.push_back(std::move(mapping));
    }
    mapping_->relationships_ = std::move(all);
}

void MappingModelReader::checkRelationship(
    const Declaration& declaration, const NSRelationshipDescription& relationship, const MappingExpression& expression)
{
    const auto fail = [&](const std::string& what) {
        declaration.fail(fmt::format("relationship \"{}\": {}", relationship.name(), what));
    };
    if (expression.kind() == MappingExpression::Kind::Default)
        return;
    if (expression.kind() != MappingExpression::Kind::SourceKey)
        return fail("only \"$source.key\" or \"$default\" can be its value");
    const NSRelationshipDescription* source = from_->relationshipNamed(expression.name());
    if (!source)
        return fail(fmt::format("\"{}\" has no relationship \"{}\"", from_->name(), expression.name()));
    if (source->isToMany() && !relationship.isToMany())
        fail("many records do not become one by themselves; use a policy");
    used_.insert(expression.name());
}

// What must not be forgotten ------------------------------------------------------------------------------------------

void MappingModelReader::checkNothingIsLost(const Declaration& declaration) const
{
    for (const NSPropertyDescription* property : from_->properties()) {
        const bool isUsed = used_.contains(property->name());
        if (isUsed && dropped_.contains(property->name()))
            declaration.fail(fmt::format("\"{}\" is used and dropped", property->name()));
        if (!isUsed && !dropped_.contains(property->name()))
            declaration.fail(fmt::format("\"{}\" is forgotten: use or drop it", property->name()));
    }
}

void MappingModelReader::checkEntities() const
{
    if (model_->isPartial_)
        return;
    const auto isMentioned = [this](const std::string& name, const std::string& (NSEntityMapping::*side)() const) {
        return std::ranges::any_of(
            model_->mappings_, [&](const auto& mapping) { return (mapping.get()->*side)() == name; });
    };
    for (const NSEntityDescription* entity : source_.entities())
        if (!entity->isAbstract() && !isMentioned(entity->name(), &NSEntityMapping::sourceEntityName))
            throw ModelError(fmt::format("entity \"{}\" of \"{}\" is forgotten: say what becomes of it", entity->name(),
                source_.versionIdentifier()));
    for (const NSEntityDescription* entity : destination_.entities())
        if (!entity->isAbstract() && !isMentioned(entity->name(), &NSEntityMapping::destinationEntityName))
            throw ModelError(fmt::format("entity \"{}\" of \"{}\" is forgotten: say what it is made of", entity->name(),
                destination_.versionIdentifier()));
}

/// The records that a relationship named have to become such as it may name now.
void MappingModelReader::checkTargets() const
{
    for (const auto& mapping : model_->mappings_)
        for (const NSPropertyMapping& property : mapping->relationshipMappings())
            if (property.valueExpression.kind() == MappingExpression::Kind::SourceKey) {
                checkTarget(*mapping, property);
                checkKeeper(*mapping, property);
            }
}

void MappingModelReader::checkTarget(const NSEntityMapping& mapping, const NSPropertyMapping& property) const
{
    const auto& relationship
        = *destination_.entityNamed(mapping.destinationEntityName())->relationshipNamed(property.name);
    const NSEntityDescription& sourceTarget = source_.entityNamed(mapping.sourceEntityName())
                                                  ->relationshipNamed(property.valueExpression.name())
                                                  ->destinationEntity();
    const auto leadsThere = [&](const auto& other) {
        const NSEntityDescription* from = source_.entityNamed(other->sourceEntityName());
        const NSEntityDescription* to = destination_.entityNamed(other->destinationEntityName());
        return from && to && other->mappingType() != NSEntityMappingType::Custom && from->isKindOfEntity(sourceTarget)
            && to->isKindOfEntity(relationship.destinationEntity());
    };
    if (std::ranges::none_of(model_->mappings_, leadsThere))
        throw ModelError(fmt::format("entity mapping \"{}\", relationship \"{}\": no \"{}\" becomes a \"{}\"",
            mapping.name(), property.name, sourceTarget.name(), relationship.destinationEntity().name()));
}

/// Of two ends that name each other one is kept in the store: what is said of the other alone would have no effect.
void MappingModelReader::checkKeeper(const NSEntityMapping& mapping, const NSPropertyMapping& property) const
{
    const auto& relationship
        = *destination_.entityNamed(mapping.destinationEntityName())->relationshipNamed(property.name);
    if (relationship.isKept())
        return;
    const NSRelationshipDescription& inverse = relationship.inverseRelationship();
    const auto saysIt = [&](const auto& other) {
        const NSEntityDescription* to = destination_.entityNamed(other->destinationEntityName());
        const NSPropertyMapping* said = to && to->isKindOfEntity(inverse.declaringEntity())
            ? mappingNamed(other->relationshipMappings(), inverse.name())
            : nullptr;
        return said && said->valueExpression.kind() == MappingExpression::Kind::SourceKey;
    };
    if (std::ranges::none_of(model_->mappings_, saysIt))
        throw ModelError(fmt::format("entity mapping \"{}\", relationship \"{}\": its inverse \"{}\" has to say it too",
            mapping.name(), property.name, inverse.name()));
}

} // namespace tarn
