// A save on a disk that refuses: the caller hears of it, the store stays as it was, the context keeps its changes, and
// the next save writes what the first one should have written.

#include "tarnmodel/files/OVLocalFileManager.h"
#include "tarnmodel/platform/coredata/rows/RowStore.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/store/OVCoreDataStack.h"
#include "tests/processes/KnownWorld.h"
#include "tests/processes/SharedStore.h"
#include "tests/processes/Workload.h"
#include "tests/support/FaultyDisk.h"
#include "tests/support/LogCapture.h"

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarn {
namespace {

using testing::AnyOf;
using testing::Eq;
using testing::IsEmpty;

/// A way to refuse, and what callers are told of it.
struct Refusal {
    std::string_view name;
    DiskFault fault;
    DiskFailure failure;
    std::array<long, 2> codes; ///< one of them
};
constexpr std::array kRefusals{
    Refusal{"FullOnce", DiskFault::Fails, DiskFailure::Full, {StoreErrorFull, StoreErrorFull}},
    Refusal{"FullFromThen", DiskFault::FailsFromNowOn, DiskFailure::Full, {StoreErrorFull, StoreErrorFull}},
    Refusal{"BrokenOnce", DiskFault::Fails, DiskFailure::Broken, {StoreErrorIO, StoreErrorCannotOpen}},
    Refusal{"BrokenFromThen", DiskFault::FailsFromNowOn, DiskFailure::Broken, {StoreErrorIO, StoreErrorCannotOpen}},
    Refusal{"ReadOnlyOnce", DiskFault::Fails, DiskFailure::ReadOnly, {StoreErrorReadOnly, StoreErrorIO}},
    Refusal{"ReadOnlyFromThen", DiskFault::FailsFromNowOn, DiskFailure::ReadOnly, {StoreErrorReadOnly, StoreErrorIO}},
};

std::ostream& operator<<(std::ostream& stream, const Refusal& refusal)
{
    return stream << refusal.name;
}

/// Who saves what on which disk.
using Case = std::tuple<Workload, StoreRole, Refusal>;

std::string nameOf(const testing::TestParamInfo<Case>& info)
{
    const auto& [workload, role, refusal] = info.param;
    return std::string(workload.name) + (role == StoreRole::Extension ? "OfAnExtension" : "")
        + std::string(refusal.name);
}

/// The next operation that is to fail: all of them in the long form, else all of the first ones, then some.
int operationAfter(int operation)
{
    const bool isNext = operation < 8 || Environment::current().variable("TARN_EVERY_FAULT");
    return operation + (isNext ? 1 : 9);
}

constexpr std::string_view kNewsLost = "Error while trying to save object from extension";

std::array<std::size_t, 3> countsOfChanges(const NSManagedObjectContext& context)
{
    return {context.insertedObjects().size(), context.updatedObjects().size(), context.deletedObjects().size()};
}

std::string withoutNews(const std::string& portrait)
{
    return portrait.substr(0, portrait.find("\nnews "));
}

class FailedSave : public testing::TestWithParam<Case> {
protected:
    FailedSave() : world_(2) { }

    const Workload& workload() const { return std::get<Workload>(GetParam()); }
    StoreRole role() const { return std::get<StoreRole>(GetParam()); }
    const Refusal& refusal() const { return std::get<Refusal>(GetParam()); }

    void SetUp() override
    {
        {
            SharedStore store(notebook_.file(), role());
            ASSERT_TRUE(store) << store.error();
            makeNotebook(store.context());
            NSError error;
            ASSERT_TRUE(store.context().save(&error)) << error;
        }
        contentsBefore_ = contents(notebook_);
        StoreFolder folder;
        folder.copyFrom(notebook_);
        SharedStore store(folder.file(), role());
        ASSERT_TRUE(store) << store.error();
        edit(store.context());
        NSError error;
        ASSERT_TRUE(store.context().save(&error)) << error;
        intended_ = portraitOf(store.context());
    }

    /// Every time with the same clock and the same random numbers.
    void edit(NSManagedObjectContext& context) const
    {
        const KnownWorld world(3);
        workload().edit(context);
    }

    /// Keys that were given out are not given again, also when the save failed.
    static std::string contents(const StoreFolder& folder) { return contentsOfStore(folder.file(), {"store_keys"}); }

    /// Saves one set of changes with a failure at operation `operation`, then at a later one, until a save succeeds.
    /// Gives the operation at which that was; 0 when nothing failed any more.
    int saveUntilItSucceeds(int operation, FaultyDisk& disk, LogCapture& log)
    {
        StoreFolder folder;
        folder.copyFrom(notebook_);
        bool isUndisturbed = false;
        bool areNewsLost = false;
        {
            SharedStore store(folder.file(), role(), 500);
            EXPECT_TRUE(store) << store.error();
            edit(store.context());
            for (; !trySave(operation, store, disk); operation = operationAfter(operation)) {
                ++failures_;
                log.take();
                EXPECT_TRUE(contents(folder) == contentsBefore_) << "something was written, at operation " << operation;
                if (HasFailure() || disk.failures() == 0)
                    return giveUp(operation);
            }
            isUndisturbed = disk.failures() == 0 && operation > disk.operations();
            for (const std::string& message : log.take()) {
                EXPECT_THAT(message, testing::StartsWith(kNewsLost));
                areNewsLost = true;
            }
        }
        SharedStore store(folder.file(), StoreRole::Reader);
        EXPECT_TRUE(store) << store.error();
        const std::string found = portraitOf(store.context());
        EXPECT_EQ(areNewsLost ? withoutNews(found) : found, areNewsLost ? withoutNews(intended_) : intended_)
            << "saved at operation " << operation;
        EXPECT_THAT(store.problems(), IsEmpty());
        return isUndisturbed ? 0 : operation;
    }

    static int giveUp(int operation)
    {
        ADD_FAILURE() << "gave up at operation " << operation;
        return 0;
    }

    bool trySave(int operation, SharedStore& store, FaultyDisk& disk) const
    {
        const auto changes = countsOfChanges(store.context());
        disk.arm(operation, refusal().fault, refusal().failure);
        NSError error;
        const bool saved = store.context().save(&error);
        disk.heal();
        EXPECT_NE(store.context().hasChanges(), saved);
        if (saved)
            return true;
        EXPECT_EQ(error.domain(), TarnStoreErrorDomain);
        EXPECT_THAT(error.code(), AnyOf(Eq(refusal().codes[0]), Eq(refusal().codes[1])))
            << error << " at operation " << operation;
        EXPECT_EQ(countsOfChanges(store.context()), changes) << "at operation " << operation;
        return false;
    }

    KnownWorld world_;
    StoreFolder notebook_;
    std::string contentsBefore_;
    std::string intended_;
    int failures_ = 0;
};

TEST_P(FailedSave, WritesNothingKeepsTheChangesAndSucceedsAfterwards)
{
    LogCapture log;
    FaultyDisk disk;
    for (int operation = 1; operation > 0;) {
        operation = saveUntilItSucceeds(operation, disk, log);
        ASSERT_FALSE(HasFailure());
        if (operation > 0)
            operation = operationAfter(operation);
    }
    EXPECT_GT(failures_, 2);
}

INSTANTIATE_TEST_SUITE_P(Disks, FailedSave,
    testing::Combine(testing::Values(*workloadNamed("OfEachAFew")),
        testing::Values(StoreRole::Application, StoreRole::Extension), testing::ValuesIn(kRefusals)),
    nameOf);

using UnclearCommit = FailedSave;

// The journal is gone, which is the commit, but syncing the folder failed: the system does not say how the save ended.
TEST_P(UnclearCommit, IsNotWrittenTwice)
{
    int last = 0;
    for (const bool isRehearsal : {true, false}) {
        StoreFolder folder;
        folder.copyFrom(notebook_);
        LogCapture log;
        FaultyDisk disk;
        SharedStore store(folder.file(), role(), 500);
        ASSERT_TRUE(store) << store.error();
        edit(store.context());
        disk.arm(isRehearsal ? 0 : last, DiskFault::FailsThoughDone, DiskFailure::Broken);
        NSError error;
        const bool saved = store.context().save(&error);
        last = disk.operations();
        EXPECT_TRUE(saved || !isRehearsal) << error;
        EXPECT_EQ(disk.failures(), isRehearsal ? 0 : 1);
        EXPECT_THAT(log.take(), testing::SizeIs(isRehearsal ? 0 : 1)) << "the caller may want to know";
        disk.heal();
        ASSERT_TRUE(store.context().save(&error)) << error;
        EXPECT_EQ(portraitOf(store.context()), intended_);
    }
}

INSTANTIATE_TEST_SUITE_P(Disks, UnclearCommit,
    testing::Combine(testing::Values(*workloadNamed("OneNote"), *workloadNamed("OfEachAFew")),
        testing::Values(StoreRole::Application, StoreRole::Extension),
        testing::Values(Refusal{"", DiskFault::FailsThoughDone, DiskFailure::Broken, {}})),
    nameOf);

/// Hears of saves that failed.
struct Listener : OVCoreDataStackDelegate {
    void coreDataStackDidFailToInitializeManagedObjectContext(OVCoreDataStack&, const NSError& error) override
    {
        ADD_FAILURE() << error;
    }
    void coreDataStackDidFailToSave(OVCoreDataStack&, const NSError& error) override { codes.push_back(error.code()); }
    std::vector<long> codes;
};

// Nobody waits for the answer of a coalesced save: its failure goes to the log and the delegate, and the next one
// writes.
TEST(StackOnAFullDisk, TellsOfACoalescedSaveThatFailedAndSavesTheNextTime)
{
    const StoreFolder folder;
    OVLocalFileManager::setApplicationPersistentDataTestURL(folder.file().parent_path());
    LogCapture log;
    FaultyDisk disk;
    MainQueue& queue = MainQueue::main();
    {
        Listener listener;
        OVCoreDataStack stack;
        stack.setupStackWithDelegate(&listener);
        ASSERT_TRUE(stack.managedObjectContext());
        OVNote::noteWithText("# Pears", *stack.managedObjectContext());
        stack.saveUsingCoalescence(true);
        disk.arm(1, DiskFault::FailsFromNowOn, DiskFailure::Full);
        queue.drain();
        EXPECT_THAT(listener.codes, testing::ElementsAre(StoreErrorFull));
        EXPECT_THAT(log.take(), testing::SizeIs(1));
        EXPECT_TRUE(stack.managedObjectContext()->hasChanges());

        disk.heal();
        stack.saveUsingCoalescence(true);
        queue.drain();
        EXPECT_FALSE(stack.managedObjectContext()->hasChanges());
        EXPECT_THAT(listener.codes, testing::SizeIs(1));
    }
    OVLocalFileManager::setApplicationPersistentDataTestURL(std::nullopt);
    SharedStore store(folder.file(), StoreRole::Reader);
    ASSERT_TRUE(store) << store.error();
    EXPECT_TRUE(OVNote::noteWithTitle("Pears", store.context()));
    EXPECT_THAT(log.take(), IsEmpty());
}

class NewStore : public testing::TestWithParam<Refusal> { };

TEST_P(NewStore, IsMadeByTheNextProcessWhenTheDiskRefused)
{
    FaultyDisk disk;
    int failures = 0;
    bool isUndisturbed = false;
    for (int operation = 1; !isUndisturbed; operation = operationAfter(operation)) {
        SCOPED_TRACE(testing::Message() << "operation " << operation);
        StoreFolder folder;
        disk.arm(operation, GetParam().fault, GetParam().failure);
        {
            const SharedStore refused(folder.file(), StoreRole::Application, 500);
            if (!refused) {
                ++failures;
                EXPECT_THAT(refused.error().code(), AnyOf(Eq(GetParam().codes[0]), Eq(GetParam().codes[1])))
                    << refused.error();
            }
        }
        isUndisturbed = disk.failures() == 0 && operation > disk.operations();
        disk.heal();
        SharedStore store(folder.file(), StoreRole::Application, 500);
        ASSERT_TRUE(store) << store.error();
        EXPECT_THAT(store.problems(), IsEmpty());
        OVNote::noteWithText("# First", store.context());
        NSError error;
        EXPECT_TRUE(store.context().save(&error)) << error;
    }
    EXPECT_GT(failures, 2);
}

INSTANTIATE_TEST_SUITE_P(Disks, NewStore, testing::ValuesIn(kRefusals),
    [](const testing::TestParamInfo<Refusal>& refusal) { return std::string(refusal.param.name); });

} // namespace
} // namespace tarn
