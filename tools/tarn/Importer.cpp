#include "tools/tarn/Importer.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/notes/OVNoteCacheLoan.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/ImportedText.h"
#include "tools/tarn/Interruption.h"

#include <utility>

namespace tarn {

namespace {

/// Identifiers are random, so that each note of a save goes to pages of its own in their indexes: the more notes, the
/// more of them share a page that is written anyway.
constexpr std::size_t kBatchNotes = 2500;
constexpr std::size_t kBatchBytes = std::size_t{32} << 20;
constexpr const char* kInterrupted = "interrupted";

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
    handler_ = &handler;
    std::size_t next = 0;
    try {
        Interruption::endIfRequested(kInterrupted); // while the files were looked for
        while (next < files.size()) {
            Interruption::endIfRequested(kInterrupted);
            readFile(files[next]);
            ++next; // what is in the batch is not untried any more
            if (batch_.size() >= kBatchNotes || batchBytes_ >= kBatchBytes)
                saveBatch();
        }
        saveBatch();
    } catch (const OutputClosed&) {
        throw;
    } catch (const std::exception&) {
        leave(std::span(files).subspan(next));
    }
    return std::move(result_);
}

void Importer::leave(std::span<const std::filesystem::path> untried)
{
    const CommandFailure failure = failureOfCurrentException();
    for (UnsavedNote& note : batch_)
        result_.left.push_back(std::move(note.path));
    batch_.clear();
    result_.left.insert(result_.left.end(), untried.begin(), untried.end());
    result_.reasonLeft = failure.what();
    result_.code = failure.code();
}

void Importer::readFile(const std::filesystem::path& path)
{
    try {
        const TextFile file = readTextFile(path);
        ImportedText imported = importedTextOfFile(file.text);
        imported.text = textWithTags(std::move(imported.text), tags_);
        if (imported.text.size() > OVNote::maximumTextLength)
            throw tooLongForANote();
        const NoteDates dates = datesOf(file, imported);
        takeNote({path, std::move(imported.text), dates.creation, dates.modification});
    } catch (const TextFileError& error) {
        const bool unreadable = error.kind() == TextFileError::Kind::CannotRead;
        fail(path, error.what(), unreadable ? ExitCode::InputOutput : ExitCode::Failed);
    }
}

void Importer::takeNote(UnsavedNote note)
{
    if (!session_) {
        (*handler_)({note.path, CVKAST::fromMarkdown(note.text).textSummary().title});
        ++result_.imported;
        return;
    }
    batchBytes_ += note.text.size();
    batch_.push_back(std::move(note));
}

void Importer::saveBatch()
{
    if (batch_.empty())
        return;
    tagsOfBatch_.clear();
    notesOfBatch_.clear();
    session_->write([this] { insertBatch(); });
    session_->context().reset();
    result_.imported += batch_.size();
    result_.lastImported = batch_.back().path;
    batch_.clear();
    batchBytes_ = 0;
}

void Importer::insertBatch()
{
    for (UnsavedNote& unsaved : batch_) {
        Interruption::endIfRequested(kInterrupted);
        OVNote& note = *OVNote::insertInManagedObjectContext(session_->context());
        {
            const OVNoteCacheLoan loan(note, tagsOfBatch_, notesOfBatch_);
            note.updateNoteWithText(std::exchange(unsaved.text, {})); // one of the two is enough
        }
        note.setCreationDate(unsaved.creation);
        note.setModificationDate(unsaved.modification);
        (*handler_)({unsaved.path, note.title().value_or("")});
    }
}

void Importer::fail(const std::filesystem::path& path, const std::string& error, ExitCode code)
{
    result_.failures.push_back({path, error});
    if (result_.code == ExitCode::Done || code == ExitCode::InputOutput)
        result_.code = code;
}

} // namespace tarn
