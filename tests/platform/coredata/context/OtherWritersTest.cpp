// What a context notices of others that write to its file: contexts of another coordinator, as another process has
// them, and programs that know nothing of row versions.

#include "tests/platform/coredata/OtherProgram.h"
#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/system/Log.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class OtherWritersTest : public ContextTest {
protected:
    void SetUp() override
    {
        ContextTest::SetUp();
        elsewhere_ = contextOn(open());
        changing_ = NSNotificationCenter::defaultCenter().addObserver(
            NSManagedObjectContextObjectsDidChangeNotification, context_.get(),
            [this](const NSNotification& notification) { told_.push_back(*notification.userInfoAs<ObjectChanges>()); });
        noticing_ = NSNotificationCenter::defaultCenter().addObserver(
            NSManagedObjectContextStoreDidChangeElsewhereNotification, context_.get(),
            [this](const NSNotification&) { ++notices_; });
    }
    void TearDown() override
    {
        changing_ = NSNotificationSubscription();
        noticing_ = NSNotificationSubscription();
        elsewhere_.reset();
        ContextTest::TearDown();
    }

    NSManagedObject& there(const NSManagedObject& record)
    {
        const NSManagedObjectID id = record.objectID();
        const auto& entity = *elsewhere_->managedObjectModel().entityNamed(id.entity().name());
        NSManagedObject* found = elsewhere_->existingObjectWithID(NSManagedObjectID(id.store(), entity, id.key()));
        EXPECT_NE(found, nullptr);
        return *found;
    }
    void saveThere()
    {
        NSError error;
        ASSERT_TRUE(elsewhere_->save(&error)) << error;
    }
    /// The end of a pass; what it told comes new into `told_`.
    void pass()
    {
        told_.clear();
        MainQueue::main().drain();
    }
    void runElsewhere(const std::string& sql) const { OtherProgram(folder_.file()).run(sql); }
    void saveAndForget()
    {
        save();
        pass();
        told_.clear();
        notices_ = 0;
    }

    std::unique_ptr<NSManagedObjectContext> elsewhere_;
    std::vector<ObjectChanges> told_;
    int notices_ = 0;
    NSNotificationSubscription changing_;
    NSNotificationSubscription noticing_;
};
INSTANTIATE_TEST_SUITE_P(Stores, OtherWritersTest, testing::Values(StoreType::SQLite), storeTypeName);

TEST_P(OtherWritersTest, BringTheirValuesAtTheNextFetchOfAnythingAndObserversHearAtTheEndOfThePass)
{
    NSManagedObject& seen = book("before", 1);
    NSManagedObject& untouched = book("untouched");
    saveAndForget();
    there(seen).setValueForKey("title", Value("after"));
    there(seen).setValueForKey("body", Value("after, too"));
    saveThere();
    ASSERT_EQ(text(seen, "title"), "before");

    all("Shelf");

    EXPECT_EQ(text(seen, "title"), "after");
    EXPECT_EQ(text(seen, "body"), "after, too");
    EXPECT_THAT(told_, IsEmpty()) << "never inside a fetch";
    EXPECT_EQ(notices_, 0);
    pass();
    ASSERT_EQ(told_.size(), 1U);
    EXPECT_THAT(told_[0].refreshed, ElementsAre(&seen));
    EXPECT_THAT(told_[0].updated, IsEmpty());
    EXPECT_EQ(notices_, 1);
    EXPECT_FALSE(context_->hasChanges());
    EXPECT_EQ(text(untouched, "title"), "untouched");
}

TEST_P(OtherWritersTest, BringTheirValuesAtThePassOfTheQueue)
{
    NSManagedObject& seen = book("before");
    saveAndForget();
    EXPECT_FALSE(MainQueue::main().hasWork()) << "an idle queue is not kept awake";
    runElsewhere("UPDATE Book SET title = 'after', rowVersion = rowVersion + 1");

    pass();

    EXPECT_EQ(text(seen, "title"), "after");
    ASSERT_EQ(told_.size(), 1U);
    EXPECT_THAT(told_[0].refreshed, ElementsAre(&seen));
    EXPECT_EQ(notices_, 1);
    pass();
    EXPECT_THAT(told_, IsEmpty());
    EXPECT_EQ(notices_, 1) << "once for each change";
    EXPECT_FALSE(MainQueue::main().hasWork());
}

