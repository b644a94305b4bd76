#pragma once

#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace tarn {

/// A folder for one store, with a blank and a letter beyond ASCII in its name, that goes with its owner.
class StoreFolder {
public:
    StoreFolder();
    ~StoreFolder();
    StoreFolder(const StoreFolder&) = delete;
    StoreFolder& operator=(const StoreFolder&) = delete;

    std::filesystem::path file() const { return path_ / "database.sqlite"; }
    /// Takes the place of the store: file and journal of another folder. Neither may be open.
    void copyFrom(const StoreFolder& other) const;
    /// Names of the files beside the store.
    std::vector<std::string> otherFiles() const;

private:
    std::filesystem::path path_;
};

/// Who saves, and which books the save keeps.
enum class StoreRole : std::uint8_t {
    Application, ///< writes the change log
    Extension,   ///< writes the queue between processes as well
    Reader,
};

/// A store of notes that is opened in this process, with one context on the main queue that keeps the books.
///
/// Not the fixture of other tests: workers, which are no tests, open it too, with patience and roles of their own.
///
/// What fails is said by `error()`, and the context is not to be used.
class SharedStore {
public:
    SharedStore(const std::filesystem::path& file, StoreRole role, int patienceInMilliseconds = 30'000);

    explicit operator bool() const { return context_ != nullptr; }
    const NSError& error() const { return error_; }
    NSManagedObjectContext& context() { return *context_; }
    NSPersistentStore& store() { return *coordinator_->persistentStore(); }

    /// What the store finds amiss in itself and in its index.
    std::vector<std::string> problems();

private:
    NSError error_;
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    std::unique_ptr<NSManagedObjectContext> context_;
    NSNotificationSubscription willSave_;
};

/// Every row of every table but those that are left out, as text: equal contents give equal texts.
std::string contentsOfStore(const std::filesystem::path& file, const std::set<std::string>& leftOut = {});

/// What the store says to people: notes with their texts, tags and links, the change log save by save, the queue
/// between processes. Numbers of rows and random names of changes are left out.
std::string portraitOf(NSManagedObjectContext& context);

} // namespace tarn
