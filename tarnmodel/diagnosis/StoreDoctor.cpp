#include "tarnmodel/diagnosis/StoreDoctor.h"

#include "tarnmodel/corvel/CVKAST.h"
#include "tarnmodel/corvel/CVKTextSummary.h"
#include "tarnmodel/diagnosis/ClearTextInternal.h"
#include "tarnmodel/diagnosis/FileExaminationInternal.h"
#include "tarnmodel/diagnosis/FileRepairInternal.h"
#include "tarnmodel/diagnosis/NoteExaminationInternal.h"
#include "tarnmodel/diagnosis/RecordFileInternal.h"
#include "tarnmodel/diagnosis/RecordReadingInternal.h"
#include "tarnmodel/diagnosis/TagExaminationInternal.h"
#include "tarnmodel/diagnosis/TagRepairInternal.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/files/thumbnails/OVThumbFileManager.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace tarn {

namespace {

/// How many notes are held at a time, and saved at a time.
constexpr std::size_t kPage = 500;

NSManagedObjectContext& requireUsable(NSManagedObjectContext& context)
{
    if (context.parentContext() || context.hasChanges())
        throw NSException(
            NSInvalidArgumentException, "A store is examined in a context on it that has no unsaved changes.");
    if (!context.persistentStoreCoordinator().persistentStore())
        throw NSException(NSInvalidArgumentException, "The context has no store to examine.");
    return context;
}

/// Not the one of the process, which makes its folder: to examine makes nothing.
std::shared_ptr<OVThumbFileManager> thumbs()
{
    return OVThumbFileManager::initWithBaseURL(
        OVLocalFileManager::applicationSupportURL() / OVNoteThumbFileDirectoryName);
}

/// A wrong title is no old one: nobody's links are rewritten for it.
void deriveAnew(OVNote& note)
{
    const CVKAST document = CVKAST::fromMarkdown(note.text().value_or(""));
    note.setTitle(document.textSummary().title);
    note.updateNoteWithAST(document, false);
    note.updateLinkedByNoteForNewTitle(document.textSummary().title, std::nullopt);
}

} // namespace

StoreDoctor::StoreDoctor(NSManagedObjectContext& context)
    : context_(requireUsable(context)), store_(*context.persistentStoreCoordinator().persistentStore())
{ }

// Examining -----------------------------------------------------------------------------------------------------------

std::optional<StoreExamination> StoreDoctor::examine(NSError* error, std::size_t findingsKept)
{
    findingsKept_ = findingsKept;
    examination_ = {};
    tagKeysInTexts_.clear();
    try {
        examineAll();
    } catch (const DiagnosisFailure& failure) {
        assignError(error, failure.error);
        return std::nullopt;
    }
    return std::move(examination_);
}

void StoreDoctor::examineAll()
{
    examineFile();
    if (!examination_.fileIsDamaged())
        examineSearchIndex();
    step_ = Step::ReadingRecords;
    examineNotes();
    for (StoreFinding& finding : findingsInTags(context_, tagKeysInTexts_))
        add(std::move(finding));
    context_.reset();
    for (StoreFinding& finding : clearTextsOfFiles(context_))
        add(std::move(finding));
    if (hasFilesOfApplication(context_))
        examineFiles();
}

void StoreDoctor::examineFiles()
{
    FileExamination files = tarn::examineFiles(context_);
    for (StoreFinding& finding : files.findings)
        add(std::move(finding));
    examination_.filesToMend = std::move(files.filesToMend);
    if (!hasThumbsOfApplication(context_) || !OVThumbFileManager::areTherePicturesWithoutThumbs(context_))
        return;
    for (const std::filesystem::path& thumb : thumbs()->thumbsWithoutPicture(context_))
        addAll(StoreFinding::Kind::ClearThumbnail, {thumb.string()});
    context_.reset();
}

void StoreDoctor::add(StoreFinding finding)
{
    if (finding.check() == StoreCheck::Protection && finding.objectID && finding.isRepairable())
        examination_.recordsToClear.push_back(*finding.objectID);
    StoreCheckResult& result = examination_.results[static_cast<std::size_t>(finding.check())];
    ++result.count;
    if (result.findings.size() < findingsKept_)
        result.findings.push_back(std::move(finding));
}

void StoreDoctor::addAll(StoreFinding::Kind kind, std::vector<std::string> descriptions)
{
    for (std::string& description : descriptions) {
        StoreFinding finding;
        finding.kind = kind;
        finding.description = std::move(description);
        add(std::move(finding));
    }
}

void StoreDoctor::examineFile()
{
    step_ = Step::CheckingFile;
    DiagnosisFailure failure;
    std::vector<std::string> problems;
    if (!store_.checkIntegrity(problems, &failure.error))
        throw failure;
    addAll(StoreFinding::Kind::DamagedFile, std::move(problems));
}

void StoreDoctor::examineSearchIndex()
{
    step_ = Step::CheckingSearchIndex;
    DiagnosisFailure failure;
    std::vector<std::string> problems;
    if (!store_.checkSearchIndex(problems, &failure.error))
        throw failure;
    addAll(StoreFinding::Kind::SearchIndexAmiss, std::move(problems));
}

