#include "tarnmodel/model/OVInternalChanges.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::IsEmpty;

class InternalChanges : public StoreFixture {
protected:
    OVInternalChanges* add(std::string_view type, const NSManagedObject& record, std::uint32_t value = 0)
    {
        return OVInternalChanges::newExternalChangeForChangeType(type, record, value);
    }
    std::vector<OVInternalChanges*> queue(std::string_view type)
    {
        return OVInternalChanges::internalChangesForChangeType(type, context());
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, InternalChanges, everyStore(), storeName);

TEST_P(InternalChanges, NameARecordUnderAType)
{
    OVNote& note = noteTitled("a");
    save();
    const OVInternalChanges* change = add("spotlight", note, 7);

    EXPECT_EQ(change->changeType(), "spotlight");
    EXPECT_EQ(change->itemChange(), 7);
    EXPECT_EQ(change->itemObjectID(), note.objectID().URIRepresentation());
    EXPECT_EQ(change->itemManagedObjectID(), note.objectID());
    EXPECT_EQ(&change->managedObjectContext(), &context());
}

TEST_P(InternalChanges, FindTheirRecordAgainInAnotherContext)
{
    OVNote& note = noteTitled("a");
    save();
    add("spotlight", note);
    reopen();

    const auto objectID = queue("spotlight").at(0)->itemManagedObjectID();
    ASSERT_TRUE(objectID);
    EXPECT_EQ(static_cast<OVNote*>(context().existingObjectWithID(*objectID))->title(), "a");
}

TEST_P(InternalChanges, AreListedByType)
{
    OVNote& note = noteTitled("a");
    OVInternalChanges* one = add("one", note);
    add("One", note);
    add("two", note);
    OVInternalChanges* another = add("one", note);

    EXPECT_THAT(queue("one"), testing::ElementsAre(one, another));
    EXPECT_THAT(queue("three"), IsEmpty());
    EXPECT_THAT(queue(""), IsEmpty());
}

TEST_P(InternalChanges, AreDeletedByType)
{
    OVNote& note = noteTitled("a");
    add("one", note);
    add("one", note);
    add("two", note);
    save();

    OVInternalChanges::deleteAllInternalChangesForType("one", context());
    reopen();

    EXPECT_THAT(queue("one"), IsEmpty());
    EXPECT_EQ(queue("two").size(), 1U);
}

TEST_P(InternalChanges, WithoutAnAddressNameNothing)
{
    OVInternalChanges* change = add("one", noteTitled("a"));
    for (const std::optional<std::string_view> uri :
        std::vector<std::optional<std::string_view>>{std::nullopt, "", "elsewhere"}) {
        change->setItemObjectID(uri);
        EXPECT_EQ(change->itemManagedObjectID(), std::nullopt);
    }
}

class UnreadableInternalQueue : public InternalChanges { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableInternalQueue, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableInternalQueue, IsLoggedAndDeletesNothing)
{
    add("one", noteTitled("a"));
    save();
    runSQL("ALTER TABLE \"OVInternalChanges\" RENAME TO \"hidden\"");

    EXPECT_THAT(queue("one"), IsEmpty());
    EXPECT_THAT(takeLog(), testing::ElementsAre(testing::StartsWith("Error while fetching\n")));
    OVInternalChanges::deleteAllInternalChangesForType("one", context());
    EXPECT_THAT(takeLog(), testing::ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_FALSE(context().hasChanges());

    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVInternalChanges\"");
    EXPECT_EQ(queue("one").size(), 1U);
}

} // namespace
} // namespace tarn
