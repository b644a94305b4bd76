#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/model/OVNoteGenericFile.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NoteState : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, NoteState, everyStore(), storeName);

TEST_P(NoteState, BeginsWithAnIdentifierOneDateAndItsVersion)
{
    const NSDate before = mark();
    const OVNote& note = *OVNote::insertInManagedObjectContext(context());

    EXPECT_TRUE(isUUIDString(note.uniqueIdentifier().value_or("")));
    EXPECT_EQ(note.creationDate(), note.modificationDate());
    EXPECT_GT(note.creationDate(), before);
    EXPECT_EQ(note.versionValue(), 3);
    EXPECT_FALSE(note.title());
    EXPECT_FALSE(note.text());
}

TEST_P(NoteState, GetsANewIdentifierWhenAsked)
{
    OVNote& note = noteTitled("a");
    const auto before = note.uniqueIdentifier();

    note.updateUniqueIdentifier();

    EXPECT_NE(note.uniqueIdentifier(), before);
    EXPECT_TRUE(isUUIDString(note.uniqueIdentifier().value_or("")));
}

TEST_P(NoteState, IsPersistentOnceItHasAnIdentifierThatStays)
{
    OVNote& note = noteTitled("a");
    EXPECT_FALSE(note.isPersistent());

    save();
    EXPECT_TRUE(note.isPersistent());
}

/// An operation that sets a flag and its companion date, whatever the flag was.
struct Switch {
    std::string name;
    void (OVNote::*operation)();
    bool (OVNote::*flag)() const;
    bool value;
    std::optional<NSDate> (OVNote::*date)() const;
};

const std::vector<Switch>& switches()
{
    static const std::vector<Switch> table{
        {"pin", &OVNote::pin, &OVNote::isPinned, true, &OVNote::pinnedDate},
        {"unpin", &OVNote::unpin, &OVNote::isPinned, false, &OVNote::pinnedDate},
        {"makeReadOnly", &OVNote::makeReadOnly, &OVNote::isReadOnly, true, &OVNote::lockedDate},
        {"makeEditable", &OVNote::makeEditable, &OVNote::isReadOnly, false, &OVNote::lockedDate},
        {"trash", &OVNote::trash, &OVNote::isTrashed, true, &OVNote::trashedDate},
        {"restoreFromTrash", &OVNote::restoreFromTrash, &OVNote::isTrashed, false, &OVNote::trashedDate},
        {"archive", &OVNote::archive, &OVNote::isArchived, true, &OVNote::archivedDate},
        {"unarchive", &OVNote::unarchive, &OVNote::isArchived, false, &OVNote::archivedDate},
    };
    return table;
}

TEST_P(NoteState, IsStampedOnEveryCallAlsoWhenNothingChanges)
{
    for (const Switch& each : switches()) {
        SCOPED_TRACE(each.name);
        OVNote& note = noteTitled("a");
        for (int time = 0; time < 2; ++time) {
            const NSDate before = mark();
            (note.*each.operation)();
            EXPECT_EQ((note.*each.flag)(), each.value);
            EXPECT_GT((note.*each.date)(), before);
        }
    }
}

TEST_P(NoteState, LeavesTheModificationDateAlone)
{
    OVNote& note = noteTitled("a");
    const auto before = note.modificationDate();

    for (const Switch& each : switches())
        (note.*each.operation)();

    EXPECT_EQ(note.modificationDate(), before);
}

TEST_P(NoteState, LeavesTheTrashForTheArchive)
{
    OVNote& note = noteTitled("a");
    note.trash();
    const NSDate before = mark();

    note.archive();

    EXPECT_TRUE(note.isArchived());
    EXPECT_FALSE(note.isTrashed());
    EXPECT_GT(note.trashedDate(), before);
}

TEST_P(NoteState, StaysArchivedInTheTrash)
{
    OVNote& note = noteTitled("a");
    note.archive();
    note.trash();

    EXPECT_TRUE(note.isArchived());
    EXPECT_TRUE(note.isTrashed());
}

