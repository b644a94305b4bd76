#include "tarnmodel/tags/TagPredicates.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

class TagPredicates : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        note("# One\n\n#Home/Garden/Roses");
        note("# Two\n\n#home");
        note("# Three\n\n#homeless").trash();
        note("# Four\n\n#home/Attic").trash();
        tag("home/unused");
    }
    std::vector<std::string> titlesOfTags(const NSPredicate& predicate)
    {
        return titlesOf(OVNoteTag::notesTagsInManagedObjectContext(context(), predicate));
    }
    std::vector<std::string> titlesOfNotes(const NSPredicate& predicate)
    {
        return titlesOf(OVNote::notesInManagedObjectContext(context(), predicate));
    }
};
INSTANTIATE_TEST_SUITE_P(Stores, TagPredicates, everyStore(), storeName);

TEST_P(TagPredicates, FindATagByItsWholeName)
{
    EXPECT_THAT(titlesOfTags(predicateForTagNamed("HÖME/garden")), ElementsAre("Home/Garden"));
}

TEST_P(TagPredicates, FindTheNotesOfATagAndOfThoseBelowIt)
{
    EXPECT_THAT(titlesOfNotes(predicateForNotesTagged("HOME")), UnorderedElementsAre("One", "Two", "Four"));
    EXPECT_THAT(titlesOfNotes(predicateForNotesTagged("home/garden")), ElementsAre("One"));
}

TEST_P(TagPredicates, FindTagsThatNoNoteCarries)
{
    EXPECT_THAT(titlesOfTags(predicateForUnusedTags()), ElementsAre("home/unused"));
}

TEST_P(TagPredicates, FindTheTagsBelowOneThatNotesCarry)
{
    const OVNoteTag& home = *OVNoteTag::tagWithName("home", context());
    EXPECT_THAT(titlesOfTags(predicateForUsedTagsBelow(home)),
        UnorderedElementsAre("Home/Garden", "Home/Garden/Roses", "home/Attic"));
}

} // namespace
} // namespace tarn
