#include "tests/support/StoreFixture.h"

#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TagFetching : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, TagFetching, everyStore(), storeName);

TEST_P(TagFetching, ListsInTheOrderInWhichPeopleSort)
{
    for (const char* name : {"item 10", "Banana", "item 9", "apple", "ähre", "Item 1"})
        tag(name);

    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        EXPECT_THAT(titlesOf(OVNoteTag::notesTagsInManagedObjectContext(context(), std::nullopt)),
            ElementsAre("ähre", "apple", "Banana", "Item 1", "item 9", "item 10"));
    }
}

TEST_P(TagFetching, ListsRootsAndTagsWithActiveNotes)
{
    note("# 1\n#b/x #c");
    note("# 2\n#trashed").trash();
    note("# 3\n#archived").archive();
    tag("empty");
    tag("a/alone");

    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        EXPECT_THAT(titlesOf(OVNoteTag::rootTagsInManagedObjectContext(context())), ElementsAre("b", "c"));
        EXPECT_THAT(
            titlesOf(OVNoteTag::populatedNotesTagsInManagedObjectContext(context())), ElementsAre("b", "b/x", "c"));
        EXPECT_THAT(titlesOf(OVNoteTag::notesTagsInManagedObjectContext(context(), OVNoteTag::rootTagsPredicate())),
            ElementsAre("b", "c"));
    }
}

TEST_P(TagFetching, FindsByIdentifiersInTheStandardOrder)
{
    OVNoteTag& b = tag("b");
    OVNoteTag& a = tag("a");
    tag("c");

    EXPECT_THAT(OVNoteTag::notesTagsWithUniqueIdentifiers(
                    {*b.uniqueIdentifier(), *a.uniqueIdentifier(), newUUIDString()}, context()),
        ElementsAre(&a, &b));
    EXPECT_THAT(OVNoteTag::notesTagsWithUniqueIdentifiers({}, context()), IsEmpty());
}

TEST_P(TagFetching, FindsTheFirstTagOfANameWithoutCaseAndDiacritics)
{
    OVNoteTag& first = *OVNoteTag::addNewTagWithName("Café", context());
    OVNoteTag::addNewTagWithName("cafe", context());

    EXPECT_EQ(OVNoteTag::tagWithName("CAFE", context()), &first);
    EXPECT_EQ(OVNoteTag::tagWithName("cafe/x", context()), nullptr);
    EXPECT_EQ(OVNoteTag::tagWithName("caf", context()), nullptr);
    EXPECT_EQ(OVNoteTag::tagWithName("", context()), nullptr);
    reopen();
    EXPECT_EQ(OVNoteTag::tagWithName("café", context())->title(), "Café");
}

TEST_P(TagFetching, LogsAFailureAndGivesNothing)
{
    const auto unknown = NSPredicate::predicateWithFormat("flavour == 1");
    EXPECT_THAT(OVNoteTag::notesTagsInManagedObjectContext(context(), unknown), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
}

class NotesOfATag : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        note("both #a #a/b");
        note("child #a/b");
        note("own #a");
        note("trashed #a").trash();
        note("archived #a").archive();
        note("other #ab");
    }

    std::vector<std::string> found(const NSPredicate& predicate)
    {
        return titlesOf(OVNote::notesInManagedObjectContext(context(), predicate));
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NotesOfATag, everyStore(), storeName);

TEST_P(NotesOfATag, AreThoseNeitherTrashedNorArchived)
{
    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        EXPECT_THAT(found(tag("a").untrashedNotesPredicate()), ElementsAre("both #a #a/b", "child #a/b", "own #a"));
        EXPECT_THAT(found(tag("a").untrashedNotesPredicateIncludingNotesFromChildTags(true)),
            ElementsAre("both #a #a/b", "child #a/b", "own #a"));
        EXPECT_THAT(found(tag("a/b").untrashedNotesPredicate()), ElementsAre("both #a #a/b", "child #a/b"));
    }
}

TEST_P(NotesOfATag, LeaveOutThoseOfTagsBelowWhenAsked)
{
    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        EXPECT_THAT(found(tag("a").untrashedNotesPredicateIncludingNotesFromChildTags(false)), ElementsAre("own #a"));
        EXPECT_THAT(found(tag("a/b").untrashedNotesPredicateIncludingNotesFromChildTags(false)),
            ElementsAre("both #a #a/b", "child #a/b"));
    }
}

TEST_P(NotesOfATag, AreCounted)
{
    EXPECT_EQ(tag("a").untrashedNotesCount(), 3U);
    reopen();
    EXPECT_EQ(tag("a").untrashedNotesCount(), 3U);
    EXPECT_EQ(tag("a/b").untrashedNotesCount(), 2U);
    EXPECT_EQ(tag("empty").untrashedNotesCount(), 0U);
}

TEST_P(NotesOfATag, AreListedInAnyOrder)
{
    EXPECT_THAT(titlesOf(tag("a").activeNotesWithSortDescriptors({{"title", false}})),
        ElementsAre("own #a", "child #a/b", "both #a #a/b"));
    EXPECT_THAT(titlesOf(tag("a").activeNotesWithSortDescriptors({{"title", true}})),
        ElementsAre("both #a #a/b", "child #a/b", "own #a"));
}

/// A store that cannot be read for a while.
class UnreadableNotesOfATag : public NotesOfATag { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableNotesOfATag, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableNotesOfATag, AreNeitherCountedNorListed)
{
    reopen();
    const OVNoteTag& a = tag("a");
    ASSERT_EQ(a.title(), "a");
    runSQL("ALTER TABLE \"OVNote\" RENAME TO \"hidden\"");
    EXPECT_EQ(a.untrashedNotesCount(), std::nullopt);
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_THAT(a.activeNotesWithSortDescriptors({}), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_THAT(a.childTagsWithSortDescriptors(), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_THAT(OVNoteTag::rootTagsInManagedObjectContext(context()), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNote\"");
    EXPECT_EQ(a.untrashedNotesCount(), 3U);
}

} // namespace
} // namespace tarn
