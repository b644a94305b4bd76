#include "tarnmodel/platform/foundation/values/NSDate.h"
#include "tarnmodel/platform/foundation/values/NSDate+Chrono.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

using namespace tarn;

namespace {

struct FormCase {
    std::int64_t microsecondsSince1970;
    const char* text;
};

constexpr FormCase kForms[] = {
    {0, "1970-01-01T00:00:00Z"},
    {1'580'465'700'000'000, "2020-01-31T10:15:00Z"},
    {978'307'200'000'000, "2001-01-01T00:00:00Z"},
    {951'782'400'000'001, "2000-02-29T00:00:00.000001Z"},
    {-1, "1969-12-31T23:59:59.999999Z"},
    {-62'135'596'800'000'000, "0001-01-01T00:00:00Z"},
    {4'102'444'799'500'000, "2099-12-31T23:59:59.500000Z"},
};

TEST(NSDate, IsWrittenAsISO8601)
{
    for (const auto& [microseconds, text] : kForms) {
        EXPECT_EQ(iso8601String(dateWithMicrosecondsSince1970(microseconds)), text);
        EXPECT_EQ(dateFromISO8601String(text), dateWithMicrosecondsSince1970(microseconds)) << text;
    }
}

TEST(NSDate, IsWrittenAtTheEndsOfTime)
{
    EXPECT_EQ(iso8601String(NSDate::max()), "294247-01-10T04:00:54.775807Z");
    EXPECT_EQ(iso8601String(NSDate::min()), "-290308-12-21T19:59:05.224192Z");
}

TEST(NSDate, AgreesWithTheCalendarOfTheStandardLibrary)
{
    std::mt19937_64 random(2718);
    for (int round = 0; round < 5'000; ++round) {
        const auto days = static_cast<int>(random() % 2'000'000) - 700'000;
        const std::chrono::sys_days day{std::chrono::days(days)};
        const std::chrono::year_month_day date(day);
        const std::string text = iso8601String(dateWithSystemTime(day));
        if (int(date.year()) < 0 || int(date.year()) > 9999)
            continue;
        ASSERT_EQ(dateFromISO8601String(text), dateWithSystemTime(day)) << text << ", seed 2718";
        ASSERT_EQ(std::stoi(text.substr(5, 2)), int(unsigned(date.month())));
        ASSERT_EQ(std::stoi(text.substr(8, 2)), int(unsigned(date.day())));
    }
}

TEST(NSDate, IsReadInEveryFormThatIsPromised)
{
    const auto quarterPastTen = dateWithMicrosecondsSince1970(1'580'465'700'000'000);
    const std::vector<std::pair<const char*, NSDate>> cases = {
        {"2020-01-31T10:15:00Z", quarterPastTen},
        {"2020-01-31 10:15:00Z", quarterPastTen},
        {"2020-01-31T10:15Z", quarterPastTen},
        {"2020-01-31T10:15", quarterPastTen},
        {"2020-01-31T11:15:00+01:00", quarterPastTen},
        {"2020-01-31T11:15:00+0100", quarterPastTen},
        {"2020-01-31T04:45:00-05:30", quarterPastTen},
        {"2020-01-31T10:15:00.5Z", quarterPastTen + std::chrono::milliseconds(500)},
        {"2020-01-31T10:15:00.1234567899Z", quarterPastTen + std::chrono::microseconds(123456)},
        {"2020-01-31", quarterPastTen - std::chrono::hours(10) - std::chrono::minutes(15)},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(dateFromISO8601String(text), expected) << text;
}

TEST(NSDate, IsNotReadFromAnythingElse)
{
    for (const char* text : {"", "2020", "2020-01", "2020-1-31", "20-01-31", "2020-02-30", "2021-02-29", "2020-13-01",
             "2020-00-10", "2020-01-00", "2020-01-31T", "2020-01-31T10", "2020-01-31T24:00:00Z", "2020-01-31T10:60Z",
             "2020-01-31T10:15:60Z", "2020-01-31T10:15:00.Z", "2020-01-31T10:15:00Zx", "2020-01-31T10:15:00+1:00",
             "2020-01-31T10:15:00+24:00", "2020-01-31T10:15:00 +01:00", " 2020-01-31", "2020-01-31 ", "2020/01/31",
             "-020-01-31", "2020-01-31t10:15:00z", "\xD9\xA2\xD9\xA0"})
        EXPECT_EQ(dateFromISO8601String(text), std::nullopt) << text;
}

TEST(NSDate, CountsFromTheReferenceDate)
{
    const NSDate reference = *dateFromISO8601String("2001-01-01");
    EXPECT_EQ(microsecondsSinceReferenceDate(reference), 0);
    EXPECT_EQ(microsecondsSinceReferenceDate(reference - std::chrono::seconds(1)), -1'000'000);
    EXPECT_EQ(dateWithMicrosecondsSinceReferenceDate(-978'307'200'000'000), NSDate());
}

TEST(NSDate, StaysWithinItsRangeAtTheEndsOfTime)
{
    EXPECT_EQ(dateWithMicrosecondsSinceReferenceDate(std::numeric_limits<std::int64_t>::max()), NSDate::max());
    EXPECT_EQ(microsecondsSinceReferenceDate(NSDate::min()), std::numeric_limits<std::int64_t>::min());
}

} // namespace
