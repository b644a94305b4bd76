#include "tools/modelgen/KeyNameWriter.h"

#include "tools/modelgen/GeneratedNames.h"

#include <fmt/format.h>

namespace tarn::modelgen {
namespace {

constexpr std::string_view kKeyNames = R"(#pragma once

{includes}#include <string_view>

namespace tarn {{

/// Keys of the {kind} of {entity}, inherited ones included.
class {className}{base} {{
public:
{functions}}};

}} // namespace tarn
)";

constexpr std::string_view kObjectID = R"(#pragma once

#include "{baseInclude}"

namespace tarn {{

/// Which {entity}: the object identifier of such a record.
class {entity}ID : public {base} {{
public:
    {entity}ID() = default;
    /// The caller knows that the identifier is one of {entity}.
    explicit {entity}ID(const NSManagedObjectID& objectID)
        : {base}(objectID)
    {{
    }}
}};

}} // namespace tarn
)";

template <typename Property>
GeneratedFile keyNamesHeader(const NSEntityDescription& entity, std::string_view kind, std::string_view suffix,
    const std::vector<const Property*>& properties)
{
    std::string functions = properties.empty() ? "" : "    /// The key of the property of this name.\n";
    for (const Property* property : properties)
        functions += fmt::format(
            "    static constexpr std::string_view {0}() noexcept {{ return \"{0}\"; }}\n", property->name());
    std::string includes;
    std::string base;
    if (const NSEntityDescription* parent = entity.superentity()) {
        includes = fmt::format("#include \"tarnmodel/model/{}{}.h\"\n\n", parent->name(), suffix);
        base = fmt::format(" : public {}{}", parent->name(), suffix);
    }
    std::string className = fmt::format("{}{}", entity.name(), suffix);
    return {className + ".h",
        fmt::format(kKeyNames, fmt::arg("includes", includes), fmt::arg("kind", kind),
            fmt::arg("entity", entity.name()), fmt::arg("className", className), fmt::arg("base", base),
            fmt::arg("functions", functions))};
}

} // namespace

GeneratedFile attributeNamesHeader(const NSEntityDescription& entity)
{
    return keyNamesHeader(entity, "attributes", "Attributes", ownAttributes(entity));
}

GeneratedFile relationshipNamesHeader(const NSEntityDescription& entity)
{
    return keyNamesHeader(entity, "relationships", "Relationships", ownRelationships(entity));
}

GeneratedFile objectIDHeader(const NSEntityDescription& entity)
{
    const NSEntityDescription* parent = entity.superentity();
    std::string base = parent ? parent->name() + "ID" : "NSManagedObjectID";
    std::string include = fmt::format("{}/{}.h", parent ? "tarnmodel/model" : "tarnmodel/platform/coredata", base);
    return {entity.name() + "ID.h",
        fmt::format(
            kObjectID, fmt::arg("entity", entity.name()), fmt::arg("base", base), fmt::arg("baseInclude", include))};
}

} // namespace tarn::modelgen