void StoreDoctor::examineNotes()
{
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context_));
    request.fetchLimit = kPage;
    bool isLast = false;
    while (!isLast) {
        const std::vector<OVNote*> notes = readRecords<OVNote>(context_, request);
        for (const OVNote* note : notes)
            examineNote(*note);
        isLast = notes.size() < kPage;
        request.fetchOffset += kPage;
        context_.reset();
    }
}

void StoreDoctor::examineNote(const OVNote& note)
{
    std::vector<StoreFinding> findings = findingsInNote(note, tagKeysInTexts_);
    if (!findings.empty() && !note.encryptedValue())
        examination_.notesToDerive.push_back(note.objectID());
    for (StoreFinding& finding : findings)
        add(std::move(finding));
}

// Repairing -----------------------------------------------------------------------------------------------------------

std::optional<StoreRepairs> StoreDoctor::repair(const StoreExamination& examination, NSError* error)
{
    if (examination.fileIsDamaged()) {
        assignError(error, {TarnStoreErrorDomain, StoreErrorCorrupt, "the file of the store is damaged"});
        return std::nullopt;
    }
    try {
        StoreRepairs repairs;
        repairs.tags = repairTags();
        repairs.notes = repairNotes(examination.notesToDerive);
        repairs.indexedTexts = repairSearchIndex();
        repairs.files = repairFiles(examination);
        repairs.clearItems = repairProtection(examination);
        return repairs;
    } catch (const DiagnosisFailure& failure) {
        assignError(error, failure.error);
        return std::nullopt;
    }
}

/// Before the notes, which then get their tags from their texts.
std::size_t StoreDoctor::repairTags()
{
    std::size_t mended = 0;
    save([&] { mended = TagRepair(context_).run(); });
    return mended;
}

std::size_t StoreDoctor::repairNotes(std::span<const NSManagedObjectID> notes)
{
    std::size_t repaired = 0;
    while (!notes.empty()) {
        const auto page = notes.first(std::min(notes.size(), kPage));
        save([&] { repaired += deriveNotes(page); });
        notes = notes.subspan(page.size());
    }
    return repaired;
}

/// Returns how many there were: others may have deleted some meanwhile, or protected them.
std::size_t StoreDoctor::deriveNotes(std::span<const NSManagedObjectID> notes)
{
    std::size_t derived = 0;
    for (const NSManagedObjectID& objectID : notes) {
        DiagnosisFailure failure;
        auto* note = static_cast<OVNote*>(context_.existingObjectWithID(objectID, &failure.error));
        if (!note && failure.error != NSError())
            throw failure;
        if (!note || note->encryptedValue())
            continue;
        deriveAnew(*note);
        ++derived;
    }
    return derived;
}

std::size_t StoreDoctor::repairSearchIndex()
{
    step_ = Step::RepairingSearchIndex;
    DiagnosisFailure failure;
    std::size_t repaired = 0;
    if (!store_.repairSearchIndex(repaired, &failure.error))
        throw failure;
    return repaired;
}

std::size_t StoreDoctor::repairFiles(const StoreExamination& examination)
{
    std::size_t mended = 0;
    if (examination.resultOf(StoreCheck::Files).count > 0) {
        mended = FilesUnderWay(store_.identifier()).abandonedJournals().size();
        OVNoteFile::recoverFilesInManagedObjectContext(context_);
    }
    std::span<const FileToMend> files = examination.filesToMend;
    while (!files.empty()) {
        const auto page = files.first(std::min(files.size(), kPage));
        save([&] { mended += mendFiles(page, context_); });
        files = files.subspan(page.size());
    }
    return mended;
}

std::size_t StoreDoctor::repairProtection(const StoreExamination& examination)
{
    std::size_t cleared = 0;
    std::span<const NSManagedObjectID> records = examination.recordsToClear;
    while (!records.empty()) {
        const auto page = records.first(std::min(records.size(), kPage));
        save([&] { cleared += clearRecords(page, context_); });
        records = records.subspan(page.size());
    }
    if (examination.resultOf(StoreCheck::Protection).count == 0 || !hasFilesOfApplication(context_))
        return cleared;
    cleared += OVNoteFile::removeClearLeftoversInManagedObjectContext(context_);
    if (hasThumbsOfApplication(context_))
        cleared += thumbs()->deleteThumbsWithoutPicture(context_);
    context_.reset();
    return cleared;
}

/// Under the lock of the store, so that it builds upon what others wrote. Nothing is left of it when it fails.
void StoreDoctor::save(const std::function<void()>& work)
{
    step_ = Step::SavingRecords;
    const auto changeRecords = [&] {
        step_ = Step::ReadingRecords;
        work();
        step_ = Step::SavingRecords;
    };
    DiagnosisFailure failure;
    if (!context_.performExclusive(changeRecords, &failure.error)) {
        context_.rollback();
        throw failure;
    }
    context_.reset();
}

} // namespace tarn
