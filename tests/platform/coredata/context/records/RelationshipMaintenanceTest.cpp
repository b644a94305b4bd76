#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/values/NSException.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class Relationship : public ContextTest { };
INSTANTIATE_TEST_SUITE_P(Stores, Relationship, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(Relationship, KeepsBothEndsInStep)
{
    NSManagedObject& one = book("One");
    NSManagedObject& chapter = insert("Chapter");
    chapter.setValueForKey("book", Value(&one));
    EXPECT_THAT(set(one, "chapters").members(), ElementsAre(&chapter));

    NSManagedObject& two = book("Two");
    set(two, "chapters").add(chapter);
    EXPECT_THAT(set(one, "chapters").members(), IsEmpty());
    EXPECT_EQ(chapter.toOneAt(chapter.entity().relationshipNamed("book")->index()), &two);
    save();
    restart();

    EXPECT_THAT(texts(find("Chapter", "book.title == %@", "Two"), "heading"), ElementsAre("(none)"));
    EXPECT_THAT(find("Book", "chapters.@count == 0"), ElementsAre(find("Book", "title == 'One'").at(0)));
}

TEST_P(Relationship, OfOneToOneLetsTheFormerHolderGo)
{
    NSManagedObject& one = book("One");
    NSManagedObject& two = book("Two");
    NSManagedObject& cover = insert("Cover");
    one.setValueForKey("cover", Value(&cover));
    save();

    cover.setValueForKey("book", Value(&two));
    EXPECT_TRUE(one.storedValueForKey("cover").isNil());
    save();
    restart();

    const NSManagedObject& again = *all("Cover").at(0);
    EXPECT_EQ(text(static_cast<const NSManagedObject&>(again.storedValueForKey("book").asObject()), "title"), "Two");
    EXPECT_EQ(find("Book", "cover == nil").size(), 1U);
}

TEST_P(Relationship, OfOneToOneCountsAsChangedForAFormerEndThatWasNotReadYet)
{
    book("One").setValueForKey("cover", Value(&insert("Cover")));
    save();
    restart();
    NSManagedObject& one = *all("Book").at(0);
    NSManagedObject& former = *all("Cover").at(0);

    one.setValueForKey("cover", Value());

    EXPECT_TRUE(former.storedValueForKey("book").isNil());
    EXPECT_THAT(former.changedKeys(), ElementsAre("book"));
    EXPECT_THAT(context_->updatedObjects(), UnorderedElementsAre(&one, &former));
}

TEST_P(Relationship, AddingAMemberDoesNotReadTheOthers)
{
    NSManagedObject& popular = shelf("popular");
    for (int number = 0; number < 40; ++number)
        set(popular, "books").add(book("Book " + std::to_string(number)));
    save();
    restart();

    NSManagedObject& shelfAgain = *all("Shelf").at(0);
    NSManagedObject& fresh = book("Fresh");
    set(fresh, "shelves").add(shelfAgain);

    EXPECT_FALSE(set(shelfAgain, "books").isLoaded());
    EXPECT_TRUE(set(shelfAgain, "books").contains(fresh));
    EXPECT_FALSE(set(shelfAgain, "books").isLoaded());
    save();
    EXPECT_FALSE(set(shelfAgain, "books").isLoaded());
    EXPECT_EQ(set(shelfAgain, "books").count(), 41U);
    EXPECT_EQ(context_->registeredObjects().size(), 2U);
}

TEST_P(Relationship, SettingAnEqualSetDirtiesNothing)
{
    NSManagedObject& one = book("One");
    NSManagedObject& red = shelf("red");
    NSManagedObject& blue = shelf("blue");
    NSManagedObject* const both[] = {&red, &blue};
    set(one, "shelves").set(both);
    save();

    NSManagedObject* const turned[] = {&blue, &red, &red};
    set(one, "shelves").set(turned);
    EXPECT_FALSE(context_->hasChanges());

    NSManagedObject* const onlyBlue[] = {&blue};
    set(one, "shelves").set(onlyBlue);
    EXPECT_THAT(context_->updatedObjects(), UnorderedElementsAre(&one, &red));
}

TEST_P(Relationship, ThatChangedThroughJoinsAloneLeavesTheRowsVersion)
{
    NSManagedObject& one = book("One");
    NSManagedObject& red = shelf("red");
    save();
    const std::int64_t version = red.rowVersion();

    set(one, "shelves").add(red);
    save();

    EXPECT_EQ(red.rowVersion(), version);
    restart();
    EXPECT_EQ(find("Shelf", "books.@count == 1").at(0)->rowVersion(), version);
}

TEST_P(Relationship, EnumeratesByKeyThenInOrderOfAddition)
{
    NSManagedObject& red = shelf("red");
    NSManagedObject& a = book("a");
    NSManagedObject& b = book("b");
    NSManagedObject& c = book("c");
    set(red, "books").add(c);
    set(red, "books").add(a);
    EXPECT_THAT(texts(set(red, "books").members(), "title"), ElementsAre("c", "a"));
    save();
    EXPECT_THAT(texts(set(red, "books").members(), "title"), ElementsAre("a", "c"));

    set(red, "books").remove(a);
    set(red, "books").add(b);
    set(red, "books").add(a);
    EXPECT_THAT(texts(set(red, "books").members(), "title"), ElementsAre("a", "c", "b"));
    save();
    restart();
    EXPECT_THAT(texts(set(*all("Shelf").at(0), "books").members(), "title"), ElementsAre("a", "b", "c"));
}

TEST_P(Relationship, AddedAndRemovedUnreadMembersComeOutRight)
{
    NSManagedObject& red = shelf("red");
    NSManagedObject& a = book("a");
    set(red, "books").add(a);
    save();
    restart();
    NSManagedObject& redAgain = *all("Shelf").at(0);
    NSManagedObject& aAgain = *all("Book").at(0);

    set(redAgain, "books").add(aAgain); // is there already; nobody has read it
    EXPECT_EQ(set(redAgain, "books").count(), 1U);
    set(redAgain, "books").remove(aAgain);
    EXPECT_EQ(set(redAgain, "books").count(), 0U);
    save();
    restart();
    EXPECT_THAT(set(*all("Shelf").at(0), "books").members(), IsEmpty());
}

TEST_P(Relationship, RefusesARecordOfAnotherContext)
{
    const auto other = contextOn(coordinator_);
    NSManagedObject& foreign = other->insertObject("Cover");
    EXPECT_THROW(book("A").setValueForKey("cover", Value(&foreign)), NSException);
}

// Deletion ----------------------------------------------------------------------------------------------------------

TEST_P(Relationship, DeletingCascadesAndNullifiesAtOnce)
{
    NSManagedObject& one = book("One");
    NSManagedObject& red = shelf("red");
    NSManagedObject& chapter = insert("Chapter");
    NSManagedObject& cover = insert("Cover");
    set(one, "shelves").add(red);
    set(one, "chapters").add(chapter);
    one.setValueForKey("cover", Value(&cover));
    save();

    context_->deleteObject(one);

    EXPECT_TRUE(one.isDeleted() && chapter.isDeleted() && cover.isDeleted());
    EXPECT_EQ(text(one, "title"), "One") << "until it is saved";
    EXPECT_THAT(set(red, "books").members(), IsEmpty());
    EXPECT_THAT(all("Book"), IsEmpty());
    EXPECT_THAT(all("Chapter"), IsEmpty());
    EXPECT_THAT(context_->deletedObjects(), UnorderedElementsAre(&one, &chapter, &cover));
    save();
    EXPECT_EQ(text(one, "title"), "(none)");
    restart();
    EXPECT_THAT(all("Cover"), IsEmpty());
    EXPECT_EQ(all("Shelf").size(), 1U);
}

TEST_P(Relationship, DenyRefusesTheSaveWhileMembersRemain)
{
    NSManagedObject& one = book("One");
    NSManagedObject& map = insert("Map");
    map.setValueForKey("book", Value(&one));
    save();

    context_->deleteObject(one);
    NSError error;
    EXPECT_FALSE(context_->save(&error));
    EXPECT_EQ(error.code(), StoreErrorDeleteDenied);

    context_->deleteObject(map);
    EXPECT_TRUE(context_->save(&error)) << error;
    restart();
    EXPECT_THAT(all("Item"), IsEmpty());
    EXPECT_THAT(all("Book"), IsEmpty());
}

/// What becomes of the member of a record that may not be deleted while it has members.
enum class Departure : std::uint8_t { None, Another, Deleted, SetWithoutIt, SetOfAnother };

TEST_P(Relationship, DenyAllowsTheSaveOnceItsMembersAreElsewhereInAnyOrder)
{
    for (const Departure way :
        {Departure::None, Departure::Another, Departure::Deleted, Departure::SetWithoutIt, Departure::SetOfAnother})
        for (const bool isDeletedFirst : {false, true})
            for (const bool isLoaded : {false, true})
                for (const bool isInserted : {false, true}) {
                    SCOPED_TRACE(testing::Message() << static_cast<int>(way) << (isDeletedFirst ? " first" : "")
                                                    << (isLoaded ? " loaded" : "") << (isInserted ? " new" : ""));
                    NSManagedObject& kept = book("kept");
                    insert("Map").setValueForKey("book", Value(&book("doomed")));
                    if (!isInserted)
                        save();
                    NSManagedObject& doomed = *find("Book", "title == 'doomed'").at(0);
                    NSManagedObject& map = *all("Map").at(0);
                    if (isLoaded)
                        set(doomed, "items").members();
                    if (isDeletedFirst)
                        context_->deleteObject(doomed);
                    NSManagedObject* const theMap[] = {&map};
                    switch (way) {
                    case Departure::None:
                        map.setValueForKey("book", Value());
                        break;
                    case Departure::Another:
                        map.setValueForKey("book", Value(&kept));
                        break;
                    case Departure::Deleted:
                        context_->deleteObject(map);
                        break;
                    case Departure::SetWithoutIt:
                        set(doomed, "items").remove(map);
                        break;
                    case Departure::SetOfAnother:
                        set(kept, "items").set(theMap);
                        break;
                    }
                    if (!isDeletedFirst)
                        context_->deleteObject(doomed);
                    save();
                    ASSERT_FALSE(HasFatalFailure());
                    const bool isOfAnother = way == Departure::Another || way == Departure::SetOfAnother;
                    for (int look = 0; look < 2; ++look) {
                        EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("kept"));
                        EXPECT_EQ(set(*all("Book").at(0), "items").count(), isOfAnother ? 1U : 0U);
                        EXPECT_EQ(
                            find("Map", "book == nil").size(), isOfAnother || way == Departure::Deleted ? 0U : 1U);
                        restart();
                    }
                    for (const std::string_view entity : {"Map", "Book"})
                        for (NSManagedObject* record : all(entity))
                            context_->deleteObject(*record);
                    save();
                }
}

