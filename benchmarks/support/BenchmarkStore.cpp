#include "benchmarks/support/BenchmarkStore.h"

#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <fmt/core.h>

#include <chrono>
#include <cstdlib>

namespace tarn {

namespace {

[[noreturn]] void stop(const NSError& error)
{
    fmt::print(stderr, "{}\n", error.localizedDescription());
    std::exit(6);
}

} // namespace

BenchmarkStore::BenchmarkStore(const std::filesystem::path& file, StoreType type)
    : coordinator(std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current())),
      context(NSManagedObjectContext::ConcurrencyType::MainQueue)
{
    NSError error;
    if (!coordinator->addPersistentStoreWithType(type, file, {}, &error))
        stop(error);
    context.setPersistentStoreCoordinator(coordinator);
}

void BenchmarkStore::save()
{
    NSError error;
    if (!context.save(&error))
        stop(error);
}

void BenchmarkStore::exclusively(const std::function<void()>& block)
{
    NSError error;
    if (!context.performExclusive(block, &error))
        stop(error);
}

BenchmarkFolder::BenchmarkFolder()
    : path_(std::filesystem::temp_directory_path() / ("tarn benchmark " + newUUIDString()))
{
    std::filesystem::create_directories(path_);
}

BenchmarkFolder::~BenchmarkFolder()
{
    std::error_code error;
    std::filesystem::remove_all(path_, error);
}

double secondsOf(const std::function<void()>& work)
{
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace tarn
