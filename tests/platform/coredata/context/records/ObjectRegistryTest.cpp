#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

#include <array>
#include <utility>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Identifiers: one object for each, whoever asked for it first, and whatever key it has had.
class Identity : public ContextTest {
protected:
    std::unique_ptr<NSManagedObjectContext> childOf(NSManagedObjectContext& parent)
    {
        auto child = std::make_unique<NSManagedObjectContext>(NSManagedObjectContext::ConcurrencyType::MainQueue);
        child->setParentContext(parent);
        return child;
    }
    static NSManagedObjectID permanentIDOf(NSManagedObject& record)
    {
        NSManagedObject* const records[] = {&record};
        EXPECT_TRUE(record.managedObjectContext().obtainPermanentIDsForObjects(records));
        return record.objectID();
    }
    /// Lets a save fail after keys were given: another writer has changed the record.
    void failASave(NSManagedObject& rival)
    {
        const auto other = contextOn(coordinator_);
        other->objectWithID(rival.objectID())->setValueForKey("pages", Value(1));
        ASSERT_TRUE(other->save());
        rival.setValueForKey("pages", Value(2));
        NSError error;
        EXPECT_FALSE(context_->save(&error));
        EXPECT_EQ(error.code(), StoreErrorMergeConflict);
        context_->refreshObject(rival, false);
    }
    /// How many objects of this identifier the context has.
    static std::size_t objectsOf(const NSManagedObjectContext& context, const NSManagedObjectID& objectID)
    {
        const auto known = context.registeredObjects();
        return static_cast<std::size_t>(std::count_if(
            known.begin(), known.end(), [&](const NSManagedObject* object) { return object->objectID() == objectID; }));
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, Identity, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

// Asked for before it was there -------------------------------------------------------------------------------------

TEST_P(Identity, OfARecordThatAParentAskedForBeforeItsChildSavedItIsOneObject)
{
    NSManagedObject& present = book("present");
    save();
    const auto child = childOf(*context_);
    NSManagedObject& made = child->insertObject("Book");
    made.setValueForKey("title", Value("made"));
    NSManagedObject& cover = child->insertObject("Cover");
    made.setValueForKey("cover", Value(&cover));
    NSManagedObject& part = child->insertObject("Chapter");
    part.setValueForKey("book", Value(&made));
    NSManagedObject& place = child->insertObject("Shelf");
    set(*child->existingObjectWithID(present.objectID()), "shelves").add(place);
    std::vector<NSManagedObject*> asked;
    for (NSManagedObject* record : {&made, &cover, &part, &place})
        asked.push_back(context_->objectWithID(permanentIDOf(*record)));
    ASSERT_THAT(asked, testing::Each(testing::NotNull()));
    const auto watched = asked.at(0)->addObserver("title", [](NSManagedObject&, std::string_view) {});

    NSError error;
    ASSERT_TRUE(child->save(&error)) << error;

    EXPECT_EQ(all("Book").at(1), asked.at(0));
    for (NSManagedObject* object : asked) {
        EXPECT_EQ(context_->objectWithID(object->objectID()), object);
        EXPECT_EQ(objectsOf(*context_, object->objectID()), 1U);
        EXPECT_FALSE(object->isDeleted());
        EXPECT_TRUE(object->isInserted());
    }
    EXPECT_EQ(text(*asked.at(0), "title"), "made");
    EXPECT_EQ(asked.at(0)->storedValueForKey("cover"), Value(asked.at(1)));
    EXPECT_THAT(set(*asked.at(0), "chapters").members(), ElementsAre(asked.at(2)));
    EXPECT_THAT(set(present, "shelves").members(), ElementsAre(asked.at(3)));
    asked.at(0)->setValueForKey("title", Value("edited"));
    asked.at(2)->setValueForKey("heading", Value("edited, too"));
    save();
    restart();
    EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("present", "edited"));
    EXPECT_THAT(texts(set(*all("Book").at(1), "chapters").members(), "heading"), ElementsAre("edited, too"));
}

TEST_P(Identity, OfARecordThatAParentDeletedBeforeItsChildSavedItStaysDeleted)
{
    const auto child = childOf(*context_);
    NSManagedObject& made = child->insertObject("Shelf");
    NSManagedObject* const asked = context_->objectWithID(permanentIDOf(made));
    ASSERT_TRUE(asked);
    context_->deleteObject(*asked);
    const LogSink former = setLogSink([](std::string_view) {});
    EXPECT_TRUE(child->save());
    setLogSink(former);

    EXPECT_THAT(all("Shelf"), IsEmpty());
    EXPECT_EQ(context_->objectWithID(asked->objectID()), nullptr);
    save();
    restart();
    EXPECT_THAT(all("Shelf"), IsEmpty());
}

TEST_P(Identity, OfAKeyThatWasAskedForBeforeItWasGivenIsThatOfTheInsertedRecord)
{
    NSManagedObject& first = book("first");
    save();
    const NSManagedObjectID next(first.objectID().store(), first.entity(), first.objectID().key() + 1);
    NSManagedObject* const early = context_->objectWithID(next);
    ASSERT_TRUE(early);
    NSManagedObject& second = book("second");
    save();
    ASSERT_EQ(second.objectID(), next) << "keys are given one after another";

    EXPECT_EQ(context_->objectWithID(next), &second);
    EXPECT_TRUE(early->isDeleted()) << "what was asked for was not there yet";
    second.setValueForKey("title", Value("edited"));
    save();
    EXPECT_THAT(all("Book"), ElementsAre(&first, &second));
    restart();
    EXPECT_THAT(texts(all("Book"), "title"), ElementsAre("first", "edited"));
}

TEST_P(Identity, OfAKeyThatWasDeletedBeforeItWasGivenDeletesNothing)
{
    for (const bool isGivenBeforeTheSave : {false, true}) {
        SCOPED_TRACE(isGivenBeforeTheSave);
        NSManagedObject& first = shelf("first");
        save();
        const NSManagedObjectID next(first.objectID().store(), first.entity(), first.objectID().key() + 1);
        context_->deleteObject(*context_->objectWithID(next));
        NSManagedObject& second = shelf("second");
        if (isGivenBeforeTheSave) {
            permanentIDOf(second);
            EXPECT_THAT(context_->deletedObjects(), IsEmpty());
        }
        save();
        ASSERT_EQ(second.objectID(), next) << "keys are given one after another";
        EXPECT_THAT(all("Shelf"), ElementsAre(&first, &second));
        restart();
        EXPECT_THAT(texts(all("Shelf"), "name"), ElementsAre("first", "second"));
        for (NSManagedObject* record : all("Shelf"))
            context_->deleteObject(*record);
        save();
    }
}

// Of others ---------------------------------------------------------------------------------------------------------

TEST_P(Identity, OfAnotherStoreIsNobodyHere)
{
    NSManagedObject& here = book("here");
    save();
    const NSManagedObjectID foreign(StoreIdentity::forUUID(newUUIDString()), here.entity(), here.objectID().key());
    const auto expectNobody = [&](NSManagedObjectContext& context) {
        EXPECT_EQ(context.objectRegisteredForID(foreign), nullptr);
        EXPECT_EQ(context.existingObjectWithID(foreign), nullptr);
        EXPECT_EQ(context.objectWithID(foreign), nullptr);
    };
    expectNobody(*context_); // the record of this key is here
    const auto clean = contextOn(coordinator_);
    expectNobody(*clean); // it is not
    EXPECT_THAT(clean->registeredObjects(), IsEmpty());
    expectNobody(*childOf(*context_));

    NSManagedObject& unsaved = book("unsaved");
    const NSManagedObjectID temporary(foreign.store(), unsaved.entity(), unsaved.objectID().key());
    EXPECT_EQ(context_->objectRegisteredForID(temporary), nullptr);
    EXPECT_EQ(context_->objectWithID(temporary), nullptr);
}

TEST_P(Identity, ReadWithAnotherCopyOfTheModelIsTheSame)
{
    NSManagedObject& here = book("here");
    save();
    const auto copy = NSManagedObjectModel::modelWithText(libraryModel);
    const NSManagedObjectID twin(here.objectID().store(), *copy->entityNamed("Book"), here.objectID().key());

    EXPECT_EQ(context_->objectRegisteredForID(twin), &here);
    EXPECT_EQ(context_->existingObjectWithID(twin), &here);
    EXPECT_EQ(context_->objectWithID(twin), &here);
    const auto clean = contextOn(coordinator_);
    NSManagedObject* const made = clean->objectWithID(twin);
    ASSERT_TRUE(made);
    EXPECT_EQ(&made->entity(), &here.entity());
    EXPECT_EQ(clean->existingObjectWithID(here.objectID()), made);
}

TEST_P(Identity, NamesARecordOfItsEntityOrOfASubEntityOnly)
{
    NSManagedObject& map = insert("Map");
    NSManagedObject& plain = insert("Item");
    save();
    struct Case {
        const NSManagedObject* record;
        const char* named;
        bool isFound;
    };
    const Case cases[] = {{&map, "Map", true}, {&map, "Item", true}, {&map, "Disc", false}, {&plain, "Item", true},
        {&plain, "Map", false}, {&plain, "Disc", false}};
    for (const auto& [record, named, isFound] : cases) {
        SCOPED_TRACE(record->entity().name() + " as " + named);
        const auto id = coordinator_->managedObjectIDForURIRepresentation("tarn-store://"
            + record->objectID().store().uuid() + "/" + named + "/p" + std::to_string(record->objectID().key()));
        ASSERT_TRUE(id);
        EXPECT_EQ(context_->objectRegisteredForID(*id), isFound ? record : nullptr);
        EXPECT_EQ(context_->existingObjectWithID(*id), isFound ? record : nullptr);
        EXPECT_EQ(context_->objectWithID(*id), isFound ? record : nullptr);
        for (const bool asksForExisting : {true, false}) {
            const auto clean = contextOn(coordinator_);
            const NSManagedObject* found
                = asksForExisting ? clean->existingObjectWithID(*id) : clean->objectWithID(*id);
            ASSERT_EQ(found != nullptr, isFound);
            EXPECT_TRUE(!found || &found->entity() == &record->entity());
            // Asking for what it is not leaves nothing behind that would stand in its way.
            NSManagedObject* const right = clean->existingObjectWithID(record->objectID());
            ASSERT_TRUE(right);
            EXPECT_EQ(&right->entity(), &record->entity());
        }
    }
}

// After its key has changed -----------------------------------------------------------------------------------------

TEST_P(Identity, OfATargetMayChangeWhileUnsavedRecordsNameIt)
{
    enum class Cause { Asked, LivingChild, FailedSave };
    for (const Cause cause : {Cause::Asked, Cause::LivingChild, Cause::FailedSave}) {
        SCOPED_TRACE(static_cast<int>(cause));
        restart();
        NSManagedObject& rival = book("rival");
        save();
        NSManagedObject& one = book("one");
        NSManagedObject& part = insert("Chapter");
        part.setValueForKey("book", Value(&one));
        NSManagedObject& cover = insert("Cover");
        cover.setValueForKey("book", Value(&one));
        NSManagedObject& place = shelf("place");
        set(place, "books").add(one);
        ASSERT_THAT(find("Chapter", "book == %@", &one), ElementsAre(&part)) << "there is an index from here on";
        std::unique_ptr<NSManagedObjectContext> child;
        if (cause == Cause::Asked) {
            permanentIDOf(one);
            permanentIDOf(cover);
        } else if (cause == Cause::LivingChild) {
            child = childOf(*context_);
        } else {
            const NSManagedObjectID before = one.objectID();
            failASave(rival);
            EXPECT_EQ(one.objectID(), before);
        }

        EXPECT_THAT(find("Chapter", "book == %@", &one), ElementsAre(&part));
        EXPECT_THAT(find("Chapter", "book IN %@", Value(Value::Array{Value(&one)})), ElementsAre(&part));
        EXPECT_THAT(find("Book", "cover == %@", &cover), ElementsAre(&one));
        EXPECT_THAT(find("Cover", "book == %@", &one), ElementsAre(&cover));
        EXPECT_THAT(find("Book", "ANY shelves == %@", &place), ElementsAre(&one));
        EXPECT_EQ(part.storedValueForKey("book"), Value(&one));
        NSManagedObject& second = insert("Chapter");
        second.setValueForKey("book", Value(&one));
        EXPECT_THAT(find("Chapter", "book == %@", &one), ElementsAre(&part, &second));
        second.setValueForKey("book", Value());
        EXPECT_THAT(find("Chapter", "book == %@", &one), ElementsAre(&part));
        save();
        EXPECT_THAT(find("Chapter", "book == %@", &one), ElementsAre(&part));
        child.reset();
        for (const std::string_view entity : {"Item", "Book", "Chapter", "Cover", "Shelf"})
            for (NSManagedObject* record : all(entity))
                context_->deleteObject(*record);
        save();
    }
}

} // namespace
} // namespace tarn
