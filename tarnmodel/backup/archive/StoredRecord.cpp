#include "tarnmodel/backup/archive/StoredRecord.h"
#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/Base64Internal.h"
#include "tarnmodel/backup/archive/StoredText.h"
#include "tarnmodel/platform/coredata/NSEntityDescription.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace tarn {

namespace {

constexpr std::array<std::string_view, 7> kLeftOut{"OVChange", "OVChangeItem", "OVInternalChanges", "OVExternalChanges",
    "OVServerMetadata", "OVNoteServerData", "OVNoteFileServerData"};
constexpr std::string_view kServerData = "serverData";

bool isLeftOut(const NSEntityDescription& entity)
{
    return std::ranges::find(kLeftOut, std::string_view(entity.name())) != kLeftOut.end();
}

/// Adds the entity behind those that it leads to.
void addEntity(const NSEntityDescription& entity, std::vector<const NSEntityDescription*>& entities,
    std::vector<const NSEntityDescription*>& begun)
{
    if (isLeftOut(entity) || std::ranges::find(begun, &entity) != begun.end())
        return;
    begun.push_back(&entity);
    for (const NSRelationshipDescription* relationship : backedUpRelationships(entity)) {
        const NSEntityDescription& destination = relationship->destinationEntity();
        addEntity(destination, entities, begun);
        for (const NSEntityDescription* kind : destination.subentities())
            addEntity(*kind, entities, begun);
    }
    entities.push_back(&entity);
}

/// JSON has no way to write what is no number, or beyond all numbers.
constexpr std::array<std::pair<std::string_view, double>, 3> kWordsForNumbers{
    {{"Infinity", std::numeric_limits<double>::infinity()}, {"-Infinity", -std::numeric_limits<double>::infinity()},
        {"NaN", std::numeric_limits<double>::quiet_NaN()}}};

JSON jsonOfNumber(double number)
{
    if (std::isfinite(number))
        return number;
    for (const auto& [word, meaning] : kWordsForNumbers)
        if (number == meaning)
            return std::string(word);
    return "NaN";
}

double numberOfJSON(const JSON& json)
{
    if (json.is_string())
        for (const auto& [word, meaning] : kWordsForNumbers)
            if (json == word)
                return meaning;
    return json.get<double>();
}

JSON jsonOfValue(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool();
    case Value::Kind::Integer:
        return value.asInteger();
    case Value::Kind::Double:
        return jsonOfNumber(value.asDouble());
    case Value::Kind::String:
        return jsonOfStoredText(value.asString());
    case Value::Kind::Date:
        return value.asDate().microsecondsSince1970();
    case Value::Kind::Data:
        return base64String(value.asData().span());
    default:
        return nullptr;
    }
}

Value valueOfJSON(const JSON& json, NSAttributeType type)
{
    switch (type) {
    case NSAttributeType::Boolean:
        return Value(json.get<bool>());
    case NSAttributeType::Integer16:
    case NSAttributeType::Integer64:
        return Value(json.get<std::int64_t>());
    case NSAttributeType::Double:
        return Value(numberOfJSON(json));
    case NSAttributeType::String:
        return Value(storedTextOfJSON(json));
    case NSAttributeType::Date:
        return Value(NSDate(json.get<std::int64_t>()));
    case NSAttributeType::Data:
        break;
    }
    const auto data = dataFromBase64String(json.get_ref<const std::string&>());
    if (!data)
        throw BackupFailure(BackupErrorDamaged, "a record holds data that is no base64");
    return Value(*data);
}

std::int64_t numberOfRecord(const Value& value)
{
    return static_cast<const NSManagedObject&>(value.asObject()).objectID().key();
}

JSON jsonOfRelated(const Value& related)
{
    if (related.kind() == Value::Kind::Object)
        return numberOfRecord(related);
    if (related.kind() != Value::Kind::Array || related.asArray().empty())
        return nullptr;
    JSON numbers = JSON::array();
    for (const Value& value : related.asArray())
        numbers.push_back(numberOfRecord(value));
    return numbers;
}

