#include "tests/sync/ChangeLogFixture.h"

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"
#include "tarnmodel/model/OVPassword.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class ChangeLog : public ChangeLogFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, ChangeLog, everyStore(), storeName);

TEST_P(ChangeLog, KnowsTheSyncableClassesInTheirOrder)
{
    EXPECT_THAT(OVChange::syncableClasses(),
        ElementsAre("OVNote", "OVNoteGenericFile", "OVNoteImage", "OVNoteTag", "OVNoteBackLink"));
    OVNote& note = noteWithIdentifier("a");
    EXPECT_TRUE(OVChange::isObjectSyncable(note));
    EXPECT_TRUE(OVChange::isObjectSyncable(image(note, "a.png")));
    EXPECT_FALSE(OVChange::isObjectSyncable(*OVPassword::insertInManagedObjectContext(context())));
    EXPECT_FALSE(OVChange::isObjectSyncable(noteWithIdentifier(std::nullopt)));
}

TEST_P(ChangeLog, IsEmptyAtFirst)
{
    EXPECT_EQ(latest(), nullptr);
    EXPECT_EQ(OVChange::changeWithToken("", context()), nullptr);
    EXPECT_THAT(OVChange::changeItemsSinceChange(nullptr, context()), IsEmpty());
}

TEST_P(ChangeLog, NumbersChangesFromZero)
{
    for (std::int64_t order = 0; order < 3; ++order) {
        const OVChange* change = OVChange::createChangeInManagedObjectContext(context());
        EXPECT_EQ(change->order(), order);
        EXPECT_EQ(latest(), change) << "unsaved";
        reopen();
        EXPECT_EQ(latest()->orderValue(), order) << "saved";
    }
}

TEST_P(ChangeLog, GoesOnFromTheGreatestOrder)
{
    changeOfOrder(41);
    changeOfOrder(7);

    EXPECT_EQ(OVChange::createChangeInManagedObjectContext(context())->orderValue(), 42);
}

TEST_P(ChangeLog, FindsAChangeByItsToken)
{
    const std::string first = *OVChange::createChangeInManagedObjectContext(context())->token();
    const std::string second = *OVChange::createChangeInManagedObjectContext(context())->token();
    EXPECT_TRUE(isUUIDString(first));
    EXPECT_NE(first, second);
    reopen();

    EXPECT_EQ(OVChange::changeWithToken(first, context())->orderValue(), 0);
    EXPECT_EQ(OVChange::changeWithToken(second, context())->orderValue(), 1);
    EXPECT_EQ(OVChange::changeWithToken(newUUIDString(), context()), nullptr);
}

TEST_P(ChangeLog, RecordsOneChangeForEachSave)
{
    recordSaves();
    noteWithIdentifier("a");
    noteWithIdentifier("b");
    save();
    EXPECT_EQ(countOfChanges(), 1U);
    EXPECT_EQ(latest()->orderValue(), 0);
    EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a", "OVNote b"));

    OVNote::noteWithTitle("a", context())->setTitle("changed");
    context().deleteObject(*OVNote::noteWithTitle("b", context()));
    save();
    EXPECT_EQ(countOfChanges(), 2U);
    EXPECT_EQ(latest()->orderValue(), 1);
    EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a", "OVNote b deleted"));
}