TEST_P(Relationship, ADenialThatIsTakenBackLeavesTheMembersWhereTheyWere)
{
    NSManagedObject& one = book("One");
    NSManagedObject& map = insert("Map");
    map.setValueForKey("book", Value(&one));
    save();
    context_->deleteObject(one);
    map.setValueForKey("book", Value());
    EXPECT_THAT(map.changedKeys(), ElementsAre("book"));

    context_->rollback();

    EXPECT_EQ(map.storedValueForKey("book"), Value(&one));
    EXPECT_THAT(set(one, "items").members(), ElementsAre(&map));
    context_->deleteObject(one);
    NSError error;
    EXPECT_FALSE(context_->save(&error));
    EXPECT_EQ(error.code(), StoreErrorDeleteDenied);
}

TEST_P(Relationship, DenyLooksAtWhatIsStoredNow)
{
    NSManagedObject& one = book("One");
    NSManagedObject& map = insert("Map");
    map.setValueForKey("book", Value(&one));
    save();
    const NSManagedObjectID mapID = map.objectID();
    ASSERT_THAT(set(one, "items").members(), ElementsAre(&map));
    const auto other = contextOn(coordinator_);
    other->objectWithID(mapID)->setValueForKey("book", Value());
    ASSERT_TRUE(other->save());

    context_->deleteObject(one); // which still shows the member here
    save();
    restart();
    EXPECT_THAT(all("Book"), IsEmpty());

    NSManagedObject& two = book("Two");
    save();
    ASSERT_THAT(set(two, "items").members(), IsEmpty());
    const auto another = contextOn(coordinator_);
    another->objectWithID(mapID)->setValueForKey("book", Value(another->objectWithID(two.objectID())));
    ASSERT_TRUE(another->save());
    context_->deleteObject(two);
    NSError error;
    EXPECT_FALSE(context_->save(&error)) << "a member that came meanwhile counts, too";
    EXPECT_EQ(error.code(), StoreErrorDeleteDenied);
}