Value recordsOfJSON(
    const JSON& json, const NSRelationshipDescription& relationship, const RecordOfNumber& recordOfNumber)
{
    const NSEntityDescription& root = relationship.destinationEntity().rootEntity();
    if (!relationship.isToMany())
        return Value(recordOfNumber(root, json.get<std::int64_t>()));
    Value::Array records;
    for (const JSON& number : json)
        if (NSManagedObject* record = recordOfNumber(root, number.get<std::int64_t>()))
            records.emplace_back(record);
    return Value(std::move(records));
}

std::int64_t readInto(NSManagedObject& record, const JSON& line, const RecordOfNumber& recordOfNumber)
{
    const JSON& attributes = line.at("attributes");
    const JSON& relationships = line.at("relationships");
    if (!attributes.is_object() || !relationships.is_object())
        throw BackupFailure(BackupErrorDamaged, "a record of " + record.entity().name() + " is none");
    for (const NSAttributeDescription* attribute : backedUpAttributes(record.entity())) {
        const auto found = attributes.find(attribute->name());
        // What is not there was nil, also where a new record has something else.
        record.setPrimitiveValueForKey(
            attribute->name(), found == attributes.end() ? Value() : valueOfJSON(*found, attribute->type()));
    }
    for (const NSRelationshipDescription* relationship : backedUpRelationships(record.entity()))
        if (const auto found = relationships.find(relationship->name()); found != relationships.end())
            record.setValueForKey(relationship->name(), recordsOfJSON(*found, *relationship, recordOfNumber));
    return line.at("number").get<std::int64_t>();
}

} // namespace

std::vector<const NSEntityDescription*> backedUpEntities(const NSManagedObjectModel& model)
{
    std::vector<const NSEntityDescription*> entities;
    std::vector<const NSEntityDescription*> begun;
    for (const NSEntityDescription* entity : model.entities())
        addEntity(*entity, entities, begun);
    return entities;
}

std::vector<const NSAttributeDescription*> backedUpAttributes(const NSEntityDescription& entity)
{
    auto attributes = entity.attributes();
    std::erase_if(attributes, [](const auto* attribute) { return attribute->name() == kServerData; });
    return attributes;
}

std::vector<const NSRelationshipDescription*> backedUpRelationships(const NSEntityDescription& entity)
{
    auto relationships = entity.relationships();
    std::erase_if(relationships, [](const auto* relationship) {
        return !relationship->isKept() || isLeftOut(relationship->destinationEntity());
    });
    return relationships;
}

std::string lineOfRecord(const NSManagedObject& record)
{
    JSON line;
    line["number"] = record.objectID().key();
    line["attributes"] = JSON::object();
    line["relationships"] = JSON::object();
    for (const NSAttributeDescription* attribute : backedUpAttributes(record.entity()))
        if (const Value value = record.storedValueForKey(attribute->name()); !value.isNil())
            line["attributes"][attribute->name()] = jsonOfValue(value);
    for (const NSRelationshipDescription* relationship : backedUpRelationships(record.entity()))
        if (JSON related = jsonOfRelated(record.storedValueForKey(relationship->name())); !related.is_null())
            line["relationships"][relationship->name()] = std::move(related);
    return line.dump();
}

std::int64_t readLineIntoRecord(std::string_view line, NSManagedObject& record, const RecordOfNumber& recordOfNumber)
{
    try {
        return readInto(record, JSON::parse(line), recordOfNumber);
    } catch (const JSON::exception&) {
        throw BackupFailure(BackupErrorDamaged, "a record of " + record.entity().name() + " cannot be read");
    } catch (const NSException& exception) {
        throw BackupFailure(BackupErrorDamaged, "a record of " + record.entity().name() + ": " + exception.reason());
    }
}

} // namespace tarn
