#include "tests/support/StoreFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/platform/foundation/values/NSException.h"
#include "tests/support/TextKeeper.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TagRename : public StoreFixture {
protected:
    std::string textOf(std::string_view title)
    {
        const OVNote* found = OVNote::noteWithTitle(title, context());
        return found ? found->text().value_or("") : "no such note";
    }
    OVNoteTag* find(std::string_view name) { return OVNoteTag::tagWithName(name, context()); }
};
INSTANTIATE_TEST_SUITE_P(Stores, TagRename, everyStore(), storeName);

TEST_P(TagRename, RewritesTheTextsAndLeavesTheOldRecordEmpty)
{
    OVNote& one = note("# 1\n\n#work and #work/acme");
    OVNote& two = note("# 2\n\n#Work#\n");
    OVNote& other = note("# 3\n\n#workshop");
    reopen();
    const auto modified = OVNote::noteWithTitle("1", context())->modificationDate();
    OVNoteTag* old = find("work");

    OVNoteTag* renamed = old->renameTagWithTagNamed("my job");
    static_cast<void>(one), static_cast<void>(two), static_cast<void>(other);

    ASSERT_TRUE(renamed);
    EXPECT_EQ(renamed->title(), "my job");
    EXPECT_TRUE(renamed->isRootValue());
    EXPECT_EQ(textOf("1"), "# 1\n\n#my job# and #my job/acme#");
    EXPECT_EQ(textOf("2"), "# 2\n\n#my job#\n");
    EXPECT_EQ(textOf("3"), "# 3\n\n#workshop");
    EXPECT_THAT(OVNote::noteWithTitle("1", context())->tagsStrings(), UnorderedElementsAre("my job", "my job/acme"));
    EXPECT_EQ(OVNote::noteWithTitle("1", context())->modificationDate(), modified);
    EXPECT_TRUE(old->notesSet().empty());
    EXPECT_TRUE(find("work/acme")->notesSet().empty());
    OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(context());
    EXPECT_THAT(titlesOf(OVNoteTag::notesTagsInManagedObjectContext(context(), std::nullopt)),
        ElementsAre("my job", "my job/acme", "workshop"));
}

TEST_P(TagRename, CountsEachRewriteInTheVectorClock)
{
    OVNote& tagged = note("# 1\n#a");
    const auto clock = tagged.vectorClock();
    tag("a").renameTagWithTagNamed("b");
    EXPECT_NE(tagged.vectorClock(), clock);
}

TEST_P(TagRename, ToANameWithBlanksAndBackRestoresTheText)
{
    const std::string text = "# T\r\n\r\nbody #a, (#a/b) `#a`\r\n";
    OVNote& tagged = note(text);
    tag("a").renameTagWithTagNamed("two words");
    EXPECT_EQ(tagged.text(), "# T\r\n\r\nbody #two words#, (#two words/b#) `#a`\r\n");
    tag("two words").renameTagWithTagNamed("a");
    EXPECT_EQ(tagged.text(), text);
}

TEST_P(TagRename, MergesIntoATagThatExistsAndKeepsItsSettings)
{
    OVNote& first = note("# 1\n#a");
    OVNote& second = note("# 2\n#b");
    OVNoteTag& a = tag("a");
    OVNoteTag& b = tag("b");
    a.setTagcon("icon a");
    a.setSorting(3);
    a.pin();
    b.setTagcon("icon b");
    b.setSorting(1);
    first.pinInTag(a);
    second.pinInTag(b);
    const NSDate before = mark();

    EXPECT_EQ(a.renameTagWithTagNamed("b"), &b);

    EXPECT_EQ(first.text(), "# 1\n#b");
    EXPECT_EQ(b.tagcon(), "icon b");
    EXPECT_EQ(b.sortingValue(), 1);
    EXPECT_FALSE(b.isPinned());
    EXPECT_THAT(b.pinnedNotesSet().allObjects(), UnorderedElementsAre(&first, &second));
    EXPECT_TRUE(a.pinnedNotesSet().empty());
    EXPECT_TRUE(a.notesSet().empty());
    EXPECT_GT(b.pinnedNotesDate(), before);
    EXPECT_GT(a.pinnedNotesDate(), before);
}

TEST_P(TagRename, MovesTheSettingsToANewName)
{
    OVNote& tagged = note("# 1\n#a");
    OVNoteTag& a = tag("a");
    a.setTagcon("icon");
    a.setSorting(3);
    a.setSortingDirection(true);
    a.pin();
    tagged.pinInTag(a);
    const auto sortingDate = a.sortingDate();
    const auto directionDate = a.sortingDirectionDate();
    const auto pinnedDate = a.pinnedDate();
    const NSDate before = mark();

    OVNoteTag* c = a.renameTagWithTagNamed("c");

    ASSERT_TRUE(c);
    EXPECT_EQ(c->tagcon(), "icon");
    EXPECT_GT(c->tagconDate(), before);
    EXPECT_EQ(c->sortingValue(), 3);
    EXPECT_EQ(c->sortingDate(), sortingDate);
    EXPECT_TRUE(c->sortingDirectionValue());
    EXPECT_EQ(c->sortingDirectionDate(), directionDate);
    EXPECT_TRUE(c->isPinned());
    EXPECT_EQ(c->pinnedDate(), pinnedDate);
    EXPECT_TRUE(tagged.isPinnedInTag(c));
    EXPECT_FALSE(tagged.isPinnedInTag(&a));
}

