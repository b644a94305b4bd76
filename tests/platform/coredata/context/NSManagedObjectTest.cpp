#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/platform/coredata/context/ContextFixture.h"

#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tarnmodel/platform/foundation/values/WeakReference.h"

namespace tarn {
namespace {

using testing::ElementsAre;

class Record : public ContextTest { };
INSTANTIATE_TEST_SUITE_P(Stores, Record, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(Record, StartsWithTheDefaultsOfItsEntity)
{
    const NSManagedObject& record = insert("Book");

    EXPECT_EQ(record.storedValueForKey("pages"), Value(0));
    EXPECT_EQ(record.storedValueForKey("lent"), Value(false));
    EXPECT_TRUE(record.storedValueForKey("title").isNil());
    EXPECT_TRUE(record.isInserted());
    EXPECT_TRUE(record.objectID().isTemporaryID());
}

TEST_P(Record, KeepsValuesOfEveryTypeThroughASave)
{
    NSManagedObject& record = insert("Book");
    const NSDate printed = dateWithMicrosecondsSince1970(-123456789);
    const std::string_view title("Größe \0 und mehr", 18);
    record.setValueForKey("title", Value(title));
    record.setValueForKey("pages", Value(INT64_MIN));
    record.setValueForKey("copies", Value(-3));
    record.setValueForKey("weight", Value(0.1));
    record.setValueForKey("lent", Value(true));
    record.setValueForKey("printed", Value(printed));
    record.setValueForKey("stamp", Value(NSData::fromText(std::string_view("\0\xFF\x80", 3))));
    record.setValueForKey("body", Value(std::string(100000, 'x')));
    save();
    restart();

    const NSManagedObject& found = *all("Book").at(0);
    EXPECT_EQ(found.storedValueForKey("title"), Value(title));
    EXPECT_EQ(found.storedValueForKey("pages"), Value(INT64_MIN));
    EXPECT_EQ(found.storedValueForKey("copies"), Value(-3));
    EXPECT_EQ(found.storedValueForKey("weight"), Value(0.1));
    EXPECT_EQ(found.storedValueForKey("lent"), Value(true));
    EXPECT_EQ(found.storedValueForKey("printed"), Value(printed));
    EXPECT_EQ(found.storedValueForKey("stamp"), Value(NSData::fromText(std::string_view("\0\xFF\x80", 3))));
    EXPECT_EQ(found.storedValueForKey("body"), Value(std::string(100000, 'x')));
}

TEST_P(Record, IsReferredToWeaklyUntilItEnds)
{
    NSManagedObject& kept = book("kept");
    save();
    const WeakReference<NSManagedObject> toKept(&kept);
    context_->refreshObject(kept, false);
    EXPECT_EQ(toKept.get(), &kept);
    context_->deleteObject(kept);
    save();
    EXPECT_EQ(toKept.get(), &kept) << "deleted, but an object still";
    context_->reset();
    EXPECT_EQ(toKept.get(), nullptr);
    const WeakReference<NSManagedObject> toLast(&book("last"));
    context_.reset();
    EXPECT_EQ(toLast.get(), nullptr);
}

TEST_P(Record, ClampsCountsToTheirWidth)
{
    NSManagedObject& record = insert("Book");
    record.setIntegerAt(record.entity().attributeNamed("copies")->index(), 100000);
    EXPECT_EQ(record.storedValueForKey("copies"), Value(32767));
}

TEST_P(Record, RefusesAnUnknownKeyAndAValueOfAnotherKind)
{
    NSManagedObject& record = insert("Book");
    EXPECT_THROW(record.storedValueForKey("author"), NSException);
    EXPECT_THROW(record.setValueForKey("author", Value(1)), NSException);
    EXPECT_THROW(record.setValueForKey("pages", Value("many")), NSException);
    EXPECT_THROW(record.setValueForKey("cover", Value("red")), NSException);
    EXPECT_EQ(record.storedValueForKey("pages"), Value(0));
}

TEST_P(Record, TellsWhatChangedSinceTheLastSave)
{
    NSManagedObject& record = book("Old", 7);
    save();
    EXPECT_FALSE(record.hasChanges());

    record.setValueForKey("title", Value("New"));
    record.setValueForKey("pages", Value(7));

    EXPECT_TRUE(record.isUpdated());
    EXPECT_THAT(record.changedKeys(), ElementsAre("title"));
    EXPECT_EQ(record.changedValues().at("title"), Value("New"));
    EXPECT_EQ(record.committedValuesForKeys({"title"}).at("title"), Value("Old"));
    EXPECT_THAT(context_->updatedObjects(), ElementsAre(&record));
}

TEST_P(Record, ObserversOfTheScalarKeyHearOfTheBoxedOne)
{
    NSManagedObject& record = insert("Book");
    std::vector<std::string> heard;
    const auto note = [&](NSManagedObject&, std::string_view key) { heard.emplace_back(key); };
    const auto boxed = record.addObserver("lent", note);
    const auto scalar = record.addObserver("lentValue", note);
    const auto other = record.addObserver("pagesValue", note);

    record.setValueForKey("lent", Value(true));

    EXPECT_THAT(heard, ElementsAre("lent", "lentValue"));
}

TEST_P(Record, PrimitiveWritesAreSavedWithoutTellingObservers)
{
    NSManagedObject& record = book("A");
    save();
    int heard = 0;
    const auto observation = record.addObserver("pages", [&](NSManagedObject&, std::string_view) { ++heard; });

    record.setPrimitiveValueForKey("pages", Value(9));
    EXPECT_EQ(heard, 0);
    record.didChangeValueForKey("pages");
    EXPECT_EQ(heard, 1);
    save();
    restart();

    EXPECT_EQ(all("Book").at(0)->storedValueForKey("pages"), Value(9));
}

TEST_P(Record, AnObservationEndsWithItsHandleAlsoWithinACall)
{
    NSManagedObject& record = insert("Book");
    int heard = 0;
    KeyValueObservation observation = record.addObserver("pages", [&](NSManagedObject&, std::string_view) {
        ++heard;
        observation.invalidate();
    });

    record.setValueForKey("pages", Value(1));
    record.setValueForKey("pages", Value(2));

    EXPECT_EQ(heard, 1);
}

TEST_P(Record, IsOneObjectForEachIdentifier)
{
    NSManagedObject& record = book("A");
    const NSManagedObjectID temporary = record.objectID();
    save();

    EXPECT_FALSE(record.objectID().isTemporaryID());
    EXPECT_EQ(all("Book").at(0), &record);
    EXPECT_EQ(context_->objectWithID(record.objectID()), &record);
    EXPECT_EQ(context_->objectRegisteredForID(temporary), &record);
}

TEST_P(Record, IsFoundAgainByItsURI)
{
    NSManagedObject& record = book("A");
    const std::string temporary = record.objectID().URIRepresentation();
    EXPECT_EQ(coordinator_->managedObjectIDForURIRepresentation(temporary), record.objectID());
    save();
    const std::string permanent = record.objectID().URIRepresentation();
    EXPECT_NE(temporary, permanent);

    const auto id = coordinator_->managedObjectIDForURIRepresentation(permanent);
    ASSERT_TRUE(id);
    EXPECT_EQ(context_->existingObjectWithID(*id), &record);
    for (const std::string hostile : {"", "tarn-store://", "tarn-store://x/Book/p1", "http://a/Book/p1"})
        EXPECT_FALSE(coordinator_->managedObjectIDForURIRepresentation(hostile)) << hostile;
    EXPECT_FALSE(coordinator_->managedObjectIDForURIRepresentation(permanent + "0x"));
}

TEST_P(Record, GetsAPermanentIdentifierBeforeTheSave)
{
    NSManagedObject& record = book("A");
    NSManagedObject& cover = insert("Cover");
    record.setValueForKey("cover", Value(&cover));
    NSManagedObject* const records[] = {&record, &cover};
    ASSERT_TRUE(context_->obtainPermanentIDsForObjects(records));

    const NSManagedObjectID id = record.objectID();
    EXPECT_FALSE(id.isTemporaryID());
    EXPECT_TRUE(record.isInserted());
    EXPECT_EQ(all("Book").size(), 1U);
    save();
    EXPECT_EQ(record.objectID(), id);
    restart();
    EXPECT_EQ(
        text(static_cast<const NSManagedObject&>(all("Book").at(0)->storedValueForKey("cover").asObject()), "color"),
        "(none)");
}

TEST_P(Record, ReadsLargeAttributesOfTheRowThatItsOtherValuesCameFrom)
{
    NSManagedObject& record = book("Old");
    record.setValueForKey("body", Value("old text"));
    save();
    const auto other = contextOn(coordinator_);
    NSManagedObject& seen = *other->executeFetchRequest(NSFetchRequest(*model_->entityNamed("Book"))).at(0);
    EXPECT_EQ(seen.storedValueForKey("title"), Value("Old"));

    record.setValueForKey("title", Value("New"));
    record.setValueForKey("body", Value("new text"));
    save();

    EXPECT_EQ(seen.storedValueForKey("body"), Value("new text"));
    EXPECT_EQ(seen.storedValueForKey("title"), Value("New"));
}

TEST_P(Record, OfARowThatVanishedReadsAsDeleted)
{
    NSManagedObject& record = book("A");
    save();
    const auto other = contextOn(coordinator_);
    NSManagedObject* fault = other->objectWithID(record.objectID());
    ASSERT_TRUE(fault && fault->isFault());
    context_->deleteObject(record);
    save();

    EXPECT_TRUE(fault->storedValueForKey("title").isNil());
    EXPECT_TRUE(fault->isDeleted());
    EXPECT_FALSE(other->hasChanges());
}

} // namespace
} // namespace tarn
