#include "tests/platform/coredata/context/RecordLedger.h"

#include "tarnmodel/platform/foundation/system/Log.h"

#include <malloc.h>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Refresh : public ContextTest { };
INSTANTIATE_TEST_SUITE_P(Stores, Refresh, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(Refresh, DropsAChangedRelationshipAtBothEnds)
{
    NSManagedObject& one = book("one");
    NSManagedObject& two = book("two");
    NSManagedObject& place = shelf("place");
    NSManagedObject& part = insert("Chapter");
    NSManagedObject& cover = insert("Cover");
    part.setValueForKey("book", Value(&one));
    cover.setValueForKey("book", Value(&one));
    save();
    for (NSManagedObject* refreshed : {&one, &two, &part, &cover, &place}) {
        part.setValueForKey("book", Value(&two));
        cover.setValueForKey("book", Value(&two));
        set(two, "shelves").add(place);
        context_->refreshObject(*refreshed, false);
        EXPECT_FALSE(refreshed->hasChanges());
        const bool isPartBack = refreshed != &cover && refreshed != &place;
        const bool isShelfBack = refreshed == &two || refreshed == &place;
        EXPECT_EQ(part.storedValueForKey("book"), Value(isPartBack ? &one : &two));
        EXPECT_EQ(set(isPartBack ? one : two, "chapters").count(), 1U);
        EXPECT_EQ(set(isPartBack ? two : one, "chapters").count(), 0U);
        // That the one has lost its cover is a change of its own row.
        NSManagedObject* const covered = refreshed == &two ? nullptr
            : refreshed == &part || refreshed == &place    ? &two
                                                           : &one;
        EXPECT_EQ(cover.storedValueForKey("book"), Value(covered));
        for (NSManagedObject* record : {&one, &two})
            EXPECT_EQ(record->storedValueForKey("cover"), record == covered ? Value(&cover) : Value());
        EXPECT_EQ(set(two, "shelves").count(), isShelfBack ? 0U : 1U);
        EXPECT_EQ(set(place, "books").count(), isShelfBack ? 0U : 1U);
        context_->rollback();
        EXPECT_FALSE(context_->hasChanges());
    }
    part.setValueForKey("book", Value(&two));
    context_->refreshObject(part, false);
    EXPECT_FALSE(context_->hasChanges()) << "nothing else was changed";
    save();
    restart();
    EXPECT_EQ(set(*find("Book", "title == 'one'").at(0), "chapters").count(), 1U);
}

TEST_P(Refresh, KeepsAnUnreadEndThatWasSetHere)
{
    NSManagedObject& one = book("one");
    NSManagedObject& two = book("two");
    NSManagedObject& cover = insert("Cover");
    cover.setValueForKey("book", Value(&one));
    save();
    cover.setValueForKey("book", Value(&two));
    cover.setValueForKey("color", Value("red"));
    two.setValueForKey("pages", Value(7));

    context_->refreshObject(cover, true);
    context_->refreshObject(two, true);

    EXPECT_EQ(cover.storedValueForKey("book"), Value(&two));
    EXPECT_EQ(two.storedValueForKey("cover"), Value(&cover));
    EXPECT_TRUE(one.storedValueForKey("cover").isNil());
    EXPECT_EQ(text(cover, "color"), "red");
    EXPECT_EQ(two.storedValueForKey("pages"), Value(7));
}

TEST_P(Refresh, ReadsTheOtherEndsOfAnEditedRecordAgain)
{
    NSManagedObject& one = book("one");
    NSManagedObject& two = book("two");
    NSManagedObject& place = shelf("place");
    NSManagedObject& cover = insert("Cover");
    cover.setValueForKey("book", Value(&one));
    save();
    ASSERT_THAT(set(one, "shelves").members(), IsEmpty());
    ASSERT_EQ(cover.storedValueForKey("book"), Value(&one));
    const auto other = contextOn(coordinator_);
    NSManagedObject& there = *other->existingObjectWithID(cover.objectID());
    there.setValueForKey("book", Value(other->existingObjectWithID(two.objectID())));
    set(*other->existingObjectWithID(one.objectID()), "shelves").add(*other->existingObjectWithID(place.objectID()));
    ASSERT_TRUE(other->save());
    cover.setValueForKey("color", Value("red"));
    place.setValueForKey("floor", Value(7));

    context_->refreshObject(cover, true);
    context_->refreshObject(place, true);

    EXPECT_EQ(cover.storedValueForKey("book"), Value(&two));
    EXPECT_THAT(set(place, "books").members(), ElementsAre(&one));
    EXPECT_THAT(set(one, "shelves").members(), ElementsAre(&place));
    EXPECT_EQ(text(cover, "color"), "red");
    one.setValueForKey("pages", Value(7));
    ASSERT_TRUE(set(one, "shelves").isLoaded());
    NSManagedObject& thereAgain = *other->existingObjectWithID(one.objectID());
    set(thereAgain, "shelves").set({});
    ASSERT_TRUE(other->save());
    context_->refreshObject(one, true);
    EXPECT_THAT(set(one, "shelves").members(), IsEmpty());
    EXPECT_EQ(one.storedValueForKey("pages"), Value(7));
}

TEST_P(Refresh, KeepsATextAndWhatDerivesFromItTogether)
{
    NSManagedObject& one = book("before");
    one.setValueForKey("body", Value("before"));
    save();
    const auto other = contextOn(coordinator_);
    NSManagedObject& there = *other->existingObjectWithID(one.objectID());
    there.setValueForKey("title", Value("theirs"));
    there.setValueForKey("body", Value("theirs"));
    there.setValueForKey("code", Value("theirs"));
    ASSERT_TRUE(other->save());
    one.setValueForKey("body", Value("ours"));
    std::vector<std::string> lost;
    context_->setMergeConflictHandler([&](const MergeConflict& conflict) { lost = conflict.properties; });
    const LogSink former = setLogSink([](std::string_view) {});
    context_->refreshObject(one, true);
    setLogSink(former);

    EXPECT_EQ(text(one, "body"), "ours");
    EXPECT_EQ(text(one, "title"), "before") << "of the text that won";
    EXPECT_EQ(text(one, "code"), "theirs");
    EXPECT_THAT(lost, ElementsAre("title", "body"));
    save();
}

TEST_P(Refresh, FindsItsUnsavedValuesByWhatTheyAreAfterwards)
{
    NSManagedObject& one = book("old", 1);
    save();
    const auto other = contextOn(coordinator_);
    other->existingObjectWithID(one.objectID())->setValueForKey("code", Value("new"));
    ASSERT_TRUE(other->save());
    one.setValueForKey("pages", Value(2));
    ASSERT_THAT(find("Book", "code == 'new' AND pages == 2"), IsEmpty()) << "there is an index from here on";

    context_->refreshObject(one, true);

    EXPECT_THAT(find("Book", "code == 'new' AND pages == 2"), ElementsAre(&one));
}

TEST_P(Refresh, LetsARecordGoThatAnotherWriterDeleted)
{
    NSManagedObject& one = book("one");
    NSManagedObject& part = insert("Chapter");
    part.setValueForKey("book", Value(&one));
    save();
    const auto other = contextOn(coordinator_);
    NSManagedObject& there = *other->existingObjectWithID(one.objectID());
    set(there, "chapters").set({});
    other->deleteObject(there);
    ASSERT_TRUE(other->save());
    one.setValueForKey("pages", Value(2));
    std::vector<std::string> log;
    const LogSink former = setLogSink([&](std::string_view message) { log.emplace_back(message); });
    context_->refreshObject(one, true);
    setLogSink(former);

    EXPECT_TRUE(one.isDeleted());
    EXPECT_EQ(log.size(), 1U);
    EXPECT_FALSE(context_->hasChanges());
    EXPECT_TRUE(part.storedValueForKey("book").isNil());
    EXPECT_THAT(all("Book"), IsEmpty());
}

TEST_P(Refresh, LeaksNothing)
{
    constexpr std::size_t kRecords = 5000;
    const int rounds = GetParam() == StoreType::SQLite ? 60 : 300;
    for (std::size_t number = 0; number < kRecords; ++number)
        book("b" + std::to_string(number));
    save();
    restart();
    const auto run = [&](int times) {
        for (int round = 0; round < times; ++round) {
            ASSERT_EQ(all("Book").size(), kRecords);
            context_->refreshAllObjects();
            context_->processPendingChanges();
        }
    };
    run(10);
    const auto allocated = [] {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const std::size_t before = allocated();
    run(rounds);
    const std::size_t after = allocated();
    // Eight bytes a refresh would make a hundred times as much.
    EXPECT_LT(after, before + kRecords * static_cast<std::size_t>(rounds) / 10);
}

// At random -----------------------------------------------------------------------------------------------------------

class RefreshWalk : public RecordLedger { };
INSTANTIATE_TEST_SUITE_P(Stores, RefreshWalk, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(RefreshWalk, ShowsAtEachStepWhatItsLedgerSays)
{
    const unsigned walks = numberOfWalks(GetParam() == StoreType::SQLite ? 6 : 250);
    for (unsigned seed = 1; seed <= walks && !HasFailure(); ++seed) {
        SCOPED_TRACE(testing::Message() << "seed " << seed);
        begin(seed);
        for (int step = 0; step < 120 && !HasFailure(); ++step) {
            walk();
            expectLedger(step % 10 == 9);
        }
    }
}

} // namespace
} // namespace tarn