TEST_P(TagRename, UnpinsATagWhoseNewNameIsNested)
{
    note("# 1\n#a");
    OVNoteTag& a = tag("a");
    a.pin();
    const NSDate before = mark();
    OVNoteTag* nested = a.renameTagWithTagNamed("x/y");
    ASSERT_TRUE(nested);
    EXPECT_EQ(nested->title(), "x/y");
    EXPECT_FALSE(nested->isPinned());
    EXPECT_GT(nested->pinnedDate(), before);
    EXPECT_TRUE(find("x"));
}

TEST_P(TagRename, KeepsTheRecordWhenOnlyTheSpellingChanges)
{
    OVNote& tagged = note("# 1\n#cafe #cafe/x");
    OVNoteTag& cafe = tag("cafe");
    tagged.pinInTag(cafe);
    cafe.pin();

    EXPECT_EQ(cafe.renameTagWithTagNamed("Café"), &cafe);

    EXPECT_EQ(cafe.title(), "Café");
    EXPECT_EQ(tagged.text(), "# 1\n#Café #Café/x");
    EXPECT_TRUE(cafe.isPinned());
    EXPECT_TRUE(tagged.isPinnedInTag(&cafe));
    EXPECT_THAT(tagged.tagsSet().allObjects(), UnorderedElementsAre(&cafe, find("cafe/x")));
}

TEST_P(TagRename, ChangesTheSpellingOfATagWithoutNotes)
{
    OVNoteTag& empty = tag("empty");
    EXPECT_EQ(empty.renameTagWithTagNamed("EMPTY"), &empty);
    EXPECT_EQ(empty.title(), "EMPTY");
}

TEST_P(TagRename, ChangesNothingForANameThatIsTheSameOrYieldsNoTag)
{
    OVNote& tagged = note("# 1\n#a");
    OVNoteTag& a = tag("a");
    a.pin();
    save();
    for (const std::string_view name : {"", "a", "***", " / ", "#"})
        EXPECT_EQ(a.renameTagWithTagNamed(name), nullptr) << name;
    EXPECT_EQ(tag("never used").renameTagWithTagNamed("other"), nullptr) << "no text can take the name";
    EXPECT_EQ(find("other"), nullptr);

    EXPECT_EQ(tagged.text(), "# 1\n#a");
    EXPECT_EQ(a.title(), "a");
    EXPECT_TRUE(tagged.changedKeys().empty());
}

TEST_P(TagRename, MovesATagBelowItself)
{
    OVNote& tagged = note("# 1\n#a and #a/x");
    OVNoteTag* moved = tag("a").renameTagWithTagNamed("a/b");
    EXPECT_EQ(tagged.text(), "# 1\n#a/b and #a/b/x");
    EXPECT_EQ(moved, find("a/b"));
    EXPECT_THAT(tagged.tagsStrings(), UnorderedElementsAre("a", "a/b", "a/b/x"));
}

TEST_P(TagRename, TakesTheIconsOfTagsBelowAlong)
{
    note("# 1\n#a #A/b/c #a/d #ab");
    note("# 2\n#z/d");
    tag("a/b").setTagcon("icon b");
    tag("a/b/c").setTagcon("icon c");
    tag("ab").setTagcon("icon ab");
    tag("z/d").setTagcon("icon z/d");

    tag("a").renameTagWithTagNamed("z");

    EXPECT_EQ(find("z/b")->tagcon(), "icon b");
    EXPECT_EQ(find("z/b/c")->tagcon(), "icon c");
    EXPECT_EQ(find("z/d")->tagcon(), std::nullopt) << "that of the old tag, which had none";
    EXPECT_EQ(find("ab")->tagcon(), "icon ab");
}

TEST_P(TagRename, FindsTheTailBehindATitleThatFoldsToAnotherLength)
{
    note("# 1\n#Straße #STRASSE/Nord");
    OVNoteTag& street = tag("strasse");
    tag("Strasse/nord").setTagcon("icon");
    street.renameTagWithTagNamed("Weg");
    EXPECT_EQ(find("Weg/Nord")->tagcon(), "icon");
}

TEST_P(TagRename, ReachesTrashedAndArchivedNotes)
{
    OVNote& trashed = note("# 1\n#a");
    OVNote& archived = note("# 2\n#a");
    trashed.trash();
    archived.archive();
    tag("a").renameTagWithTagNamed("b");
    EXPECT_EQ(trashed.text(), "# 1\n#b");
    EXPECT_EQ(archived.text(), "# 2\n#b");
}

