#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/model/RecordFetch.h"
#include "tarnmodel/platform/predicate/NSPredicate.h"

#include <algorithm>
#include <iterator>
#include <system_error>

namespace tarn {

namespace {

std::vector<OVNoteFile*> filesWhere(NSPredicate predicate, NSManagedObjectContext& context)
{
    return OVNoteFile::filesInManagedObjectContext(context, std::move(predicate));
}

std::size_t countWhere(NSPredicate predicate, NSManagedObjectContext& context)
{
    NSFetchRequest request(OVNoteFile::entityInManagedObjectContext(context));
    request.predicate = std::move(predicate);
    NSError error;
    const auto count = context.count(request, &error);
    if (!count)
        logFetchFailure(error);
    return count.value_or(0);
}

/// Of a protected one the stored place: nothing is decrypted to find out what can be sent.
bool isOnDisk(const OVNoteFile& file)
{
    const auto url = file.encryptedValue() ? file.primitiveFileURL() : file.fileURL();
    std::error_code ignored;
    return url && std::filesystem::exists(*url, ignored);
}

} // namespace

std::vector<OVNoteFile*> OVNoteFile::filesInManagedObjectContext(
    NSManagedObjectContext& context, const std::optional<NSPredicate>& withPredicate)
{
    NSFetchRequest request(entityInManagedObjectContext(context));
    request.predicate = withPredicate;
    return fetchRecords<OVNoteFile>(request, context).value_or(std::vector<OVNoteFile*>());
}

std::vector<OVNoteFile*> OVNoteFile::filesWithPasswordInManagedObjectContext(NSManagedObjectContext& context)
{
    std::vector<OVNoteFile*> files;
    for (const OVPassword* password : OVPassword::passwordsInManagedObjectContext(context, std::nullopt))
        std::ranges::copy(
            filesWhere(NSPredicate::predicateWithFormat("password == %@ AND encrypted == YES", password), context),
            std::back_inserter(files));
    return files;
}

OVNoteFile* OVNoteFile::noteFileWithUniqueIdentifier(std::string_view uniqueIdentifier, NSManagedObjectContext& context)
{
    const auto files
        = filesWhere(NSPredicate::predicateWithFormat("uniqueIdentifier == %@", uniqueIdentifier), context);
    return files.empty() ? nullptr : files.front();
}

std::vector<OVNoteFile*> OVNoteFile::noteFilesWithUniqueIdentifiers(
    const std::vector<std::string>& uniqueIdentifiers, NSManagedObjectContext& context)
{
    const Value::Array identifiers(uniqueIdentifiers.begin(), uniqueIdentifiers.end());
    return filesWhere(NSPredicate::predicateWithFormat("uniqueIdentifier in %@", identifiers), context);
}

std::vector<OVNoteFile*> OVNoteFile::noteFilesToDownloadInManagedObjectContext(NSManagedObjectContext& context)
{
    return filesWhere(NSPredicate::predicateWithFormat("downloaded == NO AND uploaded == YES"), context);
}

std::vector<OVNoteFile*> OVNoteFile::noteFilesToUploadInManagedObjectContext(NSManagedObjectContext& context)
{
    auto files
        = filesWhere(NSPredicate::predicateWithFormat("downloaded == YES && uploaded == NO AND note != nil"), context);
    std::erase_if(files, [](const OVNoteFile* file) { return !file->isToUpload(); });
    return files;
}

bool OVNoteFile::isToUpload() const
{
    return downloadedValue() && !uploadedValue() && note() && isOnDisk(*this);
}

std::size_t OVNoteFile::numberOfFileToDownloadInManagedObjectContext(NSManagedObjectContext& context)
{
    return countWhere(NSPredicate::predicateWithFormat("uploaded == YES and downloaded == NO"), context);
}

std::size_t OVNoteFile::numberOfFileToUploadInManagedObjectContext(NSManagedObjectContext& context)
{
    return countWhere(NSPredicate::predicateWithFormat("uploaded == NO and downloaded == YES"), context);
}

void OVNoteFile::deleteAllUnusedNoteFilesInManagedObjectContext(NSManagedObjectContext& context)
{
    for (OVNoteFile* file : filesWhere(NSPredicate::predicateWithFormat("unused == YES"), context))
        file->permanentlyDelete();
}

} // namespace tarn
