#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <thread>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A child on the main queue, so that a test can walk both step by step.
class ChildContext : public ContextTest {
protected:
    void SetUp() override
    {
        ContextTest::SetUp();
        makeChild();
    }
    void TearDown() override
    {
        child_.reset();
        ContextTest::TearDown();
    }
    void makeChild()
    {
        child_ = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
        child_->setParentContext(*context_);
    }
    void saveChild()
    {
        NSError error;
        ASSERT_TRUE(child_->save(&error)) << error;
    }
    NSManagedObject& there(const NSManagedObject& record)
    {
        NSManagedObject* found = child_->existingObjectWithID(record.objectID());
        EXPECT_TRUE(found);
        return *found;
    }
    std::vector<NSManagedObject*> findThere(std::string_view entity, const NSPredicate& predicate,
        std::vector<NSSortDescriptor> order = {}, std::size_t limit = 0)
    {
        NSFetchRequest request(*model_->entityNamed(entity));
        request.predicate = predicate;
        request.sortDescriptors = std::move(order);
        request.fetchLimit = limit;
        NSError error;
        auto found = child_->fetch(request, &error);
        EXPECT_TRUE(found) << error;
        return found.value_or(std::vector<NSManagedObject*>());
    }
    std::vector<std::string> titlesThere(std::string_view format)
    {
        return texts(findThere("Book", NSPredicate::predicateWithFormat(format), {{"title", true}}), "title");
    }

    std::unique_ptr<NSManagedObjectContext> child_;
};
INSTANTIATE_TEST_SUITE_P(Stores, ChildContext, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(ChildContext, ReadsWhatItsParentHasNotSaved)
{
    NSManagedObject& stored = book("stored", 1);
    NSManagedObject& doomed = book("doomed", 1);
    book("untouched", 1);
    save();
    stored.setValueForKey("title", Value("changed"));
    stored.setValueForKey("body", Value("changed, too"));
    context_->deleteObject(doomed);
    book("new", 1);
    context_->processPendingChanges();

    EXPECT_THAT(titlesThere("pages == 1"), ElementsAre("changed", "new", "untouched"));
    EXPECT_THAT(titlesThere("title == 'stored'"), IsEmpty());
    EXPECT_THAT(titlesThere("body CONTAINS[cd] 'TOO'"), ElementsAre("changed"));
    EXPECT_EQ(text(there(stored), "body"), "changed, too");
    EXPECT_FALSE(child_->existingObjectWithID(doomed.objectID()));
    EXPECT_EQ(child_->countForFetchRequest(NSFetchRequest(*model_->entityNamed("Book"))), 3U);
}

TEST_P(ChildContext, SeesChangesOfItsParentOnceTheyAreProcessed)
{
    NSManagedObject& one = book("one");
    EXPECT_THAT(titlesThere("TRUEPREDICATE"), IsEmpty());
    context_->processPendingChanges();
    EXPECT_THAT(titlesThere("TRUEPREDICATE"), ElementsAre("one"));
    save();
    EXPECT_THAT(titlesThere("TRUEPREDICATE"), ElementsAre("one"));
    one.setValueForKey("title", Value("two"));
    context_->rollback();
    EXPECT_THAT(titlesThere("TRUEPREDICATE"), ElementsAre("one"));
}

TEST_P(ChildContext, SortsAndLimitsOverBoth)
{
    for (const char* title : {"b", "d", "f", "h"})
        book(title);
    save();
    book("a");
    book("e");
    all("Book").at(1)->setValueForKey("title", Value("z"));
    context_->processPendingChanges();

    EXPECT_THAT(
        texts(findThere("Book", NSPredicate::predicateWithFormat("TRUEPREDICATE"), {{"title", true}}, 4), "title"),
        ElementsAre("a", "b", "e", "f"));
    EXPECT_THAT(
        texts(findThere("Book", NSPredicate::predicateWithFormat("TRUEPREDICATE"), {{"title", false}}, 2), "title"),
        ElementsAre("z", "h"));
}

TEST_P(ChildContext, ReachesAlongPathsToWhatItsParentChanged)
{
    NSManagedObject& one = book("one");
    NSManagedObject& two = book("two");
    NSManagedObject& place = shelf("old");
    set(one, "shelves").add(place);
    set(book("three"), "shelves").add(place); // itself unchanged afterwards
    save();
    place.setValueForKey("name", Value("new"));
    set(two, "shelves").add(place);
    NSManagedObject& part = insert("Chapter");
    part.setValueForKey("heading", Value("first"));
    set(one, "chapters").add(part);
    context_->processPendingChanges();

    EXPECT_THAT(titlesThere("ANY shelves.name == 'new'"), ElementsAre("one", "three", "two"));
    EXPECT_THAT(titlesThere("ANY shelves.name == 'old'"), IsEmpty());
    EXPECT_THAT(titlesThere("ANY chapters.heading == 'first'"), ElementsAre("one"));
    EXPECT_EQ(set(there(place), "books").count(), 3U);
    EXPECT_THAT(texts(set(there(one), "chapters").members(), "heading"), ElementsAre("first"));
    set(one, "shelves").remove(place);
    context_->processPendingChanges();
    makeChild();
    EXPECT_THAT(titlesThere("ANY shelves.name == 'new'"), ElementsAre("three", "two"));
}

TEST_P(ChildContext, SavesIntoItsParentAndNoFurther)
{
    NSManagedObject& seen = book("before");
    NSManagedObject& doomed = book("doomed");
    save();
    there(seen).setValueForKey("title", Value("after"));
    child_->deleteObject(there(doomed));
    NSManagedObject& made = child_->insertObject("Book");
    made.setValueForKey("title", Value("made"));
    set(there(seen), "shelves").add(child_->insertObject("Shelf"));
    EXPECT_EQ(text(seen, "title"), "before");

    saveChild();

    EXPECT_EQ(text(seen, "title"), "after");
    EXPECT_TRUE(doomed.isDeleted());
    EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("after", "made"));
    EXPECT_EQ(set(seen, "shelves").count(), 1U);
    EXPECT_TRUE(context_->hasChanges());
    EXPECT_FALSE(child_->hasChanges());
    const auto stranger = contextOn(coordinator_);
    EXPECT_EQ(stranger->countForFetchRequest(NSFetchRequest(*model_->entityNamed("Book"))), 2U) << "not stored yet";
    EXPECT_EQ(text(*stranger->existingObjectWithID(seen.objectID()), "title"), "before");
    save();
    restart();
    EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("after", "made"));
    EXPECT_EQ(set(*all("Book").at(0), "shelves").count(), 1U);
}