TEST_P(TagRename, OfSomeNotesLeavesTheOthers)
{
    OVNote& one = note("# 1\n#a");
    OVNote& two = note("# 2\n#a");
    OVNoteTag* b = tag("a").renameTagWithTagNamed("b", {&one, &one});
    EXPECT_EQ(one.text(), "# 1\n#b");
    EXPECT_EQ(two.text(), "# 2\n#a");
    EXPECT_THAT(b->notesSet().allObjects(), ElementsAre(&one));
    EXPECT_THAT(tag("a").notesSet().allObjects(), ElementsAre(&two));
}

TEST_P(TagRename, ThatChangesATitleIsFollowedByLinks)
{
    OVNote& target = note("# Trip #rome");
    OVNote& tagged = note("# 1\n#rome [[Trip #rome]]");
    OVNote& source = note("# 2\n[[Trip #rome]]");
    tag("rome").renameTagWithTagNamed("italy/rome");
    EXPECT_EQ(target.title(), "Trip #italy/rome");
    EXPECT_EQ(tagged.text(), "# 1\n#italy/rome [[Trip #italy/rome]]");
    EXPECT_EQ(source.text(), "# 2\n[[Trip #italy/rome]]");
    EXPECT_THAT(tagged.linkedNotes(), ElementsAre(&target));
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&target));
}

TEST_P(TagRename, TakesItsCachesBack)
{
    OVNote& tagged = note("# 1\n#a [[2]]");
    tag("a").renameTagWithTagNamed("b");
    EXPECT_EQ(tagged.tagsCache(), nullptr);
    EXPECT_EQ(tagged.notesCache(), nullptr);
}

TEST_P(TagRename, ThatMeetsAProtectedNoteWithoutItsManagerChangesNothing)
{
    OVNote& one = note("# 1\n#a");
    OVNote& locked = note("# 2\n#a");
    OVNoteTag& a = tag("a");
    locked.setEncryptedValue(true);
    save();
    EXPECT_THROW(a.renameTagWithTagNamed("b"), NSException);
    EXPECT_THROW(a.deleteTag(), NSException);
    EXPECT_THROW(tag("c").addTagToNotes({&one, &locked}, true), NSException);
    EXPECT_EQ(one.text(), "# 1\n#a");
    EXPECT_TRUE(one.changedKeys().empty());
    EXPECT_EQ(find("b"), nullptr);
}

TEST_P(TagRename, ThatMeetsALockedNoteChangesNothing)
{
    OVNote& one = note("# 1\n#a");
    OVNote& locked = note("# 2\n#a");
    OVNote& linker = note("# 3\n[[1]]");
    TextKeeper keeper;
    keeper.texts[&locked] = "# 2\n#a";
    locked.setEncryptedValue(true);
    save();
    OVEncryptionCoreManager::setEncryptionCoreManager(&keeper, context());
    keeper.isLocked = true;
    EXPECT_THROW(tag("a").renameTagWithTagNamed("b"), NSException);
    EXPECT_THROW(OVNote::mergeNotes({&one, &locked}), NSException);
    EXPECT_EQ(one.text(), "# 1\n#a");
    EXPECT_TRUE(one.changedKeys().empty());
    EXPECT_FALSE(one.isTrashed());
    EXPECT_EQ(find("b"), nullptr);
    EXPECT_EQ(all<OVNote>().size(), 3U);

    keeper.isLocked = false;
    const OVNoteTag* renamed = tag("a").renameTagWithTagNamed("b");
    EXPECT_EQ(renamed, find("b"));
    EXPECT_EQ(keeper.texts[&locked], "# 2\n#b");
    EXPECT_THAT(locked.tagsStrings(), ElementsAre("b"));
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
    static_cast<void>(linker);
}

class UnreadableNotes : public TagRename { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableNotes, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableNotes, EndARenameBeforeItChangesAnything)
{
    note("# 1\n#a");
    note("# 2\n#a");
    reopen();
    OVNoteTag* a = find("a");
    std::vector<OVNote*> notes = a->notesSet().allObjects();
    ASSERT_EQ(notes.size(), 2U);
    EXPECT_EQ(notes.front()->text(), "# 1\n#a") << "read before the table goes";
    runSQL("ALTER TABLE \"OVNote_large\" RENAME TO \"hidden\"");

    EXPECT_THROW(a->renameTagWithTagNamed("b"), NSException);

    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNote_large\"");
    EXPECT_EQ(textOf("1"), "# 1\n#a");
    EXPECT_EQ(textOf("2"), "# 2\n#a");
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(UnreadableNotes, EndARenameWhoseTargetCannotBeLookedUp)
{
    note("# 1\n#a");
    reopen();
    OVNoteTag* a = find("a");
    EXPECT_EQ(a->title(), "a");
    runSQL("ALTER TABLE \"OVNoteTag\" RENAME TO \"hidden\"");

    EXPECT_EQ(a->renameTagWithTagNamed("b"), nullptr);

    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNoteTag\"");
    EXPECT_THAT(takeLog(), testing::Each(testing::StartsWith("Error while fetching\n")));
    EXPECT_EQ(textOf("1"), "# 1\n#a");
    EXPECT_FALSE(context().hasChanges());
}

} // namespace
} // namespace tarn
