#include "tarnmodel/platform/coredata/description/ModelFile.h"

#include <nlohmann/json.hpp>

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

template <typename Meaning> using Word = std::pair<std::string_view, Meaning>;

constexpr std::array kTypes{
    Word<NSAttributeType>{"bool", NSAttributeType::Boolean},
    Word<NSAttributeType>{"int16", NSAttributeType::Integer16},
    Word<NSAttributeType>{"int64", NSAttributeType::Integer64},
    Word<NSAttributeType>{"double", NSAttributeType::Double},
    Word<NSAttributeType>{"string", NSAttributeType::String},
    Word<NSAttributeType>{"date", NSAttributeType::Date},
    Word<NSAttributeType>{"data", NSAttributeType::Data},
};

constexpr std::array kDeleteRules{
    Word<NSDeleteRule>{"none", NSDeleteRule::NoAction},
    Word<NSDeleteRule>{"nullify", NSDeleteRule::Nullify},
    Word<NSDeleteRule>{"cascade", NSDeleteRule::Cascade},
    Word<NSDeleteRule>{"deny", NSDeleteRule::Deny},
};

constexpr std::array kStorages{Word<bool>{"row", false}, Word<bool>{"large", true}};
constexpr std::array kGroups{
    Word<PropertyGroup>{"text", PropertyGroup::Text}, Word<PropertyGroup>{"encryption", PropertyGroup::Encryption}};

constexpr std::array kIndexHints{
    Word<bool ModelFile::Attribute::*>{"value", &ModelFile::Attribute::indexed},
    Word<bool ModelFile::Attribute::*>{"folded", &ModelFile::Attribute::folded},
    Word<bool ModelFile::Attribute::*>{"substring", &ModelFile::Attribute::substringIndexed},
    Word<bool ModelFile::Attribute::*>{"flag", &ModelFile::Attribute::flagIndexed},
};

/// One JSON object of the file, read key by key; remembers which keys were asked for, so that a misspelt one is found.
class Declaration {
public:
    Declaration(const Json& json, std::string place) : json_(json), place_(std::move(place))
    {
        if (!json.is_object())
            fail("must be an object");
    }

    [[noreturn]] void fail(std::string_view what) const { throw ModelError(fmt::format("{}: {}", place_, what)); }

    void setPlace(std::string place) { place_ = std::move(place); }
    const std::string& place() const { return place_; }

    /// Null when the key is not there.
    const Json* find(std::string_view key)
    {
        known_.insert(std::string(key));
        auto found = json_.find(std::string(key));
        return found == json_.end() ? nullptr : &*found;
    }

    std::string string(std::string_view key)
    {
        const Json* value = find(key);
        if (!value)
            return {};
        if (!value->is_string())
            fail(fmt::format("\"{}\" must be a string", key));
        return value->get<std::string>();
    }

    std::string requiredString(std::string_view key)
    {
        std::string value = string(key);
        if (value.empty())
            fail(fmt::format("\"{}\" is missing", key));
        return value;
    }

    /// A name fit for a class, a column and an accessor: ASCII letters and digits. The underscore belongs to the store.
    std::string requiredName(std::string_view key)
    {
        std::string value = requiredString(key);
        auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
        auto isLetterOrDigit = [&](char c) { return isLetter(c) || (c >= '0' && c <= '9'); };
        if (!isLetter(value.front()) || !std::all_of(value.begin(), value.end(), isLetterOrDigit))
            fail(fmt::format("\"{}\" is no name", value));
        return value;
    }

    bool boolean(std::string_view key, bool otherwise)
    {
        const Json* value = find(key);
        if (!value)
            return otherwise;
        if (!value->is_boolean())
            fail(fmt::format("\"{}\" must be true or false", key));
        return value->get<bool>();
    }

    template <typename Meaning>
    Meaning word(std::string_view key, std::span<const Word<Meaning>> words, Meaning otherwise)
    {
        std::string value = string(key);
        return value.empty() ? otherwise : meaning(key, value, words);
    }

    template <typename Meaning>
    Meaning meaning(std::string_view key, std::string_view value, std::span<const Word<Meaning>> words) const
    {
        auto found = std::find_if(words.begin(), words.end(), [&](const auto& word) { return word.first == value; });
        if (found == words.end())
            fail(fmt::format("unknown {} \"{}\"", key, value));
        return found->second;
    }

    /// Empty when the key is not there.
    Json array(std::string_view key)
    {
        const Json* value = find(key);
        if (!value)
            return Json::array();
        if (!value->is_array())
            fail(fmt::format("\"{}\" must be an array", key));
        return *value;
    }

    /// To be called once every key was asked for.
    void refuseOtherKeys() const
    {
        for (const auto& item : json_.items()) {
            if (!known_.contains(item.key()))
                fail(fmt::format("unknown key \"{}\"", item.key()));
        }
    }

private:
    const Json& json_;
    std::string place_;
    std::set<std::string> known_;
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

/// The parser would silently keep the last of two equal keys.
class DuplicateKeys {
public:
    bool operator()(int, Json::parse_event_t event, Json& parsed)
    {
        if (event == Json::parse_event_t::object_start)
            open_.emplace_back();
        else if (event == Json::parse_event_t::object_end)
            open_.pop_back();
        else if (event == Json::parse_event_t::key && !open_.back().insert(parsed.get<std::string>()).second)
            throw ModelError(fmt::format("key \"{}\" stands twice in one object", parsed.get<std::string>()));
        return true;
    }

private:
    std::vector<std::set<std::string>> open_;
};

Json parseJson(std::string_view text)
{
    constexpr bool kExceptions = true;
    constexpr bool kIgnoreComments = true;
    try {
        // The callback is copied by the parser, hence the reference.
        DuplicateKeys duplicates;
        return Json::parse(text, std::ref(duplicates), kExceptions, kIgnoreComments);
    } catch (const Json::exception& error) {
        throw ModelError(fmt::format("not JSON: {}", error.what()));
    }
}

} // namespace

ModelFile parseModelFile(std::string_view text)
{
    const Json json = parseJson(text);
    Declaration declaration(json, "model");
    ModelFile file;
    file.version = declaration.requiredString("version");
    for (const Json& entity : declaration.array("entities"))
        file.entities.push_back(readEntity(entity));
    declaration.refuseOtherKeys();
    return file;
}

} // namespace tarn
