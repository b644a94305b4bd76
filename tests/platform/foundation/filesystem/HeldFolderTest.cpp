#include "tarnmodel/platform/foundation/filesystem/HeldFolder.h"

#include "tarnmodel/platform/foundation/values/NSError.h"
#include "tests/platform/foundation/filesystem/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <mutex>
#include <set>
#include <thread>

namespace tarn {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class Holding : public testing::Test, protected ScratchFolder { };

TEST_F(Holding, MakesAFolderForItsOwnerAlone)
{
    const auto held = HeldFolder::makeIn(folder(), "work-");
    ASSERT_TRUE(held);
    EXPECT_THAT(held->path().filename().string(), testing::StartsWith("work-"));
    struct stat state { };
    ASSERT_EQ(::stat(held->path().c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0700U);
    EXPECT_TRUE(HeldFolder::isHeld(held->path()));
    NSError error;
    EXPECT_FALSE(HeldFolder::makeIn(folder() / "missing", "work-", &error));
    EXPECT_EQ(error.domain(), NSPOSIXErrorDomain);
}

TEST_F(Holding, LeavesWhatIsHeldAloneAndTakesOverTheRest)
{
    auto held = HeldFolder::makeIn(folder(), "work-");
    std::filesystem::path left;
    {
        const auto leaving = HeldFolder::makeIn(folder(), "work-");
        left = leaving->path();
    }
    std::filesystem::create_directory(folder() / "other");
    write("work-file", "no folder");
    EXPECT_FALSE(HeldFolder::isHeld(left));
    {
        std::vector<HeldFolder> abandoned = HeldFolder::abandonedIn(folder(), "work-");
        ASSERT_THAT(abandoned, SizeIs(1));
        EXPECT_EQ(abandoned.front().path(), left);
        EXPECT_TRUE(HeldFolder::isHeld(left)) << "by who took it over";
        EXPECT_THAT(HeldFolder::abandonedIn(folder(), "work-"), IsEmpty());
        write(left.filename().string() + "/deep", "x");
        abandoned.front().remove();
    }
    EXPECT_FALSE(std::filesystem::exists(left));
    EXPECT_TRUE(std::filesystem::exists(held->path()));
    HeldFolder moved = std::move(*held);
    held.reset();
    EXPECT_TRUE(HeldFolder::isHeld(moved.path()));
    EXPECT_THAT(HeldFolder::abandonedIn(folder() / "missing", "work-"), IsEmpty());
}

// Who makes a folder holds it a moment later: whoever clears up meanwhile must not take it from under his feet.
TEST_F(Holding, IsNeverOfTwoAtOnce)
{
    std::atomic<bool> isDone = false;
    std::thread clearing([&] {
        while (!isDone)
            for (HeldFolder& abandoned : HeldFolder::abandonedIn(folder(), "work-"))
                abandoned.remove();
    });
    for (int round = 0; round < 2'000; ++round) {
        const auto held = HeldFolder::makeIn(folder(), "work-");
        ASSERT_TRUE(held);
        ASSERT_TRUE(std::filesystem::exists(held->path())) << round;
    }
    isDone = true;
    clearing.join();
}

} // namespace
} // namespace tarn
