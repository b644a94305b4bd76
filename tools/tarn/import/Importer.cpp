#include "tools/tarn/import/Importer.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/notes/OVNoteCacheLoan.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tools/tarn/CommandFailure.h"
#include "tools/tarn/DisplayText.h"
#include "tools/tarn/FileList.h"
#include "tools/tarn/Interruption.h"
#include "tools/tarn/NoteArgument.h"
#include "tools/tarn/NoteFilter.h"
#include "tools/tarn/TextFile.h"
#include "tools/tarn/import/ExportedFiles.h"

#include <algorithm>
#include <map>
#include <set>
#include <system_error>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Identifiers are random, so that each note of a save goes to pages of its own in their indexes: the more notes, the
/// more of them share a page that is written anyway.
constexpr std::size_t kBatchNotes = 2500;
constexpr std::size_t kBatchBytes = std::size_t{32} << 20;
constexpr const char* kInterrupted = "interrupted";

/// What tells one state of a file from another without a hash of its bytes.
std::string stampOfFile(const fs::path& path)
{
    std::error_code failure;
    const auto size = fs::file_size(path, failure);
    const auto date = failure ? fs::file_time_type{} : fs::last_write_time(path, failure);
    return failure ? std::string() : std::to_string(size) + ":" + std::to_string(date.time_since_epoch().count());
}

bool isProtected(const OVNote& note)
{
    return note.hasEncryption();
}

/// Why a note is not to be changed; "" where it may be.
std::string obstacleOf(const OVNote* note)
{
    if (!note)
        return "its note was deleted";
    if (note->isTrashed())
        return "its note is in the trash";
    return isProtected(*note) ? "its note is protected by a password" : "";
}

void count(const std::vector<RewrittenLink>& links, LinkCounts& counts)
{
    using Outcome = RewrittenLink::Outcome;
    for (const RewrittenLink& link : links) {
        const bool leads = link.outcome == Outcome::Wiki || link.outcome == Outcome::ByIdentifier;
        counts.ambiguous += leads && link.isOneOfSeveral ? 1 : 0;
        counts.anchors += leads && link.hasAnchor ? 1 : 0;
        counts.wiki += link.outcome == Outcome::Wiki ? 1 : 0;
        counts.byIdentifier += link.outcome == Outcome::ByIdentifier ? 1 : 0;
        counts.waiting += link.outcome == Outcome::Waiting ? 1 : 0;
        counts.outside += link.outcome == Outcome::Outside ? 1 : 0;
        counts.missing += link.outcome == Outcome::Missing ? 1 : 0;
        counts.kept += link.outcome == Outcome::Kept ? 1 : 0;
    }
}

bool hasWaitingLinks(const ComposedNote& composed)
{
    return std::ranges::any_of(composed.links, [](const RewrittenLink& link) {
        return link.outcome == RewrittenLink::Outcome::Waiting || link.outcome == RewrittenLink::Outcome::Missing;
    });
}

} // namespace

Importer::Importer(StoreSession* session, bool writes, ImportRules rules, std::vector<std::string> tags)
    : session_(session), writes_(writes), rules_(rules), tags_(std::move(tags)), storeTitles_(session)
{
    if (session_ && session_->exists())
        record_.emplace(session_->database());
}

void Importer::moveRoot(const fs::path& old, const fs::path& now)
{
    if (record_)
        record_->moveRoot(old, now);
}

void Importer::forgetProtectedNotes()
{
    settleRecord();
    if (record_)
        record_->finish();
}

ImportResult Importer::importFiles(const MarkdownFiles& found, const FileHandler& handler)
{
    result_ = {};
    handler_ = &handler;
    std::size_t next = 0;
    try {
        Interruption::endIfRequested(kInterrupted); // while the files were looked for
        prepare(found);
        while (next < plan_->files().size()) {
            Interruption::endIfRequested(kInterrupted);
            readFile(next);
            ++next; // what is in the batch is not untried any more
            if (batch_.size() >= kBatchNotes || batchBytes_ >= kBatchBytes)
                saveBatch();
        }
        saveBatch();
        if (record_ && writes_)
            record_->finish();
    } catch (const OutputClosed&) {
        throw;
    } catch (const std::exception&) {
        leave(found, next);
    }
    return std::move(result_);
}

void Importer::prepare(const MarkdownFiles& found)
{
    if (session_ && !record_)
        record_.emplace(session_->database()); // of the store that the session made
    settleRecord();
    plan_.emplace(session_, record_ ? &*record_ : nullptr, rules_);
    plan_->make(found.files, [this](const fs::path& path, const TextFileError& error) { fail(path, error); });
    composer_.emplace(*plan_, rules_, tags_, found);
    std::set<fs::path> roots;
    for (const MarkdownFile& file : found.files)
        roots.insert(rootOf(file));
    for (const ImportedSource* source : plan_->goneBelow({roots.begin(), roots.end()}))
        result_.gone.push_back(source->path);
}