TEST_P(OtherWritersTest, AreNotTheContextItself)
{
    NSManagedObject& seen = book("before");
    saveAndForget();
    NSManagedObjectContext second(NSManagedObjectContext::ConcurrencyType::MainQueue);
    second.setPersistentStoreCoordinator(coordinator_);
    second.insertObject("Shelf");
    ASSERT_TRUE(second.save());
    seen.setValueForKey("title", Value("after"));
    save();
    told_.clear();

    all("Book");
    pass();

    EXPECT_EQ(notices_, 0);
    for (const ObjectChanges& changes : told_)
        EXPECT_THAT(changes.refreshed, IsEmpty());
}

TEST_P(OtherWritersTest, ThatDoNotCountVersionsAreNoticedAsWell)
{
    NSManagedObject& titled = book("before", 1);
    NSManagedObject& read = book("read");
    read.setValueForKey("body", Value("before"));
    NSManagedObject& moved = insert("Chapter");
    saveAndForget();
    const std::string key = std::to_string(titled.objectID().key());

    runElsewhere("UPDATE Book SET title = 'after', pages = 2 WHERE pk = " + key);
    pass();
    EXPECT_EQ(text(titled, "title"), "after");
    EXPECT_EQ(titled.storedValueForKey("pages"), Value(2));
    EXPECT_EQ(told_.at(0).refreshed, std::vector<NSManagedObject*>{&titled});

    ASSERT_EQ(text(read, "body"), "before");
    runElsewhere("UPDATE Book_large SET body = 'after' WHERE pk = " + std::to_string(read.objectID().key()));
    pass();
    EXPECT_EQ(text(read, "body"), "after");
    EXPECT_EQ(told_.at(0).refreshed, std::vector<NSManagedObject*>{&read});

    runElsewhere("UPDATE Chapter SET book = " + key);
    pass();
    EXPECT_EQ(moved.storedValueForKey("book"), Value(&titled));
}

TEST_P(OtherWritersTest, OfVersionsDoNotCountOurOwnSavesTwice)
{
    NSManagedObject& seen = book("before", 1);
    seen.setValueForKey("body", Value("before"));
    NSManagedObject& empty = book("empty");
    saveAndForget();
    context_->setMergePolicy(NSMergePolicy::Error);
    for (const std::string value : {"one", "two", "three"}) {
        seen.setValueForKey("title", Value(value));
        save();
        seen.setValueForKey("body", Value(value));
        empty.setValueForKey("body", Value(value));
        save();
        seen.setValueForKey("pages", Value(static_cast<std::int64_t>(value.size())));
        seen.setValueForKey("body", Value(value + " again"));
        save();
    }
    runElsewhere("INSERT INTO Shelf (pk, rowVersion, name) VALUES (1000, 1, 'x')");
    pass();
    EXPECT_EQ(notices_, 1);
    EXPECT_THAT(told_, IsEmpty()) << "each record has the version of its row";
}

TEST_P(OtherWritersTest, TakeDeletedRecordsAway)
{
    NSManagedObject& shelved = book("shelved");
    NSManagedObject& home = shelf("home");
    set(home, "books").add(shelved);
    NSManagedObject& other = book("other");
    saveAndForget();
    ASSERT_THAT(set(home, "books").members(), ElementsAre(&shelved));
    elsewhere_->deleteObject(there(shelved));
    saveThere();

    all("Shelf");
    EXPECT_TRUE(shelved.isDeleted());
    pass();

    ASSERT_EQ(told_.size(), 1U);
    EXPECT_THAT(told_[0].deleted, ElementsAre(&shelved));
    EXPECT_THAT(set(home, "books").members(), IsEmpty());
    EXPECT_FALSE(context_->hasChanges()) << "no save deletes it again";
    EXPECT_FALSE(other.isDeleted());
}

TEST_P(OtherWritersTest, LeaveUnsavedChangesOnTop)
{
    NSManagedObject& edited = book("before", 1);
    NSManagedObject& deletedThere = book("deleted there");
    NSManagedObject& clean = book("clean");
    saveAndForget();
    there(edited).setValueForKey("code", Value("theirs"));
    there(clean).setValueForKey("title", Value("cleaner"));
    elsewhere_->deleteObject(there(deletedThere));
    saveThere();
    edited.setValueForKey("pages", Value(3));

    all("Shelf");
    EXPECT_EQ(text(clean, "title"), "cleaner");
    EXPECT_FALSE(edited.storedValueForKey("code") == Value("theirs")) << "an edit may be half-way";
    EXPECT_FALSE(deletedThere.isDeleted());
    pass();

    EXPECT_EQ(text(edited, "code"), "theirs");
    EXPECT_EQ(edited.storedValueForKey("pages"), Value(3));
    EXPECT_TRUE(deletedThere.isDeleted());
    EXPECT_THAT(context_->updatedObjects(), ElementsAre(&edited));
    context_->setMergePolicy(NSMergePolicy::Error);
    save(); // on the new version: nothing conflicts
}

