#include "tests/sync/ChangeLogFixture.h"

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/model/OVNoteImage.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using Strings = std::vector<std::string>;

Strings identifiersOf(const std::vector<NSManagedObject*>& records)
{
    Strings identifiers;
    for (const NSManagedObject* record : records)
        identifiers.push_back(record->storedValueForKey("uniqueIdentifier").asString());
    return identifiers;
}

class ChangeQueries : public ChangeLogFixture {
protected:
    void SetUp() override
    {
        ChangeLogFixture::SetUp();
        recordSaves();
        deletedUIDs = {"from before"};
    }
    const NSEntityDescription& notes() { return OVNote::entityInManagedObjectContext(context()); }
    const NSEntityDescription& tags() { return OVNoteTag::entityInManagedObjectContext(context()); }

    Strings deletedUIDs;
};
INSTANTIATE_TEST_SUITE_P(Stores, ChangeQueries, everyStore(), storeName);

TEST_P(ChangeQueries, ListTheItemsAfterAChange)
{
    OVChange& first = changeOfOrder(0);
    item(first, "OVNote", "a");
    OVChange& second = changeOfOrder(1);
    item(second, "OVNote", "b");
    item(changeOfOrder(2), "OVNote", "c", true);
    for (const char* when : {"unsaved", "saved"}) {
        EXPECT_THAT(
            textsOf(OVChange::changeItemsSinceChange(&first, context())), ElementsAre("OVNote b", "OVNote c deleted"))
            << when;
        EXPECT_THAT(textsOf(OVChange::changeItemsSinceChange(&second, context())), ElementsAre("OVNote c deleted"))
            << when;
        EXPECT_THAT(textsOf(OVChange::changeItemsSinceChange(nullptr, context())),
            ElementsAre("OVNote a", "OVNote b", "OVNote c deleted"))
            << when;
        save();
    }
}

TEST_P(ChangeQueries, FindTheRecordsOfOneChange)
{
    OVNote& owner = noteWithIdentifier("n");
    image(owner, "i.png").setUniqueIdentifier("i");
    tag("t").setUniqueIdentifier("t");
    save();
    noteWithIdentifier("later");
    save();
    const OVChange* first = all<OVChange>().front();

    EXPECT_THAT(identifiersOf(OVChange::objectsUpdatedForChange(*first, &deletedUIDs, context())),
        UnorderedElementsAre("n", "i", "t"));
    EXPECT_THAT(deletedUIDs, IsEmpty());
    EXPECT_THAT(
        identifiersOf(OVChange::objectsUpdatedForChange(*first, &deletedUIDs, tags(), context())), ElementsAre("t"));
}

TEST_P(ChangeQueries, FindTheRecordsOfAChangeThatIsNotSavedYet)
{
    noteWithIdentifier("n");
    tag("t").setUniqueIdentifier("t");
    OVChange& change = changeOfOrder(0);
    item(change, "OVNote", "n");
    item(change, "OVNoteTag", "t");
    const auto expectAll = [&](const char* when) {
        EXPECT_THAT(identifiersOf(OVChange::objectsUpdatedForChange(change, &deletedUIDs, context())),
            UnorderedElementsAre("n", "t"))
            << when;
        EXPECT_THAT(
            identifiersOf(OVChange::objectsUpdatedForChange(change, &deletedUIDs, tags(), context())), ElementsAre("t"))
            << when;
    };
    expectAll("alone");
    NSManagedObjectContext child(NSManagedObjectContext::ConcurrencyType::MainQueue);
    child.setParentContext(context()); // new records get the identifiers that stay
    expectAll("with a child context");
}

TEST_P(ChangeQueries, ReportADeletionOfOneChangeOnlyAsSuch)
{
    noteWithIdentifier("a");
    noteWithIdentifier("b");
    OVChange& change = changeOfOrder(0);
    item(change, "OVNote", "a");
    item(change, "OVNote", "a", true);
    item(change, "OVNote", "b");
    item(change, "OVNoteTag", "c", true);
    item(change, "OVNoteTag", "c", true);

    EXPECT_THAT(identifiersOf(OVChange::objectsUpdatedForChange(change, &deletedUIDs, context())), ElementsAre("b"));
    EXPECT_THAT(deletedUIDs, UnorderedElementsAre("a", "c"));
    EXPECT_THAT(
        identifiersOf(OVChange::objectsUpdatedForChange(change, &deletedUIDs, notes(), context())), ElementsAre("b"));
    EXPECT_THAT(deletedUIDs, ElementsAre("a"));
}

TEST_P(ChangeQueries, SkipItemsThatNameNothing)
{
    noteWithIdentifier(std::nullopt);
    noteWithIdentifier("a");
    OVChange& change = changeOfOrder(0);
    item(change, "OVNote", std::nullopt);
    item(change, "OVNote", std::nullopt, true);
    item(change, std::nullopt, "a");
    item(change, "OVOfALaterVersion", "a");
    item(change, "OVNote", "gone");

    EXPECT_THAT(OVChange::objectsUpdatedForChange(change, &deletedUIDs, context()), IsEmpty());
    EXPECT_THAT(deletedUIDs, IsEmpty());
    EXPECT_THAT(OVChange::objectsUpdatedSinceChange(nullptr, &deletedUIDs, context()), IsEmpty());
    EXPECT_THAT(deletedUIDs, IsEmpty());
}

