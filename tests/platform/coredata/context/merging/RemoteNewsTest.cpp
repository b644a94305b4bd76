// What another writer saved meets ends of relationships that are unsaved here, and records that are gone by then.

#include "tests/platform/coredata/context/merging/ConflictFixture.h"

namespace tarn {
namespace {

class RemoteNews : public ConflictTest { };
INSTANTIATE_TEST_SUITE_P(Stores, RemoteNews, testing::Values(StoreType::SQLite, StoreType::InMemory), storeTypeName);

TEST_P(RemoteNews, ANewHolderStaysWhereTheOtherChangedTheRowOfItsMember)
{
    context_->setMergePolicy(NSMergePolicy::MergeByPropertyObjectTrump);
    NSManagedObject& one = book("one");
    NSManagedObject& cover = insert("Cover");
    save();
    elsewhere(
        cover, [](NSManagedObjectContext&, NSManagedObject& there) { there.setValueForKey("color", Value("theirs")); });
    cover.setValueForKey("color", Value("mine"));
    cover.setValueForKey("book", Value(&one));

    mergeUpdate(cover);

    EXPECT_EQ(cover.storedValueForKey("book"), Value(&one));
    EXPECT_TRUE(cover.changedKeys().contains("book"));
    save();
    EXPECT_EQ(cover.storedValueForKey("book"), Value(&one));
    EXPECT_EQ(one.storedValueForKey("cover"), Value(&cover));
}

TEST_P(RemoteNews, AnUnsavedHolderHasTheLastWordOnAPair)
{
    NSManagedObject& one = book("one");
    NSManagedObject& two = book("two");
    NSManagedObject& cover = insert("Cover");
    save();
    elsewhere(two, [&](NSManagedObjectContext& other, NSManagedObject& there) {
        there.setValueForKey("cover", Value(other.existingObjectWithID(cover.objectID())));
    });
    cover.setValueForKey("book", Value(&one));

    mergeUpdate(two);

    EXPECT_EQ(cover.storedValueForKey("book"), Value(&one));
    EXPECT_TRUE(two.storedValueForKey("cover").isNil());
    save();
    elsewhere(two, [](NSManagedObjectContext&, NSManagedObject& there) {
        EXPECT_TRUE(there.storedValueForKey("cover").isNil()) << "two books with one cover";
    });
}

TEST_P(RemoteNews, ARecordThatIsSaidToBeChangedAndIsGoneLeavesTheContext)
{
    NSManagedObject& one = book("one");
    save();
    const NSManagedObjectID gone = one.objectID();
    elsewhere(one, [](NSManagedObjectContext& other, NSManagedObject& there) { other.deleteObject(there); });
    mergeUpdate(one);
    EXPECT_TRUE(one.isDeleted());
    EXPECT_EQ(context_->objectRegisteredForID(gone), nullptr);
    EXPECT_FALSE(context_->hasChanges());
}

} // namespace
} // namespace tarn