void Importer::settleRecord()
{
    if (record_)
        settle(*record_);
}

void Importer::settle(ImportRecord& record)
{
    record.settle([&](const ImportedSource& source) { return hasHappened(source, record); });
    forgetProtectedNotes(record);
}

bool Importer::forgetProtectedNotes(ImportRecord& record)
{
    std::set<std::string> protectedNotes;
    session_->forEachNote(predicateOfFilter("encrypted"),
        [&](const OVNote& note) { protectedNotes.insert(note.uniqueIdentifier().value_or("")); });
    // A copy has the text of the file as well.
    const auto isProtected = [&](const ImportedSource& source) {
        return protectedNotes.contains(source.note) || (!source.copy.empty() && protectedNotes.contains(source.copy));
    };
    return record.forgetTexts(isProtected, stampOfFile);
}

/// Of what an import announced that did not come to its end.
bool Importer::hasHappened(const ImportedSource& source, const ImportRecord& record)
{
    const OVNote* note = noteWithIdentifier(source.note, *session_);
    if (!note)
        return false;
    const ImportedSource* before = record.sourceOfNote(source.note);
    if (!before)
        return true;
    if (source.copy != before->copy)
        return noteWithIdentifier(source.copy, *session_) != nullptr;
    return isAsImported(*note, source.text);
}

bool Importer::isAsImported(const OVNote& note, const std::optional<TextFingerprint>& imported)
{
    if (!imported || isProtected(note))
        return false;
    return imported->matches(note.text().value_or(""), [this](const std::string& title, const std::string& target) {
        return (plan_ && plan_->onlyNoteOf(title) == target) || storeTitles_.onlyNoteOf(title) == target;
    });
}

void Importer::leave(const MarkdownFiles& found, std::size_t next)
{
    const CommandFailure failure = failureOfCurrentException();
    const std::vector<PlannedFile> none;
    const std::vector<PlannedFile>& planned = plan_ ? plan_->files() : none;
    for (const Pending& pending : std::exchange(batch_, {}))
        result_.left.push_back(planned[pending.number].file.path);
    if (planned.empty()) {
        for (const MarkdownFile& file : found.files)
            result_.left.push_back(file.path);
    }
    for (; next < planned.size(); ++next)
        result_.left.push_back(planned[next].file.path);
    result_.reasonLeft = failure.what();
    result_.code = failure.code();
}

void Importer::readFile(std::size_t number)
{
    const PlannedFile& planned = plan_->files()[number];
    const bool isUnchanged = planned.known
        && (planned.known->file.empty() ? planned.known->stamp == stampOfFile(planned.path)
                                        : planned.known->file == planned.bytes);
    if (isUnchanged && !planned.hasMoved && !planned.known->hasWaitingLinks) {
        ++result_.unchanged;
        (*handler_)({planned.file.path, planned.title, FileOutcome::Unchanged});
        return;
    }
    try {
        take({number, composer_->compose(number)});
    } catch (const TextFileError& error) {
        fail(planned.file.path, error);
    }
}

void Importer::take(Pending pending)
{
    batchBytes_ += pending.composed.text.size();
    batch_.push_back(std::move(pending));
}

void Importer::saveBatch()
{
    if (batch_.empty())
        return;
    if (writes_) {
        try {
            session_->write([this] { applyBatch(); });
        } catch (...) {
            withdraw();
            throw;
        }
        if (!announced_.empty())
            record_->confirm();
        session_->context().reset();
    } else {
        applyBatch();
    }
    result_ = std::move(batchResult_);
    result_.lastImported = plan_->files()[batch_.back().number].file.path;
    batch_.clear();
    batchBytes_ = 0;
}

/// What it was going to be is told on the next occasion where this fails as well.
void Importer::withdraw()
{
    try {
        record_->withdraw();
    } catch (const CommandFailure&) {
        // The next import asks the store.
    }
}

void Importer::applyBatch()
{
    tagsOfBatch_.clear();
    notesOfBatch_.clear();
    announced_.clear();
    moved_.clear();
    batchResult_ = result_;
    for (Pending& pending : batch_) {
        Interruption::endIfRequested(kInterrupted);
        apply(plan_->files()[pending.number], pending.composed);
    }
    if (writes_ && !announced_.empty())
        record_->announce(announced_, moved_);
}

void Importer::apply(const PlannedFile& planned, const ComposedNote& composed)
{
    OVNote* note = session_ && session_->exists() ? noteWithIdentifier(planned.identifier, *session_) : nullptr;
    if (planned.known || note)
        changeNote(planned, composed, note);
    else
        insertNote(planned, composed);
}

