#include "tarnmodel/diagnosis/RecordFileInternal.h"

#include "tarnmodel/files/FileJournal.h"
#include "tarnmodel/files/RecordFolder.h"
#include "tarnmodel/model/OVNoteFile.h"

#include <system_error>

namespace tarn {

namespace fs = std::filesystem;

RecordFile RecordFile::ofRecord(const OVNoteFile& record)
{
    RecordFile file;
    const fs::path folder = RecordFolder::ofRecord(record).url();
    file.place = record.primitiveFileURL().value_or(folder);
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end; entry.increment(failure)) {
        if (isUnfinishedItem(entry->path()))
            file.unfinished.push_back(entry->path());
        else if (entry->path() == file.place)
            file.size = sizeOfItem(file.place);
        else
            ++file.others;
    }
    return file;
}

std::optional<StoreFinding::Kind> RecordFile::whatIsAmiss(const OVNoteFile& record) const
{
    using enum StoreFinding::Kind;
    if (!record.downloadedValue())
        return std::nullopt;
    if (!size) {
        // Beside a protected one that is gone nobody can tell what lies there: it may be clear.
        const bool isMisnamed = others == 1 && record.storedFilename() && !record.encryptedValue();
        return isMisnamed ? MisnamedFile : MissingFile;
    }
    // Of a protected one the size is as unreadable as the name.
    const bool isOfSize = record.encryptedValue() || size == record.storedFileSize();
    return isOfSize ? std::nullopt : std::optional(WrongFileSize);
}

bool RecordFile::isClearBeside(const OVNoteFile& record) const
{
    return others > 0 && record.encryptedValue() && (size || !record.downloadedValue());
}

FilesUnderWay::FilesUnderWay(std::string_view storeUUID)
{
    for (const FileJournal::Sighting& journal : FileJournal::journalsInSight(storeUUID)) {
        if (!journal.isHeld && !journal.isOfStore)
            continue;
        if (!journal.isHeld)
            abandoned_.push_back(journal.url);
        for (const FileJournal::Line& line : journal.lines)
            folders_.insert(line.folder.url());
    }
}

} // namespace tarn
