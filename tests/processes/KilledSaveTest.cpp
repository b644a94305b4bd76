// A process may die at any moment of a save: what it leaves is the store from before or the one from after, whole, with
// a change log that says the same, and nobody has to wait for the dead.

#include "tarnmodel/model/OVChange.h"
#include "tarnmodel/model/OVChangeItem.h"
#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tests/processes/KnownWorld.h"
#include "tests/processes/SharedStore.h"
#include "tests/processes/Worker.h"
#include "tests/processes/Workload.h"
#include "tests/support/FaultyDisk.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <set>

namespace tarn {
namespace {

using testing::IsEmpty;

constexpr std::array kDeaths{DiskFault::KilledBefore, DiskFault::KilledHalfway, DiskFault::KilledAfter};

std::string nameOfCase(const testing::TestParamInfo<Workload>& workload)
{
    return std::string(workload.param.name);
}

/// A moment in the life of a process.
struct Death {
    int operation = 0;
    DiskFault fault = DiskFault::None;
};

std::ostream& operator<<(std::ostream& stream, const Death& death)
{
    constexpr std::array<std::string_view, 4> names{"never", "before", "half-way through", "after"};
    return stream << "killed " << names[static_cast<std::size_t>(death.fault)] << " operation " << death.operation;
}

WorkerResult runSave(const StoreFolder& folder, std::string_view workload, const Death& death)
{
    return WorkerProcess({"save", folder.file().string(), std::string(workload),
                             std::to_string(static_cast<int>(death.fault)), std::to_string(death.operation)})
        .finish();
}
WorkerResult runOpen(const StoreFolder& folder, const Death& death)
{
    return WorkerProcess({"open", folder.file().string(), std::to_string(static_cast<int>(death.fault)),
                             std::to_string(death.operation)})
        .finish();
}

void makeNotebookIn(const StoreFolder& folder)
{
    const KnownWorld world(1);
    SharedStore store(folder.file(), StoreRole::Extension);
    ASSERT_TRUE(store) << store.error();
    makeNotebook(store.context());
    NSError error;
    ASSERT_TRUE(store.context().save(&error)) << error;
}

/// "OVNote 1234..." and "OVNote 1234... deleted" for each syncable record that a save has changed.
std::vector<std::string> namesOf(const ObjectChanges& changes)
{
    std::vector<std::string> names;
    const auto add = [&names](const std::vector<NSManagedObject*>& records, std::string_view suffix) {
        for (const NSManagedObject* record : records)
            if (OVChange::isObjectSyncable(*record))
                names.push_back(record->entity().name() + ' ' + record->storedValueForKey("uniqueIdentifier").asString()
                    + std::string(suffix));
    };
    add(changes.inserted, "");
    add(changes.updated, "");
    add(changes.deleted, " deleted");
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> namesOf(const OVChange& change)
{
    std::vector<std::string> names;
    for (const OVChangeItem* item : change.itemsSet().allObjects())
        names.push_back(item->itemEntity().value_or("-") + ' ' + item->uniqueIdentifier().value_or("-")
            + (item->itemDeletedValue() ? " deleted" : ""));
    std::sort(names.begin(), names.end());
    return names;
}

/// A process that only reads brings back an unfinished save as well.
void expectReadableStore(const StoreFolder& folder)
{
    SharedStore store(folder.file(), StoreRole::Reader, 500);
    ASSERT_TRUE(store) << store.error();
    EXPECT_GT(OVNote::allNotesInManagedObjectContext(store.context()).size(), 0U);
}

/// The store is sound, and the next save neither waits nor fails.
void expectSoundStore(const StoreFolder& folder)
{
    const KnownWorld world(4);
    SharedStore store(folder.file(), StoreRole::Extension, 500);
    ASSERT_TRUE(store) << store.error();
    EXPECT_THAT(store.problems(), IsEmpty());
    const OVNote* note = OVNote::noteWithText("# After the death", store.context());
    NSError error;
    ASSERT_TRUE(store.context().save(&error)) << error;
    const OVChange* change = OVChange::latestChangeInManagedObjectContext(store.context());
    ASSERT_TRUE(change);
    EXPECT_THAT(namesOf(*change), testing::ElementsAre("OVNote " + note->uniqueIdentifier().value()));
    EXPECT_THAT(folder.otherFiles(), IsEmpty()) << "no journal is left";
}

class KilledSave : public testing::TestWithParam<Workload> {
protected:
    void SetUp() override
    {
        makeNotebookIn(before_);
        contentsBefore_ = contentsOfStore(before_.file());
        after_.copyFrom(before_);
        saveHere();
        contentsAfter_ = contentsOfStore(after_.file());
    }

    /// The save as it should be, in this process; its change log names each record of it once.
    void saveHere()
    {
        const KnownWorld world(2);
        FaultyDisk disk;
        SharedStore store(after_.file(), StoreRole::Extension);
        ASSERT_TRUE(store) << store.error();
        std::vector<std::string> saved;
        const auto subscription = NSNotificationCenter::defaultCenter().addObserver(
            NSManagedObjectContextDidSaveNotification, &store.context(), [&saved](const NSNotification& notification) {
                saved = namesOf(*notification.userInfoAs<ObjectChanges>());
            });
        GetParam().edit(store.context());
        disk.arm(0, DiskFault::None);
        NSError error;
        ASSERT_TRUE(store.context().save(&error)) << error;
        operations_ = disk.operations();
        ASSERT_FALSE(saved.empty());
        EXPECT_EQ(namesOf(*OVChange::latestChangeInManagedObjectContext(store.context())), saved);
        EXPECT_EQ(std::set<std::string>(saved.begin(), saved.end()).size(), saved.size());
    }

    /// Moments all over the save; its first and its last operation are always among them.
    std::vector<Death> deaths() const
    {
        int total = 40;
        if (const auto given = Environment::current().variable("TARN_KILLS"))
            std::from_chars(given->data(), given->data() + given->size(), total);
        const int count = std::max(4, 1 + total / static_cast<int>(workloads().size()));
        std::vector<Death> deaths{{1, DiskFault::KilledBefore}, {operations_, DiskFault::KilledBefore},
            {operations_, DiskFault::KilledAfter}};
        std::mt19937 random(seed);
        for (int index = static_cast<int>(deaths.size()); index < count; ++index) {
            const int first = 1 + index * operations_ / count;
            const int last = std::max(first, (index + 1) * operations_ / count);
            deaths.push_back({first + static_cast<int>(random() % static_cast<unsigned>(last - first + 1)),
                kDeaths[random() % kDeaths.size()]});
        }
        return deaths;
    }

    static constexpr unsigned seed = 20'240'611;
    StoreFolder before_;
    StoreFolder after_;
    std::string contentsBefore_;
    std::string contentsAfter_;
    int operations_ = 0;
};

TEST_P(KilledSave, LeavesTheStoreFromBeforeOrTheOneFromAfter)
{
    RecordProperty("seed", static_cast<int>(seed));
    int foundBefore = 0;
    int foundAfter = 0;
    for (const Death& death : deaths()) {
        SCOPED_TRACE(testing::Message() << death << " of " << operations_ << ", seed " << seed);
        StoreFolder folder;
        folder.copyFrom(before_);
        const WorkerResult result = runSave(folder, GetParam().name, death);
        ASSERT_EQ(result.signal, SIGKILL) << result.output;
        expectReadableStore(folder);
        const std::string contents = contentsOfStore(folder.file());
        foundBefore += contents == contentsBefore_;
        foundAfter += contents == contentsAfter_;
        EXPECT_TRUE(contents == contentsBefore_ || contents == contentsAfter_) << "neither the one nor the other";
        expectSoundStore(folder);
    }
    EXPECT_GT(foundBefore, 0);
    EXPECT_GT(foundAfter, 0);
}

TEST_P(KilledSave, IsTheSameSaveInEachProcess)
{
    StoreFolder folder;
    folder.copyFrom(before_);
    const WorkerResult result = runSave(folder, GetParam().name, {});
    EXPECT_EQ(result.exitCode, 0) << result.output;
    EXPECT_EQ(result.output, std::to_string(operations_));
    EXPECT_EQ(contentsOfStore(folder.file()), contentsAfter_);
}

INSTANTIATE_TEST_SUITE_P(Workloads, KilledSave, testing::ValuesIn(workloads().begin(), workloads().end()), nameOfCase);

class KilledRecovery : public KilledSave { };

// Who brings back the store from before may die at that as well.
TEST_P(KilledRecovery, IsDoneAgainByTheNextProcess)
{
    StoreFolder halfway;
    halfway.copyFrom(before_);
    // The last operation takes the journal away: without it, all pages are written and have to be taken back.
    ASSERT_EQ(runSave(halfway, GetParam().name, {operations_, DiskFault::KilledBefore}).signal, SIGKILL);
    ASSERT_THAT(halfway.otherFiles(), testing::ElementsAre("database.sqlite-journal"));
    StoreFolder recovered;
    recovered.copyFrom(halfway);
    const WorkerResult whole = runOpen(recovered, {});
    ASSERT_EQ(whole.exitCode, 0) << whole.output;
    const int steps = std::stoi(whole.output);
    ASSERT_GT(steps, 3);
    for (int part = 0; part < 4; ++part) {
        const Death death{1 + part * (steps - 1) / 3, kDeaths[static_cast<std::size_t>(part) % kDeaths.size()]};
        SCOPED_TRACE(testing::Message() << "bringing back, " << death << " of " << steps);
        StoreFolder folder;
        folder.copyFrom(halfway);
        ASSERT_EQ(runOpen(folder, death).signal, SIGKILL);
        EXPECT_TRUE(contentsOfStore(folder.file()) == contentsBefore_);
        expectSoundStore(folder);
    }
}

INSTANTIATE_TEST_SUITE_P(Workloads, KilledRecovery,
    testing::Values(*workloadNamed("TwoHundredNotes"), *workloadNamed("Deletions")), nameOfCase);

TEST(KilledMakingOfAStore, IsDoneAgainByTheNextProcess)
{
    StoreFolder rehearsal;
    const WorkerResult whole = runOpen(rehearsal, {});
    ASSERT_EQ(whole.exitCode, 0) << whole.output;
    const int steps = std::stoi(whole.output);
    ASSERT_GT(steps, 10);
    for (int part = 0; part < 8; ++part) {
        const Death death{1 + part * (steps - 1) / 7, kDeaths[static_cast<std::size_t>(part) % kDeaths.size()]};
        SCOPED_TRACE(testing::Message() << death << " of " << steps);
        StoreFolder folder;
        ASSERT_EQ(runOpen(folder, death).signal, SIGKILL);
        expectSoundStore(folder);
    }
}

} // namespace
} // namespace tarn
