#include "tarnmodel/backup/BackupRestore.h"

#include "tarnmodel/backup/BackupFailureInternal.h"
#include "tarnmodel/backup/archive/ArchiveContents.h"
#include "tarnmodel/backup/archive/BackupScratch.h"
#include "tarnmodel/backup/restoring/BackupExtraction.h"
#include "tarnmodel/backup/restoring/BackupMerge.h"
#include "tarnmodel/backup/restoring/BackupRecords.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {

namespace {

/// In the metadata of a store while a restore is under way. Part of the format of stores.
constexpr std::string_view kUnfinishedRestore = "unfinishedRestore";

ArchiveContents::Damage damageFor(const BackupReadOptions& options)
{
    return options.salvages ? ArchiveContents::Damage::Listed : ArchiveContents::Damage::Refused;
}

void addOmissions(const std::vector<DamagedMember>& damaged, std::vector<BackupOmission>& omissions)
{
    for (const DamagedMember& member : damaged)
        omissions.push_back({member.name, "damaged: it " + member.reason});
}

void requireKnownModel(const BackupManifest& manifest)
{
    // A version that names a folder is none.
    if (manifest.modelVersion.find('/') != std::string::npos
        || !OVManagedObjectModel::modelURLForVersion(manifest.modelVersion))
        throw BackupFailure(BackupErrorNewer,
            "the backup is of the version \"" + manifest.modelVersion
                + "\" of the model, which this program does not know");
}

/// Only compares.
class MemberChecker final : public ArchiveContents::Taker {
public:
    bool begin(const BackupManifest::Member&) override { return false; }
    void take(std::span<const std::byte>) override { }
    void end(bool) override { }
};

/// A restore that has begun and not ended is told by the store itself.
class RestoreMark {
public:
    explicit RestoreMark(NSPersistentStore& store) : store_(store)
    {
        orThrow([&](NSError* error) {
            const auto metadata = store_.metadata(error);
            const auto found = metadata.find(std::string(kUnfinishedRestore));
            isResumed_ = found != metadata.end() && !found->second.empty();
            return !metadata.empty();
        });
    }
    bool isResumed() const noexcept { return isResumed_; }
    void set(std::string_view value)
    {
        orThrow([&](NSError* error) { return store_.setMetadataValue(kUnfinishedRestore, value, error); });
    }

private:
    NSPersistentStore& store_;
    bool isResumed_ = false;
};

/// What of an archive is damaged that was refused. Where that cannot be told, the refusal is.
void listDamage(const std::filesystem::path& file, const NSError& refusal, const BackupReadOptions& options,
    BackupExamination& found)
{
    try {
        MemberChecker checker;
        ArchiveContents contents(file, options.limits, ArchiveContents::Damage::Listed, options.progress);
        addOmissions(contents.readMembers(checker), found.damaged);
        found.manifest = contents.manifest();
    } catch (const BackupFailure& failure) {
        if (failure.error().code() == BackupErrorCancelled)
            throw;
        throw BackupFailure(refusal);
    }
    if (found.damaged.empty())
        found.damaged.push_back({file.filename().string(), refusal.localizedDescription()});
}

class Restore {
public:
    Restore(NSManagedObjectContext& context, const BackupReadOptions& options)
        : context_(context), options_(options) { }

    BackupRestoration run(const std::filesystem::path& file)
    {
        ArchiveContents contents(file, options_.limits, damageFor(options_), options_.progress);
        restoration_.manifest = contents.manifest();
        requireKnownModel(restoration_.manifest);
        BackupExtraction extraction(scratch_.url());
        addOmissions(contents.readMembers(extraction), restoration_.skipped);
        restoration_.damaged = restoration_.skipped.size();
        const std::filesystem::path store = scratch_.url() / "store.sqlite";
        BackupRecords::fill(store, extraction, contents.manifest().modelVersion, options_.limits.recordBytes, goesOn_);
        bringForward(store);
        BackupRecords records(store);
        merge(records, extraction);
        return std::move(restoration_);
    }

private:
    void bringForward(const std::filesystem::path& store)
    {
        orThrow([&](NSError* error) {
            const auto current = OVManagedObjectModel::currentVersion(error);
            if (!current || *current == restoration_.manifest.modelVersion)
                return current.has_value();
            if (options_.migrate)
                return options_.migrate(store, error);
            throw BackupFailure(BackupErrorNoPath,
                "the backup is of the version \"" + restoration_.manifest.modelVersion + "\" of the model");
        });
    }

