#include "tools/tarn/Importer.h"

#include "corvel/CVKAST.h"
#include "notes/OVNoteCacheLoan.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/ImportedText.h"

#include <algorithm>

namespace tarn {

namespace {

/// Identifiers are random, so that each note of a save goes to pages of its own in their indexes: the more notes, the
/// more of them share a page that is written anyway.
constexpr std::size_t kBatchNotes = 2500;
constexpr std::size_t kBatchBytes = std::size_t{32} << 20;

struct NoteDates {
    NSDate creation;
    NSDate modification;
};

/// What the text tells wins; a note is never modified before it was made.
NoteDates datesOf(const TextFile& file, const ImportedText& imported)
{
    NoteDates dates{
        imported.creationDate.value_or(file.creationDate), imported.modificationDate.value_or(file.modificationDate)};
    if (dates.modification >= dates.creation)
        return dates;
    if (!imported.modificationDate)
        dates.modification = dates.creation;
    else if (!imported.creationDate)
        dates.creation = dates.modification;
    return dates;
}

} // namespace

Importer::Importer(StoreSession* session, std::vector<std::string> tags) : session_(session), tags_(std::move(tags)) { }

ImportResult Importer::importFiles(const std::vector<std::filesystem::path>& files, const FileHandler& handler)
{
    result_ = {};
    std::size_t next = 0;
    try {
        for (; next < files.size(); ++next) {
            importFile(files[next], handler);
            if (batch_.size() >= kBatchNotes || batchBytes_ >= kBatchBytes)
                saveBatch();
        }
        saveBatch();
    } catch (const CommandFailure& failure) {
        // The store cannot be written: neither will the files that are left.
        for (const std::filesystem::path& path : batch_)
            fail(path, failure.what(), failure.code());
        for (std::size_t left = std::min(next + 1, files.size()); left < files.size(); ++left)
            fail(files[left], "not tried, since the store cannot be written", failure.code());
        result_.code = failure.code();
    }
    return std::move(result_);
}

void Importer::importFile(const std::filesystem::path& path, const FileHandler& handler)
{
    try {
        const TextFile file = readTextFile(path);
        ImportedText imported = importedTextOfFile(file.text);
        imported.text = textWithTags(std::move(imported.text), tags_);
        if (imported.text.size() > kMaximumTextLength)
            throw TextFileError(TextFileError::Kind::NoText, "larger than 512 MiB, the longest text of a note");
        if (!session_) {
            handler({path, CVKAST::fromMarkdown(imported.text).textSummary().title});
            ++result_.imported;
            return;
        }
        OVNote& note = *OVNote::insertInManagedObjectContext(session_->context());
        {
            const OVNoteCacheLoan loan(note, tagsOfBatch_, notesOfBatch_);
            note.updateNoteWithText(imported.text);
        }
        const NoteDates dates = datesOf(file, imported);
        note.setCreationDate(dates.creation);
        note.setModificationDate(dates.modification);
        batch_.push_back(path);
        batchBytes_ += imported.text.size();
        handler({path, note.title().value_or("")});
    } catch (const TextFileError& error) {
        const bool unreadable = error.kind() == TextFileError::Kind::CannotRead;
        fail(path, error.what(), unreadable ? ExitCode::InputOutput : ExitCode::Failed);
    }
}

void Importer::saveBatch()
{
    if (batch_.empty())
        return;
    session_->save();
    tagsOfBatch_.clear();
    notesOfBatch_.clear();
    session_->context().reset();
    result_.imported += batch_.size();
    batch_.clear();
    batchBytes_ = 0;
}

void Importer::fail(const std::filesystem::path& path, const std::string& error, ExitCode code)
{
    result_.failures.push_back({path, error});
    if (result_.code == ExitCode::Done || code == ExitCode::InputOutput)
        result_.code = code;
}

} // namespace tarn
