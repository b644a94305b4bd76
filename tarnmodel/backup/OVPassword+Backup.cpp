#include "tarnmodel/backup/DictionaryRepresentationInternal.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <nlohmann/json.hpp>

#include <array>

namespace tarn {
namespace {

constexpr std::array<std::string_view, 1> kPasswordDates{"creationDate"};
constexpr std::array<std::string_view, 2> kPasswordData{"encryptedData", "hint"};
constexpr std::array<std::string_view, 4> kPasswordValues{
    "biometry", "creationDevice", "encryptionVersion", "uniqueIdentifier"};
constexpr RepresentationKeys kPasswordKeys{kPasswordDates, kPasswordData, kPasswordValues};

} // namespace

std::span<const std::string_view> OVPassword::dictionaryRepresentationDateKeys() noexcept
{
    return kPasswordDates;
}

std::span<const std::string_view> OVPassword::dictionaryRepresentationDataKeys() noexcept
{
    return kPasswordData;
}

std::span<const std::string_view> OVPassword::dictionaryRepresentationValueKeys() noexcept
{
    return kPasswordValues;
}

nlohmann::ordered_json OVPassword::dictionaryRepresentation() const
{
    return dictionaryOfRecord(*this, kPasswordKeys);
}

OVPassword* OVPassword::passwordFromDictionaryRepresentation(
    const nlohmann::ordered_json& dictionary, NSManagedObjectContext& context)
{
    requireDictionary(dictionary);
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat(
        "uniqueIdentifier == %@", Value(textInDictionary(dictionary, "uniqueIdentifier")));
    request.fetchLimit = 1;
    const auto known = fetchRecords<OVPassword>(request, context);
    if (!known)
        return nullptr;
    if (!known->empty())
        return known->front();
    OVPassword* password = insertInManagedObjectContext(context);
    loadDictionaryIntoRecord(dictionary, *password, kPasswordKeys);
    return password;
}

std::optional<NSData> OVPassword::jsonRepresentation() const
{
    return jsonOfDictionary(dictionaryRepresentation());
}

OVPassword* OVPassword::passwordFromJsonRepresentation(
    const std::optional<NSData>& json, NSManagedObjectContext& context)
{
    const auto dictionary = dictionaryFromJson(json);
    return dictionary ? passwordFromDictionaryRepresentation(*dictionary, context) : nullptr;
}

} // namespace tarn