TEST_P(OtherWritersTest, DoNotChangeATextBetweenItsReadingAndItsWritingInOnePass)
{
    NSManagedObject& seen = book("seen");
    seen.setValueForKey("body", Value("one"));
    saveAndForget();
    there(seen).setValueForKey("body", Value("one\ntwo"));
    saveThere();
    context_->setMergePolicy(NSMergePolicy::Error);

    const std::string body = text(seen, "body");
    all("Shelf");
    seen.setValueForKey("body", Value(body + "\nthree"));

    NSError error;
    EXPECT_FALSE(context_->save(&error)) << "or the second line were lost without a word";
    EXPECT_EQ(error.code(), StoreErrorMergeConflict);
    context_->rollback();
    pass();
    EXPECT_EQ(text(seen, "body"), "one\ntwo");
}

TEST_P(OtherWritersTest, BringMembersOfSetsThatWereRead)
{
    NSManagedObject& first = book("first");
    NSManagedObject& second = book("second");
    NSManagedObject& home = shelf("home");
    NSManagedObject& empty = shelf("empty");
    set(home, "books").add(first);
    NSManagedObject& cover = insert("Cover");
    saveAndForget();
    ASSERT_THAT(set(home, "books").members(), ElementsAre(&first));
    ASSERT_THAT(set(empty, "books").members(), IsEmpty());
    ASSERT_EQ(cover.storedValueForKey("book"), Value());
    set(there(home), "books").add(there(second));
    saveThere();

    pass();
    EXPECT_THAT(set(home, "books").members(), ElementsAre(&first, &second));
    ASSERT_EQ(told_.size(), 1U);
    EXPECT_THAT(told_[0].refreshed, ElementsAre(&home)) << "its row is as it was";

    there(first).setValueForKey("cover", Value(&there(cover)));
    saveThere();
    pass();
    EXPECT_EQ(cover.storedValueForKey("book"), Value(&first));
    EXPECT_THAT(told_.at(0).refreshed, UnorderedElementsAre(&first, &cover));
}

TEST_P(OtherWritersTest, BringMembersOfEverySetWhereMoreWereReadThanAreComparedOneByOne)
{
    constexpr std::size_t kShelves = 1002;
    NSManagedObject& added = book("added");
    for (std::size_t i = 0; i < kShelves; ++i)
        shelf("shelf");
    saveAndForget();
    const std::vector<NSManagedObject*> shelves = all("Shelf");
    ASSERT_EQ(shelves.size(), kShelves);
    for (const NSManagedObject* one : shelves)
        ASSERT_THAT(set(*one, "books").members(), IsEmpty());
    for (const NSManagedObject* one : shelves)
        set(there(*one), "books").add(there(added));
    saveThere();

    pass();

    for (const NSManagedObject* one : shelves)
        EXPECT_THAT(set(*one, "books").members(), ElementsAre(&added)) << one->objectID().URIRepresentation();
}

TEST_P(OtherWritersTest, AreSeenUnderTheLockBeforeItsBlock)
{
    NSManagedObject& seen = book("before");
    saveAndForget();
    there(seen).setValueForKey("title", Value("after"));
    saveThere();
    std::string title;

    ASSERT_TRUE(context_->performExclusive([&] { title = text(seen, "title"); }));

    EXPECT_EQ(title, "after");
}

TEST_P(OtherWritersTest, OfAStoreThatLacksTheTriggersAreNoticedOnceItWasOpenedAgain)
{
    NSManagedObject& seen = book("before");
    saveAndForget();
    const std::int64_t key = seen.objectID().key();
    OtherProgram program(folder_.file());
    for (const std::string& name : program.run("SELECT name FROM sqlite_schema WHERE name LIKE '%_version'"))
        program.run("DROP TRIGGER \"" + name + "\"");
    elsewhere_.reset();
    elsewhere_ = contextOn(open());

    program.run("UPDATE Book SET title = 'after' WHERE pk = " + std::to_string(key));
    pass();

    EXPECT_EQ(text(seen, "title"), "after");
}

} // namespace
} // namespace tarn
