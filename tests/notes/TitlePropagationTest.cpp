#include "tarnmodel/model/OVNoteCaches.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/encryption/OVEncryptionCoreManager.h"
#include "tarnmodel/model/OVNoteBackLink.h"
#include "tarnmodel/notes/TitleLineGuard.h"
#include "tarnmodel/platform/foundation/text/Folding.h"
#include "tests/notes/AllocationCount.h"
#include "tests/support/TextKeeper.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TitlePropagation : public StoreFixture {
protected:
    std::vector<std::string> titlesLinkedBy(const OVNote& note) { return titlesOf(note.linkedNotes()); }
};
INSTANTIATE_TEST_SUITE_P(Stores, TitlePropagation, everyStore(), storeName);

TEST_P(TitlePropagation, RewritesTheLinksOfAllNotesThatLinkHere)
{
    OVNote& target = note("# A");
    OVNote& one = note("x [[A]] [[a|alias]] `[[A]]` [[AB]]");
    OVNote& two = note("# 2\r\n| [[ A ]] |\r\n");
    reopen();
    OVNote* renamed = OVNote::noteWithTitle("A", context());
    const auto modified = OVNote::noteWithTitle("2", context())->modificationDate();
    static_cast<void>(target), static_cast<void>(one), static_cast<void>(two);

    renamed->updateNoteWithText("# B [x]");

    EXPECT_EQ(OVNote::notesInManagedObjectContext(context(), std::nullopt)[1]->text(),
        "x [[B \\[x\\]]] [[B \\[x\\]|alias]] `[[A]]` [[AB]]");
    OVNote* second = OVNote::noteWithTitle("2", context());
    EXPECT_EQ(second->text(), "# 2\r\n| [[ B \\[x\\] ]] |\r\n");
    EXPECT_EQ(second->modificationDate(), modified);
    EXPECT_THAT(second->linkedNotes(), ElementsAre(renamed));
    EXPECT_EQ(renamed->linkedBySet().count(), 3U);
}

TEST_P(TitlePropagation, ReachesTrashedNotesButNoEncryptedOnes)
{
    OVNote& target = note("# A");
    OVNote& trashed = note("# 1\n[[A]]");
    OVNote& locked = note("# 2\n[[A]]");
    trashed.trash();
    locked.setEncryptedValue(true);
    target.updateNoteWithText("# B");
    EXPECT_EQ(trashed.text(), "# 1\n[[B]]");
    EXPECT_EQ(locked.storedText(), "# 2\n[[A]]");
}

TEST_P(TitlePropagation, LeavesAnEncryptedNoteAloneThatIsUnlocked)
{
    OVNote& target = note("# A");
    OVNote& unlocked = note("# 1\n[[A]]");
    TextKeeper keeper;
    keeper.texts[&unlocked] = "# 1\n[[A]]";
    unlocked.setEncryptedValue(true);
    OVEncryptionCoreManager::setEncryptionCoreManager(&keeper, context());
    target.updateNoteWithText("# B");
    OVEncryptionCoreManager::setEncryptionCoreManager(nullptr, context());
    EXPECT_EQ(keeper.texts[&unlocked], "# 1\n[[A]]");
    EXPECT_THAT(unlocked.linkedNotes(), ElementsAre(&target)) << "the record stays until its text is parsed again";
}

TEST_P(TitlePropagation, FollowsAChangeOfCaseOnly)
{
    OVNote& target = note("# cafe");
    OVNote& source = note("# 1\n[[cafe]]");
    target.updateNoteWithText("# Café");
    EXPECT_EQ(source.text(), "# 1\n[[Café]]");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&target));
}

TEST_P(TitlePropagation, DoesNothingWhileTheTitleStays)
{
    OVNote& target = note("# A");
    OVNote& source = note("# 1\n[[A]]");
    const auto clock = source.vectorClock();
    target.updateNoteWithText("# A\nbody");
    EXPECT_EQ(source.vectorClock(), clock);
}

