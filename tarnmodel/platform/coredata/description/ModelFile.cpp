#include "tarnmodel/platform/coredata/description/ModelFile.h"

#include "tarnmodel/platform/coredata/description/Declaration.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <span>
#include <utility>

namespace tarn {
namespace {

using Json = nlohmann::json;

constexpr std::array kTypes{
    NamedMeaning<NSAttributeType>{"bool", NSAttributeType::Boolean},
    NamedMeaning<NSAttributeType>{"int16", NSAttributeType::Integer16},
    NamedMeaning<NSAttributeType>{"int64", NSAttributeType::Integer64},
    NamedMeaning<NSAttributeType>{"double", NSAttributeType::Double},
    NamedMeaning<NSAttributeType>{"string", NSAttributeType::String},
    NamedMeaning<NSAttributeType>{"date", NSAttributeType::Date},
    NamedMeaning<NSAttributeType>{"data", NSAttributeType::Data},
};

constexpr std::array kDeleteRules{
    NamedMeaning<NSDeleteRule>{"none", NSDeleteRule::NoAction},
    NamedMeaning<NSDeleteRule>{"nullify", NSDeleteRule::Nullify},
    NamedMeaning<NSDeleteRule>{"cascade", NSDeleteRule::Cascade},
    NamedMeaning<NSDeleteRule>{"deny", NSDeleteRule::Deny},
};

constexpr std::array kStorages{NamedMeaning<bool>{"row", false}, NamedMeaning<bool>{"large", true}};
constexpr std::array kGroups{NamedMeaning<PropertyGroup>{"text", PropertyGroup::Text},
    NamedMeaning<PropertyGroup>{"encryption", PropertyGroup::Encryption}};

constexpr std::array kIndexHints{
    NamedMeaning<bool ModelFile::Attribute::*>{"value", &ModelFile::Attribute::indexed},
    NamedMeaning<bool ModelFile::Attribute::*>{"folded", &ModelFile::Attribute::folded},
    NamedMeaning<bool ModelFile::Attribute::*>{"substring", &ModelFile::Attribute::substringIndexed},
    NamedMeaning<bool ModelFile::Attribute::*>{"flag", &ModelFile::Attribute::flagIndexed},
};

Value integerDefault(const Declaration& declaration, const Json& json, std::int64_t least, std::int64_t greatest)
{
    if (!json.is_number_integer())
        declaration.fail("default must be a whole number");
    if (json.is_number_unsigned() && json.get<std::uint64_t>() > static_cast<std::uint64_t>(greatest))
        declaration.fail("default is out of range");
    auto value = json.get<std::int64_t>();
    if (value < least || value > greatest)
        declaration.fail("default is out of range");
    return Value(value);
}

Value defaultValueOf(Declaration& declaration, NSAttributeType type)
{
    const Json* json = declaration.find("default");
    if (!json || json->is_null())
        return {};
    switch (type) {
    case NSAttributeType::Boolean:
        if (!json->is_boolean())
            declaration.fail("default must be true or false");
        return Value(json->get<bool>());
    case NSAttributeType::Integer16:
        return integerDefault(
            declaration, *json, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max());
    case NSAttributeType::Integer64:
        return integerDefault(
            declaration, *json, std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max());
    case NSAttributeType::Double:
        if (!json->is_number())
            declaration.fail("default must be a number");
        return Value(json->get<double>());
    case NSAttributeType::String:
        if (!json->is_string())
            declaration.fail("default must be a string");
        return Value(json->get<std::string>());
    case NSAttributeType::Date:
    case NSAttributeType::Data:
        break;
    }
    declaration.fail("a date or data has no default");
}

void readIndexHints(Declaration& declaration, ModelFile::Attribute& attribute)
{
    for (const Json& hint : declaration.array("index")) {
        if (!hint.is_string())
            declaration.fail("\"index\" must hold strings");
        bool ModelFile::Attribute::*flag
            = declaration.meaning<bool ModelFile::Attribute::*>("index", hint.get<std::string>(), kIndexHints);
        attribute.*flag = true;
    }
    if ((attribute.folded || attribute.substringIndexed) && attribute.type != NSAttributeType::String)
        declaration.fail("only a string can be indexed folded or by substring");
    if (attribute.flagIndexed && attribute.type != NSAttributeType::Boolean)
        declaration.fail("only a truth value can be indexed as a flag");
    if (attribute.large && (attribute.indexed || attribute.folded || attribute.flagIndexed))
        declaration.fail("a large attribute can only be indexed by substring");
}

ModelFile::Attribute readAttribute(const Json& json, const std::string& place)
{
    Declaration declaration(json, place + ", attribute");
    ModelFile::Attribute attribute;
    attribute.name = declaration.requiredName("name");
    declaration.setPlace(fmt::format("{}, attribute \"{}\"", place, attribute.name));
    attribute.type = declaration.meaning<NSAttributeType>("type", declaration.requiredString("type"), kTypes);
    attribute.documentation = declaration.string("documentation");
    attribute.optional = declaration.boolean("optional", true);
    attribute.large = declaration.word<bool>("storage", kStorages, false);
    attribute.group = declaration.word<PropertyGroup>("group", kGroups, PropertyGroup::None);
    attribute.leadsGroup = declaration.boolean("leads", false);
    attribute.companion = declaration.string("companion");
    attribute.defaultValue = defaultValueOf(declaration, attribute.type);
    if (attribute.large && attribute.type != NSAttributeType::String && attribute.type != NSAttributeType::Data)
        declaration.fail("only a string or data can be large");
    if (attribute.leadsGroup && attribute.group == PropertyGroup::None)
        declaration.fail("only a member of a group can lead it");
    readIndexHints(declaration, attribute);
    declaration.refuseOtherKeys();
    return attribute;
}

ModelFile::Relationship readRelationship(const Json& json, const std::string& place)
{
    Declaration declaration(json, place + ", relationship");
    ModelFile::Relationship relationship;
    relationship.name = declaration.requiredName("name");
    declaration.setPlace(fmt::format("{}, relationship \"{}\"", place, relationship.name));
    relationship.destination = declaration.requiredString("to");
    relationship.inverse = declaration.requiredString("inverse");
    relationship.documentation = declaration.string("documentation");
    relationship.toMany = declaration.boolean("many", false);
    relationship.optional = declaration.boolean("optional", true);
    relationship.deleteRule = declaration.word<NSDeleteRule>("delete", kDeleteRules, NSDeleteRule::Nullify);
    relationship.group = declaration.word<PropertyGroup>("group", kGroups, PropertyGroup::None);
    relationship.column = declaration.boolean("column", false);
    relationship.owner = declaration.boolean("owner", false);
    declaration.refuseOtherKeys();
    return relationship;
}

IndexDescription::Column readIndexColumn(const Declaration& declaration, const Json& json)
{
    if (!json.is_string())
        declaration.fail("\"columns\" must hold strings");
    constexpr std::string_view kDescending = " desc";
    auto text = json.get<std::string>();
    IndexDescription::Column column{text, text.ends_with(kDescending)};
    if (column.descending)
        column.property.resize(text.size() - kDescending.size());
    return column;
}

IndexDescription readIndex(const Json& json, const std::string& place)
{
    Declaration declaration(json, place + ", index");
    IndexDescription index;
    index.unique = declaration.boolean("unique", false);
    for (const Json& column : declaration.array("columns"))
        index.columns.push_back(readIndexColumn(declaration, column));
    if (index.columns.empty())
        declaration.fail("\"columns\" is missing");
    declaration.refuseOtherKeys();
    return index;
}

ModelFile::Entity readEntity(const Json& json)
{
    Declaration declaration(json, "entity");
    ModelFile::Entity entity;
    entity.name = declaration.requiredName("name");
    declaration.setPlace(fmt::format("entity \"{}\"", entity.name));
    entity.documentation = declaration.string("documentation");
    entity.parent = declaration.string("parent");
    entity.abstract = declaration.boolean("abstract", false);
    for (const Json& attribute : declaration.array("attributes"))
        entity.attributes.push_back(readAttribute(attribute, declaration.place()));
    for (const Json& relationship : declaration.array("relationships"))
        entity.relationships.push_back(readRelationship(relationship, declaration.place()));
    for (const Json& index : declaration.array("indexes"))
        entity.indexes.push_back(readIndex(index, declaration.place()));
    declaration.refuseOtherKeys();
    return entity;
}

} // namespace

ModelFile parseModelFile(std::string_view text)
{
    const Json json = parseDeclarations(text);
    Declaration declaration(json, "model");
    ModelFile file;
    file.version = declaration.requiredString("version");
    for (const Json& entity : declaration.array("entities"))
        file.entities.push_back(readEntity(entity));
    declaration.refuseOtherKeys();
    return file;
}

} // namespace tarn