TEST_P(Relationship, ToADeletedRecordIsNone)
{
    for (const bool isInserted : {false, true}) {
        NSManagedObject& one = book("One");
        NSManagedObject& two = book("Two");
        NSManagedObject& chapter = insert("Chapter");
        NSManagedObject& cover = insert("Cover");
        chapter.setValueForKey("book", Value(&two));
        if (!isInserted)
            save();
        context_->deleteObject(one);
        chapter.setValueForKey("book", Value(&one));
        cover.setValueForKey("book", Value(&one));
        EXPECT_TRUE(chapter.storedValueForKey("book").isNil());
        EXPECT_THAT(set(two, "chapters").members(), IsEmpty());
        EXPECT_THAT(find("Chapter", "book == nil"), ElementsAre(&chapter));
        context_->rollback();
        if (isInserted)
            continue;
        EXPECT_EQ(chapter.storedValueForKey("book"), Value(&two));
        context_->deleteObject(one);
        chapter.setValueForKey("book", Value(&one));
        save();
        EXPECT_TRUE(chapter.storedValueForKey("book").isNil());
        for (const std::string_view entity : {"Chapter", "Cover", "Book"})
            for (NSManagedObject* record : all(entity))
                context_->deleteObject(*record);
        save();
    }
}

TEST_P(Relationship, IsSetToNothingWhoeverItNamed)
{
    // A target may be deleted, saved or not, before the relationship that names it is set.
    for (const char* entity : {"Map", "Chapter", "Cover"})
        for (const bool isSaved : {false, true}) {
            SCOPED_TRACE(entity + std::string(isSaved ? " saved" : ""));
            NSManagedObject& one = book("One");
            NSManagedObject& part = insert(entity);
            part.setValueForKey("book", Value(&one));
            if (isSaved)
                save();
            context_->deleteObject(one);
            if (part.isDeleted())
                continue; // with its owner
            part.setValueForKey("book", Value());
            EXPECT_TRUE(part.storedValueForKey("book").isNil());
            save();
            EXPECT_TRUE(part.storedValueForKey("book").isNil());
            part.setValueForKey("book", Value(&book("Two")));
            save();
            restart();
            EXPECT_THAT(texts(find("Book", "title == 'Two'"), "title"), ElementsAre("Two"));
            context_->deleteObject(*all(entity).at(0));
            context_->deleteObject(*all("Book").at(0));
            save();
        }
}

