#include "tools/tarn/Importer.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/notes/OVNoteCacheLoan.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/DisplayText.h"
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

ImportResult Importer::importFiles(const std::vector<MarkdownFile>& files, const FileHandler& handler)
{
    result_ = {};
    handler_ = &handler;
    linkedFiles_.emplace(files);
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

void Importer::leave(std::span<const MarkdownFile> untried)
{
    const CommandFailure failure = failureOfCurrentException();
    for (UnsavedNote& note : batch_)
        result_.left.push_back(std::move(note.path));
    batch_.clear();
    for (const MarkdownFile& file : untried)
        result_.left.push_back(file.path);
    result_.reasonLeft = failure.what();
    result_.code = failure.code();
}

void Importer::readFile(const MarkdownFile& found)
{
    try {
        const TextFile file = readTextFile(found.path);
        ImportedText imported = importedTextOfFile(file.text);
        imported.text = textWithTags(std::move(imported.text), tags_);
        if (imported.text.size() > OVNote::maximumTextLength)
            throw tooLongForANote();
        const NoteDates dates = datesOf(file, imported);
        auto files = filesToAttach(found, imported.text);
        takeNote({found.path, std::move(imported.text), dates.creation, dates.modification, std::move(files)});
    } catch (const TextFileError& error) {
        const bool unreadable = error.kind() == TextFileError::Kind::CannotRead;
        fail(found.path, error.what(), unreadable ? ExitCode::InputOutput : ExitCode::Failed);
    }
}

/// What stays a link is noted where it names a file that is not to be had.
std::map<std::string, LinkedFile> Importer::filesToAttach(const MarkdownFile& file, const std::string& text)
{
    std::map<std::string, LinkedFile> files;
    if (text.find("](") == std::string::npos && text.find("]:") == std::string::npos)
        return files; // most texts are spared another parse
    const CVKAST document = CVKAST::fromMarkdown(text);
    std::set<std::string> seen;
    for (const std::string& destination : document.textSummary().links) {
        if (!seen.insert(destination).second)
            continue;
        LinkedFile linked = linkedFiles_->fileForLink(destination, file.path, file.root);
        if (linked.kind == LinkedFile::Kind::Found)
            files.emplace(destination, std::move(linked));
        else if (linked.kind == LinkedFile::Kind::Missing || linked.kind == LinkedFile::Kind::Outside)
            result_.leftLinks.push_back({file.path, destination, linked.kind});
    }
    return files;
}

/// The text with links to the names that its files have as attachments. A file that two links name is attached once.
std::string Importer::textWithAttachments(UnsavedNote& unsaved, OVNote& note)
{
    std::string text = std::exchange(unsaved.text, {}); // one of the two is enough
    if (unsaved.files.empty())
        return text;
    std::map<std::filesystem::path, std::optional<std::string>> names;
    for (const auto& [destination, file] : unsaved.files) {
        const auto [name, isNew] = names.try_emplace(file.target);
        if (!isNew)
            continue;
        NSError error;
        if (const OVNoteFile* attached = OVNoteFile::getOrCreateFileFromURL(file.path, note, &error)) {
            name->second = attached->filename();
            result_.attachedFiles.insert(file.target);
            ++attachmentsOfBatch_;
        } else {
            fail(file.path, singleLine(error.localizedDescription()), ExitCode::InputOutput);
        }
    }
    const auto newURL = [&](const std::string& destination) -> std::optional<std::string> {
        const auto file = unsaved.files.find(destination);
        return file == unsaved.files.end() ? std::nullopt : names.at(file->second.target);
    };
    const CVKAST document = CVKAST::fromMarkdown(std::move(text));
    return document.applyTextOperationResults(document.updateLinksURLs(newURL, {})).markdown();
}

void Importer::takeNote(UnsavedNote note)
{
    if (!session_) {
        std::set<std::filesystem::path> targets;
        for (const auto& [destination, file] : note.files)
            targets.insert(file.target);
        result_.attachments += targets.size();
        result_.attachedFiles.merge(targets);
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
    attachmentsOfBatch_ = 0;
    session_->write([this] { insertBatch(); });
    session_->context().reset();
    result_.imported += batch_.size();
    result_.attachments += attachmentsOfBatch_;
    result_.lastImported = batch_.back().path;
    batch_.clear();
    batchBytes_ = 0;
}

void Importer::insertBatch()
{
    for (UnsavedNote& unsaved : batch_) {
        Interruption::endIfRequested(kInterrupted);
        OVNote& note = *OVNote::insertInManagedObjectContext(session_->context());
        const std::string text = textWithAttachments(unsaved, note);
        {
            const OVNoteCacheLoan loan(note, tagsOfBatch_, notesOfBatch_);
            note.updateNoteWithText(text);
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
