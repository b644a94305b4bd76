#include "tarnmodel/search/OVNoteSearchManager.h"

#include "tarnmodel/platform/foundation/system/Environment.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

using Manager = OVNoteSearchManager;
using Bound = std::optional<NSDate>;

NSDate at(std::string_view text)
{
    return dateFromISO8601String(text).value();
}

std::string shown(const Bound& date)
{
    return date ? iso8601String(*date) : "nil";
}

class DateParsing : public testing::Test {
protected:
    DateParsing() { setWorld("Europe/Berlin", "en_US"); }
    void setWorld(std::string zone, std::string locale)
    {
        world_.setTimeZoneIdentifier(std::move(zone));
        world_.setLocaleIdentifier(std::move(locale));
        world_.setNow(at("2021-03-15T10:00:00+01:00"));
    }
    static std::string period(std::string_view text)
    {
        Bound begin;
        Bound end;
        Manager::endAndBeginPeriodDatesFromDateString(text, &begin, &end);
        return shown(begin) + " " + shown(end);
    }

    EnvironmentOverride world_;
};

} // namespace

TEST_F(DateParsing, WritesTheBoundsThatAreAskedFor)
{
    using Bounds = void (*)(NSDate, Bound*, Bound*);
    for (const Bounds bounds : {&Manager::endAndBeginOfDayDatesFromDate, &Manager::endAndBeginOfMonthDatesFromDate,
             &Manager::endAndBeginOfYearDatesFromDate}) {
        Bound begin;
        Bound end;
        bounds(now(), &begin, nullptr);
        EXPECT_TRUE(begin.has_value());
        bounds(now(), nullptr, &end);
        EXPECT_TRUE(end.has_value());
        EXPECT_LT(*begin, *end);
        bounds(now(), nullptr, nullptr);
    }
}

TEST_F(DateParsing, EndsADayOnItsLastWholeSecond)
{
    Bound begin;
    Bound end;
    Manager::endAndBeginOfDayDatesFromDate(at("2021-03-15T22:59:59.900Z"), &begin, &end);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2021-03-14T23:00:00Z 2021-03-15T22:59:59Z");
    Manager::endAndBeginOfDayDatesFromDate(at("2021-03-15T23:00:00Z"), &begin, &end);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2021-03-15T23:00:00Z 2021-03-16T22:59:59Z");
}

TEST_F(DateParsing, EndsMonthsAndYearsAnHourLate)
{
    Bound begin;
    Bound end;
    Manager::endAndBeginOfMonthDatesFromDate(at("2024-03-20T12:00:00Z"), &begin, &end);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2024-02-29T23:00:00Z 2024-03-31T22:59:59Z");
    Manager::endAndBeginOfMonthDatesFromDate(at("2021-10-20T12:00:00Z"), &begin, &end);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2021-09-30T22:00:00Z 2021-10-31T23:59:59Z");
    Manager::endAndBeginOfMonthDatesFromDate(at("2021-12-31T12:00:00Z"), &begin, &end);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2021-11-30T23:00:00Z 2021-12-31T23:59:59Z");
    Manager::endAndBeginOfYearDatesFromDate(at("2020-02-29T12:00:00Z"), &begin, &end);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2019-12-31T23:00:00Z 2020-12-31T23:59:59Z");
}

TEST_F(DateParsing, LeavesTheBoundsAloneForWhatIsNoDate)
{
    Bound begin = at("2001-01-01");
    Bound end = at("2002-01-01");
    for (const std::string_view text : {"", " ", "x", "2021-13", "21", "2021-02-30"})
        Manager::endAndBeginPeriodDatesFromDateString(text, &begin, &end);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2001-01-01T00:00:00Z 2002-01-01T00:00:00Z");
    Manager::endAndBeginPeriodDatesFromDateString("2021", &begin, nullptr);
    EXPECT_EQ(shown(begin) + " " + shown(end), "2020-12-31T23:00:00Z 2002-01-01T00:00:00Z");
}

TEST_F(DateParsing, PrefersADayToAMonthToAYear)
{
    const std::string day = "2021-03-14T23:00:00Z 2021-03-15T22:59:59Z";
    const std::string month = "2021-02-28T23:00:00Z 2021-03-31T22:59:59Z";
    EXPECT_EQ(period("2021-03-15"), day);
    EXPECT_EQ(period("20210315"), day);
    EXPECT_EQ(period("3/15/21"), day);
    EXPECT_EQ(period("2021-03"), month);
    EXPECT_EQ(period("202103"), month);
    EXPECT_EQ(period("2021"), "2020-12-31T23:00:00Z 2021-12-31T23:59:59Z");
    EXPECT_EQ(period("0001"), "0000-12-29T23:06:32Z 0001-12-30T00:06:31Z");
    EXPECT_EQ(period("9999"), "9998-12-31T23:00:00Z 9999-12-31T23:59:59Z");
}

