#include "tarnmodel/platform/foundation/time/LocalTimeInternal.h"

#include "tarnmodel/platform/foundation/system/Environment.h"
#include "tarnmodel/platform/foundation/system/Log.h"
#include "tarnmodel/platform/foundation/system/NSUUID.h"
#include "tarnmodel/platform/foundation/time/Calendar.h"
#include "tarnmodel/platform/foundation/time/DateFormatter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

using namespace tarn;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

namespace fs = std::filesystem;

class LocalTimeTest : public testing::Test {
protected:
    LocalTimeTest() : previousSink_(setLogSink([this](std::string_view line) { log_.emplace_back(line); })) { }
    ~LocalTimeTest() override { setLogSink(previousSink_); }

    static NSDate at(std::string_view text) { return dateFromISO8601String(text).value(); }
    /// "first second, last second" of a day of a zone.
    std::string day(const std::string& zone, const CalendarDay& day)
    {
        world_.setTimeZoneIdentifier(zone);
        const Calendar calendar;
        return iso8601String(calendar.beginOfDay(day)) + " "
            + iso8601String(calendar.dateWithFields(
                {.year = day.year, .month = day.month, .day = day.day, .hour = 23, .minute = 59, .second = 59}));
    }

    EnvironmentOverride world_;
    std::vector<std::string> log_;

private:
    LogSink previousSink_;
};

TEST_F(LocalTimeTest, ReadsEachFormOfTheVariable)
{
    const std::string berlin = "2021-03-14T23:00:00Z 2021-03-15T22:59:59Z";
    for (const std::string zone : {"Europe/Berlin", ":Europe/Berlin", "/usr/share/zoneinfo/Europe/Berlin",
             ":/usr/share/zoneinfo/Europe/Berlin", "CET-1CEST,M3.5.0,M10.5.0/3", "CET-1", "<+01>-1"})
        EXPECT_EQ(day(zone, {2021, 3, 15}), berlin) << zone;
    EXPECT_EQ(day("EST5EDT,M3.2.0,M11.1.0", {2021, 3, 14}), "2021-03-14T05:00:00Z 2021-03-15T03:59:59Z");
    EXPECT_EQ(day("<+0530>-5:30", {2021, 3, 15}), "2021-03-14T18:30:00Z 2021-03-15T18:29:59Z");
    for (const std::string zone : {"", ":", "UTC", "UTC0"})
        EXPECT_EQ(day(zone, {2021, 3, 15}), "2021-03-15T00:00:00Z 2021-03-15T23:59:59Z") << zone;
    EXPECT_THAT(log_, IsEmpty());
}

TEST_F(LocalTimeTest, FollowsTheSettingOfTheSystemWithoutAVariable)
{
    world_.setVariable("TZ", std::nullopt);
    const NSDate date = at("2021-03-15T12:00:00Z");
    const auto unset = Environment::current().localTimeOffset(date);
    if (!fs::exists("/etc/localtime"))
        GTEST_SKIP() << "the system has no setting";
    world_.setVariable("TZ", "/etc/localtime");
    EXPECT_EQ(Environment::current().localTimeOffset(date), unset);
    EXPECT_THAT(log_, IsEmpty());
}

TEST_F(LocalTimeTest, BeginsDaysWithoutMidnightWithTheirFirstTime)
{
    EXPECT_EQ(day("America/Sao_Paulo", {2018, 11, 4}), "2018-11-04T03:00:00Z 2018-11-05T01:59:59Z");
    EXPECT_EQ(day("Asia/Beirut", {2022, 3, 27}), "2022-03-26T22:00:00Z 2022-03-27T20:59:59Z");
    EXPECT_EQ(day("America/Asuncion", {2021, 10, 3}), "2021-10-03T04:00:00Z 2021-10-04T02:59:59Z");
    EXPECT_EQ(day("Africa/Cairo", {2014, 5, 16}), "2014-05-15T22:00:00Z 2014-05-16T20:59:59Z");
    EXPECT_EQ(day("STD0DST,M3.2.0/-0:30,M11.1.0", {2021, 3, 14}), "2021-03-13T23:30:00Z 2021-03-14T22:59:59Z")
        << "from half past eleven to half past twelve";
    EXPECT_EQ(day("Pacific/Apia", {2011, 12, 30}), "2011-12-30T10:00:00Z 2011-12-31T09:59:59Z") << "never was";
}

TEST_F(LocalTimeTest, BeginsDaysOfTwoMidnightsWithTheFirst)
{
    EXPECT_EQ(day("America/Havana", {2021, 11, 7}), "2021-11-07T04:00:00Z 2021-11-08T04:59:59Z");
    // The last hour of the day before comes twice.
    EXPECT_EQ(day("America/Sao_Paulo", {2018, 2, 17}), "2018-02-17T02:00:00Z 2018-02-18T02:59:59Z");
    EXPECT_EQ(day("America/Sao_Paulo", {2018, 2, 18}), "2018-02-18T03:00:00Z 2018-02-19T02:59:59Z");
}

