#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectID.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarn {

/// Where records rest: in a file, or in memory until the coordinator ends.
enum class StoreType : std::uint8_t { SQLite, InMemory };

/// How a store is opened.
struct StoreOptions {
    std::map<std::string, std::string> pragmas{{"journal_mode", "DELETE"}}; ///< SQLite's, by name
    bool inferMappingModelAutomatically = true; ///< not looked at: `VexMigrationManager` migrates
    bool readOnly = false;       ///< refuses writes; the file is still opened for recovery of an unfinished journal
    bool createIfMissing = true; ///< false refuses to make a new file
    /// Called again and again while a lock of another process is waited for, with the time that the wait has taken so
    /// far; false ends it, and what waits fails with `StoreErrorBusy`. May be empty. On the thread that waits; it must
    /// neither throw nor use the store.
    std::function<bool(std::chrono::milliseconds)> whileWaiting{};
};

class RowStore;

/// Joins a model and a store. Contexts hang on it. Any thread.
///
/// Shared by its contexts, which keep it alive; it owns the store and shares the model.
class NSPersistentStoreCoordinator {
public:
    /// A coordinator without a store; it keeps the model alive. `model` is not null.
    explicit NSPersistentStoreCoordinator(std::shared_ptr<const NSManagedObjectModel> model);
    ~NSPersistentStoreCoordinator();
    NSPersistentStoreCoordinator(const NSPersistentStoreCoordinator&) = delete;
    NSPersistentStoreCoordinator& operator=(const NSPersistentStoreCoordinator&) = delete;

    /// Lives as long as the coordinator, and longer where others share it.
    const NSManagedObjectModel& managedObjectModel() const noexcept { return *model_; }

    /// Opens (or creates) the one store. Null and an error when it cannot be opened or was written with another model.
    /// `file` is not used for a store in memory.
    NSPersistentStore* addPersistentStoreWithType(
        StoreType type, const std::filesystem::path& file, const StoreOptions& options, NSError* error = nullptr);
    /// Null before `addPersistentStoreWithType`.
    NSPersistentStore* persistentStore() const noexcept;
    /// The same, for the contexts.
    RowStore* rowStore() const noexcept { return store_.get(); }

    /// The identifier that a URI names; none for another store, an unknown entity or any other text.
    std::optional<NSManagedObjectID> managedObjectIDForURIRepresentation(std::string_view uri) const;

    /// The metadata of a store file without opening it as a store; none and an error when there is none or it is
    /// unreadable. `whileWaiting` as in `StoreOptions`.
    static std::optional<std::map<std::string, std::string>> metadataForPersistentStoreOfType(StoreType type,
        const std::filesystem::path& file, NSError* error = nullptr,
        const std::function<bool(std::chrono::milliseconds)>& whileWaiting = {});
    /// Whether rows of a store with this metadata are rows of this model.
    static bool isModelCompatibleWithStoreMetadata(
        const NSManagedObjectModel& model, const std::map<std::string, std::string>& metadata);
    /// The version identifier of the model that wrote a store with this metadata; empty when it does not say.
    static std::string modelVersionOfStoreMetadata(const std::map<std::string, std::string>& metadata);
    /// By which number of layout the tables of a store with this metadata are made; 0 when it does not say. A store of
    /// another layout than `currentStoreFormat` is refused; a higher one is of a later version of this library.
    static int formatOfStoreMetadata(const std::map<std::string, std::string>& metadata);
    /// The layout of the stores that this version makes.
    static int currentStoreFormat();

private:
    std::shared_ptr<const NSManagedObjectModel> model_;
    std::unique_ptr<RowStore> store_;
};

} // namespace tarn
