#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"
#include "tests/support/StoreFixture.h"

#include "tarnmodel/notes/ConflictStamp.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class NoteConflict : public StoreFixture {
protected:
    void SetUp() override
    {
        StoreFixture::SetUp();
        a_ = &noteTitled("A");
        b_ = &noteTitled("B");
        c_ = &noteTitled("C");
    }

    std::vector<std::string> group(const OVNote& note) { return titlesOf(note.conflictedNotes()); }
    static std::string identifier(const OVNote& note) { return *note.uniqueIdentifier(); }

    OVNote* a_ = nullptr;
    OVNote* b_ = nullptr;
    OVNote* c_ = nullptr;
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteConflict, everyStore(), storeName);

TEST_P(NoteConflict, IsNoneToBeginWith)
{
    EXPECT_FALSE(a_->hasConflictedNotes());
    EXPECT_FALSE(a_->isConflictRoot());
    EXPECT_EQ(a_->conflictedRootUUID(), identifier(*a_));
    EXPECT_THAT(group(*a_), IsEmpty());
}

TEST_P(NoteConflict, TiesACopyToTheNoteItCameFrom)
{
    const NSDate before = mark();
    b_->markAsConflictedFromNote(*a_);

    EXPECT_TRUE(a_->isConflictRoot());
    EXPECT_FALSE(b_->isConflictRoot());
    EXPECT_TRUE(b_->hasConflictedNotes());
    EXPECT_EQ(a_->conflictedRootUUID(), identifier(*a_));
    EXPECT_EQ(b_->conflictedRootUUID(), identifier(*a_));
    EXPECT_THAT(group(*a_), ElementsAre("B", "A"));
    EXPECT_GT(a_->conflictUniqueIdentifierDate(), before);
    EXPECT_GT(b_->conflictUniqueIdentifierDate(), before);
    EXPECT_THAT(titlesOf(OVNote::allConflictedNotesInManagedObjectContext(context())), ElementsAre("A", "B"));
    EXPECT_FALSE(c_->hasConflictedNotes());
}

TEST_P(NoteConflict, IsNothingThatANoteHasWithItself)
{
    save();
    a_->markAsConflictedFromNote(*a_);
    EXPECT_FALSE(a_->hasConflictedNotes());
    EXPECT_EQ(a_->conflictUniqueIdentifierDate(), std::nullopt);
    EXPECT_FALSE(context().hasChanges());

    b_->markAsConflictedFromNote(*a_);
    const auto stamps = std::pair(a_->conflictUniqueIdentifier(), b_->conflictUniqueIdentifier());
    save();
    b_->markAsConflictedFromNote(*b_);
    a_->markAsConflictedFromNote(*a_);
    EXPECT_EQ(std::pair(a_->conflictUniqueIdentifier(), b_->conflictUniqueIdentifier()), stamps);
    EXPECT_FALSE(context().hasChanges());
}

TEST_P(NoteConflict, LeavesNobodyAloneInTheGroupThatACopyWasIn)
{
    b_->markAsConflictedFromNote(*a_);
    b_->markAsConflictedFromNote(*c_);
    EXPECT_THAT(group(*c_), ElementsAre("B", "C"));
    EXPECT_FALSE(a_->hasConflictedNotes());

    OVNote& d = noteTitled("D");
    a_->markAsConflictedFromNote(*c_);
    ASSERT_THAT(group(*c_), testing::UnorderedElementsAre("A", "B", "C"));
    b_->markAsConflictedFromNote(d);
    EXPECT_THAT(group(d), ElementsAre("B", "D"));
    EXPECT_THAT(titlesOf(c_->conflictedNotes()), testing::UnorderedElementsAre("A", "C"));
}

TEST_P(NoteConflict, HoldsRootAndSecondsInTheIdentifier)
{
    // Stamps grow for the whole process, so each run has a time of its own.
    const bool isInMemory = GetParam() == StoreType::InMemory;
    const std::string seconds = isInMemory ? "2000000100" : "2000000000";
    EnvironmentOverride clock;
    clock.setNow(dateWithMicrosecondsSince1970(std::stoll(seconds) * 1'000'000 + 123));

    EXPECT_EQ(a_->conflictedUUIDFromRootUUID("ROOT"), "ROOT/" + seconds + ".000123");
    EXPECT_EQ(a_->conflictedUUIDFromRootUUID("ROOT"), "ROOT/" + seconds + ".000124") << "later by a microsecond";
}

TEST_P(NoteConflict, IsFoundByItsRootAlsoWhereThatIsNoMember)
{
    b_->setConflictUniqueIdentifier(identifier(*a_) + "/1700000000.000001");
    c_->setConflictUniqueIdentifier(identifier(*a_) + "/1700000000.000002");
    for (const bool isSaved : {false, true}) {
        if (isSaved)
            save();
        EXPECT_THAT(group(*a_), ElementsAre("C", "B"));
        EXPECT_THAT(
            titlesOf(OVNote::conflictedNotesForUniqueIdentifier(identifier(*a_), context())), ElementsAre("C", "B"));
    }
    EXPECT_THAT(OVNote::conflictedNotesForUniqueIdentifier(identifier(*b_), context()), IsEmpty());
}

