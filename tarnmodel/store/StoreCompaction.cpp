#include "tarnmodel/store/StoreCompaction.h"

#include "tarnmodel/notes/OwedCompaction.h"
#include "tarnmodel/platform/coredata/HeldStoreFile.h"
#include "tarnmodel/platform/coredata/NSPersistentStore.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/coredata/StoreErrors.h"
#include "tarnmodel/platform/coredata/StoreFileCompaction.h"
#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/text/ByteCount.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <system_error>

namespace tarn {

namespace {

namespace fs = std::filesystem;

/// A store that has hardly any free pages may get larger by some.
constexpr std::uintmax_t kGrowth = 1'000'000;

/// "database.compacted.sqlite" beside "database.sqlite": while it is written.
fs::path successorOf(const fs::path& store)
{
    return store.parent_path() / (store.stem().string() + ".compacted" + store.extension().string());
}

/// "database.uncompacted.sqlite": the former file until it is removed.
fs::path formerOf(const fs::path& store)
{
    return store.parent_path() / (store.stem().string() + ".uncompacted" + store.extension().string());
}

/// What may lie beside a store. By name alone: to open and close a second name of it would drop its locks.
std::array<fs::path, 4> leftoversOf(const fs::path& store)
{
    const fs::path successor = successorOf(store);
    const fs::path former = formerOf(store);
    return {successor, fs::path(successor) += "-journal", former, fs::path(former) += "-journal"};
}

bool areThereLeftovers(const fs::path& store)
{
    for (const fs::path& file : leftoversOf(store))
        if (NSFileManager::fileExistsAtURL(file))
            return true;
    return false;
}

void removeLeftoversOf(const HeldStoreFile& held)
{
    for (const fs::path& file : leftoversOf(held.file())) {
        std::error_code ignored;
        fs::remove(file, ignored);
    }
}

bool saysThatItIsOwed(const std::map<std::string, std::string>& metadata)
{
    const auto value = metadata.find(std::string(StoreCompactionKey));
    return value != metadata.end() && value->second == StoreCompactionOwed;
}

bool hasRoomBeside(const HeldStoreFile& held, NSError* error)
{
    const fs::path folder = held.file().parent_path();
    const auto room = Environment::current().availableSpace(folder);
    const std::uintmax_t need = held.size() + kGrowth;
    if (!room || *room >= need)
        return true;
    assignError(error,
        NSError(TarnStoreErrorDomain, StoreErrorFull,
            "To write the store anew needs " + stringFromByteCount(need) + " in \"" + folder.string() + "\", where "
                + stringFromByteCount(*room) + " are left"));
    return false;
}

} // namespace

bool StoreCompaction::isOwed(const fs::path& store)
{
    const auto metadata = NSPersistentStoreCoordinator::metadataForPersistentStoreOfType(StoreType::SQLite, store);
    return metadata && saysThatItIsOwed(*metadata);
}

bool StoreCompaction::isOwed(NSPersistentStore& store)
{
    return saysThatItIsOwed(store.metadata(nullptr));
}

bool StoreCompaction::compact(
    const fs::path& store, const std::function<bool(std::chrono::milliseconds)>& whileWaiting, NSError* error)
{
    const auto held = HeldStoreFile::hold(store, whileWaiting, error);
    if (!held)
        return false;
    removeLeftoversOf(*held);
    const fs::path successor = successorOf(held->file());
    const bool isDone = hasRoomBeside(*held, error)
        && compactStoreFile(
            *held, successor, {{std::string(StoreCompactionKey), std::string(StoreCompactionDone)}}, error)
        && held->replaceWith(successor, formerOf(held->file()), error);
    removeLeftoversOf(*held);
    return isDone;
}

void StoreCompaction::removeLeftovers(const fs::path& store)
{
    std::error_code failure;
    const fs::path realFile = fs::canonical(store, failure);
    if (failure || !areThereLeftovers(realFile))
        return;
    // Who is at it now holds the store, and leaves nothing.
    if (const auto held = HeldStoreFile::hold(realFile))
        removeLeftoversOf(*held);
}

} // namespace tarn
