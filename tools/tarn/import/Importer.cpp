#include "tools/tarn/import/Importer.h"

#include "tools/tarn/commandline/CommandFailure.h"
#include "tools/tarn/commandline/Interruption.h"
#include "tools/tarn/files/TextFile.h"
#include "tools/tarn/import/ImportBatch.h"
#include "tools/tarn/import/record/RecordSettling.h"

#include <optional>
#include <utility>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// Identifiers are random, so that each note of a save goes to pages of its own in their indexes: the more notes, the
/// more of them share a page that is written anyway.
constexpr std::size_t kBatchNotes = 2500;
constexpr std::size_t kBatchBytes = std::size_t{32} << 20;
constexpr const char* kInterrupted = "interrupted";

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
    if (!record_)
        return;
    settleRecord(*record_, *session_);
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
            ++next; // what is pending is not untried any more
            if (pending_.size() >= kBatchNotes || pendingBytes_ >= kBatchBytes)
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
    if (record_)
        settleRecord(*record_, *session_);
    plan_.emplace(session_, record_ ? &*record_ : nullptr, rules_);
    plan_->make(found.files, [this](const fs::path& path, const TextFileError& error) { fail(path, error); });
    composer_.emplace(*plan_, rules_, tags_, found);
    for (const ImportedSource* source : plan_->goneBelow({found.roots.begin(), found.roots.end()}))
        result_.gone.push_back(source->path);
}

void Importer::leave(const MarkdownFiles& found, std::size_t next)
{
    const CommandFailure failure = failureOfCurrentException();
    const std::vector<PlannedFile> none;
    const std::vector<PlannedFile>& planned = plan_ ? plan_->files() : none;
    for (const Pending& pending : std::exchange(pending_, {}))
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
    pendingBytes_ += pending.composed.text.size();
    pending_.push_back(std::move(pending));
}

void Importer::saveBatch()
{
    if (pending_.empty())
        return;
    std::optional<ImportBatch> batch;
    if (writes_) {
        try {
            session_->write([&] { fill(batch); });
        } catch (...) {
            withdraw();
            throw;
        }
        session_->context().reset();
    } else {
        fill(batch);
    }
    result_.add(std::move(batch->result()));
    result_.lastImported = plan_->files()[pending_.back().number].file.path;
    pending_.clear();
    pendingBytes_ = 0;
    if (writes_ && !batch->announced().empty())
        record_->confirm();
}

void Importer::fill(std::optional<ImportBatch>& batch)
{
    batch.emplace(ImportBatch::Import{session_, writes_, *plan_, storeTitles_, *handler_});
    std::vector<const PlannedFile*> files;
    for (const Pending& pending : pending_)
        files.push_back(&plan_->files()[pending.number]);
    batch->begin(files);
    for (const bool isRetitled : {true, false}) {
        for (const Pending& pending : pending_) {
            Interruption::endIfRequested(kInterrupted);
            const PlannedFile& planned = plan_->files()[pending.number];
            if (batch->isRetitled(planned) == isRetitled)
                batch->apply(planned, pending.composed);
        }
    }
    if (writes_ && !batch->announced().empty())
        record_->announce(batch->announced(), batch->moved());
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

void Importer::fail(const fs::path& path, const TextFileError& error)
{
    const bool unreadable = error.kind() == TextFileError::Kind::CannotRead;
    const ExitCode code = unreadable ? ExitCode::InputOutput : ExitCode::Failed;
    result_.failures.push_back({path, error.what()});
    if (result_.code == ExitCode::Done || unreadable)
        result_.code = code;
}

} // namespace tarn