TEST_P(NoteConflict, GrowsAroundTheSameRoot)
{
    b_->markAsConflictedFromNote(*a_);
    const auto stampOfA = a_->conflictUniqueIdentifier();
    reopen();
    a_ = OVNote::noteWithTitle("A", context());
    b_ = OVNote::noteWithTitle("B", context());
    c_ = OVNote::noteWithTitle("C", context());

    c_->markAsConflictedFromNote(*b_);

    EXPECT_EQ(c_->conflictedRootUUID(), identifier(*a_));
    EXPECT_THAT(group(*c_), ElementsAre("C", "A", "B")) << "stamped again in group order";
    EXPECT_NE(a_->conflictUniqueIdentifier(), stampOfA);
}

TEST_P(NoteConflict, KeepsItsOrderWhenTheClockStandsStill)
{
    EnvironmentOverride clock;
    clock.setNow(mark());
    b_->markAsConflictedFromNote(*a_);
    c_->markAsConflictedFromNote(*a_);

    EXPECT_THAT(group(*a_), ElementsAre("C", "A", "B"));
    EXPECT_NE(a_->conflictUniqueIdentifier(), b_->conflictUniqueIdentifier());
}

TEST_P(NoteConflict, MovesAMemberToTheEndWhenItIsMarkedAgain)
{
    b_->markAsConflictedFromNote(*a_);
    a_->markAsConflictedFromNote(*b_);

    EXPECT_THAT(group(*a_), ElementsAre("A", "B"));
    EXPECT_TRUE(a_->isConflictRoot());
}

TEST_P(NoteConflict, DissolvesWhenOneMemberIsLeft)
{
    b_->markAsConflictedFromNote(*a_);
    const NSDate before = mark();

    b_->trash();

    EXPECT_FALSE(a_->conflictUniqueIdentifier());
    EXPECT_FALSE(b_->conflictUniqueIdentifier());
    EXPECT_GT(a_->conflictUniqueIdentifierDate(), before);
    EXPECT_GT(b_->conflictUniqueIdentifierDate(), before);
}

TEST_P(NoteConflict, GetsTheLatestStampedMemberAsRootWhenTheRootLeaves)
{
    b_->markAsConflictedFromNote(*a_);
    c_->markAsConflictedFromNote(*a_);
    ASSERT_THAT(group(*a_), ElementsAre("C", "A", "B"));

    a_->trash();

    EXPECT_FALSE(a_->hasConflictedNotes());
    EXPECT_TRUE(c_->isConflictRoot());
    EXPECT_EQ(b_->conflictedRootUUID(), identifier(*c_));
    EXPECT_THAT(group(*b_), testing::UnorderedElementsAre("B", "C"));
}

TEST_P(NoteConflict, MovesItsRootAlsoWhenAnotherMemberLeaves)
{
    OVNote& d = noteTitled("D");
    b_->markAsConflictedFromNote(*a_);
    c_->markAsConflictedFromNote(*a_);
    d.markAsConflictedFromNote(*a_);
    const std::vector<std::string> before = group(*a_);
    ASSERT_EQ(before.front(), "D");

    b_->unmarkAsConflicted();

    EXPECT_TRUE(d.isConflictRoot());
    EXPECT_FALSE(a_->isConflictRoot());
    EXPECT_THAT(group(d), testing::UnorderedElementsAre("A", "C", "D"));
}

TEST_P(NoteConflict, EndsForAMemberThatIsArchivedOrDeleted)
{
    b_->markAsConflictedFromNote(*a_);
    b_->archive();
    EXPECT_FALSE(a_->hasConflictedNotes());

    c_->markAsConflictedFromNote(*a_);
    save();
    context().deleteObject(*c_);
    EXPECT_FALSE(a_->hasConflictedNotes());
    EXPECT_TRUE(c_->isDeleted());
}

TEST_P(NoteConflict, EndsQuietlyOutsideOfAGroup)
{
    const auto date = a_->conflictUniqueIdentifierDate();
    a_->trash();
    EXPECT_EQ(a_->conflictUniqueIdentifierDate(), date);

    const NSDate before = mark();
    a_->unmarkAsConflicted();
    EXPECT_FALSE(a_->hasConflictedNotes());
    EXPECT_GT(a_->conflictUniqueIdentifierDate(), before);
}

TEST(ConflictStamp, GrowsWithEveryCall)
{
    EnvironmentOverride clock;
    const NSDate frozen = dateWithMicrosecondsSince1970(3'000'000'000'000'000);
    clock.setNow(frozen);
    NSDate last = nextConflictStamp();
    EXPECT_EQ(last, frozen);
    for (int count = 0; count < 1000; ++count) {
        const NSDate next = nextConflictStamp();
        ASSERT_EQ(next, last + std::chrono::microseconds(1));
        last = next;
    }
}

TEST(ConflictStamp, FollowsAClockThatWasSetBack)
{
    EnvironmentOverride clock;
    clock.setNow(dateWithMicrosecondsSince1970(3'100'000'000'000'000));
    nextConflictStamp();
    const NSDate earlier = dateWithMicrosecondsSince1970(2'500'000'000'000'000);
    clock.setNow(earlier);

    EXPECT_EQ(nextConflictStamp(), earlier);
}

TEST(ConflictStamp, IsWrittenInSecondsWithSixDecimals)
{
    const auto text = [](std::int64_t microseconds) {
        return secondsTextOfConflictStamp(dateWithMicrosecondsSince1970(microseconds));
    };
    EXPECT_EQ(text(1'700'000'000'123'456), "1700000000.123456");
    EXPECT_EQ(text(1'700'000'000'000'000), "1700000000.000000");
    EXPECT_EQ(text(7), "0.000007");
    EXPECT_EQ(text(-1'500'000), "-1.500000");
}

} // namespace
} // namespace tarn