TEST_P(ChangeLog, IsWrittenByTheSaveThatItRecords)
{
    recordSaves();
    noteWithIdentifier("a");
    reopen();

    ASSERT_EQ(countOfChanges(), 1U);
    EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a"));
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(ChangeLog, RecordsEveryUpdateOfARecord)
{
    recordSaves();
    OVNote& changed = noteWithIdentifier("a");
    save();
    for (const char* title : {"b", "c"}) {
        changed.setTitle(title);
        save();
    }

    EXPECT_THAT(
        textsOf(OVChange::changeItemsSinceChange(nullptr, context())), ElementsAre("OVNote a", "OVNote a", "OVNote a"));
}

TEST_P(ChangeLog, NamesEachClassByItsEntity)
{
    recordSaves();
    OVNote& owner = noteWithIdentifier("n");
    image(owner, "i.png").setUniqueIdentifier("i");
    file(owner, "f.pdf").setUniqueIdentifier("f");
    tag("t").setUniqueIdentifier("t");
    save();

    EXPECT_THAT(
        textsOf(*latest()), UnorderedElementsAre("OVNote n", "OVNoteImage i", "OVNoteGenericFile f", "OVNoteTag t"));
}

TEST_P(ChangeLog, RecordsBothEndsOfARelationship)
{
    recordSaves();
    OVNote& note = noteWithIdentifier("n");
    OVNoteTag& tagged = tag("t");
    tagged.setUniqueIdentifier("t");
    save();

    note.tagsSet().addObject(tagged);
    save();

    EXPECT_THAT(textsOf(*latest()), UnorderedElementsAre("OVNote n", "OVNoteTag t"));
}

TEST_P(ChangeLog, LeavesOutWhatIsNotSyncable)
{
    recordSaves();
    OVPassword::insertInManagedObjectContext(context());
    noteWithIdentifier(std::nullopt);
    changeOfOrder(12);
    save();
    EXPECT_EQ(countOfChanges(), 1U) << "the one that was made by hand";

    noteWithIdentifier("a");
    noteWithIdentifier(std::nullopt);
    save();
    EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a"));
    EXPECT_EQ(latest()->orderValue(), 13);
}

TEST_P(ChangeLog, LeavesOutWhatWasInsertedAndDeletedBetweenTwoSaves)
{
    recordSaves();
    context().deleteObject(noteWithIdentifier("a"));
    save();

    EXPECT_EQ(latest(), nullptr);
}

TEST_P(ChangeLog, ReadsTheIdentifierOfADeletedRecordThatWasNeverLoaded)
{
    noteWithIdentifier("a");
    reopenAndRecord();
    NSFetchRequest request(OVNote::entityInManagedObjectContext(context()));
    request.includesPropertyValues = false;
    for (NSManagedObject* note : context().executeFetchRequest(request))
        context().deleteObject(*note);
    save();

    EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a deleted"));
}

TEST_P(ChangeLog, MakesNoChangeWithoutARecord)
{
    EXPECT_EQ(OVChange::newChangeForNewOrUpdatedObjects({}, {}, context()), nullptr);
    const std::vector<NSManagedObject*> nameless{&noteWithIdentifier(std::nullopt)};
    EXPECT_EQ(OVChange::newChangeForNewOrUpdatedObjects(nameless, nameless, context()), nullptr);

    EXPECT_THAT(all<OVChange>(), IsEmpty());
    EXPECT_THAT(all<OVChangeItem>(), IsEmpty());
}

TEST_P(ChangeLog, MarksDeletionsAlone)
{
    const std::vector<NSManagedObject*> updated{&noteWithIdentifier("a"), &noteWithIdentifier("b")};
    const std::vector<NSManagedObject*> deleted{&noteWithIdentifier("c")};

    const OVChange* change = OVChange::newChangeForNewOrUpdatedObjects(updated, deleted, context());

    ASSERT_TRUE(change);
    EXPECT_THAT(textsOf(*change), ElementsAre("OVNote a", "OVNote b", "OVNote c deleted"));
}

TEST_P(ChangeLog, AddsItemsToAChange)
{
    OVChange* change = OVChange::createChangeInManagedObjectContext(context());
    const std::vector<NSManagedObject*> records{&noteWithIdentifier("a"), &noteWithIdentifier(std::nullopt),
        OVPassword::insertInManagedObjectContext(context())};
    change->addChangeItemForObjects(records);
    change->addChangeItemForObjects(records);

    EXPECT_THAT(textsOf(*change), ElementsAre("OVNote a", "OVNote a"));
}

TEST_P(ChangeLog, RemovesTheItemsThatWereDealtWith)
{
    OVChange& change = changeOfOrder(0);
    OVChange& other = changeOfOrder(1);
    item(change, "OVNote", "a");
    item(change, "OVNote", "a", true);
    item(change, "OVNote", "b");
    item(change, "OVNote", std::nullopt);
    item(other, "OVNote", "a");
    save();

    change.removeChangeItemsWithUniqueIdentifiers(std::vector<std::string>{"a", "unknown"});

    EXPECT_THAT(textsOf(change), ElementsAre("OVNote b", "OVNote -"));
    EXPECT_THAT(textsOf(other), ElementsAre("OVNote a"));
    reopen();
    EXPECT_EQ(all<OVChangeItem>().size(), 3U);
}

class FailingSave : public ChangeLogFixture {
protected:
    void SetUp() override
    {
        ChangeLogFixture::SetUp();
        noteWithIdentifier("a");
        save();
        recordSaves();
    }

    /// No row of the table can be written for which the condition holds: an index of it overflows. The library runs no
    /// triggers of others.
    void refuse(const std::string& table, const std::string& condition)
    {
        runSQL(
            ("CREATE INDEX \"refuse\" ON \"" + table + "\" (abs(-9223372036854775807 - (" + condition + ")))").c_str());
    }
    void refuseNoMore() { runSQL("DROP INDEX \"refuse\""); }
};
INSTANTIATE_TEST_SUITE_P(Stores, FailingSave, testing::Values(StoreType::SQLite), storeName);

TEST_P(FailingSave, LeavesNoChangeBehind)
{
    refuse("OVNote", "title = 'changed'");
    OVNote::noteWithTitle("a", context())->setTitle("changed");
    for (int attempt = 0; attempt < 2; ++attempt) {
        NSError error;
        EXPECT_FALSE(context().save(&error));
        EXPECT_THAT(error.localizedDescription(), testing::HasSubstr("integer overflow"));
        EXPECT_THAT(all<OVChange>(), IsEmpty());
        EXPECT_THAT(all<OVChangeItem>(), IsEmpty());
        EXPECT_THAT(context().insertedObjects(), IsEmpty());
    }
    refuseNoMore();
    save();

    ASSERT_EQ(countOfChanges(), 1U);
    EXPECT_EQ(latest()->orderValue(), 0);
    EXPECT_THAT(textsOf(*latest()), ElementsAre("OVNote a"));
}

TEST_P(FailingSave, HasNoSaveWithoutItsChange)
{
    refuse("OVChangeItem", "\"pk\" > 0");
    OVNote::noteWithTitle("a", context())->setTitle("changed");
    NSError error;
    EXPECT_FALSE(context().save(&error));
    refuseNoMore();
    context().rollback();
    reopen();

    EXPECT_THAT(titlesOf(all<OVNote>()), ElementsAre("a"));
    EXPECT_THAT(all<OVChange>(), IsEmpty());
}

class UnreadableLog : public FailingSave {
protected:
    void hide() { runSQL("ALTER TABLE \"OVChange\" RENAME TO \"hidden\""); }
    void show() { runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVChange\""); }
};
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableLog, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableLog, ReadsAsEmptyAndIsLogged)
{
    hide();
    const auto failure = testing::StartsWith("Error while fetching\n");
    EXPECT_EQ(latest(), nullptr);
    EXPECT_THAT(takeLog(), ElementsAre(failure));
    EXPECT_EQ(OVChange::changeWithToken("a", context()), nullptr);
    EXPECT_THAT(takeLog(), ElementsAre(failure));
    OVChange::deleteAllChangesInManagedObjectContext(context());
    EXPECT_THAT(takeLog(), ElementsAre(failure));
    show();
}

