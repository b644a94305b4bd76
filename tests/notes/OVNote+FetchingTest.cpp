#include "tests/support/StoreFixture.h"

#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class NoteFetching : public StoreFixture {
protected:
    OVNote& modified(OVNote& note, int secondsSince1970)
    {
        note.setModificationDate(dateWithMicrosecondsSince1970(std::int64_t{secondsSince1970} * 1'000'000));
        return note;
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteFetching, everyStore(), storeName);

struct ListCase {
    std::string name;
    std::vector<OVNote*> (*list)(NSManagedObjectContext&);
    std::vector<std::string> titles;
};

const std::vector<ListCase>& listCases()
{
    static const std::vector<ListCase> cases{
        {"all", OVNote::allNotesInManagedObjectContext,
            {"active", "trashed", "archived", "both", "conflicted", "encrypted"}},
        {"untrashed", OVNote::allUntrashedNotesInManagedObjectContext,
            {"active", "archived", "conflicted", "encrypted"}},
        {"trashed", OVNote::allTrashedNotesInManagedObjectContext, {"trashed", "both"}},
        {"archived", OVNote::allArchivedNotesInManagedObjectContext, {"archived"}},
        {"conflicted", OVNote::allConflictedNotesInManagedObjectContext, {"conflicted"}},
        {"encrypted", OVNote::allEncryptedNotesInManagedObjectContext, {"encrypted"}},
    };
    return cases;
}

TEST_P(NoteFetching, ListsNotesByState)
{
    noteTitled("active");
    noteTitled("trashed").setTrashedValue(true);
    noteTitled("archived").setArchivedValue(true);
    OVNote& both = noteTitled("both");
    both.setTrashedValue(true);
    both.setArchivedValue(true);
    noteTitled("conflicted").setConflictUniqueIdentifier("x/1");
    noteTitled("encrypted").setEncryptedValue(true);

    for (const bool isSaved : {false, true}) {
        if (isSaved)
            reopen();
        for (const ListCase& expected : listCases())
            EXPECT_EQ(titlesOf(expected.list(context())), expected.titles)
                << expected.name << (isSaved ? ", saved" : ", unsaved");
    }
}

TEST_P(NoteFetching, ListsWhatAPredicateFindsAndEverythingWithoutOne)
{
    noteTitled("a").setPinnedValue(true);
    noteTitled("b");

    const auto pinned = NSPredicate::predicateWithFormat("pinned == YES");
    EXPECT_THAT(titlesOf(OVNote::notesInManagedObjectContext(context(), pinned)), ElementsAre("a"));
    EXPECT_THAT(titlesOf(OVNote::notesInManagedObjectContext(context(), std::nullopt)), ElementsAre("a", "b"));
}

TEST_P(NoteFetching, LogsAFailureAndGivesNothing)
{
    noteTitled("a");

    const auto unknown = NSPredicate::predicateWithFormat("flavour == 1");
    EXPECT_THAT(OVNote::notesInManagedObjectContext(context(), unknown), IsEmpty());

    const auto log = takeLog();
    ASSERT_EQ(log.size(), 1U);
    EXPECT_THAT(log.front(), testing::StartsWith("Error while fetching\n"));
    EXPECT_THAT(log.front(), testing::HasSubstr("flavour"));
}

TEST_P(NoteFetching, FindsByIdentifiers)
{
    OVNote& a = noteTitled("a");
    OVNote& b = noteTitled("b");
    noteTitled("c");
    const std::vector<std::string> wanted{*b.uniqueIdentifier(), newUUIDString(), *a.uniqueIdentifier()};

    EXPECT_THAT(titlesOf(OVNote::notesWithUniqueIdentifiers(wanted, context())), UnorderedElementsAre("a", "b"));
    EXPECT_THAT(OVNote::notesWithUniqueIdentifiers({}, context()), IsEmpty());
    EXPECT_THAT(titlesOf(OVNote::notesWithUUIDs(wanted, {{"title", false}}, context())), ElementsAre("b", "a"));
    EXPECT_THAT(titlesOf(OVNote::notesWithUUIDs(wanted, {{"title", true}}, context())), ElementsAre("a", "b"));
}

