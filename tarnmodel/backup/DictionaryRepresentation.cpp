#include "tarnmodel/backup/Base64Internal.h"
#include "tarnmodel/backup/DictionaryRepresentationInternal.h"
#include "tarnmodel/platform/coredata/NSEntityDescription.h"
#include "tarnmodel/platform/coredata/NSManagedObject.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/foundation/values/Value.h"

#include <nlohmann/json.hpp>

#include <chrono>

namespace tarn {
namespace {

using Dictionary = nlohmann::ordered_json;

Dictionary entryOfValue(const Value& value)
{
    switch (value.kind()) {
    case Value::Kind::Bool:
        return value.asBool() ? 1 : 0;
    case Value::Kind::Integer:
        return value.asInteger();
    case Value::Kind::Double:
        return value.asDouble();
    case Value::Kind::String:
        return value.asString();
    default:
        return nullptr;
    }
}

std::string internetDateTime(NSDate date)
{
    return iso8601String(dateWithSystemTime(std::chrono::floor<std::chrono::seconds>(systemTimeOfDate(date))));
}

/// Only the full form with a zone and without a fraction.
std::optional<NSDate> dateFromInternetDateTime(std::string_view text)
{
    constexpr std::string_view kShape = "0000-00-00T00:00:00";
    if (text.size() <= kShape.size() || text[10] != 'T' || text[16] != ':' || text[kShape.size()] == '.')
        return std::nullopt;
    return dateFromISO8601String(text);
}

/// Nil for an entry that the attribute does not take.
Value valueOfEntry(const Dictionary& entry, NSAttributeType type)
{
    if (type == NSAttributeType::String)
        return entry.is_string() ? Value(entry.get_ref<const std::string&>()) : Value();
    if (entry.is_boolean())
        return Value(entry.get<bool>());
    // Of the whole numbers, those above 63 bits are the only ones that are not signed.
    if (entry.is_number_float()
        || (entry.is_number_unsigned() && entry.get<std::uint64_t>() > std::uint64_t(INT64_MAX)))
        return Value(entry.get<double>());
    return entry.is_number_integer() ? Value(entry.get<std::int64_t>()) : Value();
}

void loadValue(const Dictionary& entry, NSManagedObject& record, std::string_view key)
{
    const NSAttributeDescription* attribute = record.entity().attributeNamed(key);
    const Value value = attribute ? valueOfEntry(entry, attribute->type()) : Value();
    if (!value.isNil())
        record.setValueForKey(key, value);
}

const Dictionary* entryFor(std::string_view key, const Dictionary& dictionary)
{
    const auto found = dictionary.find(key);
    return found == dictionary.end() || found->is_null() ? nullptr : &*found;
}

} // namespace

Dictionary dictionaryOfRecord(const NSManagedObject& record, const RepresentationKeys& keys)
{
    Dictionary dictionary = Dictionary::object();
    for (const std::string_view key : keys.values)
        if (const Value value = record.valueForKey(key); !value.isNil())
            dictionary[std::string(key)] = entryOfValue(value);
    for (const std::string_view key : keys.dates)
        if (const Value value = record.valueForKey(key); !value.isNil())
            dictionary[std::string(key)] = internetDateTime(value.asDate());
    for (const std::string_view key : keys.data)
        if (const Value value = record.valueForKey(key); !value.isNil())
            dictionary[std::string(key)] = base64String(value.asData().span());
    return dictionary;
}

void loadDictionaryIntoRecord(const Dictionary& dictionary, NSManagedObject& record, const RepresentationKeys& keys)
{
    requireDictionary(dictionary);
    for (const std::string_view key : keys.values)
        if (const Dictionary* entry = entryFor(key, dictionary))
            loadValue(*entry, record, key);
    for (const std::string_view key : keys.dates)
        if (const auto text = textInDictionary(dictionary, key))
            if (const auto date = dateFromInternetDateTime(*text))
                record.setValueForKey(key, *date);
    for (const std::string_view key : keys.data)
        if (entryFor(key, dictionary)) {
            const auto text = textInDictionary(dictionary, key);
            record.setValueForKey(key, text ? Value(dataFromBase64String(*text)) : Value());
        }
}

std::optional<std::string_view> textInDictionary(const Dictionary& dictionary, std::string_view key)
{
    const Dictionary* entry = entryFor(key, dictionary);
    if (!entry || !entry->is_string())
        return std::nullopt;
    return std::string_view(entry->get_ref<const std::string&>());
}

void requireDictionary(const Dictionary& dictionary)
{
    if (!dictionary.is_object())
        throw NSException(NSInvalidArgumentException, "a representation of a record is a dictionary");
}

std::optional<NSData> jsonOfDictionary(const Dictionary& dictionary)
{
    try {
        return NSData::fromText(dictionary.dump(2));
    } catch (const Dictionary::exception&) {
        return std::nullopt;
    }
}

std::optional<Dictionary> dictionaryFromJson(const std::optional<NSData>& json)
{
    if (!json)
        return std::nullopt;
    Dictionary dictionary = Dictionary::parse(json->text(), nullptr, /*allow_exceptions=*/false);
    if (!dictionary.is_object())
        return std::nullopt;
    return dictionary;
}

} // namespace tarn