TEST_F(DateParsing, AsksEachFormForItsLength)
{
    EXPECT_EQ(shown(Manager::ov_yearOnlyFromString("2021")), "2020-12-31T23:00:00Z");
    EXPECT_EQ(shown(Manager::ov_yearOnlyFromString("02021")), "nil");
    EXPECT_EQ(shown(Manager::ov_yearOnlyFromString("221")), "nil");
    EXPECT_EQ(shown(Manager::ov_yearOnlyFromString("２０２１")), "2020-12-31T23:00:00Z");
    EXPECT_EQ(shown(Manager::ov_yearOnlyFromString("𝟐𝟎𝟐𝟏")), "nil"); // eight UTF-16 units
    EXPECT_EQ(shown(Manager::ov_yearMonthDateFromString("2021")), "nil");
    EXPECT_EQ(shown(Manager::ov_yearMonthDateFromString("2021-3")), "2021-02-28T23:00:00Z");
    EXPECT_EQ(shown(Manager::ov_yearMonthDateFromString("3/21")), "nil");
    EXPECT_EQ(shown(Manager::ov_yearMonthDateFromString("2021/03")), "nil");
    EXPECT_EQ(shown(Manager::ov_shortDateFromString("2021-03")), "nil");
}

TEST_F(DateParsing, ReadsTheShortStyleFirst)
{
    EXPECT_EQ(shown(Manager::ov_shortDateFromString("1/2/21")), "2021-01-01T23:00:00Z");
    setWorld("Europe/Berlin", "en_GB");
    EXPECT_EQ(shown(Manager::ov_shortDateFromString("1/2/21")), "2021-01-31T23:00:00Z");
    setWorld("Europe/Berlin", "de_DE");
    EXPECT_EQ(shown(Manager::ov_shortDateFromString("1/2/21")), "nil");
    EXPECT_EQ(shown(Manager::ov_shortDateFromString("1.2.21")), "2021-01-31T23:00:00Z");
    setWorld("Europe/Berlin", "en_US_POSIX");
    EXPECT_EQ(shown(Manager::ov_shortDateFromString("1/2/21")), "2021-01-01T23:00:00Z");
}

TEST_F(DateParsing, HandsOutFormatters)
{
    const DateFormatter dashes = Manager::ov_iso8601DateOnlyFormatter();
    const DateFormatter digits = Manager::ov_noSeparatorsDateFormatter();
    EXPECT_EQ(digits.pattern(), "yyyyMMdd");
    EXPECT_EQ(dashes.stringFromDate(at("2021-03-15T23:30:00Z")), "2021-03-16");
    EXPECT_EQ(digits.stringFromDate(at("2021-03-15T22:30:00Z")), "20210315");
    EXPECT_EQ(shown(dashes.dateFromString("2021-03-15")), "2021-03-14T23:00:00Z");
    EXPECT_EQ(shown(digits.dateFromString("20210315")), "2021-03-14T23:00:00Z");
    EXPECT_EQ(shown(dashes.dateFromString("20210315")), "nil");
    EXPECT_EQ(shown(digits.dateFromString("2021-03-15")), "nil");
    EXPECT_EQ(shown(dashes.dateFromString("2021-3-15")), "nil");
}

TEST_F(DateParsing, BeginsADayWithoutMidnightWithItsFirstHour)
{
    setWorld("America/Sao_Paulo", "en_US");
    EXPECT_EQ(period("2018-11-04"), "2018-11-04T03:00:00Z 2018-11-05T01:59:59Z");
    EXPECT_EQ(period("2018-11"), "2018-11-01T03:00:00Z 2018-12-01T02:59:59Z");
    setWorld("Asia/Kathmandu", "en_US");
    EXPECT_EQ(period("2021-03-15"), "2021-03-14T18:15:00Z 2021-03-15T18:14:59Z");
    EXPECT_EQ(period("2021-03"), "2021-02-28T18:15:00Z 2021-03-31T19:14:59Z");
}

TEST_F(DateParsing, GoesByTheRulesInTheVariable)
{
    setWorld("EST5EDT,M3.2.0,M11.1.0", "en_US");
    EXPECT_EQ(period("2021-03-14"), "2021-03-14T05:00:00Z 2021-03-15T03:59:59Z");
    EXPECT_EQ(period("3/15/21"), "2021-03-15T04:00:00Z 2021-03-16T03:59:59Z");
    EXPECT_EQ(period("2021-03"), "2021-03-01T05:00:00Z 2021-04-01T04:59:59Z");
    EXPECT_EQ(period("2021"), "2021-01-01T05:00:00Z 2022-01-01T05:59:59Z");
    setWorld("<+0530>-5:30", "en_US");
    EXPECT_EQ(period("2021-03-15"), "2021-03-14T18:30:00Z 2021-03-15T18:29:59Z");
}

} // namespace tarn
