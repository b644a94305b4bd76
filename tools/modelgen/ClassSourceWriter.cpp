#include "tools/modelgen/ClassWriter.h"

#include "tools/modelgen/GeneratedNames.h"

#include <fmt/format.h>

#include <set>

namespace tarn::modelgen {
namespace {

constexpr std::string_view kSource = R"(#include "tarnmodel/model/_{entity}.h"

#include "tarnmodel/model/GeneratedAccessors.h"
{includes}#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"

namespace tarn {{

{entity}* _{entity}::insertInManagedObjectContext(NSManagedObjectContext& context)
{{
    return &recordOfClass<{entity}>(context.insertObject(entityName()));
}}

const NSEntityDescription& _{entity}::entityInManagedObjectContext(const NSManagedObjectContext& context)
{{
    return entityInModel(entityName(), context.managedObjectModel());
}}

std::set<std::string> _{entity}::keyPathsForValuesAffectingValueForKey(std::string_view key)
{{
    return {affectingKeys};
}}

std::set<std::string> _{entity}::keysAffectingValueForKey(std::string_view key) const
{{
    std::set<std::string> keys = {base}::keysAffectingValueForKey(key);
    keys.merge(keyPathsForValuesAffectingValueForKey(key));
    return keys;
}}
{keyValueCoding}{accessors}
}} // namespace tarn
)";

constexpr std::string_view kKeyValueCoding = R"(
Value _{entity}::valueForKey(std::string_view key) const
{{
    const NSPropertyDescription* property = entity().propertyNamed(key);
    switch (property ? property->index() : maximumPropertyCount) {{
{getters}    default:
        return {base}::valueForKey(key);
    }}
}}

void _{entity}::setValueForKey(std::string_view key, const Value& value)
{{
    const NSPropertyDescription* property = entity().propertyNamed(key);
    switch (property ? property->index() : maximumPropertyCount) {{
{setters}    default:
        return {base}::setValueForKey(key, value);
    }}
}}
)";

constexpr std::string_view kAttribute = R"(
{boxed} _{entity}::{name}() const {{ return primitive{Name}(); }}
void _{entity}::set{Name}({parameter} value) {{ set{stored}At(Index::{name}, value); }}
{boxed} _{entity}::primitive{Name}() const {{ return {read}; }}
void _{entity}::setPrimitive{Name}({parameter} value) {{ setPrimitive{stored}At(Index::{name}, value); }}
)";

constexpr std::string_view kScalar = R"({scalar} _{entity}::{name}Value() const {{ return {name}().value_or({zero}); }}
void _{entity}::set{Name}Value({scalar} value) {{ set{Name}(value); }}
{scalar} _{entity}::primitive{Name}Value() const {{ return primitive{Name}().value_or({zero}); }}
void _{entity}::setPrimitive{Name}Value({scalar} value) {{ setPrimitive{Name}(value); }}
)";

constexpr std::string_view kToOne = R"(
{destination}* _{entity}::{name}() const {{ return static_cast<{destination}*>(toOneAt(Index::{name})); }}
void _{entity}::set{Name}({destination}* value) {{ setToOneAt(Index::{name}, value); }}
)";

constexpr std::string_view kToMany = R"(
NSManagedObjectSet<{destination}> _{entity}::{name}Set() const
{{
    willAccessValueForKey("{name}");
    NSManagedObjectSet<{destination}> set(toManyAt(Index::{name}));
    didAccessValueForKey("{name}");
    return set;
}}
)";

/// The expression that reads the stored value.
std::string readExpression(const NSAttributeDescription& attribute)
{
    std::string stored(accessorType(attribute.type()).storedName);
    stored.front() = static_cast<char>(stored.front() - 'A' + 'a');
    std::string read = fmt::format("{}At(Index::{})", stored, attribute.name());
    return attribute.type() == NSAttributeType::Integer16 ? fmt::format("narrowed<std::int16_t>({})", read) : read;
}

std::string attributeAccessors(const NSEntityDescription& entity, const NSAttributeDescription& attribute)
{
    const AccessorType& type = accessorType(attribute.type());
    std::string text = fmt::format(kAttribute, fmt::arg("entity", entity.name()), fmt::arg("name", attribute.name()),
        fmt::arg("Name", capitalized(attribute.name())), fmt::arg("boxed", type.boxed),
        fmt::arg("parameter", type.parameter), fmt::arg("stored", type.storedName),
        fmt::arg("read", readExpression(attribute)));
    if (!type.scalar.empty())
        text += fmt::format(kScalar, fmt::arg("entity", entity.name()), fmt::arg("name", attribute.name()),
            fmt::arg("Name", capitalized(attribute.name())), fmt::arg("scalar", type.scalar),
            fmt::arg("zero", type.scalarZero));
    return text;
}

std::string accessors(const NSEntityDescription& entity)
{
    std::string text;
    for (const NSAttributeDescription* attribute : ownAttributes(entity))
        text += attributeAccessors(entity, *attribute);
    for (const NSRelationshipDescription* relationship : ownRelationships(entity))
        text
            += fmt::format(fmt::runtime(relationship->isToMany() ? kToMany : kToOne), fmt::arg("entity", entity.name()),
                fmt::arg("name", relationship->name()), fmt::arg("Name", capitalized(relationship->name())),
                fmt::arg("destination", relationship->destinationEntity().name()));
    return text;
}

std::string keyValueCoding(const NSEntityDescription& entity)
{
    std::string getters;
    std::string setters;
    for (const NSAttributeDescription* attribute : ownAttributes(entity)) {
        const std::string& name = attribute->name();
        const std::string position = fmt::format("    case Index::{}:\n", name);
        getters += fmt::format("{}        return Value({}());\n", position, name);
        setters += fmt::format(
            "{}        return set{}({});\n", position, capitalized(name), accessorType(attribute->type()).unboxing);
    }
    return fmt::format(kKeyValueCoding, fmt::arg("entity", entity.name()), fmt::arg("base", baseClassName(entity)),
        fmt::arg("getters", getters), fmt::arg("setters", setters));
}

/// The expression for the keys that affect `key`: those of the scalar attributes and of the super-entity.
std::string affectingKeys(const NSEntityDescription& entity)
{
    std::string names;
    for (const NSAttributeDescription* attribute : entity.attributes()) {
        if (attribute->isScalar())
            names += fmt::format("{}\"{}\"", names.empty() ? "" : ", ", attribute->name());
    }
    return fmt::format("keysAffectingScalarKey(key, {{{}}})", names);
}

std::string includes(const NSEntityDescription& entity)
{
    std::set<std::string> names{entity.name()};
    for (const NSRelationshipDescription* relationship : ownRelationships(entity))
        names.insert(relationship->destinationEntity().name());
    std::string text;
    for (const std::string& name : names)
        text += fmt::format("#include \"tarnmodel/model/{}.h\"\n", name);
    return text;
}

} // namespace

GeneratedFile baseClassSource(const NSEntityDescription& entity)
{
    // An entity that adds no attribute adds nothing to key-value coding.
    const bool addsAttributes = !ownAttributes(entity).empty();
    return {fmt::format("_{}.cpp", entity.name()),
        fmt::format(kSource, fmt::arg("entity", entity.name()), fmt::arg("base", baseClassName(entity)),
            fmt::arg("includes", includes(entity)), fmt::arg("affectingKeys", affectingKeys(entity)),
            fmt::arg("keyValueCoding", addsAttributes ? keyValueCoding(entity) : ""),
            fmt::arg("accessors", accessors(entity)))};
}

} // namespace tarn::modelgen