TEST_P(TitlePropagation, OnlyAttachesWaitingLinksWhereThereWasNoTitle)
{
    OVNote& target = note("# A");
    OVNote& source = note("# 1\n[[A]] [[X]]");
    target.updateLinkedByNoteForNewTitle("X", std::nullopt);
    EXPECT_EQ(source.text(), "# 1\n[[A]] [[X]]");
    EXPECT_EQ(target.linkedBySet().count(), 2U);
    target.updateLinkedByNoteForNewTitle("X", "X");
    target.updateLinkedByNoteForNewTitle(std::nullopt, std::nullopt);
    EXPECT_EQ(source.text(), "# 1\n[[A]] [[X]]");
}

TEST_P(TitlePropagation, StandsInWithTheIdentifierForAnEmptyTitle)
{
    OVNote& target = note("# A");
    OVNote& source = note("# 1\n[[A]]");
    target.updateNoteWithText("");
    EXPECT_EQ(source.text(), "# 1\n[[" + *target.uniqueIdentifier() + "]]");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&target));
    target.updateNoteWithText("# B");
    EXPECT_EQ(source.text(), "# 1\n[[B]]");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&target));
}

TEST_P(TitlePropagation, LeavesLinksToAnotherNoteOfTheOldTitle)
{
    OVNote& first = note("# A");
    OVNote& second = note("# A");
    OVNote& source = note("# 1\n[[A]]");
    ASSERT_THAT(source.linkedNotes(), ElementsAre(&first));
    second.updateNoteWithText("# B");
    EXPECT_EQ(source.text(), "# 1\n[[A]]");
    first.updateNoteWithText("# C");
    EXPECT_EQ(source.text(), "# 1\n[[C]]");
}

TEST_P(TitlePropagation, RipplesAlongTitles)
{
    OVNote& first = note("# A");
    OVNote& second = note("# See [[A]]");
    OVNote& third = note("# 3\n[[See A]]");
    const auto modified = third.modificationDate();
    first.updateNoteWithText("# Bee");
    EXPECT_EQ(second.title(), "See Bee");
    EXPECT_EQ(second.text(), "# See [[Bee]]");
    EXPECT_EQ(third.text(), "# 3\n[[See Bee]]");
    EXPECT_EQ(third.modificationDate(), modified);
    EXPECT_THAT(third.linkedNotes(), ElementsAre(&second));
}

TEST_P(TitlePropagation, ReachesANoteAlsoWhenAChainWasThereFirst)
{
    // The third note is parsed anew for the second one's title while it still names the old title of the first.
    OVNote& first = note("# A");
    OVNote& second = note("# See [[A]]");
    OVNote& third = note("# 3\n[[See A]] and [[A]]");
    first.updateNoteWithText("# Bee");
    EXPECT_EQ(third.text(), "# 3\n[[See Bee]] and [[Bee]]");
    EXPECT_THAT(third.linkedNotes(), UnorderedElementsAre(&first, &second));
}

TEST_P(TitlePropagation, StopsRipplingAtAnAlias)
{
    OVNote& first = note("# A");
    OVNote& second = note("# See [[A|it]]");
    OVNote& third = note("# 3\n[[See it]]");
    first.updateNoteWithText("# B");
    EXPECT_EQ(second.text(), "# See [[B|it]]");
    EXPECT_EQ(second.title(), "See it");
    EXPECT_EQ(third.text(), "# 3\n[[See it]]");
}

TEST_P(TitlePropagation, LeavesTheTitleLinesOfARingButRewritesTheirBodies)
{
    OVNote& y = note("# Y");
    OVNote& x = note("# X [[Y]]\n[[Y]]");
    y.updateNoteWithText("# Y [[X Y]]");
    // Following the first change of Y's title had led X to "X Y X Y"; the ring is closed before that.
    ASSERT_EQ(x.text(), "# X [[Y]]\n[[Y X Y]]");
    ASSERT_THAT(titlesOf(y.linkedNotes()), ElementsAre("X Y"));

    y.updateNoteWithText("# Z [[X Y]]");

    EXPECT_EQ(x.text(), "# X [[Y]]\n[[Z X Y]]");
    EXPECT_EQ(x.title(), "X Y");
}