TEST_P(ChildContext, TellsObserversOfItsParent)
{
    NSManagedObject& seen = book("before");
    save();
    int changes = 0;
    std::vector<std::string> keys;
    const auto observation
        = seen.addObserver("title", [&](NSManagedObject&, std::string_view key) { keys.emplace_back(key); });
    const auto subscription = NSNotificationCenter::defaultCenter().addObserver(
        NSManagedObjectContextObjectsDidChangeNotification, context_.get(), [&](const NSNotification& notification) {
            ++changes;
            EXPECT_THAT(notification.userInfoAs<ObjectChanges>()->updated, ElementsAre(&seen));
            EXPECT_EQ(notification.userInfoAs<ObjectChanges>()->inserted.size(), 1U);
        });
    there(seen).setValueForKey("title", Value("after"));
    child_->insertObject("Book");
    saveChild();

    EXPECT_EQ(changes, 1);
    EXPECT_THAT(keys, ElementsAre("title"));
}

TEST_P(ChildContext, KeepsWhatItsParentChangedMeanwhile)
{
    NSManagedObject& seen = book("before", 1);
    save();
    NSManagedObject& same = there(seen);
    same.setValueForKey("pages", Value(2));
    seen.setValueForKey("code", Value("parent's"));
    context_->processPendingChanges();
    saveChild();

    EXPECT_EQ(seen.storedValueForKey("pages"), Value(2));
    EXPECT_EQ(text(seen, "code"), "parent's");
    EXPECT_EQ(text(same, "code"), "parent's");
    same.setValueForKey("pages", Value(3)); // again, while the parent has not saved
    saveChild();
    EXPECT_EQ(seen.storedValueForKey("pages"), Value(3));
}

