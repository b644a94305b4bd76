#include "tarnmodel/model/OVNoteCaches.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/corvel/CVKWikiLink.h"
#include "tarnmodel/model/OVNoteBackLink.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class WikiLinks : public StoreFixture {
protected:
    /// "title@location -> target" for each link of a note; "-" without a target.
    static std::vector<std::string> linksOf(const OVNote& note)
    {
        std::vector<std::string> links;
        for (const OVNoteBackLink* link : note.linkingToSet().allObjects()) {
            const OVNote* target = link->linkingTo();
            links.push_back(link->title().value_or("none") + "@" + std::to_string(link->locationValue()) + " -> "
                + (target ? target->title().value_or("none") : "-"));
        }
        return links;
    }
    static OVNoteBackLink* onlyLinkOf(const OVNote& note)
    {
        const auto links = note.linkingToSet().allObjects();
        EXPECT_EQ(links.size(), 1U);
        return links.empty() ? nullptr : links.front();
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, WikiLinks, everyStore(), storeName);

TEST_P(WikiLinks, BeginWithAnIdentifierADateAndTheirVersion)
{
    const NSDate before = mark();
    OVNoteBackLink* link = OVNoteBackLink::insertInManagedObjectContext(context());
    EXPECT_EQ(link->uniqueIdentifier()->size(), 36U);
    EXPECT_GT(link->modificationDate(), before);
    EXPECT_EQ(link->versionValue(), 3);
}

TEST_P(WikiLinks, AreThoseOfTheTextWithTheirOffsets)
{
    OVNote& target = note("# B");
    OVNote& source = note("😀 [[B]] é [[b|alias]] [[Missing]] `[[B]]`");
    EXPECT_THAT(linksOf(source), UnorderedElementsAre("B@3 -> B", "b@11 -> B", "Missing@23 -> -"));
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&target));
    EXPECT_THAT(target.linkedByNotes(), ElementsAre(&source));
    reopen();
    EXPECT_THAT(linksOf(*OVNote::notesInManagedObjectContext(context(), std::nullopt).back()),
        UnorderedElementsAre("B@3 -> B", "b@11 -> B", "Missing@23 -> -"));
}

TEST_P(WikiLinks, StandInTablesAndBesideCodeToo)
{
    note("# B");
    note("# x|y");
    OVNote& source = note("| a | b |\n|---|---|\n| [[B]] | [[x\\|y]] |\n\n`code`[[B]]`[[no]]`\n");
    EXPECT_THAT(linksOf(source), UnorderedElementsAre("B@22 -> B", "x|y@30 -> x|y", "B@48 -> B"));
}

TEST_P(WikiLinks, KeepTheirRecordWhileNothingAboutThemChanges)
{
    note("# B");
    OVNote& source = note("[[B]] end");
    OVNoteBackLink* link = onlyLinkOf(source);
    source.updateNoteWithText("[[b]] other end");
    EXPECT_EQ(onlyLinkOf(source), link) << "the title is the same but for case";
    EXPECT_EQ(link->title(), "B");
    source.updateNoteWithText("[[B|alias]]");
    EXPECT_EQ(onlyLinkOf(source), link);
}

TEST_P(WikiLinks, GetANewRecordWhileTheyLeadNowhere)
{
    OVNote& source = note("# S\n[[Missing]]");
    const OVNoteBackLink* link = onlyLinkOf(source);
    source.updateNoteWithText("# S\n[[Missing]]");
    EXPECT_NE(onlyLinkOf(source), link);
    EXPECT_TRUE(link->isDeleted());

    OVNote& target = note("# Missing");
    link = onlyLinkOf(source);
    source.updateNoteWithText("# S\n[[Missing]]");
    EXPECT_EQ(onlyLinkOf(source), link);
    target.setTitle("Elsewhere");
    source.updateNoteWithText("# S\n[[Missing]]");
    EXPECT_NE(onlyLinkOf(source), link) << "its note has another title now";
    EXPECT_THAT(linksOf(source), ElementsAre("Missing@4 -> -"));
}

TEST_P(WikiLinks, GetANewRecordWhenTheyMove)
{
    note("# B");
    OVNote& source = note("[[B]]");
    OVNoteBackLink* link = onlyLinkOf(source);
    source.updateNoteWithText("more [[B]]");
    EXPECT_TRUE(link->isDeleted());
    EXPECT_NE(onlyLinkOf(source), link);
    EXPECT_THAT(linksOf(source), ElementsAre("B@5 -> B"));
}

