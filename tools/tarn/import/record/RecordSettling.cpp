#include "tools/tarn/import/record/RecordSettling.h"

#include "tools/tarn/arguments/NoteArgument.h"
#include "tools/tarn/arguments/NoteFilter.h"
#include "tools/tarn/import/StoreTitles.h"
#include "tools/tarn/session/StoreSession.h"

#include <set>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Whether the store got what an import announced of a file.
bool hasHappened(const ImportedSource& source, const ImportRecord& record, StoreSession& session, StoreTitles& titles)
{
    const OVNote* note = noteWithIdentifier(source.note, session);
    if (!note)
        return false;
    const ImportedSource* before = record.sourceOfNote(source.note);
    if (!before)
        return true;
    // A file that has moved only changes nothing in the store.
    if (source.file == before->file && source.text == before->text && source.copy == before->copy)
        return true;
    const OVNote* written = note;
    if (!source.copy.empty())
        written = noteWithIdentifier(source.copy, session);
    if (source.copy != before->copy)
        return written != nullptr;
    return written
        && isAsImported(*written, source.copy.empty() ? source.text : source.copyText,
            [&titles](
                const std::string& title, const std::string& target) { return titles.onlyNoteOf(title) == target; });
}

} // namespace

void settleRecord(ImportRecord& record, StoreSession& session)
{
    StoreTitles titles(&session);
    record.settle([&](const ImportedSource& source) { return hasHappened(source, record, session, titles); });
    forgetProtectedTexts(record, session);
}

bool forgetProtectedTexts(ImportRecord& record, StoreSession& session)
{
    std::set<std::string> protectedNotes;
    session.forEachNote(predicateOfFilter("encrypted"),
        [&](const OVNote& note) { protectedNotes.insert(note.uniqueIdentifier().value_or("")); });
    // A copy has the text of the file as well.
    const auto isProtected = [&](const ImportedSource& source) {
        return protectedNotes.contains(source.note) || (!source.copy.empty() && protectedNotes.contains(source.copy));
    };
    return record.forgetTexts(isProtected, stampOfFile);
}

bool isAsImported(
    const OVNote& note, const std::optional<TextFingerprint>& imported, const TextFingerprint::LeadsTo& leadsTo)
{
    return imported && !note.hasEncryption() && imported->matches(note.text().value_or(""), leadsTo);
}

std::string obstacleOf(const OVNote* note)
{
    if (!note)
        return "its note was deleted";
    if (note->isTrashed())
        return "its note is in the trash";
    if (note->isReadOnly())
        return "its note is read-only";
    return note->hasEncryption() ? "its note is protected by a password" : "";
}

std::string stampOfFile(const fs::path& path)
{
    std::error_code failure;
    const auto size = fs::file_size(path, failure);
    const auto date = failure ? fs::file_time_type{} : fs::last_write_time(path, failure);
    return failure ? std::string() : std::to_string(size) + ":" + std::to_string(date.time_since_epoch().count());
}

} // namespace tarn
