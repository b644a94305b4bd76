#include "tarnmodel/diagnosis/ClearTextInternal.h"

#include "tarnmodel/diagnosis/RecordReadingInternal.h"
#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"

#include <utility>

namespace tarn {

namespace {

using Kind = StoreFinding::Kind;

/// How many attachments are held at a time.
constexpr std::size_t kProtectedFilesAtATime = 500;

template <typename Record> StoreFinding findingOf(Kind kind, const Record& record, std::optional<std::string> title)
{
    StoreFinding finding;
    finding.kind = kind;
    finding.objectID = record.objectID();
    finding.uniqueIdentifier = record.uniqueIdentifier();
    finding.title = std::move(title);
    return finding;
}

/// A size that nobody set is 0.
bool hasClearFields(const OVNoteFile& record)
{
    return record.storedSearchText() || !record.storedNormalizedFileExtension().value_or("").empty()
        || record.storedFileSize().value_or(0) != 0;
}

/// It may be newer than the encrypted one, or that one damaged: only what is there twice can be missed.
bool isTextThereTwice(const OVNote& note)
{
    OVEncryptionCoreManagerProtocol* const manager = note.encryptionCoreManager();
    return manager && !manager->isObjectLocked(note) && manager->textForNote(note, nullptr) == note.storedText();
}

bool clearNote(OVNote& note)
{
    if (!note.encryptedValue() || !note.encryptedData())
        return false;
    const bool takesText = note.storedText() && isTextThereTwice(note);
    const bool takesSubtitle = note.subtitle().has_value();
    if (takesText)
        note.updatePrimitiveText(std::nullopt);
    if (takesSubtitle)
        note.setSubtitle(std::nullopt);
    return takesText || takesSubtitle;
}

bool clearFile(OVNoteFile& record)
{
    if (!record.encryptedValue() || !record.encryptedData() || !hasClearFields(record))
        return false;
    record.updatePrimitiveSearchText(std::nullopt);
    record.updatePrimitiveNormalizedFileExtension(std::nullopt);
    record.updatePrimitiveFileSize(std::nullopt);
    return true;
}

} // namespace

std::vector<StoreFinding> clearTextsOfNote(const OVNote& note)
{
    std::vector<StoreFinding> findings;
    if (!note.encryptedValue() || !note.encryptedData())
        return findings;
    if (note.storedText())
        findings.push_back(findingOf(Kind::ClearText, note, note.title()));
    if (note.subtitle())
        findings.push_back(findingOf(Kind::ClearSubtitle, note, note.title()));
    return findings;
}

std::vector<StoreFinding> clearTextsOfFiles(NSManagedObjectContext& context)
{
    std::vector<StoreFinding> findings;
    NSFetchRequest request(OVNoteFile::entityInManagedObjectContext(context));
    request.predicate = NSPredicate::predicateWithFormat("encrypted == YES");
    request.fetchLimit = kProtectedFilesAtATime;
    bool isLast = false;
    while (!isLast) {
        const std::vector<OVNoteFile*> records = readRecords<OVNoteFile>(context, request);
        for (const OVNoteFile* record : records) {
            if (OVEncryptionCoreManager::hasTellingName(*record))
                findings.push_back(findingOf(Kind::ClearFilename, *record, std::nullopt));
            if (record->encryptedData() && hasClearFields(*record))
                findings.push_back(findingOf(Kind::ClearFields, *record, tellableNameOf(*record)));
        }
        isLast = records.size() < kProtectedFilesAtATime;
        request.fetchOffset += kProtectedFilesAtATime;
        context.reset();
    }
    return findings;
}

std::optional<std::string> tellableNameOf(const OVNoteFile& record)
{
    return OVEncryptionCoreManager::hasTellingName(record) ? std::nullopt : record.storedFilename();
}

std::size_t clearRecords(std::span<const NSManagedObjectID> records, NSManagedObjectContext& context)
{
    std::size_t cleared = 0;
    for (const NSManagedObjectID& objectID : records) {
        DiagnosisFailure failure;
        NSManagedObject* const record = context.existingObjectWithID(objectID, &failure.error);
        if (!record && failure.error != NSError())
            throw failure;
        if (auto* const note = dynamic_cast<OVNote*>(record))
            cleared += clearNote(*note) ? 1 : 0;
        else if (auto* const file = dynamic_cast<OVNoteFile*>(record))
            cleared += clearFile(*file) ? 1 : 0;
    }
    return cleared;
}

} // namespace tarn