TEST_P(NoteFetching, FindsTheLastNoteOfAnIdentifier)
{
    noteTitled("first").setUniqueIdentifier("X");
    noteTitled("second").setUniqueIdentifier("X");
    noteTitled("other").setUniqueIdentifier("x");

    EXPECT_EQ(OVNote::noteWithUniqueIdentifier("X", context())->title(), "second");
    EXPECT_EQ(OVNote::noteWithUniqueIdentifier("Y", context()), nullptr);
    reopen();
    EXPECT_EQ(OVNote::noteWithUniqueIdentifier("X", context())->title(), "second");
}

TEST_P(NoteFetching, FindsNotesThatCarryAnyOfTheTags)
{
    OVNote& both = note("both #a #b");
    note("one #b");
    note("none");
    note("other #c");
    OVNoteTag& a = tag("a");
    OVNoteTag& b = tag("b");

    EXPECT_THAT(OVNote::notesForTags({&a}, context()), ElementsAre(&both));
    EXPECT_THAT(titlesOf(OVNote::notesForTags({&a, &b}, context())), ElementsAre("both #a #b", "one #b"));
    EXPECT_THAT(OVNote::notesForTags({}, context()), IsEmpty());
}

TEST_P(NoteFetching, FindsTitlesWithoutCaseAndDiacriticsInTheStandardOrder)
{
    modified(noteTitled("Äpfel"), 100);
    modified(noteTitled("apfel"), 300);
    OVNote& pinned = modified(noteTitled("APFEL"), 200);
    pinned.setPinnedValue(true);
    modified(noteTitled("Apfelbaum"), 400);

    EXPECT_THAT(titlesOf(OVNote::notesWithTitle("äpfel", context())), ElementsAre("APFEL", "apfel", "Äpfel"));
    EXPECT_EQ(OVNote::noteWithTitle("äpfel", context()), &pinned);
    EXPECT_EQ(OVNote::noteWithTitle("Birne", context()), nullptr);
    EXPECT_THAT(OVNote::notesWithTitle("Birne", context()), IsEmpty());
}

TEST_P(NoteFetching, FindsByTitleOrIdentifierInTheStandardOrder)
{
    OVNote& named = modified(noteTitled("named"), 100);
    const std::string identifier = *named.uniqueIdentifier();
    modified(noteTitled(identifier), 200);

    EXPECT_THAT(titlesOf(OVNote::notesWithTitleOrUUID(identifier, context())), ElementsAre(identifier, "named"));
    EXPECT_EQ(OVNote::noteWithTitleOrUUID(identifier, context())->title(), identifier);
    EXPECT_EQ(OVNote::noteWithTitleOrUUID("NAMED", context()), &named);
    EXPECT_EQ(OVNote::noteWithTitleOrUUID("nothing", context()), nullptr);
}

TEST_P(NoteFetching, FindsByAnyOfSeveralTitlesOrIdentifiers)
{
    OVNote& a = modified(noteTitled("a"), 100);
    modified(noteTitled("b"), 200);
    modified(noteTitled("c"), 300);
    const std::vector<std::string> wanted{"B", *a.uniqueIdentifier(), "nothing"};

    EXPECT_THAT(titlesOf(OVNote::notesWithTitlesOrUUIDs(wanted, context())), ElementsAre("b", "a"));
    EXPECT_THAT(titlesOf(OVNote::notesWithTitlesOrUUIDs(wanted, {{"title", true}}, context())), ElementsAre("a", "b"));
    EXPECT_THAT(OVNote::notesWithTitlesOrUUIDs({}, context()), IsEmpty());
}

