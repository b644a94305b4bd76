#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/memory/InMemoryStore.h"
#include "tarnmodel/platform/coredata/rows/StoreFailure.h"
#include "tarnmodel/platform/coredata/rows/StoreMetadata.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteConnection.h"
#include "tarnmodel/platform/coredata/sqlite/SQLiteStoreFile.h"
#include "tarnmodel/platform/coredata/sqlitestore/SQLiteStore.h"

#include <charconv>
#include <system_error>

namespace tarn {

namespace {

/// 0 for what is no number.
int numberOf(std::string_view text)
{
    int number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    return failure == std::errc() && end == text.data() + text.size() ? number : 0;
}

} // namespace

NSPersistentStoreCoordinator::NSPersistentStoreCoordinator(std::shared_ptr<const NSManagedObjectModel> model)
    : model_(std::move(model))
{ }

NSPersistentStoreCoordinator::~NSPersistentStoreCoordinator() = default;

NSPersistentStore* NSPersistentStoreCoordinator::persistentStore() const noexcept
{
    return store_.get();
}

NSPersistentStore* NSPersistentStoreCoordinator::addPersistentStoreWithType(
    StoreType type, const std::filesystem::path& file, const StoreOptions& options, NSError* error)
{
    const bool added = reportingFailure(error, [&] {
        if (store_)
            throw StoreFailure(StoreErrorGeneric, "The coordinator has its store already.");
        if (type == StoreType::InMemory)
            store_ = std::make_unique<InMemoryStore>(model_);
        else
            store_ = std::make_unique<SQLiteStore>(model_, file, options);
    });
    return added ? store_.get() : nullptr;
}

std::optional<NSManagedObjectID> NSPersistentStoreCoordinator::managedObjectIDForURIRepresentation(
    std::string_view uri) const
{
    constexpr std::string_view kScheme = "tarn-store://";
    if (!store_ || !uri.starts_with(kScheme))
        return std::nullopt;
    uri.remove_prefix(kScheme.size());
    const std::size_t entityStart = uri.find('/');
    const std::size_t keyStart = uri.rfind('/');
    if (entityStart == std::string_view::npos || keyStart <= entityStart || keyStart + 2 > uri.size())
        return std::nullopt;
    const NSEntityDescription* entity = model_->entityNamed(uri.substr(entityStart + 1, keyStart - entityStart - 1));
    if (!entity || uri.substr(0, entityStart) != store_->identity().uuid())
        return std::nullopt;
    const std::string_view key = uri.substr(keyStart + 2);
    std::int64_t number = 0;
    if (uri[keyStart + 1] == 't') {
        number = temporaryKeyForUUID(key);
    } else if (uri[keyStart + 1] == 'p' && !key.empty() && key.front() >= '1' && key.front() <= '9') {
        const auto [end, problem] = std::from_chars(key.data(), key.data() + key.size(), number);
        if (problem != std::errc() || end != key.data() + key.size())
            return std::nullopt;
    }
    if (number == 0)
        return std::nullopt;
    return NSManagedObjectID(store_->identity(), *entity, number);
}

std::optional<std::map<std::string, std::string>> NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(
    StoreType type, const std::filesystem::path& file, NSError* error,
    const std::function<bool(std::chrono::milliseconds)>& whileWaiting)
{
    std::optional<StoreMetadata> metadata;
    reportingFailure(error, [&] {
        if (type != StoreType::SQLite)
            throw StoreFailure(StoreErrorNotAStore, "A store in memory has no file.");
        for (int attempt = 1; !metadata; ++attempt) {
            SQLiteConnectionOptions options;
            options.queryOnly = true;
            options.whileWaiting = whileWaiting;
            SQLiteConnection connection(file, options);
            if (contentsOfStoreFile(connection) == StoreFileContents::Store)
                metadata = readStoreMetadata(connection);
            // Who migrated the store while its lock was waited for has left a new file under its name.
            if (attempt < SQLiteConnection::mostReplacements && connection.hasMovedFile())
                metadata.reset();
            else if (!metadata)
                throw StoreFailure(StoreErrorNotAStore, "The file is not a store.");
        }
    });
    return metadata;
}

bool NSPersistentStoreCoordinator::isModelCompatibleWithStoreMetadata(
    const NSManagedObjectModel& model, const std::map<std::string, std::string>& metadata)
{
    return isMetadataOfModel(model, metadata);
}

std::string NSPersistentStoreCoordinator::modelVersionOfStoreMetadata(const StoreMetadata& metadata)
{
    const auto found = metadata.find(std::string(StoreModelVersionKey));
    return found == metadata.end() ? std::string() : found->second;
}

int NSPersistentStoreCoordinator::formatOfStoreMetadata(const StoreMetadata& metadata)
{
    const auto found = metadata.find(std::string(StoreFormatVersionKey));
    return found == metadata.end() ? 0 : numberOf(found->second);
}

int NSPersistentStoreCoordinator::currentStoreFormat()
{
    return numberOf(currentStoreFormatVersion);
}

} // namespace tarn
