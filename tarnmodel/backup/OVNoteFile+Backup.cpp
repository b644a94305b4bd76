#include "tarnmodel/backup/DictionaryRepresentationInternal.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <nlohmann/json.hpp>

#include <array>

namespace tarn {
namespace {

constexpr std::string_view kPasswordKey = "password";
constexpr std::array<std::string_view, 2> kFileDates{"encryptionDate", "searchTextDate"};
constexpr std::array<std::string_view, 1> kFileData{"encryptedData"};
constexpr std::array<std::string_view, 9> kFileValues{"encrypted", "encryptionUniqueIdentifier", "filename", "fileSize",
    "index", "lastEditingDevice", "normalizedFileExtension", "searchText", "version"};
constexpr RepresentationKeys kFileKeys{kFileDates, kFileData, kFileValues};

} // namespace

std::span<const std::string_view> OVNoteFile::dictionaryRepresentationDateKeys() noexcept
{
    return kFileDates;
}

std::span<const std::string_view> OVNoteFile::dictionaryRepresentationDataKeys() noexcept
{
    return kFileData;
}

std::span<const std::string_view> OVNoteFile::dictionaryRepresentationValueKeys() noexcept
{
    return kFileValues;
}

nlohmann::ordered_json OVNoteFile::dictionaryRepresentation() const
{
    auto dictionary = dictionaryOfRecord(*this, kFileKeys);
    if (const OVPassword* protection = password())
        dictionary[std::string(kPasswordKey)] = protection->dictionaryRepresentation();
    return dictionary;
}

void OVNoteFile::loadDictionaryRepresentation(const nlohmann::ordered_json& dictionary)
{
    loadDictionaryIntoRecord(dictionary, *this, kFileKeys);
    const auto protection = dictionary.find(kPasswordKey);
    if (protection == dictionary.end() || !protection->is_object())
        return;
    if (OVPassword* known = OVPassword::passwordFromDictionaryRepresentation(*protection, managedObjectContext()))
        setPassword(known);
}

OVNoteFile* OVNoteFile::noteFileFromDictionaryRepresentation(
    const nlohmann::ordered_json& dictionary, NSManagedObjectContext& context)
{
    requireDictionary(dictionary);
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat(
        "uniqueIdentifier == %@", Value(textInDictionary(dictionary, "uniqueIdentifier")));
    request.fetchLimit = 1;
    const auto known = fetchRecords<OVNoteFile>(request, context);
    if (!known)
        return nullptr;
    if (!known->empty())
        return known->front();
    OVNoteFile* file = _OVNoteFile::insertInManagedObjectContext(context);
    try {
        file->loadDictionaryRepresentation(dictionary);
    } catch (const NSException&) {
        context.deleteObject(*file);
        throw;
    }
    return file;
}

std::optional<NSData> OVNoteFile::jsonRepresentation() const
{
    return jsonOfDictionary(dictionaryRepresentation());
}

OVNoteFile* OVNoteFile::noteFileFromJsonRepresentation(
    const std::optional<NSData>& json, NSManagedObjectContext& context)
{
    const auto dictionary = dictionaryFromJson(json);
    return dictionary ? noteFileFromDictionaryRepresentation(*dictionary, context) : nullptr;
}

} // namespace tarn