TEST_P(ChangeQueries, FindTheRecordsAfterAChange)
{
    tag("t").setUniqueIdentifier("t");
    OVNote& a = noteWithIdentifier("a");
    noteWithIdentifier("b");
    save();
    const OVChange* first = latest();
    a.setTitle("changed");
    save();
    const OVChange* second = latest();
    tag("u").setUniqueIdentifier("u");
    noteWithIdentifier("c");
    save();

    EXPECT_THAT(
        identifiersOf(OVChange::objectsUpdatedSinceChange(first, &deletedUIDs, context())), ElementsAre("a", "c", "u"));
    EXPECT_THAT(
        identifiersOf(OVChange::objectsUpdatedSinceChange(second, &deletedUIDs, context())), ElementsAre("c", "u"));
    EXPECT_THAT(OVChange::objectsUpdatedSinceChange(latest(), &deletedUIDs, context()), IsEmpty());
    EXPECT_THAT(identifiersOf(OVChange::objectsUpdatedSinceChange(nullptr, nullptr, context())),
        ElementsAre("a", "b", "c", "t", "u"));
    EXPECT_THAT(
        identifiersOf(OVChange::objectsUpdatesSinceChange(first, &deletedUIDs, tags(), context())), ElementsAre("u"));
    EXPECT_THAT(identifiersOf(OVChange::objectsUpdatesSinceChange(nullptr, &deletedUIDs, tags(), context())),
        ElementsAre("t", "u"));
    EXPECT_THAT(deletedUIDs, IsEmpty());
}

TEST_P(ChangeQueries, LetADeletionWinOverAnUpdate)
{
    OVNote& a = noteWithIdentifier("a");
    noteWithIdentifier("b");
    save();
    const OVChange* first = latest();
    a.setTitle("changed");
    save();
    context().deleteObject(a);
    save();

    EXPECT_THAT(OVChange::objectsUpdatedSinceChange(first, &deletedUIDs, context()), IsEmpty());
    EXPECT_THAT(deletedUIDs, ElementsAre("a"));
    EXPECT_THAT(OVChange::objectsUpdatesSinceChange(first, &deletedUIDs, notes(), context()), IsEmpty());
    EXPECT_THAT(deletedUIDs, ElementsAre("a"));
}

TEST_P(ChangeQueries, MayNameADeletionOncePerClass)
{
    OVChange& change = changeOfOrder(0);
    item(change, "OVNote", "a", true);
    item(change, "OVNote", "a", true);
    item(change, "OVNoteTag", "a", true);

    OVChange::objectsUpdatedSinceChange(nullptr, &deletedUIDs, context());
    EXPECT_THAT(deletedUIDs, ElementsAre("a", "a"));
}

TEST_P(ChangeQueries, TakeAPredicateOverItems)
{
    noteWithIdentifier("a");
    noteWithIdentifier("b");
    OVChange& change = changeOfOrder(0);
    item(change, "OVNote", "a");
    item(change, "OVNote", "b");
    item(change, "OVNote", "c", true);

    const auto notB = NSPredicate::predicateWithFormat("uniqueIdentifier != %@", "b");
    EXPECT_THAT(identifiersOf(OVChange::objectsUpdatesForChangeItemPredicate(notB, &deletedUIDs, notes(), context())),
        ElementsAre("a"));
    EXPECT_THAT(deletedUIDs, ElementsAre("c"));
}

TEST_P(ChangeQueries, FindRecordsByIdentifiers)
{
    noteWithIdentifier("a");
    noteWithIdentifier("b");
    noteWithIdentifier(std::nullopt);
    const auto find = [&](const std::optional<Strings>& identifiers) {
        return OVChange::objectsWithUniqueIdentifiers(identifiers, notes(), context());
    };
    for (const char* when : {"unsaved", "saved"}) {
        EXPECT_THAT(identifiersOf(find(Strings{"b", "unknown", "b"})), ElementsAre("b")) << when;
        EXPECT_THAT(find(Strings()), IsEmpty()) << when;
        EXPECT_EQ(find(std::nullopt).size(), 3U) << when;
        save();
    }
}

TEST_P(ChangeQueries, FindImagesAndOtherFilesOnTheirParentEntity)
{
    OVNote& owner = noteWithIdentifier("n");
    image(owner, "i.png").setUniqueIdentifier("i");
    file(owner, "f.pdf").setUniqueIdentifier("f");
    save();

    const NSEntityDescription& files = OVNoteFile::entityInManagedObjectContext(context());
    EXPECT_THAT(identifiersOf(OVChange::objectsWithUniqueIdentifiers(Strings{"f", "i"}, files, context())),
        UnorderedElementsAre("f", "i"));
}

TEST_P(ChangeQueries, LogAFailureAndGiveNothing)
{
    item(changeOfOrder(0), "OVNote", "a", true);
    const auto unknown = NSPredicate::predicateWithFormat("flavour == 1");

    EXPECT_THAT(OVChange::objectsUpdatesForChangeItemPredicate(unknown, &deletedUIDs, notes(), context()), IsEmpty());

    EXPECT_THAT(deletedUIDs, IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
}

} // namespace
} // namespace tarn
