#include "tests/sync/ChangeLogFixture.h"

#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class ChangeBaseline : public ChangeLogFixture {
protected:
    OVChange* baseline(bool initial = false)
    {
        return OVChange::baselineChangesInManagedObjectContext(context(), initial);
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, ChangeBaseline, everyStore(), storeName);

TEST_P(ChangeBaseline, FoldsTheLogIntoOneChangeOfOrderZero)
{
    OVChange& first = changeOfOrder(0);
    item(first, "OVNote", "a");
    item(first, "OVNote", std::nullopt);
    OVChange& second = changeOfOrder(1);
    item(second, "OVNote", "a");
    item(second, "OVNoteTag", "t", true);
    changeOfOrder(5);
    save();

    OVChange* folded = baseline();

    ASSERT_TRUE(folded);
    const std::string token = *folded->token();
    for (const char* when : {"unsaved", "saved"}) {
        ASSERT_EQ(countOfChanges(), 1U) << when;
        EXPECT_EQ(latest()->order(), 0) << when;
        EXPECT_EQ(latest()->token(), token) << when;
        EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a", "OVNote a", "OVNoteTag t deleted")) << when;
        EXPECT_EQ(all<OVChangeItem>().size(), 3U) << when;
        reopen();
    }
}

TEST_P(ChangeBaseline, FoldsChangesThatWereNeverSaved)
{
    OVChange& first = changeOfOrder(0);
    item(first, "OVNote", "a");
    item(changeOfOrder(1), "OVNote", "b");

    baseline();
    reopen();

    ASSERT_EQ(countOfChanges(), 1U);
    EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a", "OVNote b"));
}

TEST_P(ChangeBaseline, IsFollowedByAChangeOfOrderOne)
{
    item(changeOfOrder(8), "OVNote", "a");
    baseline();
    recordSaves();
    noteWithIdentifier("b");
    save();

    EXPECT_EQ(latest()->orderValue(), 1);
}

TEST_P(ChangeBaseline, GetsANewTokenEachTime)
{
    const std::string first = *baseline()->token();
    const std::string second = *baseline()->token();

    EXPECT_NE(first, second);
    EXPECT_EQ(OVChange::changeWithToken(first, context()), nullptr);
    EXPECT_EQ(OVChange::changeWithToken(second, context()), latest());
}

TEST_P(ChangeBaseline, OfAnEmptyLogIsEmptyUnlessItIsTheInitialOne)
{
    noteWithIdentifier("a");
    save();

    EXPECT_THAT(textsOf(*baseline()), IsEmpty());
}

TEST_P(ChangeBaseline, BeginsWithEveryStoredRecordOnAnEmptyLog)
{
    noteWithIdentifier("trashed").setTrashedValue(true);
    noteWithIdentifier("archived").setArchivedValue(true);
    noteWithIdentifier("tombstone").setPermanentlyDeletedValue(true);
    OVNote& owner = noteWithIdentifier("owner");
    noteWithIdentifier(std::nullopt);
    image(owner, "i.png").setUniqueIdentifier("i");
    file(owner, "f.pdf").setUniqueIdentifier("f");
    tag("t").setUniqueIdentifier("t");
    OVNoteBackLink::insertInManagedObjectContext(context())->setUniqueIdentifier("l");
    OVPassword::insertInManagedObjectContext(context());
    save();
    noteWithIdentifier("unsaved");

    const OVChange* initial = baseline(true);

    EXPECT_EQ(initial->orderValue(), 0);
    EXPECT_THAT(textsOf(*initial),
        ElementsAre("OVNote trashed", "OVNote archived", "OVNote tombstone", "OVNote owner", "OVNote unsaved",
            "OVNoteGenericFile f", "OVNoteImage i", "OVNoteTag t", "OVNoteBackLink l"));
    reopen();
    EXPECT_EQ(all<OVChangeItem>().size(), 9U);
}

TEST_P(ChangeBaseline, KeepsToTheLogWhereThereIsOne)
{
    noteWithIdentifier("a");
    noteWithIdentifier("b");
    item(changeOfOrder(0), "OVNote", "a");
    save();

    EXPECT_THAT(textsOf(*baseline(true)), ElementsAre("OVNote a"));
}

TEST_P(ChangeBaseline, MakesInitialItemsThatBelongToNoChange)
{
    noteWithIdentifier("a");
    save();

    const auto items = OVChange::initialBaselineChangesInManagedObjectContext(context());

    EXPECT_THAT(textsOf(items), ElementsAre("OVNote a"));
    EXPECT_EQ(items.front()->change(), nullptr);
    EXPECT_THAT(all<OVChange>(), IsEmpty());
}

TEST_P(ChangeBaseline, DeletesAllChangesWithTheirItems)
{
    for (std::int64_t order = 0; order < 3; ++order)
        item(changeOfOrder(order), "OVNote", "a");
    reopen();

    OVChange::deleteAllChangesInManagedObjectContext(context());

    for (const char* when : {"unsaved", "saved"}) {
        EXPECT_THAT(all<OVChange>(), IsEmpty()) << when;
        EXPECT_THAT(all<OVChangeItem>(), IsEmpty()) << when;
        reopen();
    }
}

TEST_P(ChangeBaseline, DeletesTheChangesBeforeOne)
{
    for (std::int64_t order = 0; order < 4; ++order)
        item(changeOfOrder(order), "OVNote", std::to_string(order)).change()->setToken(std::to_string(order));
    reopen();

    OVChange::deleteChangesBeforeChange(nullptr, context());
    EXPECT_EQ(countOfChanges(), 4U);
    OVChange::deleteChangesBeforeChange(OVChange::changeWithToken("2", context()), context());
    reopen();

    EXPECT_THAT(
        textsOf(OVChange::changeItemsSinceChange(nullptr, context())), UnorderedElementsAre("OVNote 2", "OVNote 3"));
    EXPECT_EQ(countOfChanges(), 2U);
}

class UnreadableRecords : public ChangeLogFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableRecords, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableRecords, AreLeftOutOfTheInitialBaselineClassByClass)
{
    noteWithIdentifier("n");
    tag("t").setUniqueIdentifier("t");
    save();
    runSQL("ALTER TABLE \"OVNoteTag\" RENAME TO \"hidden\"");

    EXPECT_THAT(textsOf(OVChange::initialBaselineChangesInManagedObjectContext(context())), ElementsAre("OVNote n"));

    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNoteTag\"");
}

TEST_P(UnreadableRecords, OfTheLogKeepTheBaselineFromEmptyingIt)
{
    item(changeOfOrder(3), "OVNote", "a");
    save();
    runSQL("ALTER TABLE \"OVChangeItem\" RENAME TO \"hidden\"");

    EXPECT_EQ(OVChange::baselineChangesInManagedObjectContext(context(), false), nullptr);

    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_FALSE(context().hasChanges());
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVChangeItem\"");
    EXPECT_EQ(latest()->orderValue(), 3);
}

} // namespace
} // namespace tarn
