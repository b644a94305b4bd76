// A process may die, or a disk refuse, at any step of a migration: the store is the old one or a new one, whole; never
// none, and never a fresh one. The next start finishes the migration and leaves nothing behind.

#include "tests/processes/SharedStore.h"
#include "tests/processes/Worker.h"

#include "tarnmodel/platform/foundation/filesystem/NSFileManager.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <thread>

namespace tarn {
namespace {

using testing::AnyOf;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;

namespace fs = std::filesystem;

/// What happens at a call of the system, and what is to be expected of it.
struct Disturbance {
    std::string_view name;
    std::string_view call;
    std::string_view fault;
    int failures;        ///< so many runs at least do not go well
    int stride = 1;      ///< from one of these calls to the next that is disturbed, but in the long form
    int undisturbed = 2; ///< after so many runs that go well there is no call left; some calls need not succeed
};
constexpr std::array kDisturbances{
    Disturbance{"KilledAtALink", "link", "signal=KILL", 1},
    Disturbance{"KilledAtARenaming", "rename", "signal=KILL", 1},
    Disturbance{"KilledAtASync", "fsync", "signal=KILL", 2},
    Disturbance{"KilledAtAWrite", "pwrite64", "signal=KILL", 10, 7},
    Disturbance{"KilledAtARemoval", "unlink", "signal=KILL", 2},
    Disturbance{"KilledAtANewFolder", "mkdir", "signal=KILL", 1},
    Disturbance{"KilledAtAnOpening", "openat", "signal=KILL", 5, 11},
    Disturbance{"FullAtALink", "link", "error=ENOSPC", 1},
    Disturbance{"FullAtARenaming", "rename", "error=ENOSPC", 1},
    Disturbance{"FullAtASync", "fsync", "error=ENOSPC", 2},
    Disturbance{"FullAtAWrite", "pwrite64", "error=ENOSPC", 10, 7},
    Disturbance{"BrokenAtALink", "link", "error=EIO", 1},
    Disturbance{"BrokenAtARenaming", "rename", "error=EIO", 1},
    Disturbance{"BrokenAtASync", "fsync", "error=EIO", 2},
    Disturbance{"BrokenAtAWrite", "pwrite64", "error=EIO", 10, 7},
    Disturbance{"BrokenAtARead", "pread64", "error=EIO", 3, 11, 8},
    Disturbance{"BrokenAtAnOpening", "openat", "error=EIO", 3, 11, 8},
};

std::ostream& operator<<(std::ostream& stream, const Disturbance& disturbance)
{
    return stream << disturbance.name;
}

std::string bytesOfStore(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class MigrationOfOthers : public testing::Test {
protected:
    void SetUp() override
    {
        run(versions_[0], "make");
        for (std::size_t step = 1; step < versions_.size(); ++step)
            versions_[step].copyFrom(versions_[0]);
        run(versions_[1], "step");
        EXPECT_EQ(run(versions_[2], "migrate").output, "migrated: Model 2 Model 3\n");
        for (const StoreFolder& version : versions_)
            contents_.push_back(contentsOfStore(version.file()));
        ASSERT_NE(contents_[0], contents_[1]);
        ASSERT_NE(contents_[1], contents_[2]);
    }

    static WorkerResult run(const StoreFolder& folder, const std::string& work, const std::string& injection = "")
    {
        WorkerResult result = WorkerProcess({"migration", folder.file().parent_path().string(), work},
            injection.empty() ? std::vector<std::string>() : std::vector{injection})
                                  .finish();
        EXPECT_TRUE(!injection.empty() || result.exitCode == 0) << work << ": " << result.output;
        return result;
    }

    static fs::path caches(const StoreFolder& folder) { return folder.file().parent_path() / "Cache"; }
    static std::vector<fs::path> temporaryFiles(const StoreFolder& folder)
    {
        std::vector<fs::path> files;
        std::error_code failure;
        for (fs::recursive_directory_iterator entry(caches(folder), failure), end; !failure && entry != end;
             entry.increment(failure))
            if (entry->is_regular_file())
                files.push_back(entry->path());
        return files;
    }
    static std::vector<std::string> sideFiles(const StoreFolder& folder)
    {
        std::vector<std::string> files = folder.otherFiles();
        std::erase(files, "Cache");
        return files;
    }

    std::array<StoreFolder, 3> versions_; ///< one store at each version
    std::vector<std::string> contents_;   ///< of these
};

class BrokenMigration : public MigrationOfOthers, public testing::WithParamInterface<Disturbance> {
protected:
    static int stride() { return Environment::current().variable("TARN_EVERY_CALL") ? 1 : GetParam().stride; }

    /// Migrates with this at one call; whether that went well. The store is that of a version in any case.
    bool isUndisturbed(const StoreFolder& folder, const std::string& injection) const
    {
        const WorkerResult result = run(folder, "migrate", injection);
        const bool isDone = result.signal == 0 && result.exitCode == 0;
        const bool isUntouched = bytesOfStore(folder.file()) == bytesOfStore(versions_[0].file());
        if (!isUntouched) {
            const std::string found = contentsOfStore(folder.file());
            EXPECT_TRUE(isDone ? found == contents_[2]
                               : found == contents_[0] || found == contents_[1] || found == contents_[2])
                << "at " << injection << "\n"
                << result.output << found;
        }
        EXPECT_FALSE(isDone && isUntouched) << "at " << injection;
        return isDone;
    }

    void expectNextStartFinishes(const StoreFolder& folder, const std::string& injection) const
    {
        SCOPED_TRACE("after " + injection);
        run(folder, "migrate");
        EXPECT_EQ(contentsOfStore(folder.file()), contents_[2]);
        EXPECT_THAT(sideFiles(folder), IsEmpty());
        // What it was before stays until the next start.
        EXPECT_EQ(run(folder, "migrate").output, "");
        EXPECT_THAT(temporaryFiles(folder), IsEmpty());
        EXPECT_EQ(fs::hard_link_count(folder.file()), 1U);
        EXPECT_EQ(contentsOfStore(folder.file()), contents_[2]);
    }
};

TEST_P(BrokenMigration, LeavesAWholeStore)
{
    if (!WorkerProcess::canBeTraced())
        GTEST_SKIP() << "this system does not let one process look at another";
    const Disturbance& disturbance = GetParam();
    const bool isKilled = disturbance.fault == "signal=KILL";
    int failures = 0;
    int undisturbed = 0;
    for (int time = 1; undisturbed < disturbance.undisturbed && !HasFailure(); time += stride()) {
        StoreFolder folder;
        folder.copyFrom(versions_[0]);
        const std::string injection = fmt::format("inject={}:{}:when={}", disturbance.call, disturbance.fault, time);
        const bool isDone = isUndisturbed(folder, injection);
        undisturbed = isDone ? undisturbed + 1 : 0;
        failures += !isDone;
        EXPECT_TRUE(isKilled || sideFiles(folder).empty()) << "at " << injection;
        expectNextStartFinishes(folder, injection);
    }
    EXPECT_GE(failures, disturbance.failures);
}

INSTANTIATE_TEST_SUITE_P(Calls, BrokenMigration, testing::ValuesIn(kDisturbances),
    [](const auto& disturbance) { return std::string(disturbance.param.name); });

// The exchange of the files -------------------------------------------------------------------------------------------

/// Beside the store, where the backup is a second name of it, or on another file system, where it is a copy.
class BrokenExchange : public MigrationOfOthers, public testing::WithParamInterface<bool> {
protected:
    void SetUp() override
    {
        if (!WorkerProcess::canBeTraced())
            GTEST_SKIP() << "this system does not let one process look at another";
        MigrationOfOthers::SetUp();
        if (!GetParam())
            return;
        std::string name = "/dev/shm/tarn-exchange-XXXXXX";
        if (!::mkdtemp(name.data()) || NSFileManager::areOnOneFileSystem(name, versions_[0].file()))
            GTEST_SKIP() << "there is no other file system";
        elsewhere_ = name;
    }
    void TearDown() override
    {
        std::error_code ignored;
        if (!elsewhere_.empty())
            fs::remove_all(elsewhere_, ignored);
    }
    /// With the store of version 1, which that of version 3 is to replace.
    WorkerResult exchange(const StoreFolder& folder, const std::vector<std::string>& injections) const
    {
        folder.copyFrom(versions_[0]);
        fs::copy_file(versions_[2].file(), next(folder));
        return WorkerProcess(
            {"migration", folder.file().parent_path().string(), "exchange " + backup(folder).string()}, injections)
            .finish();
    }
    static fs::path next(const StoreFolder& folder) { return folder.file().parent_path() / "next.sqlite"; }
    fs::path backup(const StoreFolder& folder) const
    {
        return (GetParam() ? elsewhere_ : folder.file().parent_path()) / "backup.sqlite";
    }

    fs::path elsewhere_;
};

TEST_P(BrokenExchange, TakesBackWhatItDidWhenAFolderCannotBeMadeDurable)
{
    const int syncs = GetParam() ? 4 : 3; // of the new store, the copy, its folder and the store's folder
    for (int time = 1; time <= syncs; ++time) {
        SCOPED_TRACE(time);
        const StoreFolder folder;
        const WorkerResult result = exchange(folder, {fmt::format("inject=fsync:error=EIO:when={}", time)});
        EXPECT_EQ(result.exitCode, 3);
        EXPECT_THAT(result.output, HasSubstr("cannot be made durable: Input/output error"));
        EXPECT_TRUE(bytesOfStore(folder.file()) == bytesOfStore(versions_[0].file()));
        EXPECT_FALSE(fs::exists(backup(folder)));
        EXPECT_EQ(fs::hard_link_count(folder.file()), 1U);
    }
    const StoreFolder folder;
    EXPECT_EQ(exchange(folder, {fmt::format("inject=fsync:error=EIO:when={}", syncs + 1)}).exitCode, 0);
}

TEST_P(BrokenExchange, TellsWhereTheOldStoreLiesWhenItCannotBePutBack)
{
    const StoreFolder folder;
    const WorkerResult result = exchange(
        folder, {fmt::format("inject=fsync:error=EIO:when={}", GetParam() ? 4 : 3), "inject=rename:error=EIO:when=2+"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.output, HasSubstr("the old one lies at \"" + backup(folder).string() + "\""));
    EXPECT_TRUE(bytesOfStore(backup(folder)) == bytesOfStore(versions_[0].file()));
    EXPECT_TRUE(bytesOfStore(folder.file()) == bytesOfStore(versions_[2].file()));
}

TEST_P(BrokenExchange, KilledAtAnyCallLeavesOneOfTheTwoStores)
{
    int deaths = 0;
    int exchanged = 0;
    for (const std::string_view call : {"link", "write", "fsync", "renameat2", "rename", "unlink"})
        for (int time = 1; !HasFailure(); ++time) {
            const StoreFolder folder;
            const WorkerResult result = exchange(folder, {fmt::format("inject={}:signal=KILL:when={}", call, time)});
            const std::string found = bytesOfStore(folder.file());
            const bool isNew = found == bytesOfStore(versions_[2].file());
            EXPECT_TRUE(isNew || found == bytesOfStore(versions_[0].file())) << call << " number " << time;
            for (const auto& left : fs::directory_iterator(backup(folder).parent_path()))
                fs::remove(left.path());
            if (result.signal == 0) {
                EXPECT_TRUE(isNew) << call << " number " << time << ": " << result.output;
                break;
            }
            ++deaths;
            exchanged += isNew;
        }
    EXPECT_GE(deaths, GetParam() ? 8 : 5);
    EXPECT_GE(exchanged, 1) << "at the last sync";
}

TEST_P(BrokenExchange, KeepsACopyThatIsTheStoreByteByByte)
{
    const StoreFolder folder;
    EXPECT_EQ(exchange(folder, {}).exitCode, 0);
    EXPECT_TRUE(bytesOfStore(backup(folder)) == bytesOfStore(versions_[0].file()));
    EXPECT_TRUE(bytesOfStore(folder.file()) == bytesOfStore(versions_[2].file()));
    EXPECT_FALSE(fs::exists(next(folder)));
}

INSTANTIATE_TEST_SUITE_P(Backups, BrokenExchange, testing::Bool(),
    [](const auto& backup) { return backup.param ? "OnAnotherFileSystem" : "BesideTheStore"; });

// Others meanwhile ----------------------------------------------------------------------------------------------------

class WatchedMigration : public MigrationOfOthers, public testing::WithParamInterface<int> {
protected:
    /// An application that stands in the middle of the step.
    WorkerProcess pausedApplication() const
    {
        WorkerProcess process({"migration", root().string(), fmt::format("pause {}", GetParam())});
        for (int tries = 0; !fs::exists(root() / "paused") && tries < 2000; ++tries)
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        EXPECT_TRUE(fs::exists(root() / "paused"));
        return process;
    }
    WorkerProcess worker(const std::string& work) const { return WorkerProcess({"migration", root().string(), work}); }
    void goOn() const
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(200)); // until the others wait
        std::ofstream(root() / "go on").flush();
    }
    fs::path root() const { return folder_.file().parent_path(); }
    void SetUp() override
    {
        MigrationOfOthers::SetUp();
        folder_.copyFrom(versions_[0]);
    }

    StoreFolder folder_;
};

TEST_P(WatchedMigration, NeverShowsAHalfToAnExtensionOrAWidget)
{
    WorkerProcess application = pausedApplication();
    WorkerProcess extension = worker("extension");
    WorkerProcess widget = worker("widget");
    goOn();
    EXPECT_EQ(application.finish().output, "migrated: Model 2 Model 3\n");
    for (WorkerProcess* other : {&extension, &widget})
        EXPECT_THAT(other->finish().output,
            AnyOf(Eq("12 notes\n"), Eq("The database need migration, open the main application\n")));
    EXPECT_EQ(contentsOfStore(folder_.file()), contents_[2]);
}

TEST_P(WatchedMigration, IsWaitedForByASecondApplication)
{
    WorkerProcess first = pausedApplication();
    WorkerProcess second = worker("migrate");
    goOn();
    const WorkerResult ends[] = {first.finish(), second.finish()};
    for (const WorkerResult& end : ends)
        EXPECT_EQ(end.exitCode, 0) << end.output;
    EXPECT_EQ(contentsOfStore(folder_.file()), contents_[2]);
    EXPECT_EQ(run(folder_, "extension").output, "12 notes\n");
    EXPECT_THAT(temporaryFiles(folder_), IsEmpty());
}

TEST_P(WatchedMigration, IsFinishedByASecondApplicationWhenTheFirstOneDies)
{
    std::optional<WorkerProcess> first = pausedApplication();
    WorkerProcess second = worker("migrate");
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    first.reset(); // killed
    const WorkerResult end = second.finish();
    EXPECT_EQ(end.exitCode, 0) << end.output;
    EXPECT_EQ(contentsOfStore(folder_.file()), contents_[2]);
    EXPECT_EQ(run(folder_, "extension").output, "12 notes\n");
    EXPECT_THAT(temporaryFiles(folder_), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Steps, WatchedMigration, testing::Values(1, 2),
    [](const auto& step) { return "Step" + std::to_string(step.param); });

} // namespace
} // namespace tarn