TEST_P(TitlePropagation, AsksTheNotesThatALinkedTitleWouldChange)
{
    OVNote& a = note("# A");
    OVNote& b = note("# B [[A]]");
    OVNote& c = note("# C [[B A]]");
    EXPECT_TRUE(b.canReplaceWikiLinkWithTitle("A"));
    EXPECT_TRUE(b.canReplaceWikiLinkWithTitle("elsewhere"));
    OVNote::VisitedNotes visited;
    EXPECT_TRUE(b.canReplaceWikiLinkWithTitle("a", &visited));
    EXPECT_THAT(visited, UnorderedElementsAre(&b, &c));
    EXPECT_FALSE(b.canReplaceWikiLinkWithTitle("A", &visited)) << "was there already";
    visited = {&c};
    EXPECT_FALSE(b.canReplaceWikiLinkWithTitle("A", &visited));
    visited = {&a};
    EXPECT_TRUE(b.canReplaceWikiLinkWithTitle("elsewhere", &visited));
    EXPECT_THAT(visited, UnorderedElementsAre(&a, &b));
}

TEST_P(TitlePropagation, KeepsWhatTheGuardFoundUntilANoteOnTheWayChanges)
{
    note("# A");
    OVNote& b = note("# B [[A]]");
    OVNote& c = note("# C [[B A]]");
    TitleLineGuard guard;
    EXPECT_TRUE(guard.allows(b, "A"));
    note("# D\n[[C B A]] [[C B A]]");
    EXPECT_TRUE(guard.allows(b, "A")) << "nobody told it";
    guard.forget(b);
    EXPECT_FALSE(guard.allows(b, "A"));

    OVNote& e = note("# E");
    OVNote& f = note("# F [[E]]");
    OVNote& g = note("# G [[F E]]");
    EXPECT_TRUE(guard.allows(f, "E"));
    note("# H\n[[G F E]] [[G F E]]");
    guard.forget(g);
    EXPECT_FALSE(guard.allows(f, "E")) << "its walk went over the note that changed";
    static_cast<void>(c), static_cast<void>(e);

    OVNote& k = note("# K [[E]]");
    OVNote& l = note("# L [[E]]");
    OVNote& m = note("# M [[K E]] [[L E]]");
    EXPECT_TRUE(guard.allows(k, "E"));
    EXPECT_TRUE(guard.allows(l, "E")) << "another way to the same note";
    note("# N\n[[M K E L E]] [[M K E L E]]");
    guard.forget(m);
    EXPECT_FALSE(guard.allows(l, "E"));
    EXPECT_FALSE(guard.allows(k, "E")) << "the way that was found first is forgotten as well";
}

TEST_P(TitlePropagation, LooksAgainWhereLinksAreFoundOnItsWay)
{
    OVNote& a = note("# A");
    OVNote& namesake = note("# E C S A");
    note("# S [[A]]");
    note("# B [[S A]]");
    OVNote& c = note("# C [[S A]]");
    OVNote& e = note("# E [[C S A]]");
    OVNote& q = note("# Q [[B S A]]\n[[E C S A]] [[E C S A]]");
    ASSERT_EQ(namesake.linkedBySet().count(), 2U);
    namesake.permanentlyDelete();
    ASSERT_EQ(e.linkedBySet().count(), 0U) << "the links wait until their text is parsed again";

    a.updateNoteWithText("# Z");

    EXPECT_EQ(q.text(), "# Q [[B S Z]]\n[[E C S A]] [[E C S A]]");
    EXPECT_EQ(e.linkedBySet().count(), 2U) << "parsed on the way";
    EXPECT_EQ(c.text(), "# C [[S A]]") << "two links from one note are a ring";
    EXPECT_EQ(e.text(), "# E [[C S A]]");
}

