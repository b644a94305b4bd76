// A process may die, or a disk refuse, at any step of an import, a renaming, a replacement or a deletion of
// attachments: the next start finds the files and records from before or those from after.

#include "tests/processes/AttachmentWork.h"
#include "tests/processes/Worker.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <system_error>

namespace tarn {
namespace {

namespace fs = std::filesystem;

/// The calls of the system by which files come, go and become durable.
constexpr std::array<std::string_view, 14> kCalls{"mkdir", "rename", "renameat2", "link", "unlink", "unlinkat", "rmdir",
    "fsync", "fdatasync", "ftruncate", "copy_file_range", "utimensat", "write", "pwrite64"};

struct AttachmentFolder {
    AttachmentFolder() : path(fs::temp_directory_path() / ("tarn datën " + newUUIDString()))
    {
        fs::create_directories(path);
    }
    ~AttachmentFolder()
    {
        std::error_code ignored;
        fs::remove_all(path, ignored);
    }
    AttachmentFolder(const AttachmentFolder&) = delete;
    AttachmentFolder& operator=(const AttachmentFolder&) = delete;
    fs::path path;
};

/// What the next start finds: each attachment of the store with what is in it, and what lies around.
std::string stateOf(const fs::path& folder)
{
    // The first one may have something to bring in step, and says so.
    const WorkerResult first = WorkerProcess({"attachments", folder.string(), "show"}).finish();
    EXPECT_EQ(first.exitCode, 0) << first.output;
    const WorkerResult result = WorkerProcess({"attachments", folder.string(), "show"}).finish();
    EXPECT_TRUE(first.output.ends_with(result.output)) << first.output << "\nis not\n" << result.output;
    return result.output;
}

void copyWithDates(const fs::path& from, const fs::path& to)
{
    fs::copy(from, to, fs::copy_options::recursive);
    for (const auto& entry : fs::recursive_directory_iterator(from))
        fs::last_write_time(to / fs::relative(entry.path(), from), fs::last_write_time(entry.path()));
}

class BrokenAttachmentWork : public testing::TestWithParam<std::string_view> {
protected:
    void SetUp() override
    {
        if (!WorkerProcess::canBeTraced())
            GTEST_SKIP() << "this system does not let one process look at another";
        run(before_.path, "make", "");
        fs::copy(before_.path, after_.path, fs::copy_options::recursive);
        run(after_.path, GetParam(), "");
        stateBefore_ = stateOf(before_.path);
        stateAfter_ = stateOf(after_.path);
        ASSERT_NE(stateBefore_, stateAfter_);
    }

    static WorkerResult run(const fs::path& folder, std::string_view work, const std::string& injection)
    {
        return WorkerProcess({"attachments", folder.string(), std::string(work)},
            injection.empty() ? std::vector<std::string>() : std::vector{injection})
            .finish();
    }

    /// At each of its calls, or at every third one.
    static int stepWidth() { return Environment::current().variable("TARN_EVERY_CALL") ? 1 : 3; }

    /// Does the work once for each call that it makes, with `fault` at that call; how often the work was not done.
    int disturb(std::string_view fault) const
    {
        int failures = 0;
        for (const std::string_view call : kCalls) {
            int undisturbed = 0;
            for (int time = 1; undisturbed < 2 && !HasFailure(); time += stepWidth()) {
                const AttachmentFolder folder;
                copyWithDates(before_.path, folder.path);
                const WorkerResult result
                    = run(folder.path, GetParam(), fmt::format("inject={}:{}:when={}", call, fault, time));
                const bool isDone = result.signal == 0 && result.exitCode == 0;
                undisturbed = isDone ? undisturbed + 1 : 0;
                failures += !isDone;
                const std::string state = stateOf(folder.path);
                EXPECT_TRUE(isDone ? state == stateAfter_ : state == stateBefore_ || state == stateAfter_)
                    << "at " << call << " number " << time << "\n"
                    << result.output << state << "\nneither\n"
                    << stateBefore_ << "\nnor\n"
                    << stateAfter_;
            }
        }
        return failures;
    }

    AttachmentFolder before_;
    AttachmentFolder after_;
    std::string stateBefore_;
    std::string stateAfter_;
};

TEST_P(BrokenAttachmentWork, KilledAtAnyCallIsDoneOrUndone)
{
    EXPECT_GT(disturb("signal=KILL"), 10);
}

TEST_P(BrokenAttachmentWork, RefusedAtAnyCallIsDoneOrUndone)
{
    EXPECT_GT(disturb("error=ENOSPC"), 3);
}

INSTANTIATE_TEST_SUITE_P(Works, BrokenAttachmentWork, testing::ValuesIn(attachmentWorks()),
    [](const auto& work) { return std::string(work.param); });

} // namespace
} // namespace tarn
