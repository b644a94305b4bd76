#include "tests/support/StoreFixture.h"

#include "tarnmodel/sync/TolVectorClock.h"

namespace tarn {
namespace {

class NoteVectorClock : public StoreFixture {
protected:
    using ClockValues = TolVectorClock::ClockValues;

    static ClockValues valuesOf(const OVNote& note) { return note.noteVectorClock()->clockValues(); }
};
INSTANTIATE_TEST_SUITE_P(Stores, NoteVectorClock, everyStore(), storeName);

TEST_P(NoteVectorClock, IsEmptyBeforeTheFirstEdit)
{
    const OVNote& untouched = noteTitled("a");

    EXPECT_FALSE(untouched.vectorClock());
    EXPECT_TRUE(valuesOf(untouched).empty());
}

TEST_P(NoteVectorClock, CountsTheEditsOfThisDevice)
{
    OVNote& edited = noteTitled("a");
    edited.updateNoteVectorClock();
    EXPECT_EQ(valuesOf(edited), (ClockValues{{std::string(deviceUUID), 1}}));
    edited.updateNoteVectorClock();
    reopen();

    EXPECT_EQ(valuesOf(*OVNote::noteWithTitle("a", context())), (ClockValues{{std::string(deviceUUID), 2}}));
}

TEST_P(NoteVectorClock, StaysAsItIsWhileTheDeviceIsUnknown)
{
    OVNote& edited = noteTitled("a");
    edited.updateNoteVectorClock();
    const auto before = edited.vectorClock();
    const auto previous = setHostUUIDProvider([](std::chrono::seconds) {
        return HostUUID{HostUUIDStatus::TimedOut, {}};
    });

    edited.updateNoteVectorClock();

    setHostUUIDProvider(previous);
    EXPECT_EQ(edited.vectorClock(), before);
    EXPECT_EQ(takeLog(), std::vector<std::string>{"Failed to get system UUID: timeout expired"});
}

TEST_P(NoteVectorClock, IsMadeAnewWhenItIsDamaged)
{
    OVNote& edited = noteTitled("a");
    edited.setVectorClock(NSData::fromText("damaged"));
    EXPECT_FALSE(edited.noteVectorClock());

    edited.updateNoteVectorClock();
    EXPECT_EQ(valuesOf(edited), (ClockValues{{std::string(deviceUUID), 1}}));

    TolVectorClock other;
    other.updateClockValueForID("X", 7);
    edited.setVectorClock(NSData::fromText("damaged"));
    edited.mergeVectorClockWithClock(other);
    EXPECT_EQ(valuesOf(edited), (ClockValues{{"X", 7}}));
}

TEST_P(NoteVectorClock, TakesTheHigherCountOfEachDevice)
{
    OVNote& edited = noteTitled("a");
    TolVectorClock mine;
    mine.setClockValues({{"X", 3}, {"Y", 1}});
    edited.setVectorClock(mine.data());
    TolVectorClock theirs;
    theirs.setClockValues({{"Y", 4}, {"Z", 2}});

    edited.mergeVectorClockWithClock(theirs);

    EXPECT_EQ(valuesOf(edited), (ClockValues{{"X", 3}, {"Y", 4}, {"Z", 2}}));
    EXPECT_EQ(theirs.clockValues(), (ClockValues{{"Y", 4}, {"Z", 2}}));
}

} // namespace
} // namespace tarn
