#include "tools/modelgen/GeneratedNames.h"

#include <array>

namespace tarn::modelgen {
namespace {

// By NSAttributeType.
constexpr std::array kAccessorTypes{
    AccessorType{"std::optional<bool>", "std::optional<bool>", "bool", "false", "Boolean", "unboxedBoolean(value)"},
    AccessorType{"std::optional<std::int16_t>", "std::optional<std::int16_t>", "std::int16_t", "0", "Integer",
        "narrowed<std::int16_t>(unboxedNumber(value))"},
    AccessorType{"std::optional<std::int64_t>", "std::optional<std::int64_t>", "std::int64_t", "0", "Integer",
        "unboxedNumber(value)"},
    AccessorType{"std::optional<double>", "std::optional<double>", "double", "0.0", "Double", "unboxedDouble(value)"},
    AccessorType{
        "std::optional<std::string>", "std::optional<std::string_view>", "", "", "String", "unboxedString(value)"},
    AccessorType{"std::optional<NSDate>", "std::optional<NSDate>", "", "", "Date", "unboxedDate(value)"},
    AccessorType{"std::optional<NSData>", "const std::optional<NSData>&", "", "", "Data", "unboxedData(value)"},
};

template <typename Property>
std::vector<const Property*> declaredBy(const NSEntityDescription& entity, std::vector<const Property*> properties)
{
    std::erase_if(properties, [&](const Property* property) { return &property->declaringEntity() != &entity; });
    return properties;
}

} // namespace

const AccessorType& accessorType(NSAttributeType type)
{
    return kAccessorTypes[static_cast<std::size_t>(type)];
}

std::string capitalized(std::string_view name)
{
    std::string result(name);
    if (result.front() >= 'a' && result.front() <= 'z')
        result.front() = static_cast<char>(result.front() - 'a' + 'A');
    return result;
}

std::vector<const NSAttributeDescription*> ownAttributes(const NSEntityDescription& entity)
{
    return declaredBy(entity, entity.attributes());
}

std::vector<const NSRelationshipDescription*> ownRelationships(const NSEntityDescription& entity)
{
    return declaredBy(entity, entity.relationships());
}

std::string baseClassName(const NSEntityDescription& entity)
{
    return entity.superentity() ? entity.superentity()->name() : "NSManagedObject";
}

} // namespace tarn::modelgen
