#include "tools/modelgen/ClassWriter.h"

#include "tools/modelgen/GeneratedNames.h"

#include <fmt/format.h>

#include <set>

namespace tarn::modelgen {
namespace {

constexpr std::string_view kHeader = R"(#pragma once

#include "tarnmodel/model/{entity}ID.h"
{baseInclude}#include "tarnmodel/platform/coredata/NSManagedObjectSet.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace tarn {{

class NSManagedObjectContext;
{forwardDeclarations}
/// {documentation}
///
/// The generated accessors of `{entity}`; its behaviour stands in the class of that name. For a property "x":
/// `x()` and `setX()` are its accessors, which a record class may guard; `primitiveX()` and `setPrimitiveX()` pass any
/// guard by, and the setter tells no observer; `xValue()` and its like give 0 or false for nil; `xSet()` holds the
/// records that a to-many relationship names. Values are copies; records belong to the context. A text or data of more
/// than 512 MiB raises `NSInvalidArgumentException`.
class _{entity} : public {base} {{
public:
    using {base}::{base};

    /// Positions of its properties, for reading them without a copy.
    struct Index{indexBase} {{
{indexes}    }};

    /// Inserts a new record, with the default values of the model, and returns it; the context owns it.
    static {entity}* insertInManagedObjectContext(NSManagedObjectContext& context);
    /// "{entity}".
    static constexpr std::string_view entityName() noexcept {{ return "{entity}"; }}
    /// In the context's model; owned by that. Raises `NSInvalidArgumentException` when it is not there.
    static const NSEntityDescription& entityInManagedObjectContext(const NSManagedObjectContext& context);
    /// The keys of which an observer of `key` hears too: "x" for "xValue".
    static std::set<std::string> keyPathsForValuesAffectingValueForKey(std::string_view key);
    /// Of the model that these accessors were made from.
    static constexpr std::string_view generatedAccessorHash() noexcept {{ return "{hash}"; }}

    /// Which record it is; temporary until it is saved, or a permanent one is asked for.
    {entity}ID objectID() const {{ return {entity}ID(identifyingObjectID()); }}

    std::set<std::string> keysAffectingValueForKey(std::string_view key) const override;
{keyValueCoding}{accessors}}};

}} // namespace tarn
)";

constexpr std::string_view kKeyValueCoding = R"(    Value valueForKey(std::string_view key) const override;
    void setValueForKey(std::string_view key, const Value& value) override;
)";

constexpr std::string_view kAttribute = R"(
    /// {documentation}
    virtual {boxed} {name}() const;
    virtual void set{Name}({parameter} value);
    {boxed} primitive{Name}() const;
    void setPrimitive{Name}({parameter} value);
)";

constexpr std::string_view kScalar = R"(    {scalar} {name}Value() const;
    void set{Name}Value({scalar} value);
    {scalar} primitive{Name}Value() const;
    void setPrimitive{Name}Value({scalar} value);
)";

constexpr std::string_view kToOne = R"(
    /// {documentation} The inverse is `{destination}.{inverse}`.
    {destination}* {name}() const;
    void set{Name}({destination}* value);
)";

constexpr std::string_view kToMany = R"(
    /// {documentation} Live; the inverse is `{destination}.{inverse}`.
    NSManagedObjectSet<{destination}> {name}Set() const;
)";

std::string attributeAccessors(const NSAttributeDescription& attribute)
{
    const AccessorType& type = accessorType(attribute.type());
    std::string text = fmt::format(kAttribute, fmt::arg("documentation", attribute.documentation()),
        fmt::arg("boxed", type.boxed), fmt::arg("parameter", type.parameter), fmt::arg("name", attribute.name()),
        fmt::arg("Name", capitalized(attribute.name())));
    if (!type.scalar.empty())
        text += fmt::format(kScalar, fmt::arg("scalar", type.scalar), fmt::arg("name", attribute.name()),
            fmt::arg("Name", capitalized(attribute.name())));
    return text;
}

std::string relationshipAccessors(const NSRelationshipDescription& relationship)
{
    return fmt::format(fmt::runtime(relationship.isToMany() ? kToMany : kToOne),
        fmt::arg("documentation", relationship.documentation()),
        fmt::arg("destination", relationship.destinationEntity().name()),
        fmt::arg("inverse", relationship.inverseRelationship().name()), fmt::arg("name", relationship.name()),
        fmt::arg("Name", capitalized(relationship.name())));
}

std::string accessors(const NSEntityDescription& entity)
{
    std::string text;
    for (const NSAttributeDescription* attribute : ownAttributes(entity))
        text += attributeAccessors(*attribute);
    for (const NSRelationshipDescription* relationship : ownRelationships(entity))
        text += relationshipAccessors(*relationship);
    return text;
}

std::string forwardDeclarations(const NSEntityDescription& entity)
{
    std::set<std::string> names{entity.name()};
    for (const NSRelationshipDescription* relationship : ownRelationships(entity))
        names.insert(relationship->destinationEntity().name());
    std::string text;
    for (const std::string& name : names)
        text += fmt::format("class {};\n", name);
    return text;
}

std::string indexes(const NSEntityDescription& entity)
{
    std::string text;
    for (const NSPropertyDescription* property : entity.properties()) {
        if (&property->declaringEntity() != &entity)
            continue;
        if (text.empty())
            text = "        /// The position of the property of this name.\n";
        text += fmt::format("        static constexpr PropertyIndex {} = {};\n", property->name(), property->index());
    }
    return text;
}

} // namespace

GeneratedFile baseClassHeader(const NSEntityDescription& entity)
{
    const NSEntityDescription* parent = entity.superentity();
    std::string baseInclude = parent ? fmt::format("#include \"tarnmodel/model/{}.h\"\n", parent->name()) : "";
    std::string indexBase = parent ? fmt::format(" : {}::Index", parent->name()) : "";
    return {fmt::format("_{}.h", entity.name()),
        fmt::format(kHeader, fmt::arg("entity", entity.name()), fmt::arg("base", baseClassName(entity)),
            fmt::arg("baseInclude", baseInclude), fmt::arg("documentation", entity.documentation()),
            fmt::arg("forwardDeclarations", forwardDeclarations(entity)), fmt::arg("indexBase", indexBase),
            fmt::arg("indexes", indexes(entity)), fmt::arg("hash", entity.accessorHash()),
            fmt::arg("keyValueCoding", ownAttributes(entity).empty() ? "" : kKeyValueCoding),
            fmt::arg("accessors", accessors(entity)))};
}

} // namespace tarn::modelgen
