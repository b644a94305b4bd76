#include "tarnmodel/notes/ConflictGroups.h"
#include "tests/support/StoreFixture.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConflictGroups : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        a_ = &noteTitled("A");
        b_ = &noteTitled("B");
        c_ = &noteTitled("C");
        d_ = &noteTitled("D");
    }

    OVNote* a_ = nullptr;
    OVNote* b_ = nullptr;
    OVNote* c_ = nullptr;
    OVNote* d_ = nullptr;
};
INSTANTIATE_TEST_SUITE_P(Stores, ConflictGroups, everyStore(), storeName);

TEST_P(ConflictGroups, AreNoneOutsideOfAConflict)
{
    EXPECT_FALSE(conflictGroupOfNote(*a_));
    EXPECT_THAT(conflictGroupsOfNotes(all<OVNote>()), IsEmpty());
    keepOnlyVersion(*a_);
    EXPECT_FALSE(a_->conflictUniqueIdentifierDate());
}

TEST_P(ConflictGroups, HoldTheLatestVersionFirst)
{
    b_->markAsConflictedFromNote(*a_);
    const auto group = conflictGroupOfNote(*a_);
    ASSERT_TRUE(group);
    EXPECT_EQ(group->rootUUID, a_->uniqueIdentifier());
    EXPECT_THAT(group->versions, ElementsAre(b_, a_));
}

TEST_P(ConflictGroups, StandInTheOrderInWhichTheyWereStampedLast)
{
    b_->markAsConflictedFromNote(*a_);
    d_->markAsConflictedFromNote(*c_);
    for (const bool firstIsLatest : {false, true}) {
        if (firstIsLatest) {
            b_->unmarkAsConflicted();
            b_->markAsConflictedFromNote(*a_);
        }
        const std::vector<ConflictGroup> groups = conflictGroupsOfNotes(all<OVNote>());
        ASSERT_EQ(groups.size(), 2U) << "each once";
        EXPECT_THAT(groups[firstIsLatest ? 0 : 1].versions, ElementsAre(b_, a_));
        EXPECT_THAT(groups[firstIsLatest ? 1 : 0].versions, ElementsAre(d_, c_));
    }
}

TEST_P(ConflictGroups, EndWhenOneVersionIsKept)
{
    b_->markAsConflictedFromNote(*a_);
    c_->markAsConflictedFromNote(*a_);
    keepOnlyVersion(*b_);
    EXPECT_FALSE(b_->isTrashed());
    EXPECT_TRUE(a_->isTrashed());
    EXPECT_TRUE(c_->isTrashed());
    EXPECT_THAT(conflictGroupsOfNotes(all<OVNote>()), IsEmpty());
}

TEST_P(ConflictGroups, EndWhereOnlyOneVersionIsLeft)
{
    b_->markAsConflictedFromNote(*a_);
    a_->setConflictUniqueIdentifier(std::nullopt); // as a program does that knows nothing of the others
    ASSERT_TRUE(b_->hasConflictedNotes());
    keepOnlyVersion(*b_);
    EXPECT_FALSE(b_->hasConflictedNotes());
    EXPECT_FALSE(b_->isTrashed());
}

} // namespace
} // namespace tarn