TEST_P(NoteState, IsEditableUnlessTrashedArchivedOrReadOnly)
{
    OVNote& note = noteTitled("a");
    EXPECT_TRUE(note.isEditable());
    EXPECT_FALSE(note.isStatic());

    note.makeReadOnly();
    EXPECT_FALSE(note.isEditable());
    note.makeEditable();
    EXPECT_TRUE(note.isEditable());
    note.trash();
    EXPECT_FALSE(note.isEditable());
    note.archive();
    EXPECT_FALSE(note.isEditable());
    note.unarchive();
    EXPECT_TRUE(note.isEditable());
}

TEST_P(NoteState, TellsItsTagsOnlyOfRealChanges)
{
    OVNote& note = this->note("a #one #two");
    OVNoteTag& other = tag("other");
    const std::vector<void (OVNote::*)()> changes{
        &OVNote::trash, &OVNote::restoreFromTrash, &OVNote::archive, &OVNote::unarchive};

    for (const auto change : changes) {
        NSDate before = mark();
        (note.*change)();
        EXPECT_GT(tag("one").modificationDate(), before);
        EXPECT_GT(tag("two").modificationDate(), before);
        EXPECT_LT(other.modificationDate(), before);

        before = mark();
        (note.*change)();
        EXPECT_LT(tag("one").modificationDate(), before);
    }
}

TEST_P(NoteState, AnnouncesTheFlagAlsoWhenItStaysTheSame)
{
    OVNote& note = noteTitled("a");
    std::vector<std::string> heard;
    const auto hear = [&heard](NSManagedObject&, std::string_view key) { heard.emplace_back(key); };
    const auto trashed = note.addObserver("trashed", hear);
    const auto trashedValue = note.addObserver("trashedValue", hear);
    const auto archived = note.addObserver("archived", hear);

    note.setTrashedValue(true);
    EXPECT_THAT(heard, testing::UnorderedElementsAre("trashed", "trashedValue"));
    note.setTrashedValue(true);
    EXPECT_EQ(heard.size(), 4U);
    note.setArchived(true);
    EXPECT_EQ(heard.back(), "archived");
    EXPECT_EQ(heard.size(), 5U);
}

TEST_P(NoteState, TellsItsTagsBeforeItsObservers)
{
    OVNote& note = this->note("a #one");
    const OVNoteTag& one = tag("one");
    NSDate before = mark();
    int calls = 0;
    const auto hear = [&](NSManagedObject&, std::string_view) {
        ++calls;
        EXPECT_GT(one.modificationDate(), before);
    };
    const auto trashed = note.addObserver("trashed", hear);
    const auto archived = note.addObserver("archived", hear);

    note.setTrashed(true);
    EXPECT_EQ(calls, 1);
    before = mark();
    note.setArchived(true);
    EXPECT_EQ(calls, 2);
}

TEST_P(NoteState, KeepsItsStateInTheStore)
{
    OVNote& note = noteTitled("a");
    note.trash();
    note.pin();
    note.makeReadOnly();
    const auto trashedDate = note.trashedDate();
    reopen();

    const OVNote& found = *OVNote::noteWithTitle("a", context());
    EXPECT_TRUE(found.isTrashed());
    EXPECT_TRUE(found.isPinned());
    EXPECT_TRUE(found.isReadOnly());
    EXPECT_EQ(found.trashedDate(), trashedDate);
}

