#include "tests/diagnosis/DiagnosisFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class TagRepair : public DiagnosisFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, TagRepair, everyStore(), storeName);

TEST_P(TagRepair, DoesNothingWhereTagsAreInOrder)
{
    note("# One\n\n#a/b");
    tag("unused");
    EXPECT_EQ(repair().tags, 0U);
}

TEST_P(TagRepair, GivesATagTheNameThatTextsGiveIt)
{
    tag("spare").setTitle("spare.");
    tag("x/y").setTitle("-/y");
    EXPECT_EQ(repair().tags, 2U);
    EXPECT_THAT(titlesOf(all<OVNoteTag>()), UnorderedElementsAre("spare", "y"));
    EXPECT_TRUE(tagCalled("y").isRootValue());
}

TEST_P(TagRepair, DeletesATagOfWhichNoNameIsLeft)
{
    tag("a").setTitle("...");
    EXPECT_EQ(repair().tags, 1U);
    EXPECT_TRUE(all<OVNoteTag>().empty());
}

TEST_P(TagRepair, UnitesATagWithTheOneThatIsInOrder)
{
    OVNoteTag& old = tag("temporary");
    OVNote& pinned = note("# One\n\n#home");
    old.setTitle("home.");
    old.setTagcon("star");
    old.setSorting(2);
    old.setSortingDirection(true);
    old.pin();
    pinned.pinInTag(old);
    const std::string kept = *tagCalled("home").uniqueIdentifier();

    EXPECT_EQ(repair().tags, 1U);

    ASSERT_THAT(titlesOf(all<OVNoteTag>()), ElementsAre("home"));
    OVNoteTag& home = tagCalled("home");
    EXPECT_EQ(home.uniqueIdentifier(), kept) << "a tag in order keeps its record";
    EXPECT_EQ(home.tagcon(), "star");
    EXPECT_EQ(home.sorting(), 2);
    EXPECT_EQ(home.sortingDirection(), true);
    EXPECT_TRUE(home.isPinned());
    EXPECT_TRUE(noteCalled("One").isPinnedInTag(&home));
}

TEST_P(TagRepair, KeepsTheSettingsOfTheTagThatStays)
{
    OVNoteTag& old = tag("temporary");
    note("# One\n\n#home");
    old.setTitle("home.");
    old.setTagcon("star");
    old.setSorting(2);
    tagCalled("home").setTagcon("moon");
    tagCalled("home").setSorting(1);
    repair();
    EXPECT_EQ(tagCalled("home").tagcon(), "moon");
    EXPECT_EQ(tagCalled("home").sorting(), 1);
}

} // namespace
} // namespace tarn
