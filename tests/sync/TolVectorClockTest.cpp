#include "tarnmodel/sync/TolVectorClock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <thread>
#include <vector>

namespace tarn {
namespace {

TolVectorClock clockWith(TolVectorClock::ClockValues values)
{
    TolVectorClock clock;
    clock.setClockValues(std::move(values));
    return clock;
}

TEST(VectorClock, ComparesTwoEmptyClocksAsEqual)
{
    EXPECT_EQ(TolVectorClock().compare(TolVectorClock()), 0);
}

TEST(VectorClock, FollowsAnEmptyClockOnceItHasACounter)
{
    const TolVectorClock clock = clockWith({{"X", 1}});

    EXPECT_EQ(clock.compare(TolVectorClock()), 1);
    EXPECT_EQ(TolVectorClock().compare(clock), -1);
}

TEST(VectorClock, TellsConcurrentEdits)
{
    EXPECT_EQ(clockWith({{"X", 2}, {"Y", 1}}).compare(clockWith({{"X", 1}, {"Y", 2}})), 2);
}

TEST(VectorClock, TakesAnAbsentDeviceForZero)
{
    EXPECT_EQ(clockWith({{"X", 0}}).compare(TolVectorClock()), 0);
    EXPECT_EQ(clockWith({{"X", 1}}).compare(clockWith({{"X", 1}, {"Y", 0}})), 0);
    EXPECT_EQ(clockWith({{"X", 1}}).compare(clockWith({{"Y", 1}})), 2);
}

TEST(VectorClock, ComparesCountersByTheirSignedDifference)
{
    const TolVectorClock one = clockWith({{"X", 1}});

    EXPECT_EQ(clockWith({{"X", 1 + (std::uint64_t{1} << 62)}}).compare(one), 1);
    EXPECT_EQ(clockWith({{"X", 1 + (std::uint64_t{1} << 63)}}).compare(one), -1);
    EXPECT_EQ(clockWith({{"X", std::numeric_limits<std::uint64_t>::max()}}).compare(one), -1);
}

TEST(VectorClock, MergesByTheHigherCounterAndLeavesBothInputsAlone)
{
    const TolVectorClock left = clockWith({{"X", 3}, {"Y", 1}});
    const TolVectorClock right = clockWith({{"Y", 4}, {"Z", 2}});

    const TolVectorClock merged = left.mergeClock(right);

    EXPECT_EQ(merged.clockValues(), (TolVectorClock::ClockValues{{"X", 3}, {"Y", 4}, {"Z", 2}}));
    EXPECT_EQ(left.clockValues(), (TolVectorClock::ClockValues{{"X", 3}, {"Y", 1}}));
    EXPECT_EQ(right.clockValues(), (TolVectorClock::ClockValues{{"Y", 4}, {"Z", 2}}));
}

TEST(VectorClock, KeepsACounterOfZeroInAMerge)
{
    EXPECT_EQ(
        TolVectorClock().mergeClock(clockWith({{"X", 0}})).clockValues(), (TolVectorClock::ClockValues{{"X", 0}}));
}

TEST(VectorClock, CountsAnAbsentDeviceFromOne)
{
    TolVectorClock clock;
    EXPECT_EQ(clock.clockValueForID("X"), 0U);

    clock.updateClockValueForID("X");
    EXPECT_EQ(clock.clockValueForID("X"), 1U);

    clock.updateClockValueForID("X");
    EXPECT_EQ(clock.clockValueForID("X"), 2U);
}

TEST(VectorClock, SetsACounterToAnyValue)
{
    TolVectorClock clock = clockWith({{"X", 7}});

    clock.updateClockValueForID("X", 3);
    clock.updateClockValueForID("Y", 9);

    EXPECT_EQ(clock.clockValues(), (TolVectorClock::ClockValues{{"X", 3}, {"Y", 9}}));
}

TEST(VectorClock, CountsEveryEditOfSeveralThreads)
{
    constexpr int editsOfEach = 5000;
    TolVectorClock clock;
    const auto edit = [&clock] {
        for (int count = 0; count < editsOfEach; ++count)
            clock.updateClockValueForID("X");
    };
    std::thread one(edit);
    std::thread other(edit);
    one.join();
    other.join();

    EXPECT_EQ(clock.clockValueForID("X"), 2U * editsOfEach);
}

TEST(VectorClock, IsAClockOfItsOwnWhenCopied)
{
    const TolVectorClock original = clockWith({{"X", 1}});
    TolVectorClock copy = original;

    copy.updateClockValueForID("X");

    EXPECT_EQ(original.clockValueForID("X"), 1U);
    EXPECT_EQ(copy.clockValueForID("X"), 2U);
}

TEST(VectorClock, RoundTripsThroughItsData)
{
    const std::vector<TolVectorClock::ClockValues> cases{
        {},
        {{"X", 1}},
        {{"", 5}, {"Größe", 0}},
        {{"A", 255}, {"B", 256}, {"C", 65536}, {"D", 1ULL << 32}, {"E", std::numeric_limits<std::int64_t>::max()},
            {"F", std::numeric_limits<std::uint64_t>::max()}},
    };
    for (const auto& values : cases) {
        const auto read = TolVectorClock::initWithData(clockWith(values).data());
        ASSERT_TRUE(read);
        EXPECT_EQ(read->clockValues(), values);
    }
}

TEST(VectorClock, StoresTheBytesOfABinaryPropertyList)
{
    // Header, a dictionary of one entry (key object 1, value object 2), "X", the number 3, offsets, trailer.
    constexpr std::array<unsigned char, 50> bytes{'b', 'p', 'l', 'i', 's', 't', '0', '0', //
        0xD1, 0x01, 0x02, 0x51, 'X', 0x10, 0x03,                                          //
        0x08, 0x0B, 0x0D,                                                                 //
        0, 0, 0, 0, 0, 0, 1, 1,                                                           //
        0, 0, 0, 0, 0, 0, 0, 3,                                                           //
        0, 0, 0, 0, 0, 0, 0, 0,                                                           //
        0, 0, 0, 0, 0, 0, 0, 15};

    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    EXPECT_EQ(clockWith({{"X", 3}}).data(), NSData::fromText(text));
    const auto read = TolVectorClock::initWithData(NSData::fromText(text));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->clockValueForID("X"), 3U);
}

TEST(VectorClock, IsEmptyWithoutData)
{
    const auto clock = TolVectorClock::initWithData(std::nullopt);
    ASSERT_TRUE(clock);
    EXPECT_TRUE(clock->clockValues().empty());
}

TEST(VectorClock, RefusesBytesThatAreNoPropertyList)
{
    EXPECT_FALSE(TolVectorClock::initWithData(NSData()));
    EXPECT_FALSE(TolVectorClock::initWithData(NSData::fromText("{\"X\": 1}")));
    EXPECT_FALSE(TolVectorClock::initWithData(NSData::fromText("bplist00")));

    const NSData whole = clockWith({{"X", 1}, {"Y", 2}}).data();
    for (std::size_t length = 0; length < whole.length(); ++length)
        EXPECT_FALSE(TolVectorClock::initWithData(NSData(whole.span().first(length)))) << length << " bytes";
}

TEST(VectorClock, ListsIdentifiersInAscendingOrder)
{
    const TolVectorClock clock = clockWith({{"b", 1}, {"B", 1}, {"a", 1}, {"C", 1}});

    EXPECT_EQ(clock.orderedIDs(), (std::vector<std::string>{"B", "C", "a", "b"}));
}

TEST(VectorClock, PrintsEntriesInOrderWithSeparatorsBetweenThemOnly)
{
    EXPECT_EQ(TolVectorClock().stringRepresentation(), "()");
    EXPECT_EQ(clockWith({{"C4D5", 1}}).stringRepresentation(), "(C4D5:1)");
    EXPECT_EQ(clockWith({{"C4D5", 1}, {"A1B2", 3}}).stringRepresentation(), "(A1B2:3, C4D5:1)");
    EXPECT_EQ(clockWith({{"X", std::numeric_limits<std::uint64_t>::max()}}).stringRepresentation(),
        "(X:18446744073709551615)");
}

TEST(VectorClock, DescribesItselfByClassAddressAndEntries)
{
    const TolVectorClock clock = clockWith({{"X", 1}});
    const std::string description = clock.description();

    EXPECT_TRUE(description.starts_with("<TolVectorClock: 0x")) << description;
    EXPECT_TRUE(description.ends_with("> (X:1)")) << description;
}

// Every pair of clocks over three devices with counters 0 to 3, where 0 stands for an absent device.
class VectorClockLaws : public testing::Test {
protected:
    using Counters = std::array<std::uint64_t, 3>;
    static constexpr std::size_t clockCount = 64;