    void merge(BackupRecords& records, const BackupExtraction& extraction)
    {
        NSNotificationSubscription changeLog;
        if (options_.recordsChanges)
            changeLog = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextWillSaveNotification,
                &context_,
                [this](const NSNotification&) { OVChange::updateChangesInInManagedObjectContext(context_); });
        RestoreMark mark(*context_.persistentStoreCoordinator().persistentStore());
        if (!mark.isResumed())
            mark.set("1");
        BackupMerge merge(records, extraction, context_, mark.isResumed(), goesOn_, restoration_);
        merge.run();
        if (merge.hasWritten() || mark.isResumed())
            beginLogAnew();
        giveCompanions(extraction);
        mark.set("");
    }

    /// While the store still knows of the restore: who dies here repeats it.
    void giveCompanions(const BackupExtraction& extraction) const
    {
        if (!options_.takeCompanion)
            return;
        for (const auto& [name, file] : extraction.companions())
            options_.takeCompanion(name, file);
    }

    /// What an engine has dealt with so far says nothing about the store any more.
    void beginLogAnew()
    {
        const auto fold = [this] { OVChange::baselineChangesInManagedObjectContext(context_, true); };
        orThrow([&](NSError* error) { return context_.performExclusive(fold, error); });
        context_.reset();
    }

    void giveUpWhenAsked() const
    {
        if (options_.progress && !options_.progress(1, 1))
            throw BackupFailure(BackupErrorCancelled, "cancelled");
    }

    NSManagedObjectContext& context_;
    const BackupReadOptions& options_;
    BackupScratch scratch_;
    BackupRestoration restoration_;
    std::function<void()> goesOn_ = [this] { giveUpWhenAsked(); };
};

} // namespace

std::optional<BackupManifest> BackupRestore::manifest(const BackupLimits& limits, NSError* error) const
{
    std::optional<BackupManifest> manifest;
    reportingBackupFailure(
        error, [&] { manifest = ArchiveContents(file_, limits, ArchiveContents::Damage::Listed, {}).manifest(); });
    return manifest;
}

std::optional<BackupExamination> BackupRestore::examine(const BackupReadOptions& options, NSError* error) const
{
    std::optional<BackupExamination> examination;
    reportingBackupFailure(error, [&] {
        BackupExamination found;
        NSError refusal;
        MemberChecker checker;
        try {
            ArchiveContents contents(file_, options.limits, ArchiveContents::Damage::Refused, options.progress);
            contents.readMembers(checker);
            requireKnownModel(contents.manifest());
            found.manifest = contents.manifest();
        } catch (const BackupFailure& failure) {
            refusal = failure.error();
            if (refusal.domain() != TarnBackupErrorDomain || refusal.code() != BackupErrorDamaged)
                throw;
            listDamage(file_, refusal, options, found);
        }
        examination = std::move(found);
    });
    return examination;
}

std::optional<BackupRestoration> BackupRestore::restoreIntoContext(
    NSManagedObjectContext& context, const BackupReadOptions& options, NSError* error) const
{
    if (context.hasChanges() || context.parentContext())
        throw NSException(NSInvalidArgumentException, "a restore wants a context of its own, without changes");
    std::optional<BackupRestoration> restoration;
    reportingBackupFailure(error, [&] { restoration = Restore(context, options).run(file_); });
    return restoration;
}

} // namespace tarn
