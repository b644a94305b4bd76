#include "tarnmodel/platform/coredata/NSMigrationManager.h"

#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/migration/MigrationProgress.h"
#include "tarnmodel/platform/coredata/migration/MigrationRun.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/values/NSException.h"

#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

fs::path withSuffix(fs::path file, std::string_view suffix)
{
    file += suffix;
    return file;
}

/// Takes back what a run makes, unless it is kept: a file that was there is as it was then, and a new one is gone.
class DestinationFile {
public:
    explicit DestinationFile(fs::path file)
        : file_(std::move(file)), before_(withSuffix(file_, "-before")), wasThere_(fs::exists(file_))
    {
        if (!wasThere_)
            return;
        std::error_code failure;
        if (fs::copy_file(file_, before_, fs::copy_options::overwrite_existing, failure))
            return;
        std::error_code ignored;
        fs::remove(before_, ignored);
        throw StoreFailure(StoreErrorIO, "\"" + file_.string() + "\" cannot be copied: " + failure.message());
    }
    ~DestinationFile()
    {
        std::error_code ignored;
        if (!isKept_ && wasThere_)
            fs::rename(before_, file_, ignored);
        else
            fs::remove(isKept_ ? before_ : file_, ignored);
    }
    DestinationFile(const DestinationFile&) = delete;
    DestinationFile& operator=(const DestinationFile&) = delete;

    /// An empty one that SQLite then takes, as private as the store that it comes from. Throws a `StoreFailure`.
    void make(const fs::path& store) const
    {
        if (wasThere_)
            return;
        {
            const SQLiteConnection connection(file_, {.create = true});
        }
        NSError error;
        if (!NSFileManager::setAccess(file_, store, &error))
            throw StoreFailure(error);
    }
    void keep() noexcept { isKept_ = true; }

private:
    fs::path file_;
    fs::path before_;
    bool wasThere_;
    bool isKept_ = false;
};

} // namespace

NSMigrationManager::NSMigrationManager(std::shared_ptr<const NSManagedObjectModel> sourceModel,
    std::shared_ptr<const NSManagedObjectModel> destinationModel)
    : sourceModel_(std::move(sourceModel)), destinationModel_(std::move(destinationModel)),
      progress_(std::make_unique<MigrationProgress>())
{ }

NSMigrationManager::~NSMigrationManager() = default;

bool NSMigrationManager::migrateStoreFromURL(const fs::path& source, StoreType sourceType,
    const NSMappingModel& mapping, const fs::path& destination, StoreType destinationType, NSError* error)
{
    if (sourceType != StoreType::SQLite || destinationType != StoreType::SQLite) {
        assignError(error, NSError(TarnStoreErrorDomain, StoreErrorNotAStore, "A store in memory has no file."));
        return false;
    }
    const auto held = HeldStoreFile::hold(source, {}, error);
    return held && migrateStore(*held, mapping, destination, error);
}

bool NSMigrationManager::migrateStore(
    HeldStoreFile& source, const NSMappingModel& mapping, const fs::path& destination, NSError* error)
{
    NSError failure;
    const bool isMigrated = reportingFailure(&failure, [&] {
        if (run_)
            throw StoreFailure(StoreErrorGeneric, "A migration is under way.");
        progress_->checkIsNotCancelled();
        if (mapping.sourceVersion() != sourceModel_->versionIdentifier()
            || mapping.destinationVersion() != destinationModel_->versionIdentifier())
            throw StoreFailure(StoreErrorInvalidModel, "The mapping model is for other models.");
        DestinationFile file(destination);
        file.make(source.file());
        struct End {
            std::unique_ptr<MigrationRun>& run;
            ~End() { run.reset(); }
        } const end{run_};
        run_ = std::make_unique<MigrationRun>(source, mapping, destination, *this, *progress_);
        run_->run();
        file.keep();
    });
    if (isMigrated)
        return true;
    // What a cancelled statement says is that it was interrupted.
    NSError cancellation;
    const bool isCancelled = !reportingFailure(&cancellation, [&] { progress_->checkIsNotCancelled(); });
    assignError(error, isCancelled ? cancellation : failure);
    return false;
}

// Progress ------------------------------------------------------------------------------------------------------------

float NSMigrationManager::migrationProgress() const noexcept
{
    return progress_->fraction();
}

void NSMigrationManager::observeMigrationProgress(std::function<void(float)> observer)
{
    progress_->setObserver(std::move(observer));
}

void NSMigrationManager::cancelMigrationWithError(const NSError& error)
{
    progress_->cancel(error);
}

// For policies --------------------------------------------------------------------------------------------------------

MigrationRun& NSMigrationManager::run()
{
    if (!run_)
        throw NSException(NSInternalInconsistencyException, "Policies ask while a migration is under way");
    return *run_;
}

MigrationRecord& NSMigrationManager::insertDestinationInstance(
    const NSEntityMapping& mapping, std::string_view entityName, const MigrationRecord& source)
{
    return run().insert(mapping, entityName, source);
}

std::vector<NSManagedObjectID> NSMigrationManager::destinationInstancesForEntityMappingNamed(
    std::string_view mappingName, const NSManagedObjectID& source)
{
    return run().destinationsOf(mappingName, source);
}

NSManagedObjectID NSMigrationManager::sourceInstanceForEntityMappingNamed(
    std::string_view mappingName, const NSManagedObjectID& destination)
{
    return run().sourceOf(mappingName, destination);
}

const MigrationRecord* NSMigrationManager::sourceInstanceWithID(const NSManagedObjectID& objectID)
{
    return run().sourceRecord(objectID);
}

MigrationRecord* NSMigrationManager::destinationInstanceWithID(const NSManagedObjectID& objectID)
{
    return run().destinationRecord(objectID);
}

std::vector<NSManagedObjectID> NSMigrationManager::destinationInstancesWithFoldedValue(
    std::string_view entityName, std::string_view attribute, std::string_view text)
{
    return run().destinationsWithFoldedValue(entityName, attribute, text);
}

} // namespace tarn
