#include "tarnmodel/encryption/keys/KeyArena.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/foundation/values/NSError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace tarn {
namespace {

bool refuseToLock(std::span<std::byte>)
{
    return false;
}

bool isZero(std::span<const std::byte> bytes)
{
    return std::ranges::all_of(bytes, [](std::byte byte) { return byte == std::byte{0}; });
}

TEST(KeyArena, GivesZeroesThatNobodyElseHas)
{
    const auto arena = std::make_shared<KeyArena>(128);
    const auto one = arena->take(32, nullptr);
    const auto other = arena->take(32, nullptr);
    EXPECT_TRUE(isZero(one->span()));
    EXPECT_GE(std::abs(one->span().data() - other->span().data()), 32);
}

TEST(KeyArena, WipesWhatIsGivenBackAndGivesItAgain)
{
    const auto arena = std::make_shared<KeyArena>(KeyArena::slotSize);
    auto one = arena->take(32, nullptr);
    const std::byte* const place = one->span().data();
    std::ranges::fill(one->span(), std::byte{7});
    one.reset();
    EXPECT_TRUE(isZero({place, 32}));
    EXPECT_EQ(arena->take(20, nullptr)->span().data(), place);
}

TEST(KeyArena, TellsThatItIsFull)
{
    const auto arena = std::make_shared<KeyArena>(64);
    const auto one = arena->take(33, nullptr);
    NSError error;
    EXPECT_FALSE(arena->take(1, &error));
    EXPECT_EQ(error.code(), OVEncryptionErrorOutOfMemory);
    EXPECT_EQ(arena->freeSlots(), 0U);
}

TEST(KeyArena, HasRoomOnlyInOnePiece)
{
    const auto arena = std::make_shared<KeyArena>(96);
    auto first = arena->take(32, nullptr);
    const auto middle = arena->take(32, nullptr);
    first.reset();
    EXPECT_FALSE(arena->take(64, nullptr));
    EXPECT_TRUE(arena->take(32, nullptr));
}

TEST(KeyArena, KeepsWhatWasMoved)
{
    const auto arena = std::make_shared<KeyArena>(64);
    auto one = arena->take(32, nullptr);
    one->span()[0] = std::byte{5};
    const SecretBytes moved = std::move(*one);
    one.reset();
    EXPECT_EQ(moved.span()[0], std::byte{5});
    EXPECT_EQ(arena->freeSlots(), 1U);
}

TEST(KeyArena, SaysWhenTheSystemLocksNoMemory)
{
    const auto arena = std::make_shared<KeyArena>(64, refuseToLock);
    EXPECT_FALSE(arena->isLocked());
    EXPECT_TRUE(arena->take(32, nullptr));
}

TEST(KeyArena, ServesManyThreads)
{
    const auto arena = std::make_shared<KeyArena>(KeyArena::defaultSize);
    const auto work = [&](std::byte mark) {
        for (int round = 0; round < 500; ++round) {
            auto bytes = arena->take(40, nullptr);
            std::ranges::fill(bytes->span(), mark);
            EXPECT_TRUE(std::ranges::all_of(bytes->span(), [&](std::byte byte) { return byte == mark; }));
        }
    };
    std::vector<std::thread> threads;
    for (int number = 1; number <= 4; ++number)
        threads.emplace_back(work, static_cast<std::byte>(number));
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(arena->freeSlots(), KeyArena::defaultSize / KeyArena::slotSize);
}

} // namespace
} // namespace tarn
