#include "tarnmodel/platform/foundation/time/Calendar.h"

#include "tarnmodel/platform/foundation/system/Environment.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

class CalendarTest : public testing::Test {
protected:
    CalendarTest() { world_.setTimeZoneIdentifier("Europe/Berlin"); }

    std::string date(const CalendarFields& fields) { return iso8601String(Calendar().dateWithFields(fields)); }
    static NSDate at(std::string_view text) { return dateFromISO8601String(text).value(); }

    EnvironmentOverride world_;
};

} // namespace

TEST_F(CalendarTest, KnowsTheDayInItsZone)
{
    EXPECT_EQ(Calendar().dayOfDate(at("2021-03-15T22:59:59Z")), (CalendarDay{2021, 3, 15}));
    EXPECT_EQ(Calendar().dayOfDate(at("2021-03-15T23:00:00Z")), (CalendarDay{2021, 3, 16}));
    const Calendar calendar;
    world_.setTimeZoneIdentifier("America/Sao_Paulo");
    EXPECT_EQ(Calendar().dayOfDate(at("2021-03-15T02:59:59Z")), (CalendarDay{2021, 3, 14}));
    EXPECT_EQ(calendar.dayOfDate(at("2021-03-15T02:59:59Z")), (CalendarDay{2021, 3, 14})) << "the system has moved";
}

TEST_F(CalendarTest, CountsOnFromFieldsOutsideOfTheirRanges)
{
    EXPECT_EQ(date({.year = 2021, .month = 3, .day = 15}), "2021-03-14T23:00:00Z");
    EXPECT_EQ(date({.year = 2021, .month = 3, .day = 0}), "2021-02-27T23:00:00Z");
    EXPECT_EQ(date({.year = 2021, .month = 13, .day = 1}), "2021-12-31T23:00:00Z");
    EXPECT_EQ(
        date({.year = 2024, .month = 4, .day = 0, .hour = 24, .minute = 59, .second = 59}), "2024-03-31T22:59:59Z");
    EXPECT_EQ(
        date({.year = 2021, .month = 11, .day = 0, .hour = 24, .minute = 59, .second = 59}), "2021-10-31T23:59:59Z");
}

TEST_F(CalendarTest, TakesTheLaterOfATimeThatComesTwice)
{
    EXPECT_EQ(date({.year = 2021, .month = 10, .day = 31, .hour = 2, .minute = 30}), "2021-10-31T01:30:00Z");
    EXPECT_EQ(date({.year = 2021, .month = 3, .day = 28, .hour = 2, .minute = 30}), "2021-03-28T01:30:00Z");
}

TEST_F(CalendarTest, BeginsADayWithItsFirstTime)
{
    EXPECT_EQ(iso8601String(Calendar().beginOfDay({2021, 3, 28})), "2021-03-27T23:00:00Z");
    world_.setTimeZoneIdentifier("America/Sao_Paulo");
    EXPECT_EQ(iso8601String(Calendar().beginOfDay({2018, 11, 4})), "2018-11-04T03:00:00Z");
}

TEST_F(CalendarTest, KnowsWhichDaysThereAre)
{
    for (const CalendarDay& day : {CalendarDay{2021, 1, 31}, {2020, 2, 29}, {2000, 2, 29}, {1, 1, 1}, {9999, 12, 31},
             {1582, 10, 4}, {1582, 10, 15}, {1500, 2, 29}})
        EXPECT_TRUE(Calendar::isRealDay(day)) << day.year << " " << day.month << " " << day.day;
    for (const CalendarDay& day : {CalendarDay{2021, 2, 29}, {1900, 2, 29}, {2021, 4, 31}, {2021, 13, 1}, {2021, 0, 1},
             {2021, 1, 0}, {2021, 1, 32}, {0, 1, 1}, {10000, 1, 1}, {1582, 10, 10}})
        EXPECT_FALSE(Calendar::isRealDay(day)) << day.year << " " << day.month << " " << day.day;
}

} // namespace tarn
