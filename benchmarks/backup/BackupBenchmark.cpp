// Backups of a store with attachments, beside tar and zstd on the same folder: `bench_backup [notes]...`.

#include "tarnmodel/backup/BackupRestore.h"
#include "tarnmodel/backup/StoreBackup.h"
#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/model/OVNote.h"
#include "tarnmodel/model/OVNoteFile.h"
#include "tarnmodel/platform/coredata/NSManagedObjectContext.h"
#include "tarnmodel/platform/coredata/NSPersistentStoreCoordinator.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <fmt/core.h>
#include <malloc.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

constexpr std::size_t kRuns = 3;
constexpr std::size_t kBytesOfAttachment = 100'000;

[[noreturn]] void stop(const std::string& reason)
{
    fmt::print(stderr, "{}\n", reason);
    std::exit(6);
}

void need(bool holds, const NSError& error)
{
    if (!holds)
        stop(error.localizedDescription());
}

double seconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double medianOf(const std::function<void()>& prepare, const std::function<void()>& work)
{
    std::array<double, kRuns> times{};
    for (double& time : times) {
        prepare();
        time = seconds(work);
    }
    std::ranges::sort(times);
    return times[kRuns / 2];
}

double ownMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("RssAnon:"))
            return std::strtod(line.c_str() + 8, nullptr) / 1024;
    return 0;
}

/// The most memory that `work` takes beyond what is in use before it, in MiB, looked at every millisecond.
double peakOf(const std::function<void()>& work)
{
    ::malloc_trim(0);
    const double before = ownMemory();
    std::atomic<double> most = before;
    {
        const std::jthread watcher([&most](const std::stop_token& stop) {
            for (; !stop.stop_requested(); std::this_thread::sleep_for(std::chrono::milliseconds(1)))
                most = std::max(most.load(), ownMemory());
        });
        work();
    }
    return most - before;
}

/// A store in the folder that is the application's from then on.
class Store {
public:
    explicit Store(const fs::path& folder)
    {
        OVLocalFileManager::setApplicationGroupURL(folder);
        coordinator_ = std::make_shared<NSPersistentStoreCoordinator>(OVManagedObjectModel::current());
        NSError error;
        need(coordinator_->addPersistentStoreWithType(StoreType::SQLite, OVLocalFileManager::databaseURL(), {}, &error)
                != nullptr,
            error);
        context_ = newContext(NSManagedObjectContext::ConcurrencyType::MainQueue);
    }
    std::unique_ptr<NSManagedObjectContext> newContext(NSManagedObjectContext::ConcurrencyType type) const
    {
        auto context = std::make_unique<NSManagedObjectContext>(type);
        context->setPersistentStoreCoordinator(coordinator_);
        return context;
    }
    NSManagedObjectContext& context() { return *context_; }

private:
    std::shared_ptr<NSPersistentStoreCoordinator> coordinator_;
    std::unique_ptr<NSManagedObjectContext> context_;
};

/// Texts that pack like texts; every tenth note has an attachment that packs hardly at all.
void fill(Store& store, const fs::path& scratch, std::size_t count)
{
    std::mt19937 random(1);
    std::vector<std::string> words(4'000);
    for (std::string& word : words)
        for (std::size_t length = 2 + random() % 9; length > 0; --length)
            word += static_cast<char>('a' + random() % 26);
    NSError error;
    for (std::size_t number = 0; number < count; ++number) {
        std::string text = fmt::format("# Note {}\n\n#tag{} [[Note {}]]\n\n", number, number % 200, number * 7 % count);
        while (text.size() < 2'500)
            text += words[random() % words.size()] + " ";
        OVNote* note = OVNote::noteWithText(text, store.context());
        if (number % 10 == 0) {
            std::string bytes(kBytesOfAttachment, '\0');
            for (char& byte : bytes)
                byte = static_cast<char>(random());
            std::ofstream(scratch / "file.bin", std::ios::binary | std::ios::trunc) << bytes;
            note->addAttachmentFromFileURL(scratch / "file.bin");
        }
        if (number % 1'000 == 999 || number + 1 == count) {
            need(store.context().save(&error), error);
            store.context().reset();
        }
    }
}

/// How long another writer waits at most for a save while backups are made.
double longestWait(const Store& store, const std::function<void()>& work)
{
    std::atomic<double> longest = 0;
    const std::jthread writer([&](const std::stop_token& stop) {
        const auto context = store.newContext(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
        for (int number = 0; !stop.stop_requested(); ++number) {
            const double time = seconds([&] {
                context->performBlockAndWait([&] {
                    OVNote::noteWithText(fmt::format("# Meanwhile {}", number), *context);
                    need(context->save(), {});
                });
            });
            longest = std::max(longest.load(), time);
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    });
    work();
    return longest;
}

void measure(const fs::path& root, std::size_t count)
{
    const fs::path archive = root / "notes.tarnbackup";
    const fs::path first = root / fmt::format("store {}", count);
    Store store(first);
    fill(store, root, count);
    NSError error;
    std::uint64_t bytes = 0;
    const auto backUp = [&] {
        const auto manifest
            = StoreBackup(OVLocalFileManager::databaseURL()).writeToURL(archive, {.replacesFile = true}, &error);
        need(manifest.has_value(), error);
        bytes = manifest->fileBytes;
    };
    const auto shell = [&](const std::string& command) {
        if (std::system(command.c_str()) != 0)
            stop("failed: " + command);
    };
    const double made = medianOf([] {}, backUp);
    fmt::print("{} notes, {} MB of attachments, an archive of {} MB\n", count, bytes / 1'000'000,
        fs::file_size(archive) / 1'000'000);
    fmt::print("  tar | zstd of the folder, synced      {:8.2f} s\n",
        medianOf([] {},
            [&] {
                shell(fmt::format("tar -cf - -C '{}' . | zstd -q -3 -f -o '{}' && sync '{}'", first.string(),
                    (root / "plain.tar.zst").string(), (root / "plain.tar.zst").string()));
            }));
    fmt::print("  backup, read back                 {:8.2f} s, {:.0f} MiB\n", made, peakOf(backUp));
    fmt::print("  longest wait of another writer    {:8.2f} s\n", longestWait(store, backUp));
    fmt::print("  examination                       {:8.2f} s\n",
        medianOf([] {},
            [&] {
                const auto examination = BackupRestore(archive).examine({}, &error);
                need(examination && examination->damaged.empty(), error);
            }));
    std::unique_ptr<Store> other;
    const auto restore
        = [&] { need(BackupRestore(archive).restoreIntoContext(other->context(), {}, &error).has_value(), error); };
    const auto empty = [&] {
        other.reset();
        fs::remove_all(root / "other");
        other = std::make_unique<Store>(root / "other");
    };
    const double restored = medianOf(empty, restore);
    empty();
    fmt::print("  restore into an empty store       {:8.2f} s, {:.0f} MiB\n", restored, peakOf(restore));
    fmt::print("  the same once more                {:8.2f} s\n", medianOf([] {}, restore));
    other.reset();
    fs::remove_all(root / "other");
    fs::remove_all(first);
}

} // namespace

int main(int count, char** arguments)
{
    MainQueue::main();
    const fs::path root = fs::temp_directory_path() / ("bench_backup " + newUUIDString());
    fs::create_directories(root);
    for (int index = 1; index < std::max(count, 2); ++index)
        measure(root, count > 1 ? std::strtoul(arguments[index], nullptr, 10) : 10'000);
    std::error_code ignored;
    fs::remove_all(root, ignored);
    return 0;
}