TEST_P(TitlePropagation, NeverReadsAnEncryptedNoteForTheGuard)
{
    note("# A");
    OVNote& b = note("# B [[A]]");
    OVNote& c = note("# C [[B A]]");
    b.setEncryptedValue(true);
    EXPECT_TRUE(b.canReplaceWikiLinkWithTitle("A"));
    b.setEncryptedValue(false);
    c.setEncryptedValue(true);
    EXPECT_TRUE(b.canReplaceWikiLinkWithTitle("A"));
}

TEST_P(TitlePropagation, TakesTwoWaysToOneNoteForARing)
{
    OVNote& a = note("# A");
    OVNote& b = note("# B [[A]]");
    OVNote& c = note("# C\n[[B A]] [[B A]]");
    EXPECT_FALSE(b.canReplaceWikiLinkWithTitle("A")) << "its two links ask the same note twice";
    a.updateNoteWithText("# Z\n");
    EXPECT_EQ(b.text(), "# B [[A]]");
    EXPECT_EQ(b.linkedNotes(), std::vector<OVNote*>()) << "looked up anew, and nobody is called A now";
    EXPECT_EQ(c.text(), "# C\n[[B A]] [[B A]]");
}

TEST_P(TitlePropagation, EndsAlsoWhereAParagraphEndsWithinTheTitle)
{
    // U+2029 ends the first paragraph but not the line that is the title.
    OVNote& y = note("# y");
    OVNote& x = note("# x\u2029[[y]]");
    const std::string titleOfX = *x.title();
    y.updateNoteWithText("# y\u2029[[" + titleOfX + "]]");
    y.updateNoteWithText("# z\u2029[[" + titleOfX + "]]");
    EXPECT_LT(x.text()->size(), 100U);
    EXPECT_LT(y.text()->size(), 100U);
}

TEST_P(TitlePropagation, AttachesWaitingLinksAfterItFollowedTheOldTitle)
{
    OVNote& a = note("# A");
    OVNote& waiting = note("# 1\n[[B]]");
    OVNote& trashed = note("# B");
    OVNote& source = note("# 2\n[[A]]");
    trashed.trash();
    a.updateNoteWithText("# B");
    EXPECT_THAT(waiting.linkedNotes(), ElementsAre(&a));
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&a));
    EXPECT_THAT(trashed.linkedByNotes(), IsEmpty());
}

TEST_P(TitlePropagation, LetsALinkWaitThatCannotBeRewritten)
{
    struct Case {
        std::string source;
        std::string newTitle;
    };
    const std::vector<Case> cases{
        {"#tag\n# See [[Old]]", "New"},                                       // a title line that is not the first
        {"\n\n[[Old]] and [[old|it]]", "New"}, {"# S\n\na ` [[Old]]", "x`y"}, // it would become code
        {"# S\n\n<a b=\"[[Old]]", "x\">y"},                                   // or HTML
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.source);
        OVNote& target = note("# Old");
        OVNote& source = note(one.source);
        ASSERT_THAT(source.linkedNotes(), ElementsAre(&target));

        target.updateNoteWithText("# " + one.newTitle);

        EXPECT_EQ(source.text(), one.source);
        EXPECT_THAT(source.linkedNotes(), IsEmpty()) << "its text does not name the note any more";
        EXPECT_EQ(target.linkedBySet().count(), 0U);
        for (const OVNoteBackLink* link : source.linkingToSet().allObjects())
            EXPECT_EQ(fold(*link->title()), "old");
        OVNote& heir = note("# old");
        EXPECT_THAT(source.linkedNotes(), ElementsAre(&heir));
        target.permanentlyDelete();
        source.permanentlyDelete();
        heir.permanentlyDelete();
    }
}