void Importer::insertNote(const PlannedFile& planned, const ComposedNote& composed)
{
    ++batchResult_.imported;
    tell(planned, composed, FileOutcome::Imported);
    if (!writes_)
        return countFilesToAttach(composed);
    OVNote& note = *OVNote::insertInManagedObjectContext(session_->context());
    note.setUniqueIdentifier(planned.identifier);
    const std::string text = setText(note, composed);
    note.setCreationDate(composed.creationDate);
    if (composed.isPinned)
        note.pin();
    if (composed.isArchived)
        note.archive();
    if (composed.exported)
        setExportedState(note, planned, *composed.exported);
    note.setModificationDate(composed.modificationDate);
    announce(planned, sourceOf(planned, composed, text));
}

void Importer::setExportedState(OVNote& note, const PlannedFile& planned, const ExportedIdentity& exported)
{
    if (planned.takenIdentifier)
        tellOnStandardError(planned.file.path.native() + ": became a new note, since another one is "
            + *planned.takenIdentifier + " already");
    if (exported.isTrashed)
        note.trash();
    if (exported.isReadOnly)
        note.makeReadOnly();
    // A version that is alone has nothing to be in conflict with.
    if (!exported.conflict.empty() && !planned.takenIdentifier && plan_->versionsInConflict(exported.conflict) > 1) {
        note.setConflictUniqueIdentifier(exported.conflict);
        note.setConflictUniqueIdentifierDate(now());
    }
}

void Importer::changeNote(const PlannedFile& planned, const ComposedNote& composed, OVNote* note)
{
    const bool isUnchanged = planned.known && planned.known->file == composed.bytes;
    if (composed.exported && note && !isProtected(*note) && isUnchangedBy(composed, *note))
        return keep(planned, composed, note);
    const std::string obstacle = obstacleOf(note);
    if (!obstacle.empty())
        return isUnchanged ? keep(planned, composed, nullptr) : skip(planned, obstacle);
    const bool isOurs = planned.known && isAsImported(*note, planned.known->text);
    if (isUnchanged && !isOurs)
        return keep(planned, composed, nullptr);
    if (isUnchangedBy(composed, *note))
        return keep(planned, composed, note);
    if (isOurs)
        return updateNote(planned, composed, *note);
    addCopy(planned, composed, *note);
}

bool Importer::isUnchangedBy(const ComposedNote& composed, OVNote& note)
{
    const auto text = textWithAttachments(composed, note, false);
    return text && text == note.text();
}

/// The note stays as it is; what is known of it may change.
void Importer::keep(const PlannedFile& planned, const ComposedNote& composed, const OVNote* note)
{
    ++batchResult_.unchanged;
    batchResult_.moved += planned.hasMoved ? 1 : 0;
    tell(planned, composed, FileOutcome::Unchanged);
    const bool isKnown = planned.known && planned.known->file == composed.bytes;
    if (isKnown && !planned.hasMoved)
        return;
    ImportedSource source = planned.known.value_or(ImportedSource{});
    if (!isKnown && note)
        source = sourceOf(planned, composed, note->text().value_or(""));
    source.path = planned.path;
    announce(planned, std::move(source));
}

void Importer::updateNote(const PlannedFile& planned, const ComposedNote& composed, OVNote& note)
{
    ++batchResult_.updated;
    tell(planned, composed, FileOutcome::Updated);
    if (!writes_)
        return;
    // A link that found its note is no change of what the file says.
    const bool isMended = planned.known->file == composed.bytes;
    const NSDate date = note.modificationDate().value_or(composed.modificationDate);
    const std::string text = setText(note, composed);
    note.setModificationDate(isMended ? date : composed.modificationDate);
    announce(planned, sourceOf(planned, composed, text));
}

/// Both were changed: what the file says now becomes a copy beside the note, once for each state of the file.
void Importer::addCopy(const PlannedFile& planned, const ComposedNote& composed, OVNote& note)
{
    ++batchResult_.conflicted;
    tell(planned, composed, FileOutcome::Conflicted);
    if (!writes_)
        return;
    OVNote* copy = planned.known ? noteWithIdentifier(planned.known->copy, *session_) : nullptr;
    if (!copy || copy->isTrashed() || !isAsImported(*copy, planned.known->copyText)) {
        copy = OVNote::insertInManagedObjectContext(session_->context());
        copy->setCreationDate(composed.creationDate);
    }
    const std::string text = setText(*copy, composed);
    copy->markAsConflictedFromNote(note);
    ImportedSource source = sourceOf(planned, composed, text);
    source.copy = copy->uniqueIdentifier().value_or("");
    source.copyText = std::exchange(source.text, planned.known ? planned.known->text : std::nullopt);
    announce(planned, std::move(source));
}