TEST_P(NoteState, IsPinnedInTagsOneByOne)
{
    OVNote& note = noteTitled("a");
    OVNoteTag& one = tag("one");
    OVNoteTag& two = tag("two");
    NSDate before = mark();

    note.pinInTag(one);
    EXPECT_TRUE(note.isPinnedInTag(&one));
    EXPECT_FALSE(note.isPinnedInTag(&two));
    EXPECT_FALSE(note.isPinnedInTag(nullptr));
    EXPECT_GT(one.pinnedNotesDate(), before);
    EXPECT_FALSE(two.pinnedNotesDate());
    EXPECT_THAT(one.pinnedNotesSet().allObjects(), ElementsAre(&note));
    EXPECT_THAT(note.tagsSet().allObjects(), IsEmpty());

    before = mark();
    note.unpinInTag(one);
    EXPECT_FALSE(note.isPinnedInTag(&one));
    EXPECT_GT(one.pinnedNotesDate(), before);
}

TEST_P(NoteState, IsUnpinnedEverywhere)
{
    OVNote& note = noteTitled("a");
    OVNoteTag& one = tag("one");
    OVNoteTag& two = tag("two");
    note.pinInTag(one);
    note.pinInTag(two);
    note.unpinEverywhere();

    EXPECT_FALSE(note.pinnedDate()) << "a note that is not pinned is not unpinned";
    EXPECT_THAT(note.pinnedInTagsSet().allObjects(), IsEmpty());

    note.pin();
    note.pinInTag(one);
    reopen();
    OVNote::noteWithTitle("a", context())->unpinEverywhere();

    EXPECT_FALSE(OVNote::noteWithTitle("a", context())->isPinned());
    EXPECT_THAT(tag("one").pinnedNotesSet().allObjects(), IsEmpty());
}

TEST_P(NoteState, CountsWhatIsDoneInPercent)
{
    struct Case {
        std::int16_t completed;
        std::int16_t open;
        unsigned percentage;
    };
    const std::vector<Case> cases{
        {0, 0, 0}, {0, 5, 0}, {1, 2, 33}, {2, 1, 66}, {5, 0, 100}, {29, 71, 28}, {57, 43, 56}, {32767, 32767, 50}};
    OVNote& note = noteTitled("a");
    for (const auto& [completed, open, percentage] : cases) {
        note.setTodoCompletedValue(completed);
        note.setTodoIncompletedValue(open);
        EXPECT_EQ(note.completedToDoPercentage(), percentage) << completed << " done, " << open << " open";
    }
}

TEST_P(NoteState, GoesForGoodWithItsFiles)
{
    OVNote& note = noteTitled("a");
    file(note, "a.pdf");
    file(note, "b.pdf").setUnusedValue(true);
    file(noteTitled("b"), "c.pdf");
    save();

    OVNote::noteWithTitle("a", context())->permanentlyDelete();
    reopen();

    EXPECT_THAT(titlesOf(OVNote::allNotesInManagedObjectContext(context())), ElementsAre("b"));
    const auto files = all<OVNoteFile>();
    ASSERT_EQ(files.size(), 1U);
    EXPECT_EQ(files.front()->filename(), "c.pdf");
}

TEST_P(NoteState, NamesEveryLinkedNoteOnce)
{
    OVNote& a = noteTitled("a");
    OVNote& b = noteTitled("b");
    OVNote& c = noteTitled("c");
    const auto link = [this](OVNote* from, OVNote* to) {
        OVNoteBackLink* made = OVNoteBackLink::insertInManagedObjectContext(context());
        made->setLinkedBy(from);
        made->setLinkingTo(to);
    };
    link(&a, &b);
    link(&a, &b);
    link(&a, nullptr);
    link(&a, &c);
    link(&c, &b);

    EXPECT_THAT(a.linkedNotes(), ElementsAre(&b, &c));
    EXPECT_THAT(b.linkedNotes(), IsEmpty());
    EXPECT_THAT(b.linkedByNotes(), ElementsAre(&a, &c));
    EXPECT_THAT(a.linkedByNotes(), IsEmpty());
}

TEST_P(NoteState, LeavesASlotForCallers)
{
    OVNote& note = noteTitled("a");
    EXPECT_EQ(note.searchIndex(), 0);
    note.setSearchIndex(-7);
    EXPECT_EQ(note.searchIndex(), -7);
}

} // namespace
} // namespace tarn