TEST_P(NoteFetching, FindsManyTitlesOrIdentifiersAtOnce)
{
    std::vector<std::string> wanted;
    for (int number = 0; number < 3000; ++number)
        wanted.push_back("title " + std::to_string(number));
    noteTitled("Title 7");
    noteTitled("title 2999");
    noteTitled("title 3000");
    save();

    EXPECT_THAT(titlesOf(OVNote::notesWithTitlesOrUUIDs(wanted, {}, context())), ElementsAre("Title 7", "title 2999"));
}

TEST_P(NoteFetching, LeavesTheTrashOutWhereItSaysSo)
{
    OVNote& trashed = modified(noteTitled("a"), 300);
    trashed.setTrashedValue(true);
    trashed.setPinnedValue(true);
    OVNote& older = modified(noteTitled("A"), 100);
    OVNote& newer = modified(noteTitled("á"), 200);

    EXPECT_EQ(OVNote::noteWithTitle("a", context()), &trashed);
    EXPECT_EQ(OVNote::untrashedNoteWithTitle("a", context()), &newer);
    EXPECT_EQ(OVNote::untrashedNoteWithTitleOrUUID("a", context()), &newer);
    EXPECT_EQ(OVNote::untrashedNoteWithTitleOrUUID(*older.uniqueIdentifier(), context()), &older);
    EXPECT_EQ(OVNote::untrashedNoteWithTitleOrUUID(*trashed.uniqueIdentifier(), context()), nullptr);
    EXPECT_EQ(OVNote::untrashedNoteWithTitle(*older.uniqueIdentifier(), context()), nullptr);
}

TEST_P(NoteFetching, DeletesEveryNoteOfTheIdentifiers)
{
    noteTitled("first").setUniqueIdentifier("X");
    noteTitled("second").setUniqueIdentifier("X");
    noteTitled("third").setUniqueIdentifier("Y");
    noteTitled("kept").setUniqueIdentifier("Z");
    save();

    OVNote::deleteNotesWithUniqueIdentifiers({"X", "Y", "unknown"}, context());

    EXPECT_THAT(titlesOf(OVNote::allNotesInManagedObjectContext(context())), ElementsAre("kept"));
    reopen();
    EXPECT_THAT(titlesOf(OVNote::allNotesInManagedObjectContext(context())), ElementsAre("kept"));
}

TEST_P(NoteFetching, ShowsReadableNotesWithATitleOrSubtitleOnAWatch)
{
    const auto subtitled = [this](std::string_view subtitle) {
        OVNote* note = OVNote::insertInManagedObjectContext(context());
        note->setTitle("");
        note->setSubtitle(subtitle);
        return note;
    };
    modified(noteTitled("titled"), 100);
    modified(*subtitled("sub"), 200);
    subtitled("");
    OVNote::insertInManagedObjectContext(context());
    noteTitled("trashed").setTrashedValue(true);
    noteTitled("archived").setArchivedValue(true);
    noteTitled("encrypted").setEncryptedValue(true);
    file(noteTitled("encrypted file"), "a.pdf").setEncryptedValue(true);
    OVNote& withFile = modified(noteTitled("plain file"), 50);
    file(withFile, "b.pdf");
    withFile.setPinnedValue(true);

    EXPECT_THAT(titlesOf(OVNote::watchNotesInManagedObjectContext(context())), ElementsAre("plain file", "", "titled"));
    reopen();
    EXPECT_THAT(titlesOf(OVNote::watchNotesInManagedObjectContext(context())), ElementsAre("plain file", "", "titled"));
}

TEST_P(NoteFetching, ShowsTheFirstFifteenNotesOnAWatch)
{
    for (int number = 1; number <= 20; ++number)
        modified(noteTitled(std::to_string(number)), number);

    const auto notes = OVNote::watchNotesInManagedObjectContext(context());

    ASSERT_EQ(notes.size(), 15U);
    EXPECT_EQ(notes.front()->title(), "20");
    EXPECT_EQ(notes.back()->title(), "6");
}

} // namespace
} // namespace tarn