TEST_P(Relationship, DeletingAnInsertedRecordLeavesNoTrace)
{
    NSManagedObject& one = book("One");
    NSManagedObject& chapter = insert("Chapter");
    set(one, "chapters").add(chapter);
    context_->deleteObject(one);

    EXPECT_FALSE(context_->hasChanges());
    EXPECT_THAT(context_->insertedObjects(), IsEmpty());
    save();
    EXPECT_THAT(all("Chapter"), IsEmpty());
}

TEST_P(Relationship, RowsAddedByAnotherWriterAreNullifiedToo)
{
    NSManagedObject& one = book("One");
    NSManagedObject& gone = shelf("Gone");
    save();
    const auto other = contextOn(coordinator_);
    other->insertObject("Chapter").setValueForKey("book", Value(other->objectWithID(one.objectID())));
    NSManagedObject& shelved = other->insertObject("Book");
    set(*other->existingObjectWithID(gone.objectID()), "books").add(shelved);
    context_->deleteObject(one);  // knows of no chapter
    context_->deleteObject(gone); // knows of no book
    ASSERT_TRUE(other->save());
    save();

    for (const bool isAgain : {false, true}) {
        ASSERT_EQ(all("Chapter").size(), 1U) << isAgain;
        EXPECT_TRUE(all("Chapter").at(0)->storedValueForKey("book").isNil());
        ASSERT_EQ(all("Book").size(), 1U);
        EXPECT_EQ(set(*all("Book").at(0), "shelves").count(), 0U);
        restart();
    }
}

} // namespace
} // namespace tarn
