#pragma once

#include <nlohmann/json_fwd.hpp>

#include <optional>
#include <span>
#include <string_view>

namespace tarn {

class NSData;
class NSManagedObject;

/// Which attributes of a record a dictionary carries, by the way in which each is written.
struct RepresentationKeys {
    std::span<const std::string_view> dates;  ///< ISO 8601, whole seconds, in UTC
    std::span<const std::string_view> data;   ///< base64
    std::span<const std::string_view> values; ///< as they are; flags as numbers
};

/// Value keys, date keys, data keys, in that order; what is nil is left out. Values go through the record's accessors.
nlohmann::ordered_json dictionaryOfRecord(const NSManagedObject& record, const RepresentationKeys& keys);
/// Sets what the dictionary has an entry for. An entry of a type that its attribute does not take counts as missing;
/// only data that cannot be decoded clears the attribute.
void loadDictionaryIntoRecord(
    const nlohmann::ordered_json& dictionary, NSManagedObject& record, const RepresentationKeys& keys);
/// The text of an entry; none when there is none, or when it is no text.
std::optional<std::string_view> textInDictionary(const nlohmann::ordered_json& dictionary, std::string_view key);
/// Raises `NSInvalidArgumentException` when it is anything else than a dictionary.
void requireDictionary(const nlohmann::ordered_json& dictionary);

/// The dictionary as JSON text, a key a line; none when a text in it is no UTF-8.
std::optional<NSData> jsonOfDictionary(const nlohmann::ordered_json& dictionary);
/// The dictionary that JSON text stands for; none when it is no JSON, or no object.
std::optional<nlohmann::ordered_json> dictionaryFromJson(const std::optional<NSData>& json);

} // namespace tarn