TEST_P(UnreadableLog, ListsAndDeletesNothing)
{
    item(changeOfOrder(3), "OVNote", "a");
    const OVChange& last = changeOfOrder(4);
    save();
    hide();
    const auto failure = testing::StartsWith("Error while fetching\n");
    EXPECT_THAT(OVChange::changeItemsSinceChange(&last, context()), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(failure));
    OVChange::deleteChangesBeforeChange(&last, context());
    EXPECT_THAT(takeLog(), ElementsAre(failure));
    EXPECT_FALSE(context().hasChanges());
    show();
    EXPECT_EQ(countOfChanges(), 2U);
}

TEST_P(UnreadableLog, GetsNoChangeWithAnOrderThatWasGuessed)
{
    hide();
    EXPECT_EQ(OVChange::createChangeInManagedObjectContext(context()), nullptr);
    const std::vector<NSManagedObject*> records{OVNote::noteWithTitle("a", context())};
    EXPECT_EQ(OVChange::newChangeForNewOrUpdatedObjects(records, {}, context()), nullptr);
    EXPECT_EQ(OVChange::baselineChangesInManagedObjectContext(context(), true), nullptr);
    EXPECT_EQ(takeLog().size(), 3U);
    EXPECT_THAT(context().insertedObjects(), IsEmpty());
    show();
}

} // namespace
} // namespace tarn