    static Counters counters(std::size_t number) { return {number / 16, number / 4 % 4, number % 4}; }

    static TolVectorClock clock(std::size_t number)
    {
        constexpr std::array names{"X", "Y", "Z"};
        TolVectorClock made;
        for (std::size_t device = 0; device < names.size(); ++device) {
            if (const auto value = counters(number)[device]; value > 0)
                made.updateClockValueForID(names[device], value);
        }
        return made;
    }

    static int expectedComparison(const Counters& left, const Counters& right)
    {
        const auto isAnyHigher = [](const Counters& one, const Counters& other) {
            return one[0] > other[0] || one[1] > other[1] || one[2] > other[2];
        };
        const bool ahead = isAnyHigher(left, right);
        const bool behind = isAnyHigher(right, left);
        return ahead && behind ? 2 : int(ahead) - int(behind);
    }
};

TEST_F(VectorClockLaws, HoldForEveryPairOfSmallClocks)
{
    for (std::size_t left = 0; left < clockCount; ++left) {
        for (std::size_t right = 0; right < clockCount; ++right) {
            SCOPED_TRACE(clock(left).stringRepresentation() + " and " + clock(right).stringRepresentation());
            const TolVectorClock one = clock(left);
            const TolVectorClock other = clock(right);
            const TolVectorClock merged = one.mergeClock(other);
            const int order = one.compare(other);

            EXPECT_EQ(order, expectedComparison(counters(left), counters(right)));
            EXPECT_EQ(other.compare(one), order == 2 ? 2 : -order);
            EXPECT_EQ(order == 0, left == right);

            EXPECT_EQ(merged.clockValues(), other.mergeClock(one).clockValues());
            EXPECT_EQ(merged.mergeClock(other).clockValues(), merged.clockValues());
            EXPECT_EQ(merged.compare(one), order == -1 || order == 2 ? 1 : 0);
            EXPECT_EQ(merged.compare(other), order == 1 || order == 2 ? 1 : 0);
            EXPECT_EQ(one.mergeClock(one).clockValues(), one.clockValues());
        }
    }
}

} // namespace
} // namespace tarn
