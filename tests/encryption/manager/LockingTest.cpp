#include "tarnmodel/encryption/keys/KeyArena.h"
#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/events/Queue.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tests/encryption/EncryptionFixture.h"

#include <atomic>
#include <thread>

namespace tarn {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;

class Locking : public EncryptionFixture {
protected:
    void SetUp() override
    {
        world_.setClock([this] { return present_.load(); });
        EncryptionFixture::SetUp();
    }
    void pass(std::chrono::microseconds time) { present_ = present_.load() + time; }
    /// What the manager has told since the last time.
    std::vector<std::string> takeNotices()
    {
        MainQueue::main().drain();
        return std::exchange(notices_, {});
    }
    void listen()
    {
        for (const auto name :
            {OVEncryptionCoreManagerDidUnlockNotification, OVEncryptionCoreManagerDidLockNotification})
            subscriptions_.push_back(NSNotificationCenter::defaultCenter().addObserver(
                name, manager.get(), [this](const NSNotification& notification) {
                    EXPECT_TRUE(MainQueue::main().isCurrent());
                    notices_.emplace_back(notification.name);
                }));
    }
    static void onAnotherThread(const std::function<void()>& work) { std::thread(work).join(); }

    std::atomic<NSDate> present_{dateWithMicrosecondsSince1970(1'700'000'000'000'000)};
    std::vector<std::string> notices_;
    std::vector<NSNotificationSubscription> subscriptions_;
};

const std::vector<std::string> kLocked{std::string(OVEncryptionCoreManagerDidLockNotification)};
const std::vector<std::string> kUnlocked{std::string(OVEncryptionCoreManagerDidUnlockNotification)};

TEST_F(Locking, ComesAfterTheTimeLimit)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    pass(minutes(5));
    EXPECT_FALSE(manager->isObjectLocked(note));
    pass(minutes(5) + seconds(1));
    EXPECT_TRUE(manager->isObjectLocked(note));
    EXPECT_EQ(manager->reasonForLock(note).code(), OVEncryptionErrorLocked);
}

TEST_F(Locking, IsPutOffByEachUse)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    for (int count = 0; count < 5; ++count) {
        pass(minutes(4));
        EXPECT_EQ(manager->textForNote(note, nullptr), "text");
    }
}

TEST_F(Locking, ComesWhenTheClockIsSetBack)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    pass(-seconds(3));
    EXPECT_FALSE(manager->isObjectLocked(note)) << "a correction";
    pass(-seconds(3));
    EXPECT_TRUE(manager->isObjectLocked(note));
}

TEST_F(Locking, IsNotPutOffByACorrectionOfTheClock)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    for (int count = 0; count < 2; ++count) {
        pass(-seconds(3));
        manager->isObjectLocked(note);
    }
    EXPECT_TRUE(manager->isObjectLocked(note));
}

TEST_F(Locking, DoesNotComeWithoutALimit)
{
    OVEncryptionOptions unlimited = options();
    unlimited.timeLimit = seconds(0);
    manager.reset();
    manager = std::make_unique<OVEncryptionCoreManager>(context(), unlimited);
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    pass(std::chrono::hours(10'000));
    EXPECT_FALSE(manager->isObjectLocked(note));
}

TEST_F(Locking, ComesByItselfAndIsTold)
{
    OVEncryptionOptions brief = options();
    brief.timeLimit = seconds(1);
    manager.reset();
    manager = std::make_unique<OVEncryptionCoreManager>(context(), brief);
    listen();
    world_.setClock([] {
        return dateWithSystemTime(
            std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now()));
    });
    passwordOf("secret");
    EXPECT_EQ(takeNotices(), kUnlocked);
    const std::size_t taken = KeyArena::shared()->freeSlots();
    EXPECT_TRUE(MainQueue::main().runUntil([&] { return !notices_.empty(); }, seconds(20)));
    EXPECT_EQ(notices_, kLocked);
    EXPECT_GT(KeyArena::shared()->freeSlots(), taken);
}

TEST_F(Locking, IsTold)
{
    listen();
    OVPassword& password = passwordOf("secret");
    EXPECT_EQ(takeNotices(), kUnlocked);
    manager->lock(password);
    EXPECT_EQ(takeNotices(), kLocked);
    manager->lock(password);
    manager->lock();
    EXPECT_EQ(takeNotices(), std::vector<std::string>()) << "nothing was unlocked";
    EXPECT_FALSE(manager->unlock(password, "wrong", nullptr));
    EXPECT_EQ(takeNotices(), std::vector<std::string>());
    EXPECT_TRUE(manager->unlock(password, "secret", nullptr));
    EXPECT_EQ(takeNotices(), kUnlocked);
    manager.reset();
    EXPECT_EQ(takeNotices(), kLocked);
}

TEST_F(Locking, ByAnotherThreadIsToldOnTheMainQueue)
{
    listen();
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    takeNotices();
    onAnotherThread([&] { manager->lock(); });
    EXPECT_TRUE(manager->isObjectLocked(note));
    EXPECT_EQ(notices_, std::vector<std::string>());
    EXPECT_EQ(takeNotices(), kLocked);
}

TEST_F(Locking, WipesEveryKey)
{
    const std::size_t before = KeyArena::shared()->freeSlots();
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    manager->textForNote(note, nullptr);
    EXPECT_LT(KeyArena::shared()->freeSlots(), before);
    manager->lock();
    EXPECT_EQ(KeyArena::shared()->freeSlots(), before);
}

TEST_F(Locking, WaitsForWhoHolds)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = protectedNote("text", password);
    const std::size_t before = KeyArena::shared()->freeSlots();
    auto hold = manager->holdUnlocked();
    manager->lock();
    EXPECT_EQ(manager->textForNote(note, nullptr), "text");
    EXPECT_TRUE(manager->hasCachedPassword(password));
    onAnotherThread([&] { EXPECT_TRUE(manager->isObjectLocked(note)); });
    hold.reset();
    EXPECT_TRUE(manager->isObjectLocked(note));
    EXPECT_GT(KeyArena::shared()->freeSlots(), before);
}

