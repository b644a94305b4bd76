// Two writers who do not know of each other make the same tag; the one that was saved first stays.

#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;

class TagMadeTwice : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Files, TagMadeTwice, testing::Values(StoreType::SQLite), storeName);

TEST_P(TagMadeTwice, KeepsTheNotesThatWerePinnedInTheOtherAndTheirDate)
{
    save();
    const auto other = contextOn(openAgain());
    OVNote::noteWithText("# There\n\n#rome", *other);

    OVNote& here = note("# Here\n\n#rome");
    OVNoteTag& ours = tag("rome");
    const NSDate date = mark();
    ours.pinnedNotesSet().addObject(here);
    ours.setPinnedNotesDate(date);
    NSError error;
    ASSERT_TRUE(other->save(&error)) << error;
    save();

    const std::vector<OVNoteTag*> tags = all<OVNoteTag>();
    ASSERT_THAT(titlesOf(tags), ElementsAre("rome"));
    EXPECT_EQ(tags.front()->notesSet().allObjects().size(), 2U);
    EXPECT_THAT(tags.front()->pinnedNotesSet().allObjects(), ElementsAre(&here));
    EXPECT_EQ(tags.front()->pinnedNotesDate(), date);
}

} // namespace
} // namespace tarn
