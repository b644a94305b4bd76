#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Two contexts on one store: `context_` hears of what `other_` saves.
class RemoteMergeTest : public ContextTest {
protected:
    void SetUp() override
    {
        ContextTest::SetUp();
        other_ = contextOn(coordinator_);
    }
    void TearDown() override
    {
        other_.reset();
        ContextTest::TearDown();
    }

    /// The record as the other context sees it.
    NSManagedObject& there(const NSManagedObject& record) { return *other_->existingObjectWithID(record.objectID()); }

    void saveThere()
    {
        NSError error;
        ASSERT_TRUE(other_->save(&error)) << error;
    }

    /// Merges, and answers what observers heard; every merge tells at most once.
    ObjectChanges merge(const RemoteChanges& changes)
    {
        ObjectChanges told;
        int calls = 0;
        const auto subscription
            = NSNotificationCenter::defaultCenter().addObserver(NSManagedObjectContextObjectsDidChangeNotification,
                context_.get(), [&](const NSNotification& notification) {
                    told = *notification.userInfoAs<ObjectChanges>();
                    ++calls;
                });
        NSManagedObjectContext* const contexts[] = {context_.get()};
        NSManagedObjectContext::mergeChangesFromRemoteContextSave(changes, contexts);
        EXPECT_LE(calls, 1);
        return told;
    }

    std::unique_ptr<NSManagedObjectContext> other_;
};
INSTANTIATE_TEST_SUITE_P(
    Stores, RemoteMergeTest, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(RemoteMergeTest, BringsCleanRecordsUpToDate)
{
    NSManagedObject& seen = book("before");
    seen.setValueForKey("body", Value("before, too"));
    save();
    there(seen).setValueForKey("title", Value("after"));
    there(seen).setValueForKey("body", Value("after, too"));
    saveThere();
    ASSERT_EQ(text(seen, "title"), "before");

    const ObjectChanges told = merge({{}, {seen.objectID()}, {}});

    EXPECT_EQ(text(seen, "title"), "after");
    EXPECT_EQ(text(seen, "body"), "after, too");
    EXPECT_THAT(told.refreshed, ElementsAre(&seen));
    EXPECT_THAT(told.updated, IsEmpty());
    EXPECT_FALSE(context_->hasChanges());
}

TEST_P(RemoteMergeTest, LeavesUnsavedChangesOnTop)
{
    NSManagedObject& seen = book("before", 1);
    save();
    there(seen).setValueForKey("pages", Value(2));
    there(seen).setValueForKey("code", Value("theirs"));
    saveThere();
    seen.setValueForKey("pages", Value(3));
    context_->processPendingChanges();
    std::vector<std::string> conflicts;
    context_->setMergeConflictHandler([&](const MergeConflict& conflict) { conflicts = conflict.properties; });
    const LogSink former = setLogSink([](std::string_view) {});

    merge({{}, {seen.objectID()}, {}});
    setLogSink(former);

    EXPECT_EQ(seen.storedValueForKey("pages"), Value(3));
    EXPECT_EQ(text(seen, "code"), "theirs");
    EXPECT_THAT(conflicts, ElementsAre("pages"));
    EXPECT_THAT(context_->updatedObjects(), ElementsAre(&seen));
    save(); // on the new version: nothing conflicts any more
    restart();
    EXPECT_EQ(all("Book").at(0)->storedValueForKey("pages"), Value(3));
    EXPECT_EQ(text(*all("Book").at(0), "code"), "theirs");
}

TEST_P(RemoteMergeTest, KeepsATextTogetherWithWhatDerivesFromIt)
{
    NSManagedObject& seen = book("before");
    seen.setValueForKey("body", Value("before"));
    save();
    there(seen).setValueForKey("title", Value("theirs"));
    there(seen).setValueForKey("body", Value("theirs"));
    saveThere();
    seen.setValueForKey("body", Value("ours"));
    const LogSink former = setLogSink([](std::string_view) {});

    merge({{}, {seen.objectID()}, {}});
    setLogSink(former);

    EXPECT_EQ(text(seen, "body"), "ours");
    EXPECT_EQ(text(seen, "title"), "before");
}

TEST_P(RemoteMergeTest, ShowsInsertedRecords)
{
    NSManagedObject& inserted = other_->insertObject("Book");
    inserted.setValueForKey("title", Value("new"));
    saveThere();

    const ObjectChanges told = merge({{inserted.objectID()}, {}, {}});

    ASSERT_EQ(told.inserted.size(), 1U);
    EXPECT_EQ(text(*told.inserted.front(), "title"), "new");
    EXPECT_FALSE(told.inserted.front()->hasChanges());
    EXPECT_THAT(context_->insertedObjects(), IsEmpty());
    EXPECT_FALSE(context_->hasChanges());
}

TEST_P(RemoteMergeTest, TakesDeletedRecordsAwayForGood)
{
    NSManagedObject& seen = book("seen");
    NSManagedObject& place = shelf("place");
    set(seen, "shelves").add(place);
    save();
    ASSERT_THAT(set(place, "books").members(), ElementsAre(&seen));
    other_->deleteObject(there(seen));
    saveThere();

    const ObjectChanges told = merge({{}, {place.objectID()}, {seen.objectID()}});

    EXPECT_TRUE(seen.isDeleted());
    EXPECT_THAT(told.deleted, ElementsAre(&seen));
    EXPECT_THAT(context_->deletedObjects(), IsEmpty());
    EXPECT_THAT(set(place, "books").members(), IsEmpty());
    EXPECT_FALSE(context_->hasChanges());
    EXPECT_EQ(context_->objectRegisteredForID(seen.objectID()), nullptr);
}

TEST_P(RemoteMergeTest, OfADeletionDropsUnsavedChangesAndSaysSo)
{
    NSManagedObject& seen = book("seen");
    NSManagedObject& kept = book("kept");
    save();
    other_->deleteObject(there(seen));
    saveThere();
    seen.setValueForKey("title", Value("edited"));
    kept.setValueForKey("title", Value("edited"));
    std::vector<std::string> log;
    const LogSink former = setLogSink([&](std::string_view message) { log.emplace_back(message); });

    merge({{}, {}, {seen.objectID()}});
    setLogSink(former);

    ASSERT_EQ(log.size(), 1U);
    EXPECT_NE(log.front().find("its unsaved changes were dropped"), std::string::npos);
    EXPECT_THAT(context_->updatedObjects(), ElementsAre(&kept));
    save();
    restart();
    EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("edited"));
}

