#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/restoring/BackupExtraction.h"
#include "tarnmodel/backup/restoring/BackupMerge.h"
#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/model/OVPassword.h"

#include <algorithm>

namespace tarn {

namespace {

bool hasFileOfName(const OVNote& note, const std::optional<std::string>& name)
{
    return std::ranges::any_of(
        note.filesSet().allObjects(), [&](const OVNoteFile* file) { return file->storedFilename() == name; });
}

} // namespace

void BackupMerge::mergeFiles(const Page& page)
{
    const Existing existing = existingRecords("OVNoteFile", page);
    for (const BackupRecord& record : page)
        mergeFile(record, existingRecord(existing, record));
}

void BackupMerge::mergeFile(const BackupRecord& record, NSManagedObject* existing)
{
    const std::int64_t noteNumber = record.toOne("note");
    const auto found = notes_.find(noteNumber);
    const bool hasNote = noteNumber != 0 && found != notes_.end();
    auto* note = hasNote ? static_cast<OVNote*>(context_.existingObjectWithID(found->second.record)) : nullptr;
    if (auto* file = static_cast<OVNoteFile*>(existing)) {
        // A conflicted copy has files of its own, so that each version can be dropped without the other.
        if (note && found->second.fate == Fate::Conflict && file->note() != note
            && !hasFileOfName(*note, file->storedFilename()))
            file->duplicate()->setNote(note);
        return;
    }
    if (hasNote && found->second.fate == Fate::Newer) {
        tell(record, "its note is newer in the store, and has not got it any more");
        return;
    }
    auto& file = static_cast<OVNoteFile&>(insertRecord(record));
    file.setPassword(static_cast<OVPassword*>(recordFor(passwords_, record.toOne("password"))));
    file.setNote(note);
    tellWhereLocked(record);
    bringBytes(record, file);
}

void BackupMerge::bringBytes(const BackupRecord& record, OVNoteFile& file)
{
    const auto item = extraction_.itemOfFile(record.text("uniqueIdentifier"));
    std::error_code failure;
    if (!item || record.attribute("uniqueIdentifier").isNil() || !std::filesystem::exists(*item, failure)) {
        // A sync engine fetches what a record says is not here.
        if (file.downloadedValue()) {
            file.setDownloadedValue(false);
            tell(record, "its bytes are not in the backup");
        }
        return;
    }
    const std::int64_t size = sizeOfItem(*item).value_or(0);
    orThrow([&](NSError* error) { return file.moveFileToLocalFolder(*item, error).has_value(); });
    ++restoration_.files;
    restoration_.bytes += static_cast<std::uint64_t>(size);
}

} // namespace tarn
