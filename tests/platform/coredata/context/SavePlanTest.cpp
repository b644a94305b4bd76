#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/events/NSNotificationCenter.h"
#include "tarnmodel/platform/foundation/system/Log.h"

#include <stdexcept>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Save : public ContextTest {
protected:
    /// Every notification of this name that the context posts, as lists of titles.
    NSNotificationSubscription observe(std::string_view name, std::function<void(const ObjectChanges*)> block)
    {
        return NSNotificationCenter::defaultCenter().addObserver(name, context_.get(),
            [block](const NSNotification& notification) { block(notification.userInfoAs<ObjectChanges>()); });
    }
    /// A second context with an unsaved change of the title of the only book.
    std::unique_ptr<NSManagedObjectContext> rival(std::string_view key, const Value& value)
    {
        auto other = contextOn(coordinator_);
        other->executeFetchRequest(NSFetchRequest(*model_->entityNamed("Book"))).at(0)->setValueForKey(key, value);
        return other;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, Save, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(Save, TellsWhatItSaved)
{
    NSManagedObject& changed = book("changed");
    NSManagedObject& deleted = book("deleted");
    save();
    ObjectChanges told;
    int calls = 0;
    const auto subscription = observe(NSManagedObjectContextDidSaveNotification, [&](const ObjectChanges* changes) {
        told = *changes;
        ++calls;
    });
    NSManagedObject& inserted = book("inserted");
    changed.setValueForKey("pages", Value(5));
    context_->deleteObject(deleted);
    save();

    EXPECT_EQ(calls, 1);
    EXPECT_THAT(told.inserted, ElementsAre(&inserted));
    EXPECT_THAT(told.updated, ElementsAre(&changed));
    EXPECT_THAT(told.deleted, ElementsAre(&deleted));
    EXPECT_FALSE(context_->hasChanges());
    save();
    EXPECT_EQ(calls, 1) << "nothing to save";
}

TEST_P(Save, LetsWillSaveObserversJoinOnce)
{
    int calls = 0;
    const auto subscription = observe(NSManagedObjectContextWillSaveNotification, [&](const ObjectChanges*) {
        ++calls;
        shelf("made in will-save");
        EXPECT_EQ(context_->insertedObjects().size(), 2U);
    });
    book("A");
    save();

    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(context_->hasChanges());
    restart();
    EXPECT_THAT(texts(all("Shelf"), "name"), ElementsAre("made in will-save"));
}

TEST_P(Save, LeavesForTheNextOneWhatAnObserverChangesMeanwhile)
{
    NSManagedObject& one = book("A", 1);
    save();
    NSNotificationSubscription willSave = observe(NSManagedObjectContextWillSaveNotification,
        [&](const ObjectChanges*) { one.setValueForKey("code", Value("by a will-save observer")); });
    bool isSaving = false;
    const auto didChange = observe(NSManagedObjectContextObjectsDidChangeNotification, [&](const ObjectChanges*) {
        if (one.storedValueForKey("code").isNil() || std::exchange(isSaving, true))
            return;
        EXPECT_FALSE(one.hasChanges()) << "told of what is saved";
        one.setValueForKey("pages", Value(7));
    });
    one.setValueForKey("title", Value("B"));
    save();
    willSave = NSNotificationSubscription();

    ASSERT_TRUE(isSaving);
    EXPECT_TRUE(context_->hasChanges());
    EXPECT_THAT(one.changedKeys(), ElementsAre("pages"));
    EXPECT_EQ(one.committedValuesForKeys({"pages"}).at("pages"), Value(1));
    save();
    restart();
    const NSManagedObject& saved = *all("Book").at(0);
    EXPECT_EQ(text(saved, "code"), "by a will-save observer");
    EXPECT_EQ(saved.storedValueForKey("pages"), Value(7));
}

TEST_P(Save, ThatAnObserverStopsKeepsTheChangesAndTakesBackWhatItInserted)
{
    NSManagedObject& one = book("A");
    bool shallFail = true;
    const auto subscription = observe(NSManagedObjectContextWillSaveNotification, [&](const ObjectChanges*) {
        shelf("made in will-save");
        if (shallFail)
            throw std::runtime_error("no");
    });
    EXPECT_THROW(context_->save(), std::runtime_error);

    EXPECT_THAT(context_->insertedObjects(), ElementsAre(&one));
    EXPECT_TRUE(one.objectID().isTemporaryID());
    shallFail = false;
    save();
    restart();
    EXPECT_EQ(all("Book").size(), 1U);
    EXPECT_EQ(all("Shelf").size(), 1U);
}

TEST_P(Save, WritesNothingForAValueThatWasChangedBack)
{
    NSManagedObject& one = book("A", 1);
    save();
    const std::int64_t version = one.rowVersion();
    one.setValueForKey("pages", Value(2));
    one.setValueForKey("pages", Value(1));
    save();
    EXPECT_EQ(one.rowVersion(), version);
    one.setValueForKey("pages", Value(2));
    save();
    EXPECT_EQ(one.rowVersion(), version + 1);
}

TEST_P(Save, ByTwoWritersFailsWithoutAPolicy)
{
    NSManagedObject& one = book("A", 1);
    save();
    const auto other = rival("pages", Value(2));
    one.setValueForKey("pages", Value(3));
    save();

    NSError error;
    EXPECT_FALSE(other->save(&error));
    EXPECT_EQ(error.code(), StoreErrorMergeConflict);
    EXPECT_TRUE(other->hasChanges());
}

TEST_P(Save, MergesPropertiesThatOnlyOneSideChanged)
{
    NSManagedObject& one = book("A", 1);
    save();
    const auto other = rival("lent", Value(true));
    other->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    one.setValueForKey("pages", Value(3));
    save();
    ASSERT_TRUE(other->save());
    restart();

    const NSManagedObject& merged = *all("Book").at(0);
    EXPECT_EQ(merged.storedValueForKey("pages"), Value(3));
    EXPECT_EQ(merged.storedValueForKey("lent"), Value(true));
}

TEST_P(Save, GivesAPropertyThatBothChangedToTheSideOfThePolicy)
{
    for (const auto& [policy, expected, lost] : {std::tuple(NSMergePolicy::MergeByPropertyStoreTrump, 3, 2),
             std::tuple(NSMergePolicy::MergeByPropertyObjectTrump, 2, 3)}) {
        for (NSManagedObject* record : all("Book"))
            context_->deleteObject(*record);
        NSManagedObject& one = book("A", 1);
        save();
        const auto other = rival("pages", Value(2));
        other->setMergePolicy(policy);
        std::vector<Value> dropped;
        other->setMergeConflictHandler(
            [&](const MergeConflict& conflict) { dropped.push_back(conflict.lostValues.at("pages")); });
        one.setValueForKey("pages", Value(3));
        save();
        const LogSink former = setLogSink([](std::string_view) {});
        EXPECT_TRUE(other->save());
        setLogSink(former);
        restart();

        EXPECT_EQ(all("Book").at(0)->storedValueForKey("pages"), Value(expected));
        EXPECT_THAT(dropped, ElementsAre(Value(lost)));
    }
}

TEST_P(Save, KeepsATextAndWhatDerivesFromItTogether)
{
    NSManagedObject& one = book("A");
    one.setValueForKey("body", Value("a"));
    save();
    const auto other = contextOn(coordinator_);
    other->setMergePolicy(NSMergePolicy::MergeByPropertyStoreTrump);
    NSManagedObject& seen = *other->executeFetchRequest(NSFetchRequest(*model_->entityNamed("Book"))).at(0);
    seen.setValueForKey("title", Value("theirs"));
    seen.setValueForKey("pages", Value(9));
    one.setValueForKey("body", Value("ours"));
    save();
    const LogSink former = setLogSink([](std::string_view) {});
    EXPECT_TRUE(other->save());
    setLogSink(former);
    restart();

    const NSManagedObject& merged = *all("Book").at(0);
    EXPECT_EQ(text(merged, "title"), "A") << "the title goes with the text that won";
    EXPECT_EQ(text(merged, "body"), "ours");
    EXPECT_EQ(merged.storedValueForKey("pages"), Value(9));
}

TEST_P(Save, WithoutChangesDoesNothing)
{
    save();
    insert("Book");
    save();
    save();
    EXPECT_EQ(all("Book").size(), 1U);
}

TEST_P(Save, RollbackGoesBackToTheLastOne)
{
    NSManagedObject& one = book("A", 1);
    NSManagedObject& red = shelf("red");
    NSManagedObject& gone = book("gone");
    set(one, "shelves").add(red);
    save();
    one.setValueForKey("pages", Value(2));
    set(one, "shelves").remove(red);
    context_->deleteObject(gone);
    NSManagedObject& fresh = book("fresh");
    set(fresh, "shelves").add(red);

    context_->rollback();

    EXPECT_FALSE(context_->hasChanges());
    EXPECT_EQ(one.storedValueForKey("pages"), Value(1));
    EXPECT_THAT(set(one, "shelves").members(), ElementsAre(&red));
    EXPECT_THAT(set(red, "books").members(), ElementsAre(&one));
    EXPECT_FALSE(gone.isDeleted());
    EXPECT_TRUE(fresh.isDeleted());
    EXPECT_THAT(texts(all("Book"), "title"), UnorderedElementsAre("A", "gone"));
    one.setValueForKey("pages", Value(7));
    save();
    EXPECT_EQ(find("Book", "pages == 7").size(), 1U);
}

TEST_P(Save, ExclusiveWorkIsOneTransaction)
{
    NSError error;
    ASSERT_TRUE(context_->performExclusive(
        [&] {
            if (find("Shelf", "name ==[cd] 'red'").empty())
                shelf("red");
            context_->save();
        },
        &error))
        << error;
    EXPECT_FALSE(context_->hasChanges());
    EXPECT_THROW(context_->performExclusive([&] {
        shelf("blue");
        throw std::runtime_error("stop");
    }),
        std::runtime_error);
    EXPECT_FALSE(context_->hasChanges());
    restart();
    EXPECT_THAT(texts(all("Shelf"), "name"), ElementsAre("red"));
}

TEST_P(Save, KeysAreNeverUsedTwice)
{
    NSManagedObject& one = book("A");
    save();
    const std::int64_t key = one.objectID().key();
    context_->deleteObject(one);
    save();
    NSManagedObject& two = book("B");
    save();
    EXPECT_GT(two.objectID().key(), key);
}

TEST_P(Save, OfTenThousandRecordsWithAFetchEachStaysQuick)
{
    // One title look-up for each insertion: quadratic growth would take minutes here.
    for (int number = 0; number < 10000; ++number) {
        const std::string title = "Title " + std::to_string(number);
        ASSERT_THAT(find("Book", "title ==[cd] %@", title), IsEmpty());
        book(title);
    }
    save();
    EXPECT_EQ(find("Book", "title ==[cd] 'TITLE 9999'").size(), 1U);
}

// Events ------------------------------------------------------------------------------------------------------------

TEST_P(Save, ChangesGatherIntoOneNotificationAPass)
{
    std::vector<ObjectChanges> events;
    const auto subscription = observe(NSManagedObjectContextObjectsDidChangeNotification,
        [&](const ObjectChanges* changes) { events.push_back(*changes); });
    NSManagedObject& one = book("A");
    NSManagedObject& two = book("B");
    all("Book");
    EXPECT_THAT(events, IsEmpty()) << "a fetch is no end of a pass";

    MainQueue::main().drain();
    ASSERT_EQ(events.size(), 1U);
    EXPECT_THAT(events.at(0).inserted, ElementsAre(&one, &two));
    EXPECT_THAT(events.at(0).updated, IsEmpty());
    EXPECT_THAT(one.changedKeysForCurrentEvent(), IsEmpty());

    one.setValueForKey("pages", Value(4));
    EXPECT_THAT(one.changedKeysForCurrentEvent(), ElementsAre("pages"));
    context_->processPendingChanges();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_THAT(events.at(1).updated, ElementsAre(&one));
    MainQueue::main().drain();
    EXPECT_EQ(events.size(), 2U);

    save();
    context_->refreshObject(one, false);
    context_->processPendingChanges();
    ASSERT_EQ(events.size(), 3U);
    EXPECT_THAT(events.at(2).refreshed, ElementsAre(&one));
}

TEST_P(Save, BothEndsOfARelationshipCountAsChanged)
{
    NSManagedObject& one = book("A");
    NSManagedObject& red = shelf("red");
    save();
    std::vector<NSManagedObject*> updated;
    const auto subscription = observe(NSManagedObjectContextObjectsDidChangeNotification,
        [&](const ObjectChanges* changes) { updated = changes->updated; });
    set(one, "shelves").add(red);
    context_->processPendingChanges();
    EXPECT_THAT(updated, UnorderedElementsAre(&one, &red));
}

TEST_P(Save, ChangesMadeByAnObserverCountForTheNextEvent)
{
    NSManagedObject& one = book("A");
    save();
    int calls = 0;
    const auto subscription = observe(NSManagedObjectContextObjectsDidChangeNotification, [&](const ObjectChanges*) {
        if (++calls == 1)
            one.setValueForKey("pages", Value(2));
    });
    one.setValueForKey("lent", Value(true));
    context_->processPendingChanges();
    EXPECT_EQ(calls, 1);
    MainQueue::main().drain();
    EXPECT_EQ(calls, 2);
}

} // namespace
} // namespace tarn