TEST_P(RemoteMergeTest, ClearsToOnesThatNameADeletedRecord)
{
    NSManagedObject& seen = book("seen");
    NSManagedObject& part = insert("Chapter");
    part.setToOneAt(part.entity().relationshipNamed("book")->index(), &seen);
    save();
    NSManagedObject& doomed = there(seen);
    set(doomed, "chapters").set({});
    other_->deleteObject(doomed);
    saveThere();

    merge({{}, {}, {seen.objectID()}});

    EXPECT_TRUE(part.storedValueForKey("book").isNil());
    EXPECT_FALSE(context_->hasChanges());
}

TEST_P(RemoteMergeTest, ReadsSetsAgainAndKeepsTheirUnsavedMembers)
{
    NSManagedObject& seen = book("seen");
    NSManagedObject& first = shelf("first");
    NSManagedObject& second = shelf("second");
    NSManagedObject& third = shelf("third");
    set(seen, "shelves").add(first);
    save();
    ASSERT_THAT(set(seen, "shelves").members(), ElementsAre(&first));
    ASSERT_THAT(set(second, "books").members(), IsEmpty());
    set(there(seen), "shelves").add(there(second));
    saveThere();
    set(seen, "shelves").add(third);
    ASSERT_THAT(set(seen, "shelves").members(), ElementsAre(&first, &third));

    merge({{}, {seen.objectID(), second.objectID()}, {}});

    EXPECT_THAT(set(seen, "shelves").members(), ElementsAre(&first, &second, &third));
    EXPECT_THAT(set(second, "books").members(), ElementsAre(&seen));
    save();
    restart();
    EXPECT_EQ(set(*all("Book").at(0), "shelves").count(), 3U);
}

TEST_P(RemoteMergeTest, PassesOverWhatIsNotHereAndWhatIsNotOfThisStore)
{
    NSManagedObject& known = book("known");
    save();
    const NSManagedObjectID never(known.objectID().store(), known.entity(), 4711);
    const NSManagedObjectID foreign(StoreIdentity::forUUID(newUUIDString()), known.entity(), known.objectID().key());
    NSManagedObject& unsaved = other_->insertObject("Book");

    const ObjectChanges told = merge({{never, foreign, unsaved.objectID(), {}}, {never, foreign}, {never, foreign}});

    EXPECT_THAT(told.inserted, IsEmpty());
    EXPECT_THAT(told.deleted, IsEmpty());
    EXPECT_EQ(text(known, "title"), "known");
}

TEST_P(RemoteMergeTest, LeavesARecordThatWaitsForItsDeletion)
{
    NSManagedObject& seen = book("before");
    save();
    there(seen).setValueForKey("title", Value("after"));
    saveThere();
    context_->deleteObject(seen);

    merge({{}, {seen.objectID()}, {}});

    EXPECT_THAT(context_->deletedObjects(), ElementsAre(&seen));
    context_->setMergePolicy(NSMergePolicy::MergeByPropertyObjectTrump);
    save();
    EXPECT_THAT(all("Book"), IsEmpty());
}

} // namespace
} // namespace tarn
