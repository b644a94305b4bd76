#pragma once

#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace tarn {

/// A store of the current model, opened with one context on the main queue. What fails ends the program.
struct BenchmarkStore {
    explicit BenchmarkStore(const std::filesystem::path& file, StoreType type = StoreType::SQLite);
    void save();
    void exclusively(const std::function<void()>& block);

    std::shared_ptr<NSPersistentStoreCoordinator> coordinator;
    NSManagedObjectContext context;
};

/// A new folder for the stores of one run, which goes with it.
class BenchmarkFolder {
public:
    BenchmarkFolder();
    ~BenchmarkFolder();
    BenchmarkFolder(const BenchmarkFolder&) = delete;
    BenchmarkFolder& operator=(const BenchmarkFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

double secondsOf(const std::function<void()>& work);

} // namespace tarn
