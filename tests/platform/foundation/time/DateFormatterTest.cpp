#include "tarnmodel/platform/foundation/time/DateFormatter.h"

#include "tarnmodel/platform/foundation/system/Environment.h"

#include <gtest/gtest.h>

namespace tarn {

namespace {

class DateFormatterTest : public testing::Test {
protected:
    DateFormatterTest()
    {
        world_.setTimeZoneIdentifier("UTC");
        world_.setNow(dateFromISO8601String("2021-03-15T10:00:00Z").value());
    }

    static std::string day(const DateFormatter& formatter, std::string_view text)
    {
        const auto date = formatter.dateFromString(text);
        return date ? iso8601String(*date).substr(0, 10) : "nil";
    }
    std::string shortDay(const std::string& locale, std::string_view text)
    {
        world_.setLocaleIdentifier(locale);
        return day(DateFormatter::withShortStyle(), text);
    }

    EnvironmentOverride world_;
};

} // namespace

TEST_F(DateFormatterTest, ReadsAPatternByItsExactShape)
{
    const DateFormatter dashes = DateFormatter::withPattern("yyyy-MM-dd");
    EXPECT_EQ(day(dashes, "2021-03-15"), "2021-03-15");
    EXPECT_EQ(day(dashes, "２０２１-０３-１５"), "2021-03-15");
    for (const std::string_view text :
        {"", "2021-3-15", "2021-03-5", "02021-03-15", "2021-03-15 ", " 2021-03-15", "2021-03-15x", "2021-02-29",
            "2021-13-01", "0000-01-01", "2021/03/15", "21-03-15", "2021-03", "+021-03-15"})
        EXPECT_EQ(day(dashes, text), "nil") << text;
    EXPECT_EQ(day(DateFormatter::withPattern("yyyyMMdd"), "20210315"), "2021-03-15");
    EXPECT_EQ(day(DateFormatter::withPattern("yyyyMMdd"), "2021031"), "nil");
    EXPECT_EQ(day(DateFormatter::withPattern("MM/yyyy"), "03/2021"), "2021-03-01");
    EXPECT_EQ(day(DateFormatter::withPattern("MM/yyyy"), "3/2021"), "nil");
    EXPECT_EQ(day(DateFormatter::withPattern("M/yyyy"), "3/2021"), "2021-03-01");
    EXPECT_EQ(day(DateFormatter::withPattern("yyyy"), "2021"), "2021-01-01");
    EXPECT_EQ(day(DateFormatter::withPattern("yyyy 'MM'"), "2021 MM"), "2021-01-01");
    EXPECT_EQ(day(DateFormatter::withPattern("EEE"), "Mon"), "nil");
}

TEST_F(DateFormatterTest, WritesWhatItReads)
{
    const NSDate date = dateFromISO8601String("2021-03-05T12:00:00Z").value();
    for (const auto& [pattern, text] :
        {std::pair{"yyyy-MM-dd", "2021-03-05"}, {"yyyyMMdd", "20210305"}, {"M/yyyy", "3/2021"}, {"d.M.yy", "5.3.21"}})
        EXPECT_EQ(DateFormatter::withPattern(pattern).stringFromDate(date), text);
    for (const std::string locale : {"en_US", "en_GB", "de_DE", "ja_JP", "ru_RU", "zh_CN", "sv_SE", "ko_KR", "ar_EG",
             "fa_IR", "th_TH", "en_US_POSIX"}) {
        world_.setLocaleIdentifier(locale);
        const DateFormatter formatter = DateFormatter::withShortStyle();
        const std::string text = formatter.stringFromDate(date);
        EXPECT_EQ(day(formatter, text), "2021-03-05") << locale << " " << formatter.pattern() << " " << text;
    }
}

TEST_F(DateFormatterTest, ReadsTheShortStyleOfALocale)
{
    EXPECT_EQ(shortDay("en_US", "1/2/21"), "2021-01-02");
    EXPECT_EQ(shortDay("en_US", "01/02/2021"), "2021-01-02");
    EXPECT_EQ(shortDay("en_GB", "1/2/21"), "2021-02-01");
    EXPECT_EQ(shortDay("en_GB", "31/12/2021"), "2021-12-31");
    EXPECT_EQ(shortDay("de_DE", "5.3.21"), "2021-03-05");
    EXPECT_EQ(shortDay("ja_JP", "2021/3/5"), "2021-03-05");
    EXPECT_EQ(shortDay("ko_KR", "21.3.5."), "2021-03-05");
    EXPECT_EQ(shortDay("ko_KR", "2021. 3. 5"), "2021-03-05");
    EXPECT_EQ(shortDay("ar_EG", "١٥/٣/٢٠٢١"), "2021-03-15");
    EXPECT_EQ(shortDay("th_TH", "15/3/2564"), "2021-03-15");
    EXPECT_EQ(shortDay("en_US_POSIX", "1/2/21"), "2021-01-02");
    for (const std::string_view text :
        {"31/12/2021", "1/2/1", "1/2/021", "1/2", "1/2/21 ", "1.2.21", "", "1/2/21x", "2/30/21"})
        EXPECT_EQ(shortDay("en_US", text), "nil") << text;
}

TEST_F(DateFormatterTest, TakesYearsOfTwoDigitsWithinAHundredYears)
{
    EXPECT_EQ(shortDay("en_US", "3/14/41"), "2041-03-14");
    EXPECT_EQ(shortDay("en_US", "3/15/41"), "1941-03-15");
    EXPECT_EQ(shortDay("en_US", "1/1/42"), "1942-01-01");
    EXPECT_EQ(shortDay("en_US", "12/31/40"), "2040-12-31");
    EXPECT_EQ(shortDay("en_US", "2/29/00"), "2000-02-29");
}

} // namespace tarn