/// The parent has not processed its change when the child has caught up and begins to write.
TEST_P(ChildContext, MeetsWhatItsParentChangesDuringTheSave)
{
    struct Case {
        NSMergePolicy policy;
        int expected;
        MergeSide loser;
        int lost;
    };
    for (const auto& [policy, expected, loser, lost] :
        {Case{NSMergePolicy::MergeByPropertyStoreTrump, 3, MergeSide::Context, 2},
            Case{NSMergePolicy::MergeByPropertyObjectTrump, 2, MergeSide::Store, 3}}) {
        SCOPED_TRACE(expected);
        NSManagedObject& seen = book("before", 1);
        save();
        child_->setMergePolicy(policy);
        std::vector<MergeConflict> conflicts;
        child_->setMergeConflictHandler([&](const MergeConflict& conflict) { conflicts.push_back(conflict); });
        NSManagedObject& same = there(seen);
        same.setValueForKey("pages", Value(2));
        const auto willSave = NSNotificationCenter::defaultCenter().addObserver(
            NSManagedObjectContextWillSaveNotification, child_.get(), [&](const NSNotification&) {
                seen.setValueForKey("pages", Value(3));
                seen.setValueForKey("code", Value("parent's"));
            });
        const LogSink former = setLogSink([](std::string_view) {});
        saveChild();
        setLogSink(former);

        EXPECT_EQ(seen.storedValueForKey("pages"), Value(expected));
        EXPECT_EQ(same.storedValueForKey("pages"), Value(expected));
        EXPECT_EQ(text(seen, "code"), "parent's");
        EXPECT_EQ(text(same, "code"), "parent's");
        ASSERT_EQ(conflicts.size(), 1U);
        EXPECT_EQ(conflicts[0].loser, loser);
        EXPECT_EQ(conflicts[0].lostValues.at("pages"), Value(lost));
        EXPECT_FALSE(child_->hasChanges());
    }
}

TEST_P(ChildContext, KeepsATextTogetherWithWhatDerivesFromIt)
{
    NSManagedObject& seen = book("before");
    seen.setValueForKey("body", Value("before"));
    save();
    NSManagedObject& same = there(seen);
    same.setValueForKey("body", Value("child's"));
    same.setValueForKey("title", Value("child's"));
    seen.setValueForKey("body", Value("parent's"));
    seen.setValueForKey("title", Value("parent's"));
    context_->processPendingChanges();
    const LogSink former = setLogSink([](std::string_view) {});
    saveChild();
    setLogSink(former);

    EXPECT_EQ(text(seen, "title"), text(seen, "body"));
    EXPECT_EQ(text(seen, "title"), "child's");
}

TEST_P(ChildContext, LetsARecordGoThatItsParentDeleted)
{
    NSManagedObject& seen = book("before");
    save();
    there(seen).setValueForKey("title", Value("after"));
    context_->deleteObject(seen);
    context_->processPendingChanges();
    const LogSink former = setLogSink([](std::string_view) {});
    saveChild();
    setLogSink(former);
    save();
    EXPECT_THAT(all("Book"), IsEmpty());
}

