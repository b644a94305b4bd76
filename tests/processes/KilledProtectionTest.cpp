// A process may die at any step of what it does with a protected note, or of writing a store anew: nothing of what is
// protected is found on disk in clear, and the store is whole.

#include "tests/processes/ProtectionWork.h"
#include "tests/processes/SharedStore.h"
#include "tests/processes/Worker.h"

#include "tarnmodel/notes/OwedCompaction.h"
#include "tarnmodel/platform/foundation/system/Environment.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace tarn {
namespace {

using testing::IsEmpty;

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 11> kDiskCalls{"rename", "renameat2", "link", "unlink", "unlinkat", "fsync",
    "ftruncate", "write", "pwrite64", "copy_file_range", "openat"};

std::string allBytesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Files below the folder that hold one of the markers, or have it in their names.
std::vector<std::string> filesWithMarkers(const fs::path& folder, const fs::path& leftOut = {})
{
    std::vector<std::string> found;
    for (fs::recursive_directory_iterator entry(folder), end; entry != end; ++entry) {
        if (!leftOut.empty() && entry->path() == leftOut) {
            entry.disable_recursion_pending();
            continue;
        }
        const std::string bytes = entry->is_regular_file() ? allBytesOf(entry->path()) : "";
        for (const std::string_view marker : protectedMarkers())
            if (bytes.find(marker) != std::string::npos || entry->path().filename().string().starts_with(marker))
                found.push_back(entry->path().filename().string() + ": " + std::string(marker));
    }
    return found;
}

WorkerResult runProtection(const StoreFolder& folder, std::string_view work, const std::string& injection = "")
{
    return WorkerProcess({"protection", folder.file().parent_path().string(), std::string(work)},
        injection.empty() ? std::vector<std::string>() : std::vector{injection})
        .finish();
}

int strideOfCalls(int usual)
{
    return Environment::current().variable("TARN_EVERY_CALL") ? 1 : usual;
}

void copyFolder(const StoreFolder& from, const StoreFolder& to)
{
    fs::copy(from.file().parent_path(), to.file().parent_path(),
        fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

// What is protected ---------------------------------------------------------------------------------------------------

class KilledWorkOnAProtectedNote : public testing::TestWithParam<std::string_view> {
protected:
    void SetUp() override
    {
        if (!WorkerProcess::canBeTraced())
            GTEST_SKIP() << "this system does not let one process look at another";
        const WorkerResult made = runProtection(before_, "make");
        ASSERT_EQ(made.exitCode, 0) << made.output;
    }
    StoreFolder before_;
};

TEST_P(KilledWorkOnAProtectedNote, LeavesNothingInClear)
{
    EXPECT_THAT(filesWithMarkers(before_.file().parent_path()), IsEmpty()) << "after it was protected";
    int deaths = 0;
    for (const std::string_view call : kDiskCalls)
        for (int time = 1; !HasFailure(); time += strideOfCalls(call == "openat" ? 41 : 7)) {
            const StoreFolder folder;
            copyFolder(before_, folder);
            const WorkerResult result
                = runProtection(folder, GetParam(), fmt::format("inject={}:signal=KILL:when={}", call, time));
            SCOPED_TRACE(fmt::format("{} number {}: {}", call, time, result.output));
            const fs::path root = folder.file().parent_path();
            // Decrypted copies lie in memory, and go when the next manager begins.
            EXPECT_THAT(filesWithMarkers(root, root / "Run"), IsEmpty());
            if (result.signal == 0) {
                EXPECT_EQ(result.exitCode, 0);
                EXPECT_THAT(filesWithMarkers(root), IsEmpty());
                break;
            }
            ++deaths;
            const WorkerResult next = runProtection(folder, "open");
            EXPECT_EQ(next.exitCode, 0) << next.output;
            EXPECT_THAT(filesWithMarkers(root), IsEmpty());
        }
    EXPECT_GT(deaths, 5);
}

INSTANTIATE_TEST_SUITE_P(Works, KilledWorkOnAProtectedNote, testing::ValuesIn(protectedWorks()),
    [](const auto& work) { return std::string(work.param); });

// A store that is written anew ----------------------------------------------------------------------------------------

class BrokenCompaction : public testing::TestWithParam<std::string_view> {
protected:
    void SetUp() override
    {
        if (!WorkerProcess::canBeTraced())
            GTEST_SKIP() << "this system does not let one process look at another";
        const WorkerResult made = runProtection(before_, "owe");
        ASSERT_EQ(made.exitCode, 0) << made.output;
        contents_ = contentsOfStore(before_.file(), {"store_metadata"});
        ASSERT_TRUE(isMarkerIn(before_));
    }
    static bool isMarkerIn(const StoreFolder& folder)
    {
        return allBytesOf(folder.file()).find(protectedMarkers()[0]) != std::string::npos;
    }
    static std::vector<std::string> filesBesideStore(const StoreFolder& folder)
    {
        std::vector<std::string> files;
        for (const auto& entry : fs::directory_iterator(folder.file().parent_path()))
            if (entry.is_regular_file() && entry.path() != folder.file())
                files.push_back(entry.path().filename().string());
        return files;
    }
    StoreFolder before_;
    std::string contents_;
};

TEST_P(BrokenCompaction, IsDoneByTheNextStart)
{
    int disturbed = 0;
    for (const std::string_view call : kDiskCalls) {
        int undisturbed = 0;
        for (int time = 1; undisturbed < 2 && !HasFailure(); time += strideOfCalls(call == "openat" ? 17 : 3)) {
            const StoreFolder folder;
            copyFolder(before_, folder);
            const WorkerResult result
                = runProtection(folder, "open", fmt::format("inject={}:{}:when={}", call, GetParam(), time));
            SCOPED_TRACE(fmt::format("{} number {}: {}", call, time, result.output));
            const bool wasDisturbed = result.signal != 0 || result.exitCode != 0 || result.output != "2 notes\n";
            disturbed += wasDisturbed;
            undisturbed = wasDisturbed ? 0 : undisturbed + 1;
            ASSERT_TRUE(fs::exists(folder.file())) << "there is always a store";
            const WorkerResult next = runProtection(folder, "open");
            EXPECT_EQ(next.output, "2 notes\n");
            EXPECT_FALSE(isMarkerIn(folder));
            EXPECT_THAT(filesBesideStore(folder), IsEmpty());
            EXPECT_EQ(fs::hard_link_count(folder.file()), 1U);
            EXPECT_EQ(contentsOfStore(folder.file(), {"store_metadata"}), contents_);
        }
    }
    EXPECT_GT(disturbed, 8);
}

INSTANTIATE_TEST_SUITE_P(Faults, BrokenCompaction, testing::Values("signal=KILL", "error=EIO"),
    [](const auto& fault) { return fault.param == "error=EIO" ? "Refused" : "Killed"; });

} // namespace
} // namespace tarn