TEST_P(WikiLinks, GetANewRecordForAnotherTitleAtTheSamePlace)
{
    note("# B");
    note("# C");
    OVNote& source = note("[[B]]");
    source.updateNoteWithText("[[C]]");
    EXPECT_THAT(linksOf(source), ElementsAre("C@0 -> C"));
    source.updateNoteWithText("none");
    EXPECT_THAT(linksOf(source), IsEmpty());
    EXPECT_THAT(all<OVNoteBackLink>(), IsEmpty());
}

TEST_P(WikiLinks, GoWithTheirNoteAndStayWithoutTheirTarget)
{
    OVNote& target = note("# B");
    OVNote& source = note("[[B]]");
    target.permanentlyDelete();
    EXPECT_THAT(linksOf(source), ElementsAre("B@0 -> -"));
    save();
    source.permanentlyDelete();
    save();
    EXPECT_THAT(all<OVNoteBackLink>(), IsEmpty());
}

TEST_P(WikiLinks, WaitForTheirNote)
{
    OVNote& one = note("to [[Café]]");
    OVNote& two = note("to [[CAFE]] [[cafés]]");
    reopen();
    OVNote& target = note("# cafe");
    EXPECT_THAT(titlesOf(target.linkedByNotes()), UnorderedElementsAre("to Café", "to CAFE cafés"));
    EXPECT_EQ(target.linkedBySet().count(), 2U);
    static_cast<void>(one), static_cast<void>(two);
}

TEST_P(WikiLinks, WaitForANoteThatGetsTheTitle)
{
    OVNote& source = note("to [[B]]");
    OVNote& other = note("# A");
    EXPECT_THAT(linksOf(source), ElementsAre("B@3 -> -"));
    other.updateNoteWithText("# B");
    EXPECT_THAT(linksOf(source), ElementsAre("B@3 -> B"));
}

TEST_P(WikiLinks, PreferAnUntrashedNoteAndOfTheseTheOldest)
{
    OVNote& trashed = note("# B");
    OVNote& older = note("# B");
    OVNote& newer = note("# B");
    trashed.trash();
    newer.pin();
    OVNote& source = note("to [[B]]");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&older));
    older.trash();
    newer.trash();
    EXPECT_THAT(note("x [[B]]").linkedNotes(), ElementsAre(&trashed)) << "the oldest of trashed ones";
}

TEST_P(WikiLinks, AreTakenOverFromATrashedNote)
{
    OVNote& trashed = note("# B");
    OVNote& source = note("to [[B]]");
    trashed.trash();
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&trashed)) << "nobody else has the title yet";
    OVNote& fresh = note("# B");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&fresh));
    trashed.restoreFromTrash();
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&fresh));
}

TEST_P(WikiLinks, ReachANoteWithoutTitleByItsIdentifier)
{
    OVNote& untitled = note("");
    const std::string identifier = *untitled.uniqueIdentifier();
    OVNote& source = note("to [[" + identifier + "]]");
    EXPECT_THAT(source.linkedNotes(), ElementsAre(&untitled));
    OVNote& titled = note("# Titled");
    EXPECT_THAT(note("to [[" + *titled.uniqueIdentifier() + "]]").linkedNotes(), IsEmpty());
}

TEST_P(WikiLinks, DoNotTakeAPrefixForATitle)
{
    note("# Plan");
    OVNote& longer = note("# Plan B");
    OVNote& source = note("[[Plan B]] [[Plan]]");
    EXPECT_THAT(linksOf(source), UnorderedElementsAre("Plan B@0 -> Plan B", "Plan@11 -> Plan"));
    longer.updateNoteWithText("# Plan C");
    EXPECT_EQ(source.text(), "[[Plan C]] [[Plan]]");
}

TEST_P(WikiLinks, ToTheirOwnNoteAreLeftBehindByANewTitle)
{
    // The links are looked up before the old title is followed: then no note has it, and nothing leads here any more.
    OVNote& self = note("# Me\n[[Me]]");
    EXPECT_THAT(linksOf(self), ElementsAre("Me@5 -> Me"));
    EXPECT_THAT(self.linkedByNotes(), ElementsAre(&self));
    self.updateNoteWithText("# You\n[[Me]]");
    EXPECT_EQ(self.text(), "# You\n[[Me]]");
    EXPECT_THAT(linksOf(self), ElementsAre("Me@6 -> -"));
    self.updateNoteWithText("# Me\n[[Me]]");
    EXPECT_THAT(linksOf(self), ElementsAre("Me@5 -> Me"));
}