TEST_P(TitlePropagation, GivesALinkThatCannotBeRewrittenToAnotherNoteOfTheOldTitle)
{
    OVNote& first = note("# A");
    OVNote& second = note("# a");
    OVNote& source = note("#tag\n# See [[A]]");
    ASSERT_THAT(source.linkedNotes(), ElementsAre(&first));
    first.updateNoteWithText("# B");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&second));
}

TEST_P(TitlePropagation, LeavesANoteAloneWhoseLinkIsStillRight)
{
    OVNote& target = note("# cafe");
    OVNote& source = note("#tag\n# See [[cafe]]");
    const auto clock = source.vectorClock();
    target.updateNoteWithText("# Café");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&target)) << "the same title but for an accent";
    EXPECT_EQ(source.vectorClock(), clock);
}

TEST_P(TitlePropagation, RewritesALinkToTheOldTitleInItsOwnText)
{
    OVNote& self = note("# Old");
    self.updateNoteWithText("# New\n[[New]] [[Old]]");
    EXPECT_EQ(self.text(), "# New\n[[New]] [[New]]");
    EXPECT_EQ(self.linkedBySet().count(), 2U);
}

TEST_P(TitlePropagation, KeepsDiscardedSourcesOutOfIt)
{
    OVNote& target = note("# A");
    OVNote& gone = note("# 1\n[[A]]");
    OVNote& stays = note("# 2\n[[A]]");
    gone.permanentlyDelete();
    target.updateNoteWithText("# B");
    EXPECT_EQ(stays.text(), "# 2\n[[B]]");
    save();
}

TEST_P(TitlePropagation, EndsInARingOfTitleLinks)
{
    constexpr int length = 1000;
    std::vector<OVNote*> ring;
    for (int number = 0; number < length; ++number)
        ring.push_back(
            &note("# " + std::to_string(number) + " [[" + std::to_string((number + 1) % length) + " next|next]]"));
    for (OVNote* note : ring)
        ASSERT_EQ(note->linkedNotes().size(), 1U);
    const std::string before = *ring.back()->text();

    ring.front()->updateNoteWithText("# start [[1 next|next]]");

    EXPECT_EQ(ring.back()->text(), before) << "following it would come back to where it began";
    EXPECT_EQ(ring.front()->title(), "start next");
    EXPECT_THAT(ring.back()->linkedNotes(), IsEmpty());
}

class TitleChain : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, TitleChain, testing::Values(StoreType::InMemory), storeName);

TEST_P(TitleChain, OfFiveThousandTitlesIsFollowedToItsEnd)
{
    // Each title holds the one before it. The test's stack has eight megabytes where nobody changed that.
    constexpr int length = 5000;
    OVNote& first = note("# A");
    std::string title = "A";
    OVNote* last = &first;
    for (int number = 1; number < length; ++number) {
        last = &note("# [[" + title + "]]x");
        title += 'x';
    }
    ASSERT_EQ(*last->title(), title);
    EXPECT_TRUE(first.linkedByNotes().front()->canReplaceWikiLinkWithTitle("A"));

    first.updateNoteWithText("# B");

    title.front() = 'B';
    EXPECT_EQ(*last->title(), title);
    EXPECT_EQ(last->text(), "# [[" + title.substr(0, title.size() - 1) + "]]x");
}

TEST_P(TitleChain, IsWalkedOnceAndNotFromEachOfItsNotes)
{
    const auto costOfANewTitle = [this](int length) {
        const std::string name = "Chain of " + std::to_string(length);
        OVNote& first = note("# " + name);
        std::string title = name;
        for (int number = 1; number < length; ++number) {
            note("# [[" + title + "]]x");
            title += 'x';
        }
        const std::int64_t before = allocationCount();
        first.updateNoteWithText("# New " + name);
        return allocationCount() - before;
    };
    const std::int64_t ofFew = costOfANewTitle(100);
    const std::int64_t ofMany = costOfANewTitle(800);
    EXPECT_LT(ofMany, 10 * ofFew) << "eight times the notes; from each of them it would be 64 times as much";
}

} // namespace
} // namespace tarn
