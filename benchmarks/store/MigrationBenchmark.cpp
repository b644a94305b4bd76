// Migrations of a store, beside SQLite's own copies of the same file: `bench_migration [count]...`.

#include "benchmarks/store/OldNotes.h"
#include "benchmarks/support/BenchmarkStore.h"
#include "tarnmodel/model/ManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSManagedObjectModel.h"
#include "tarnmodel/platform/coredata/NSMappingModel.h"
#include "tarnmodel/platform/coredata/NSMigrationManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/MigrationPolicies.h"
#include "tarnmodel/store/VexMigrationManager.h"

#include <fcntl.h>
#include <fmt/core.h>
#include <malloc.h>
#include <sqlite3.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace tarn;
namespace fs = std::filesystem;

constexpr std::size_t kRuns = 3;
using Model = std::shared_ptr<const NSManagedObjectModel>;

[[noreturn]] void stop(const std::string& reason)
{
    fmt::print(stderr, "{}\n", reason);
    std::exit(6);
}

double megabytesOf(const fs::path& file)
{
    return static_cast<double>(fs::file_size(file)) / 1e6;
}

/// The number behind a name in the status of this process, in MiB.
double statusOfProcess(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name + ":"))
            return std::strtod(line.c_str() + name.size() + 1, nullptr) / 1024;
    stop("the system does not tell what memory is used");
}

/// The most memory of its own that `work` takes beyond what is in use before it, in MiB, looked at every millisecond:
/// files that are mapped for a while, as SQLite does when it sorts, are the system's.
double peakOf(const std::function<void()>& work)
{
    ::malloc_trim(0);
    const double before = statusOfProcess("RssAnon");
    std::atomic<double> most = before;
    {
        const std::jthread watcher([&most](const std::stop_token& stop) {
            for (; !stop.stop_requested(); std::this_thread::sleep_for(std::chrono::milliseconds(1)))
                most = std::max(most.load(), statusOfProcess("RssAnon"));
        });
        work();
    }
    return most - before;
}

/// What a piece of work takes, which is done again and again after what `prepare` does.
struct Cost {
    double seconds = 0;
    double processor = 0; ///< seconds, which what else the machine does changes little
    double peak = 0;      ///< MiB
};
Cost costOf(const std::function<void()>& prepare, const std::function<void()>& work)
{
    std::array<double, kRuns> seconds{};
    std::array<double, kRuns> processor{};
    for (std::size_t run = 0; run < kRuns; ++run) {
        prepare();
        const std::clock_t begin = std::clock();
        seconds[run] = secondsOf(work);
        processor[run] = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    }
    std::ranges::sort(seconds);
    std::ranges::sort(processor);
    prepare();
    return {.seconds = seconds[kRuns / 2], .processor = processor[kRuns / 2], .peak = peakOf(work)};
}
/// Of what makes a file, which stays.
Cost costOfMaking(const fs::path& result, const std::function<void()>& work)
{
    return costOf([&] { fs::remove(result); }, work);
}

void synchronize(const fs::path& file)
{
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0 || ::fsync(descriptor) != 0)
        stop("cannot sync " + file.string());
    ::close(descriptor);
}

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

Database openDatabase(const fs::path& file)
{
    sqlite3* database = nullptr;
    if (sqlite3_open(file.c_str(), &database) != SQLITE_OK)
        stop("cannot open " + file.string());
    return {database, &sqlite3_close};
}