/// Gives the note the text of the file, with its attachments.
std::string Importer::setText(OVNote& note, const ComposedNote& composed)
{
    const std::string text = textWithAttachments(composed, note, true).value_or(composed.text);
    const OVNoteCacheLoan loan(note, tagsOfBatch_, notesOfBatch_);
    note.updateNoteWithText(text);
    note.setModificationDate(composed.modificationDate);
    return text;
}

ImportedSource Importer::sourceOf(const PlannedFile& planned, const ComposedNote& composed, const std::string& text)
{
    return {.path = planned.path,
        .note = planned.identifier,
        .file = composed.bytes,
        .stamp = {},
        .text = TextFingerprint::of(text, [this](const std::string& title) { return plan_->onlyNoteOf(title); }),
        .titleRule = planned.titleRule,
        .titleSuffix = planned.titleSuffix,
        .hasWaitingLinks = hasWaitingLinks(composed),
        .copy = {}};
}

void Importer::announce(const PlannedFile& planned, ImportedSource source)
{
    if (planned.hasMoved)
        moved_.push_back(planned.known->path);
    announced_.push_back(std::move(source));
}

/// The text with links to the names that its files have as attachments. A file that two links name is attached once.
/// Without `attaches` none where a file is not attached yet.
std::optional<std::string> Importer::textWithAttachments(const ComposedNote& composed, OVNote& note, bool attaches)
{
    std::map<std::string, std::optional<std::string>> names; // by destination
    std::map<fs::path, std::optional<std::string>> namesOfFiles;
    for (const auto& [destination, file] : composed.files) {
        const auto [name, isNew] = namesOfFiles.try_emplace(file.target);
        if (isNew)
            name->second = nameOfAttached(file, note, attaches, composed.exported.has_value());
        if (!name->second && !attaches)
            return std::nullopt;
        names.emplace(destination, name->second);
    }
    if (names.empty())
        return composed.text;
    if (composed.exported)
        return textWithoutPlaces(composed.text, names);
    const auto newURL = [&names](const std::string& destination) -> std::optional<std::string> {
        const auto name = names.find(destination);
        return name == names.end() ? std::nullopt : name->second;
    };
    const CVKAST document = CVKAST::fromMarkdown(composed.text);
    return document.applyTextOperationResults(document.updateLinksURLs(newURL, {})).markdown();
}

/// The name of the attachment that has the bytes of a file; of one that was exported also its name.
std::optional<std::string> Importer::nameOfAttached(
    const LinkedFile& file, OVNote& note, bool attaches, bool isExported)
{
    for (const OVNoteFile* attached : note.orderedFiles()) {
        const auto path = pathOfFile(*attached);
        const bool isNamedSo = isExported ? attached->filename() == file.path.filename().native()
                                          : path && path->extension() == file.path.extension();
        if (path && isNamedSo && NSFileManager::contentsEqualAtURLs(*path, file.path)) {
            batchResult_.attachedFiles.insert(file.target);
            return attached->filename();
        }
    }
    if (!attaches)
        return std::nullopt;
    NSError error;
    const OVNoteFile* const attached = isExported ? attachExportedFile(file.path, note, &error)
                                                  : OVNoteFile::getOrCreateFileFromURL(file.path, note, &error);
    if (attached) {
        batchResult_.attachedFiles.insert(file.target);
        ++batchResult_.attachments;
        return attached->filename();
    }
    batchResult_.failures.push_back({file.path, singleLine(error.localizedDescription())});
    batchResult_.code = ExitCode::InputOutput;
    return std::nullopt;
}

void Importer::countFilesToAttach(const ComposedNote& composed)
{
    std::set<fs::path> targets;
    for (const auto& [destination, file] : composed.files)
        targets.insert(file.target);
    batchResult_.attachments += targets.size();
    batchResult_.attachedFiles.merge(targets);
}

void Importer::skip(const PlannedFile& planned, const std::string& reason)
{
    batchResult_.skippedNotes.push_back({planned.file.path, reason});
    (*handler_)({planned.file.path, planned.title, FileOutcome::Skipped});
}

void Importer::tell(const PlannedFile& planned, const ComposedNote& composed, FileOutcome outcome)
{
    (*handler_)({planned.file.path, planned.title, outcome});
    if (outcome == FileOutcome::Unchanged)
        return;
    count(composed.links, batchResult_.links);
    for (const RewrittenLink& link : composed.links) {
        if (link.outcome != RewrittenLink::Outcome::Other && link.outcome != RewrittenLink::Outcome::File)
            batchResult_.toldLinks.push_back({planned.file.path, link});
    }
}

void Importer::fail(const fs::path& path, const TextFileError& error)
{
    const bool unreadable = error.kind() == TextFileError::Kind::CannotRead;
    const ExitCode code = unreadable ? ExitCode::InputOutput : ExitCode::Failed;
    result_.failures.push_back({path, error.what()});
    if (result_.code == ExitCode::Done || unreadable)
        result_.code = code;
}

} // namespace tarn
