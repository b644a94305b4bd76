#include "tarnmodel/platform/coredata/KeyValueObservation.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/platform/foundation/system/NSUUID.h"

namespace tarn {
namespace {

class TagState : public StoreFixture { };
INSTANTIATE_TEST_SUITE_P(Stores, TagState, everyStore(), storeName);

TEST_P(TagState, BeginsWithAnIdentifierADateAndItsVersion)
{
    const NSDate before = mark();
    const OVNoteTag& made = *OVNoteTag::insertInManagedObjectContext(context());

    EXPECT_TRUE(isUUIDString(made.uniqueIdentifier().value_or("")));
    EXPECT_GT(made.modificationDate(), before);
    EXPECT_EQ(made.versionValue(), 3);
    EXPECT_FALSE(made.title());
}

TEST_P(TagState, IsStampedWithEveryPinAlsoWhenNothingChanges)
{
    OVNoteTag& pinned = tag("a");
    for (const bool isPinned : {true, true, false, false}) {
        const NSDate before = mark();
        isPinned ? pinned.pin() : pinned.unpin();
        EXPECT_EQ(pinned.isPinned(), isPinned);
        EXPECT_GT(pinned.pinnedDate(), before);
    }
}

TEST_P(TagState, IsModifiedNowWhenTold)
{
    OVNoteTag& modified = tag("a");
    const NSDate before = mark();
    modified.updateModificationDate();
    EXPECT_GT(modified.modificationDate(), before);
}

TEST_P(TagState, StampsItsSettingsOnEveryCall)
{
    OVNoteTag& set = tag("a");
    for (int time = 0; time < 2; ++time) {
        const NSDate before = mark();
        set.setTagcon("star");
        set.setSortingValue(4);
        set.setSortingDirectionValue(true);

        EXPECT_GT(set.tagconDate(), before);
        EXPECT_GT(set.sortingDate(), before);
        EXPECT_GT(set.sortingDirectionDate(), before);
    }
    reopen();
    EXPECT_EQ(tag("a").tagcon(), "star");
    EXPECT_EQ(tag("a").sortingValue(), 4);
    EXPECT_TRUE(tag("a").sortingDirectionValue());
    EXPECT_TRUE(tag("a").tagconDate());
}

TEST_P(TagState, StampsOnlyTheSettingThatWasSet)
{
    OVNoteTag& set = tag("a");
    set.setSorting(1);

    EXPECT_TRUE(set.sortingDate());
    EXPECT_FALSE(set.tagconDate());
    EXPECT_FALSE(set.sortingDirectionDate());
    set.setTagcon(std::nullopt);
    EXPECT_TRUE(set.tagconDate());
}

TEST_P(TagState, TellsObserversOfASettingOnceItsDateStands)
{
    OVNoteTag& set = tag("a");
    const NSDate before = mark();
    std::vector<std::string> heard;
    const auto hear = [&](NSManagedObject& record, std::string_view key) {
        heard.emplace_back(key);
        EXPECT_GT(static_cast<OVNoteTag&>(record).sortingDate(), before);
    };
    const auto sorting = set.addObserver("sorting", hear);
    const auto sortingValue = set.addObserver("sortingValue", hear);

    set.setSortingValue(2);

    EXPECT_THAT(heard, testing::UnorderedElementsAre("sorting", "sortingValue"));
}

} // namespace
} // namespace tarn