void vacuumInto(const fs::path& source, const fs::path& destination)
{
    const Database database = openDatabase(source);
    const std::string sql = "VACUUM INTO '" + destination.string() + "'";
    if (sqlite3_exec(database.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        stop(sqlite3_errmsg(database.get()));
    synchronize(destination);
}

void backUp(const fs::path& source, const fs::path& destination)
{
    {
        const Database from = openDatabase(source);
        const Database to = openDatabase(destination);
        sqlite3_backup* backup = sqlite3_backup_init(to.get(), "main", from.get(), "main");
        if (!backup || sqlite3_backup_step(backup, -1) != SQLITE_DONE || sqlite3_backup_finish(backup) != SQLITE_OK)
            stop(sqlite3_errmsg(to.get()));
    }
    synchronize(destination);
}

Model installedModel(const std::string& version)
{
    NSError error;
    Model model
        = NSManagedObjectModel::modelWithContentsOfFile(*OVManagedObjectModel::modelURLForVersion(version), &error);
    if (!model)
        stop(error.localizedDescription());
    return model;
}

/// The installed model under another name, and with another name for one attribute.
Model twinOfModel(const std::string& version, const std::string& attribute, const std::string& newName)
{
    std::ifstream stream(*OVManagedObjectModel::modelURLForVersion(version), std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), {}};
    for (const auto& [from, to] : {std::pair{"\"version\": \"" + version, "\"version\": \"" + version + " twin"},
             std::pair{"{\"name\": \"" + attribute + "\",", "{\"name\": \"" + newName + "\","}})
        text.replace(text.find(from), from.size(), to);
    NSError error;
    Model model = NSManagedObjectModel::modelWithText(text, &error);
    if (!model)
        stop(error.localizedDescription());
    return model;
}

/// Copies all entities but one, in which an attribute gets another name.
std::shared_ptr<const NSMappingModel> twinMapping(
    const Model& source, const Model& twin, const std::string& changed, const std::string& from, const std::string& to)
{
    std::string text = "{\"source\": \"" + source->versionIdentifier() + "\", \"destination\": \""
        + twin->versionIdentifier() + "\", \"entities\": [";
    const char* separator = "";
    for (const NSEntityDescription* entity : source->entities()) {
        if (entity->isAbstract())
            continue;
        const bool isChanged = entity->name() == changed;
        text += fmt::format("{}{{\"kind\": \"{}\", \"source\": \"{}\", \"destination\": \"{}\"", separator,
            isChanged ? "transform" : "copy", entity->name(), entity->name());
        if (isChanged)
            text += fmt::format(", \"attributes\": [{{\"name\": \"{}\", \"value\": \"$source.{}\"}}]", to, from);
        text += "}";
        separator = ", ";
    }
    NSError error;
    auto mapping = NSMappingModel::mappingModelWithText(text + "]}", *source, *twin, &error);
    if (!mapping)
        stop(error.localizedDescription());
    return mapping;
}

std::shared_ptr<const NSMappingModel> installedMapping(const Model& source, const Model& destination)
{
    const std::array folders{*OVManagedObjectModel::modelURL()};
    auto mapping = NSMappingModel::mappingModelFromBundles(folders, *source, *destination);
    if (!mapping)
        stop("no mapping model to " + destination->versionIdentifier());
    return mapping;
}

void migrate(const fs::path& source, const Model& from, const NSMappingModel& mapping, const Model& to,
    const fs::path& destination)
{
    NSMigrationManager manager(from, to);
    NSError error;
    if (!manager.migrateStoreFromURL(source, StoreType::SQLite, mapping, destination, StoreType::SQLite, &error))
        stop(error.localizedDescription());
}

void migrateInPlace(const fs::path& store)
{
    VexMigrationManager manager;
    NSError error;
    if (!manager.progressivelyMigrateURL(store, StoreType::SQLite, OVManagedObjectModel::current(), &error))
        stop(error.localizedDescription());
}

/// The rows of one run, and how they have grown since the run before.
class Report {
public:
    explicit Report(std::size_t notes) : notes_(notes) { }
    /// The version of the store that the next rows are about.
    void beginVersion(const std::string& version, double megabytes)
    {
        version_ = version;
        fmt::print("{}, {:.1f} MB\n", version, megabytes);
    }
    void add(const std::string& name, const Cost& cost, const Cost& copy)
    {
        const double each = cost.processor / static_cast<double>(notes_);
        const auto earlier = former().find(version_ + name);
        const std::string growth = earlier == former().end() ? "" : fmt::format("{:>6.2f}", each / earlier->second);
        fmt::print("{:<40} {:>8.0f} ms {:>6.2f} x | {:>8.0f} ms {:>6.2f} x {:>6.1f} us | {:>6.1f} MiB  {}\n", name,
            cost.seconds * 1000, cost.seconds / copy.seconds, cost.processor * 1000, cost.processor / copy.processor,
            each * 1e6, cost.peak, growth);
        former()[version_ + name] = each;
    }

private:
    static std::map<std::string, double>& former()
    {
        static std::map<std::string, double> secondsForEach;
        return secondsForEach;
    }
    std::size_t notes_;
    std::string version_;
};

/// Times both copies of a store; the plain one is the yardstick.
Cost measureCopies(Report& report, const fs::path& store, const fs::path& folder)
{
    const fs::path copy = folder / "copy.sqlite";
    const Cost vacuum = costOfMaking(copy, [&] { vacuumInto(store, copy); });
    report.add("  VACUUM INTO, synced", vacuum, vacuum);
    report.add("  backup interface, synced", costOfMaking(copy, [&] { backUp(store, copy); }), vacuum);
    fs::remove(copy);
    return vacuum;
}

void measureTwins(Report& report, const fs::path& store, const Model& model, const Cost& copy, const fs::path& folder)
{
    struct Change {
        const char* name;
        const char* entity;
        const char* attribute;
    };
    const fs::path result = folder / "twin.sqlite";
    for (const Change& change :
        {Change{"  all copied, a rename in a small table", "OVServerMetadata", "noteZoneSubscriptionID"},
            Change{"  all copied, a rename in the notes", "OVNote", "subtitle"}}) {
        const Model twin = twinOfModel(model->versionIdentifier(), change.attribute, "renamedAttribute");
        const auto mapping = twinMapping(model, twin, change.entity, change.attribute, "renamedAttribute");
        report.add(change.name, costOfMaking(result, [&] { migrate(store, model, *mapping, twin, result); }), copy);
        fs::remove(result);
    }
}

void measure(std::size_t notes)
{
    const BenchmarkFolder folder;
    EnvironmentOverride world; // what is replaced is kept on the same file system
    world.setCacheDirectory(folder.path() / "cache");
    const std::vector<std::string> versions{"Model", "Model 2", "Model 3"};
    fs::path store = folder.path() / "Model.sqlite";
    makeStoreOfFirstVersion(store, notes);
    Report report(notes);
    fmt::print(
        "{} notes: time, in VACUUM INTO; processor time, in VACUUM INTO, for each note; memory; growth for each note\n",
        notes);
    const fs::path whole = folder.path() / "whole.sqlite";
    for (std::size_t step = 0; step < versions.size(); ++step) {
        report.beginVersion(versions[step], megabytesOf(store));
        const Cost copy = measureCopies(report, store, folder.path());
        const Model from = installedModel(versions[step]);
        if (step == 0)
            report.add("  to Model 3, in place",
                costOf([&] { fs::copy_file(store, whole, fs::copy_options::overwrite_existing); },
                    [&] { migrateInPlace(whole); }),
                copy);
        if (step + 1 == versions.size()) {
            measureTwins(report, store, from, copy, folder.path());
            break;
        }
        const Model to = installedModel(versions[step + 1]);
        const auto mapping = installedMapping(from, to);
        const fs::path result = folder.path() / (versions[step + 1] + ".sqlite");
        report.add("  to " + versions[step + 1],
            costOfMaking(result, [&] { migrate(store, from, *mapping, to, result); }), copy);
        store = result;
    }
}

} // namespace

int main(int argc, char** argv)
{
    registerMigrationPolicies();
    std::vector<std::size_t> counts;
    for (int index = 1; index < argc; ++index)
        counts.push_back(std::strtoul(argv[index], nullptr, 10));
    for (const std::size_t count : counts.empty() ? std::vector<std::size_t>{10'000} : counts)
        measure(count);
}