TEST_F(Locking, WaitsForTheLastHoldOfSeveral)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    auto one = manager->holdUnlocked();
    auto other = manager->holdUnlocked();
    manager->lock();
    one.reset();
    EXPECT_FALSE(manager->isObjectLocked(note));
    other.reset();
    EXPECT_TRUE(manager->isObjectLocked(note));
}

TEST_F(Locking, IsNotUndoneByALaterHold)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    auto elsewhere = std::shared_ptr<void>();
    onAnotherThread([&] { elsewhere = manager->holdUnlocked(); });
    manager->lock();
    const auto hold = manager->holdUnlocked();
    EXPECT_TRUE(manager->isObjectLocked(note));
}

TEST_F(Locking, ByTheTimeLimitWaitsForWhoHolds)
{
    PlainNote& note = protectedNote("text", passwordOf("secret"));
    auto hold = manager->holdUnlocked();
    pass(minutes(10));
    EXPECT_FALSE(manager->isObjectLocked(note));
    hold.reset();
    EXPECT_TRUE(manager->isObjectLocked(note));
}

TEST_F(Locking, MayOutliveItsManager)
{
    passwordOf("secret");
    auto hold = manager->holdUnlocked();
    const std::size_t taken = KeyArena::shared()->freeSlots();
    manager.reset();
    EXPECT_GT(KeyArena::shared()->freeSlots(), taken);
    hold.reset();
}

TEST_F(Locking, HappensWhileOthersRead)
{
    OVPassword& password = passwordOf("secret");
    PlainNote& note = protectedNote("text", password);
    std::atomic<bool> isOver = false;
    std::thread locker([&] {
        for (int count = 0; count < 200; ++count)
            manager->lock();
        isOver = true;
    });
    while (!isOver) {
        const auto text = manager->textForNote(note, nullptr);
        EXPECT_TRUE(!text || text == "text");
        EXPECT_TRUE(manager->unlock(password, "secret", nullptr));
    }
    locker.join();
}

TEST_F(Locking, EndsInTheBackground)
{
    OVPassword& password = passwordOf("secret");
    const PlainNote& note = protectedNote("text", password);
    manager->lock();
    std::vector<long> codes;
    const auto note_ = [&](const NSError& error) {
        EXPECT_TRUE(MainQueue::main().isCurrent());
        codes.push_back(error.code());
    };
    manager->unlockInBackground(password, "wrong", note_);
    manager->unlockInBackground(password, "", note_);
    EXPECT_TRUE(codes.empty());
    EXPECT_TRUE(MainQueue::main().runUntil([&] { return codes.size() == 2; }, seconds(20)));
    EXPECT_THAT(codes,
        testing::UnorderedElementsAre(long{OVEncryptionErrorWrongPassword}, long{OVEncryptionErrorNotAPassword}));
    EXPECT_TRUE(manager->isObjectLocked(note));
    codes.clear();
    manager->unlockInBackground(password, "secret", note_);
    EXPECT_TRUE(MainQueue::main().runUntil([&] { return !codes.empty(); }, seconds(20)));
    EXPECT_EQ(codes, std::vector<long>{0});
    EXPECT_FALSE(manager->isObjectLocked(note));
}

TEST_F(Locking, DoesNotEndForAManagerThatHasEnded)
{
    OVPassword& password = passwordOf("secret");
    manager->lock();
    long code = 0;
    manager->unlockInBackground(password, "secret", [&](const NSError& error) { code = error.code(); });
    manager.reset();
    EXPECT_TRUE(MainQueue::main().runUntil([&] { return code != 0; }, seconds(20)));
    EXPECT_EQ(code, OVEncryptionErrorLocked);
}

} // namespace
} // namespace tarn