TEST_P(ChildContext, WorksOnAQueueOfItsOwnWhileItsParentIsUsed)
{
    book("first");
    save();
    NSManagedObjectContext background(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    background.setParentContext(*context_);
    constexpr int kBatches = 5;
    constexpr int kBooks = 40;
    std::atomic<bool> isDone = false;
    background.performBlock([&] {
        for (int batch = 0; batch < kBatches; ++batch) {
            for (int number = 0; number < kBooks; ++number)
                background.insertObject("Book").setValueForKey("title", Value("b" + std::to_string(number)));
            NSError error;
            EXPECT_TRUE(background.save(&error)) << error;
        }
        isDone = true;
    });
    MainQueue::main().runUntil([&] {
        for (NSManagedObject* record : all("Book"))
            text(*record, "title");
        return isDone.load();
    });

    EXPECT_EQ(all("Book").size(), 1U + kBatches * kBooks);
    save();
    restart();
    EXPECT_EQ(all("Book").size(), 1U + kBatches * kBooks);
}

TEST_P(ChildContext, SavesWhileTheMainThreadWaitsForItsQueue)
{
    NSManagedObjectContext background(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    background.setParentContext(*context_);
    background.performBlockAndWait([&] {
        background.insertObject("Book").setValueForKey("title", Value("made"));
        NSError error;
        EXPECT_TRUE(background.save(&error)) << error;
    });
    EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("made"));
}

TEST_P(ChildContext, FailsToSaveOnceItsParentIsGone)
{
    child_->insertObject("Book");
    context_.reset();
    NSError error;
    EXPECT_FALSE(child_->save(&error));
    EXPECT_EQ(error.localizedDescription(), "The parent context is gone");
    EXPECT_TRUE(child_->hasChanges());
}

class ChildOfAFile : public ChildContext { };
INSTANTIATE_TEST_SUITE_P(Stores, ChildOfAFile, testing::Values(StoreType::SQLite), storeTypeName);

TEST_P(ChildOfAFile, KeepsItsChangesWhenItsParentCannotReadTheStore)
{
    set(book("one"), "shelves").add(shelf("old"));
    shelf("new");
    save();
    restart(); // the parent has none of them
    makeChild();
    NSManagedObject& seen = *findThere("Book", NSPredicate::predicateWithFormat("TRUEPREDICATE")).at(0);
    NSManagedObject& place = *findThere("Shelf", NSPredicate::predicateWithFormat("name == 'new'")).at(0);
    set(seen, "shelves").add(place);
    const auto file = folder_.file();
    std::filesystem::rename(file, folder_.path() / "away");

    NSError error;
    EXPECT_FALSE(child_->save(&error));
    EXPECT_EQ(error.code(), StoreErrorReplaced);
    EXPECT_TRUE(child_->hasChanges());
    EXPECT_FALSE(context_->hasChanges());

    std::filesystem::rename(folder_.path() / "away", file);
    saveChild();
    save();
    restart();
    EXPECT_EQ(set(*all("Book").at(0), "shelves").count(), 2U);
}

TEST_P(ChildContext, EndsWithAParentOnAQueueOfItsOwn)
{
    auto parent = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    parent->setPersistentStoreCoordinator(coordinator_);
    NSManagedObjectContext grown(NSManagedObjectContext::ConcurrencyType::PrivateQueue);
    parent->performBlockAndWait([&] { grown.setParentContext(*parent); });
    std::atomic<int> saves = 0;
    grown.performBlock([&] {
        do
            grown.insertObject("Book");
        while (grown.save() && ++saves);
    });
    MainQueue::main().runUntil([&] { return saves > 0; });
    parent.reset(); // while the child goes on saving into it
    grown.performBlockAndWait([] {});
    EXPECT_GT(saves, 0);
}

TEST_P(ChildContext, MayHaveChildrenOfItsOwn)
{
    book("stored");
    save();
    child_->insertObject("Book").setValueForKey("title", Value("child's"));
    NSManagedObjectContext grandchild(NSManagedObjectContext::ConcurrencyType::MainQueue);
    grandchild.setParentContext(*child_);
    const NSFetchRequest books(*model_->entityNamed("Book"));
    EXPECT_THAT(texts(grandchild.executeFetchRequest(books), "title"), ElementsAre("stored", "child's"));
    grandchild.insertObject("Book").setValueForKey("title", Value("grandchild's"));
    ASSERT_TRUE(grandchild.save());
    saveChild();
    save();
    restart();
    EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("stored", "child's", "grandchild's"));
}

TEST_P(ChildContext, LeavesOnlyShellsOfItsRecordsInTheParentAfterTheSave)
{
    child_->insertObject("Book").setValueForKey("title", Value("made"));
    saveChild();
    save();
    const auto records = context_->registeredObjects();
    ASSERT_EQ(records.size(), 1U);
    EXPECT_TRUE(records.front()->isFault());
    EXPECT_EQ(text(*records.front(), "title"), "made");
}

} // namespace
} // namespace tarn
