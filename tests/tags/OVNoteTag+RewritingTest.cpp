#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class TagRewriting : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, TagRewriting, everyStore(), storeName);

TEST_P(TagRewriting, AddsATagToNotesThatDoNotCarryIt)
{
    OVNote& plain = note("# 1\n\nbody\n");
    OVNote& tagged = note("# 2\n\n#Work\n");
    OVNote& nested = note("# 3\n\n#work/x");
    const auto modified = plain.modificationDate();
    const auto clock = tagged.vectorClock();

    tag("work").addTagToNotes({&plain, &tagged, &nested, &plain}, true);

    EXPECT_EQ(plain.text(), "# 1\n\nbody\n\n#Work\n") << "spelled as the record";
    EXPECT_TRUE(plain.hasTag("work"));
    EXPECT_EQ(plain.modificationDate(), modified);
    EXPECT_EQ(tagged.text(), "# 2\n\n#Work\n");
    EXPECT_EQ(tagged.vectorClock(), clock);
    EXPECT_EQ(nested.text(), "# 3\n\n#work/x") << "who carries a tag below carries this one";
}

TEST_P(TagRewriting, AddsATagBelowTheTitle)
{
    OVNote& plain = note("# 1\n\nbody");
    tag("two words").addTagToNotes({&plain}, false);
    EXPECT_EQ(plain.text(), "# 1\n#two words#\n\nbody");
    EXPECT_EQ(plain.title(), "1");
}

TEST_P(TagRewriting, AddsATagToANoteWithoutText)
{
    OVNote& empty = *OVNote::insertInManagedObjectContext(context());
    tag("a").addTagToNotes({&empty}, true);
    EXPECT_EQ(empty.text(), "#a");
    EXPECT_THAT(empty.tagsStrings(), ElementsAre("a"));
}

TEST_P(TagRewriting, RemovesATagAndThoseBelowFromAllNotes)
{
    OVNote& one = note("# 1\n\n#a #b\n");
    OVNote& two = note("# 2\n\nbody\n\n#a/x\n");
    OVNote& other = note("# 3\n\n#ab `#a` [[#a]]");
    const auto modified = one.modificationDate();
    reopen();
    OVNoteTag* a = OVNoteTag::tagWithName("a", context());
    static_cast<void>(one), static_cast<void>(two), static_cast<void>(other);

    a->deleteTag();

    EXPECT_EQ(OVNote::noteWithTitle("1", context())->text(), "# 1\n\n#b\n");
    EXPECT_EQ(OVNote::noteWithTitle("1", context())->modificationDate(), modified);
    EXPECT_EQ(OVNote::noteWithTitle("2", context())->text(), "# 2\n\nbody\n");
    EXPECT_EQ(OVNote::noteWithTitle("3", context())->text(), "# 3\n\n#ab `#a` [[#a]]");
    EXPECT_FALSE(a->isDeleted());
    OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(context());
    EXPECT_TRUE(a->isDeleted());
    EXPECT_THAT(titlesOf(all<OVNoteTag>()), UnorderedElementsAre("ab", "b"));
}

TEST_P(TagRewriting, RemovesATagFromSomeNotes)
{
    OVNote& one = note("# 1\n#a");
    OVNote& two = note("# 2\n#a");
    tag("a").deleteTagInNotes({&two});
    EXPECT_EQ(one.text(), "# 1\n#a");
    EXPECT_EQ(two.text(), "# 2");
}

TEST_P(TagRewriting, KeepsTagsOfTrashedNotes)
{
    OVNote& trashed = note("# 1\n#a");
    trashed.trash();
    OVNoteTag::deleteAllUnusedTagsInManagedObjectContext(context());
    EXPECT_THAT(titlesOf(all<OVNoteTag>()), ElementsAre("a"));
}

TEST_P(TagRewriting, AddsAndRemovesToTheSameText)
{
    for (const std::string text : {"# T\n\nbody", "# T\r\n\r\nbody\r\n", "body", "- [ ] x\n"}) {
        OVNote& rewritten = note(text);
        tag("new").addTagToNotes({&rewritten}, true);
        EXPECT_NE(rewritten.text(), text);
        tag("new").deleteTagInNotes({&rewritten});
        EXPECT_EQ(rewritten.text(), text);
    }
}

TEST_P(TagRewriting, OpensATagByItsPath)
{
    EXPECT_EQ(tag("work/acme").openTagXCallbackURLString(), "tarn://x-callback-url/open-tag?name=work%2Facme");
    EXPECT_EQ(tag("Füße & 1").openTagXCallbackURLString(), "tarn://x-callback-url/open-tag?name=Füße%20%26%201");
}

} // namespace
} // namespace tarn