TEST_P(WikiLinks, FindThousandsOfNotesAtOnce)
{
    std::string text;
    for (int number = 0; number < 5000; ++number)
        text += "[[Note " + std::to_string(number) + "]]\n";
    for (int number = 0; number < 50; ++number)
        note("# Note " + std::to_string(number * 100));
    save();
    OVNote& source = note(text);
    EXPECT_EQ(source.linkingToSet().count(), 5000U);
    EXPECT_EQ(source.linkedNotes().size(), 50U);
}

TEST_P(WikiLinks, ResolveThroughALentCache)
{
    OVNote& b = note("# B");
    OVNote& other = note("# B");
    OVNote& renamed = note("# Was C");
    OVNote& source = noteTitled("source");
    OVNote::NotesCache cache{{"b", &other}, {"c", &renamed}};
    source.setNotesCache(&cache);
    source.updateNoteWithText("[[B]] [[C]] [[Was C]]");
    source.setNotesCache(nullptr);
    EXPECT_THAT(source.linkedNotes(), UnorderedElementsAre(&other, &renamed));
    EXPECT_THAT(linksOf(source), UnorderedElementsAre("B@0 -> B", "C@6 -> -", "Was C@12 -> Was C"))
        << "a cached note whose title changed since is none";
    EXPECT_EQ(cache["was c"], &renamed);
    static_cast<void>(b);
}

TEST_P(WikiLinks, AreFetchedByTitleOrIdentifier)
{
    OVNote& target = note("# B");
    OVNote& source = note("[[B]] [[b]] [[D]]");
    EXPECT_EQ(OVNoteBackLink::backlinksForTitle("B", false, context()).size(), 2U);
    EXPECT_THAT(OVNoteBackLink::backlinksForTitle("B", true, context()), IsEmpty());
    EXPECT_EQ(OVNoteBackLink::backlinksForTitle("d", true, context()).size(), 1U);
    target.trash();
    EXPECT_EQ(OVNoteBackLink::backlinksForTitle("B", true, context()).size(), 2U);
    save();
    EXPECT_EQ(OVNoteBackLink::backlinksForTitle("B", true, context()).size(), 2U);

    OVNoteBackLink* link = source.linkingToSet().allObjects().front();
    EXPECT_THAT(OVNoteBackLink::backlinksForUUIDs({*link->uniqueIdentifier(), "none"}, context()), ElementsAre(link));
    EXPECT_EQ(OVNoteBackLink::backlinksInManagedObjectContext(context(), std::nullopt).size(), 3U);
    EXPECT_THAT(
        OVNoteBackLink::backlinksInManagedObjectContext(context(), NSPredicate::predicateWithFormat("location > 5")),
        testing::SizeIs(2));
}

class UnreadableTargets : public WikiLinks { };
INSTANTIATE_TEST_SUITE_P(Stores, UnreadableTargets, testing::Values(StoreType::SQLite), storeName);

TEST_P(UnreadableTargets, LeaveTheLinksAsTheyWere)
{
    note("# B");
    note("# Source\n[[B]]");
    reopen();
    OVNote* source = OVNote::noteWithTitle("Source", context());
    OVNote* target = OVNote::noteWithTitle("B", context());
    ASSERT_THAT(linksOf(*source), ElementsAre("B@9 -> B"));
    ASSERT_EQ(source->text(), "# Source\n[[B]]");
    runSQL("ALTER TABLE \"OVNote\" RENAME TO \"hidden\"");

    const std::vector<CVKWikiLink> links{{"B", 3}, {"C", 9}};
    source->setLinkedNotesFromWikiLinks(links);

    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNote\"");
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    EXPECT_THAT(linksOf(*source), ElementsAre("B@9 -> B"));
    EXPECT_FALSE(context().hasChanges());
    source->setLinkedNotesFromWikiLinks(links);
    EXPECT_THAT(linksOf(*source), UnorderedElementsAre("B@3 -> B", "C@9 -> -"));
    static_cast<void>(target);
}

TEST_P(UnreadableTargets, AreLoggedOnlyWhereLinksAreFetchedByPredicate)
{
    runSQL("ALTER TABLE \"OVNoteBackLink\" RENAME TO \"hidden\"");
    EXPECT_THAT(OVNoteBackLink::backlinksForTitle("B", true, context()), IsEmpty());
    EXPECT_THAT(OVNoteBackLink::backlinksForUUIDs({"B"}, context()), IsEmpty());
    EXPECT_THAT(takeLog(), IsEmpty());
    EXPECT_THAT(OVNoteBackLink::backlinksInManagedObjectContext(context(), std::nullopt), IsEmpty());
    EXPECT_THAT(takeLog(), ElementsAre(testing::StartsWith("Error while fetching\n")));
    runSQL("ALTER TABLE \"hidden\" RENAME TO \"OVNoteBackLink\"");
}

} // namespace
} // namespace tarn