TEST_F(LocalTimeTest, KnowsWhatTheClockShows)
{
    world_.setTimeZoneIdentifier("Asia/Kathmandu");
    const CalendarFields fields = Calendar().fieldsOfDate(at("1969-12-31T18:14:59.999Z"));
    EXPECT_EQ(fields.year, 1969);
    EXPECT_EQ(fields.month, 12);
    EXPECT_EQ(fields.day, 31);
    EXPECT_EQ(fields.hour, 23); // half past five ahead until 1986
    EXPECT_EQ(fields.minute, 44);
    EXPECT_EQ(fields.second, 59);
    EXPECT_EQ(Calendar().fieldsOfDate(at("3000-01-01T00:00:00Z")).hour, 5)
        << "after the last nanosecond that 64 bits count";
    for (const NSDate date : {NSDate::min(), NSDate::max()})
        EXPECT_NE(Calendar().dayOfDate(date).year, 0);
}

TEST_F(LocalTimeTest, GoesByTheZonesOfTheSystemAndByNoOthers)
{
    const fs::path folder = fs::temp_directory_path() / ("tarn zönes " + newUUIDString());
    fs::create_directories(folder);
    std::ofstream(folder / "source") << "Rule Own 2000 max - Jun 1 0:00 0:20 -\nRule Own 2000 max - Sep 1 0:00 0 -\n"
                                        "Zone Own/Place 7:11 Own OWN%s\n";
    const std::string command
        = "/usr/sbin/zic -d '" + (folder / "zones").string() + "' '" + (folder / "source").string() + "'";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    world_.setVariable("TZDIR", (folder / "zones").string());

    EXPECT_EQ(day("Own/Place", {2021, 3, 15}), "2021-03-14T16:49:00Z 2021-03-15T16:48:59Z");
    EXPECT_EQ(day("Own/Place", {2021, 6, 1}), "2021-05-31T16:49:00Z 2021-06-01T16:28:59Z");
    EXPECT_EQ(day("Own/Place", {2090, 7, 1}), "2090-06-30T16:29:00Z 2090-07-01T16:28:59Z");
    world_.setLocaleIdentifier("de_DE");
    EXPECT_EQ(DateFormatter::withShortStyle().stringFromDate(at("2021-03-15T16:49:00Z")), "16.03.21");
    EXPECT_EQ(DateFormatter::withShortStyle().dateFromString("16.3.21"), at("2021-03-15T16:49:00Z"));
    EXPECT_EQ(DateFormatter::withPattern("yyyy-MM-dd").stringFromDate(at("2021-03-15T16:48:59Z")), "2021-03-15");
    EXPECT_THAT(log_, IsEmpty());
    fs::remove_all(folder);
}

TEST_F(LocalTimeTest, TakesUnknownZonesForUTCAndSaysSoOnce)
{
    for (int round = 0; round < 3; ++round)
        EXPECT_EQ(day("No/Such_Place", {2021, 3, 15}), "2021-03-15T00:00:00Z 2021-03-15T23:59:59Z");
    EXPECT_THAT(log_, ElementsAre("The system has no time zone \"No/Such_Place\" and takes it for UTC."));
    day("Europe/Berlin", {2021, 3, 15});
    EXPECT_EQ(log_.size(), 1U);
}

int numberOfVariable(const char* name, int usual)
{
    const char* const value = std::getenv(name);
    return value ? std::atoi(value) : usual;
}

TEST_F(LocalTimeTest, AgreesWithAnotherReaderOfZones)
{
    constexpr int kDaysOfAZone = 10;
    const int zones = numberOfVariable("TARN_ZONES", 60);
    const int seed = numberOfVariable("TARN_SEED", 20);
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::ostringstream command;
    command << "python3 '" TARN_TEST_CASES "/../platform/foundation/time/local_days.py' " << seed << " " << zones << " "
            << kDaysOfAZone;
    FILE* const oracle = ::popen(command.str().c_str(), "r");
    ASSERT_TRUE(oracle);
    int count = 0;
    char zone[128];
    CalendarDay wanted;
    long long begin = 0;
    long long end = 0;
    while (std::fscanf(oracle, "%127s %d-%d-%d %lld %lld", zone, &wanted.year, &wanted.month, &wanted.day, &begin, &end)
        == 6) {
        const auto text
            = [](long long second) { return iso8601String(dateWithMicrosecondsSince1970(second * 1'000'000)); };
        ASSERT_EQ(day(zone, wanted), text(begin) + " " + text(end))
            << zone << " " << wanted.year << "-" << wanted.month << "-" << wanted.day;
        ++count;
    }
    EXPECT_EQ(::pclose(oracle), 0);
    EXPECT_GE(count, zones * kDaysOfAZone * 9 / 10);
}

} // namespace
