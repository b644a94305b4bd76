#include "tarnmodel/model/OVNoteCaches.h"
#include "tarnmodel/platform/coredata/context/records/ToManySet.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/notes/OVNoteCacheLoan.h"

#include <stdexcept>

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class NoteTags : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, NoteTags, everyStore(), storeName);

TEST_P(NoteTags, AreThoseOfTheTextWithEveryAncestor)
{
    OVNote& tagged = note("# T\n#a/b/c #d");
    EXPECT_THAT(tagged.tagsStrings(), UnorderedElementsAre("a", "a/b", "a/b/c", "d"));

    tagged.updateNoteWithText("# T\n#d #e");
    EXPECT_THAT(tagged.tagsStrings(), UnorderedElementsAre("d", "e"));
    EXPECT_EQ(all<OVNoteTag>().size(), 5U) << "tags stay when their last note leaves them";
    EXPECT_TRUE(tag("a").notesSet().empty());
}

TEST_P(NoteTags, AreSharedBetweenNotes)
{
    OVNote& one = note("# 1\n#Work");
    reopen();
    OVNote& two = note("# 2\n#work #wörk");
    static_cast<void>(one);

    EXPECT_THAT(titlesOf(all<OVNoteTag>()), ElementsAre("Work"));
    EXPECT_THAT(titlesOf(tag("work").notesSet().allObjects()), ElementsAre("1", "2"));
    EXPECT_THAT(two.tagsStrings(), ElementsAre("Work"));
}

TEST_P(NoteTags, AreFoundByNameWithoutCaseAndDiacritics)
{
    OVNote& tagged = note("# T\n#Café/Crème");
    EXPECT_EQ(tagged.tagForName("CAFE/creme"), &tag("Café/Crème"));
    EXPECT_TRUE(tagged.hasTag("café"));
    EXPECT_FALSE(tagged.hasTag("caf"));
    EXPECT_EQ(tagged.tagForName("creme"), nullptr);
}

TEST_P(NoteTags, SkipATagWithoutTitle)
{
    OVNote& tagged = note("# T\n#a");
    tagged.tagsSet().addObject(*OVNoteTag::insertInManagedObjectContext(context()));
    EXPECT_THAT(tagged.tagsStrings(), ElementsAre("a"));
}

TEST_P(NoteTags, AreExactlyThoseThatWereSet)
{
    OVNote& tagged = noteTitled("a");
    tagged.setTagsFromStrings(std::vector<std::string>{"x", "y", "X", "***"});
    EXPECT_THAT(tagged.tagsStrings(), UnorderedElementsAre("X", "y"));
    tagged.setTagsFromStrings(std::vector<std::string>{"y"});
    EXPECT_THAT(tagged.tagsStrings(), ElementsAre("y"));
    tagged.setTagsFromStrings({});
    EXPECT_THAT(tagged.tagsStrings(), IsEmpty());
}

TEST_P(NoteTags, AreTheSameThroughACache)
{
    OVNote& tagged = noteTitled("a");
    OVNoteTag& known = tag("known");
    OVNote::TagsCache cache;
    tagged.setTagsCache(&cache);

    tagged.setTagsFromStrings(std::vector<std::string>{"Known", "New", "***"});

    EXPECT_THAT(tagged.tagsStrings(), UnorderedElementsAre("known", "New"));
    EXPECT_EQ(cache, (OVNote::TagsCache{{"known", &known}, {"new", &tag("new")}}));
    tagged.setTagsCache(nullptr);
}

TEST_P(NoteTags, TrustTheCacheBeforeTheStore)
{
    OVNote& tagged = noteTitled("a");
    OVNoteTag& other = tag("other");
    OVNote::TagsCache cache{{"cafe", &other}};
    tagged.setTagsCache(&cache);

    tagged.setTagsFromStrings(std::vector<std::string>{"Café"});

    EXPECT_THAT(tagged.tagsSet().allObjects(), ElementsAre(&other));
    tagged.setTagsCache(nullptr);
}

TEST_P(NoteTags, DoNotLoadTheOtherNotesOfATag)
{
    for (int number = 0; number < 50; ++number)
        note("# " + std::to_string(number) + "\n#popular");
    reopen();

    OVNote& added = note("# added\n#popular");
    added.updateNoteWithText("# changed\n#popular #new");
    save();

    EXPECT_FALSE(tag("popular").toManyAt(OVNoteTag::Index::notes).isLoaded());
    EXPECT_EQ(tag("popular").notesSet().count(), 51U);
}

TEST_P(NoteTags, GiveLentCachesBackHoweverTheScopeIsLeft)
{
    OVNote& lent = noteTitled("a");
    OVNote::TagsCache tags;
    OVNote::NotesCache notes;
    {
        const OVNoteCacheLoan loan(lent, tags, notes);
        EXPECT_EQ(lent.tagsCache(), &tags);
        EXPECT_EQ(lent.notesCache(), &notes);
    }
    EXPECT_EQ(lent.tagsCache(), nullptr);
    EXPECT_EQ(lent.notesCache(), nullptr);

    const auto fail = [&] {
        const OVNoteCacheLoan loan(lent, tags, notes);
        throw std::runtime_error("half-way");
    };
    EXPECT_THROW(fail(), std::runtime_error);
    EXPECT_EQ(lent.tagsCache(), nullptr);
    EXPECT_EQ(lent.notesCache(), nullptr);
}

TEST_P(NoteTags, GiveALoanBackToTheOneBeforeIt)
{
    OVNote& lent = noteTitled("a");
    OVNote::TagsCache outerTags;
    OVNote::TagsCache innerTags;
    OVNote::NotesCache notes;
    const OVNoteCacheLoan outer(lent, outerTags, notes);
    {
        const OVNoteCacheLoan inner(lent, innerTags, notes);
        EXPECT_EQ(lent.tagsCache(), &innerTags);
    }
    EXPECT_EQ(lent.tagsCache(), &outerTags);
}

} // namespace
} // namespace tarn
