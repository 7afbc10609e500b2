#include "host/system/IcuLocaleFormats.h"

#include "support/FailureNumber.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>

namespace tempodial {
namespace {

Date At(int hour, int minute, int second)
{
    return Date::FromSeconds(hour * 3600 + minute * 60 + second);
}

const Date October10 = Date::FromParts({ 2006, 10, 10, 9, 5, 0 });
const Date October3 = Date::FromParts({ 2006, 10, 3, 21, 7, 9 });

class IcuLocaleFormatsTest : public testing::Test
{
protected:
    IcuLocaleFormats mFormats { "en_US" };
};

TEST_F(IcuLocaleFormatsTest, EachForm_UnitedStates_IsTheExpectedText)
{
    EXPECT_EQ(mFormats.ShortDate(October10), "10/10/2006");
    EXPECT_EQ(mFormats.LongDate(October10), "Tuesday, October 10, 2006");
    EXPECT_EQ(mFormats.MediumDate(October10), "10-Oct-06");
    EXPECT_EQ(mFormats.ShortTime(October10), "9:05 AM");
    EXPECT_EQ(mFormats.LongTime(October10), "9:05:00 AM");
    EXPECT_EQ(mFormats.ShortDate(October3), "10/3/2006");
    EXPECT_EQ(mFormats.LongDate(October3), "Tuesday, October 3, 2006");
    EXPECT_EQ(mFormats.MediumDate(October3), "03-Oct-06");
    EXPECT_EQ(mFormats.ShortTime(October3), "9:07 PM");
    EXPECT_EQ(mFormats.LongTime(October3), "9:07:09 PM");
    EXPECT_EQ(mFormats.Moment(October3), "10/3/2006 9:07 PM");
}

TEST_F(IcuLocaleFormatsTest, General_MidnightOrZeroDay_DropsWhatIsNotThere)
{
    EXPECT_EQ(mFormats.General(October10), "10/10/2006 9:05:00 AM");
    EXPECT_EQ(mFormats.General(October10.Day()), "10/10/2006");
    EXPECT_EQ(mFormats.General(At(9, 5, 0)), "9:05:00 AM");
    EXPECT_EQ(mFormats.General(Date()), "12:00:00 AM");
}

TEST_F(IcuLocaleFormatsTest, Time_NoonAndMidnight_AreTwelve)
{
    EXPECT_EQ(mFormats.ShortTime(At(0, 30, 0)), "12:30 AM");
    EXPECT_EQ(mFormats.ShortTime(At(12, 0, 0)), "12:00 PM");
    EXPECT_EQ(mFormats.ShortTime(At(11, 59, 59)), "11:59 AM");
    EXPECT_EQ(mFormats.ShortTime(At(23, 59, 59)), "11:59 PM");
}

TEST_F(IcuLocaleFormatsTest, MonthAbbreviation_OneToTwelve_IsTheName)
{
    EXPECT_EQ(mFormats.MonthAbbreviation(1), "Jan");
    EXPECT_EQ(mFormats.MonthAbbreviation(10), "Oct");
    EXPECT_EQ(mFormats.MonthAbbreviation(12), "Dec");
    EXPECT_EQ(FailureNumber([&] { mFormats.MonthAbbreviation(0); }), 5);
    EXPECT_EQ(FailureNumber([&] { mFormats.MonthAbbreviation(13); }), 5);
    EXPECT_EQ(IcuLocaleFormats("de_DE").MonthAbbreviation(10), "Okt");
    EXPECT_EQ(IcuLocaleFormats("th_TH").MonthAbbreviation(10), "ต.ค.");
}

TEST_F(IcuLocaleFormatsTest, Parse_TimesOfDay_AreTaken)
{
    const std::map<std::string, Date> rows = {
        { "9:05", At(9, 5, 0) },
        { "09:05", At(9, 5, 0) },
        { "9:05 AM", At(9, 5, 0) },
        { "9:05:00 AM", At(9, 5, 0) },
        { "9:05:59 PM", At(21, 5, 59) },
        { "21:07", At(21, 7, 0) },
        { "21:07:09", At(21, 7, 9) },
        { "0:00", Date() },
        { "23:59:59", At(23, 59, 59) },
        { "12:59 AM", At(0, 59, 0) },
        { "12:00 PM", At(12, 0, 0) },
        { "13:00 AM", At(13, 0, 0) },
        { "13:00 PM", At(13, 0, 0) },
        { "1 am", At(1, 0, 0) },
        { "1am", At(1, 0, 0) },
        { "12 am", Date() },
        { "00:00 pm", At(12, 0, 0) },
        { "3:5", At(3, 5, 0) },
        { "3:5:7", At(3, 5, 7) },
        { " 9:05 ", At(9, 5, 0) },
        { "9:05\u202FAM", At(9, 5, 0) },
        { "9:05\u00A0pm", At(21, 5, 0) },
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(mFormats.Parse(text), expected) << text;
    }
}

TEST_F(IcuLocaleFormatsTest, Parse_Dates_AreTaken)
{
    const std::map<std::string, Date> rows = {
        { "10/10/2006", October10.Day() },
        { "10/10/2006 9:05:00 AM", October10 },
        { "10/10/2006 9:05 AM", October10 },
        { "10/10/2006 09:05", October10 },
        { "10/10/2006  9:05", October10 },
        { "10/3/2006 9:07:09 PM", October3 },
        { "10/03/2006 21:07:09", October3 },
        { "10/3/06", October3.Day() },
        { "10/3/2006 1 am", October3.Day().AddMinutes(60) },
        { "Tuesday, October 10, 2006", October10.Day() },
        { "tuesday, OCTOBER 10, 2006 9:05", October10 },
        { "10-Oct-06", October10.Day() },
        { "3-oct-2006 21:07:09", October3 },
        { "1/1/30", Date::FromYearMonthDay(1930, 1, 1) },
        { "1/1/29", Date::FromYearMonthDay(2029, 1, 1) },
        { "2/29/2008", Date::FromYearMonthDay(2008, 2, 29) },
        { "12/30/1899", Date() },
    };
    for (const auto& [text, expected] : rows) {
        EXPECT_EQ(mFormats.Parse(text), expected) << text;
    }
}

TEST_F(IcuLocaleFormatsTest, Parse_OtherTexts_Fail)
{
    for (const std::string text : { "24:00", "0:60", "0:00:60", "", " ", "noon", "9", "9:", "9:05:", "9:05 XM", "AM",
             ":05", "100:00", "9:05 AM x", "9:05 10/10/2006", "10/10/2006 noon", "10/10/2006x", "10/10/2006 24:00",
             "10/10", "10/10/", "13/1/2006", "0/1/2006", "2/29/2007", "4/31/2006", "1/0/2006", "1/32/2006",
             "10/10/20061", "2006-10-10", "Monday, October 10, 2006", "Tuesday, Octember 10, 2006", "None", "-1",
             "10/10/2006 9", "-9:05", "+9:05", "9 :05", "\u0661:05", "9:05\xFF" }) {
        EXPECT_EQ(FailureNumber([&] { mFormats.Parse(text); }), 13) << text;
    }
    EXPECT_EQ(FailureNumber([&] { mFormats.Parse(std::string("9:05\0", 5)); }), 13);
}

TEST_F(IcuLocaleFormatsTest, EachForm_OtherLocales_IsTheExpectedText)
{
    const struct
    {
        const char *locale, *shortDate, *longDate, *mediumDate, *shortTime, *longTime;
    } rows[] = {
        { "de_DE", "03.10.2006", "Dienstag, 3. Oktober 2006", "03-Okt-06", "21:07", "21:07:09" },
        { "sv_SE", "2006-10-03", "tisdag 3 oktober 2006", "03-okt-06", "21:07", "21:07:09" },
        { "ja_JP", "2006/10/03", "2006年10月3日火曜日", "03-10月-06", "21:07", "21:07:09" },
        { "en_GB", "03/10/2006", "Tuesday, 3 October 2006", "03-Oct-06", "21:07", "21:07:09" },
        { "da_DK", "03.10.2006", "tirsdag den 3. oktober 2006", "03-okt-06", "21.07", "21.07.09" },
        { "ko_KR", "2006. 10. 3.", "2006년 10월 3일 화요일", "03-10월-06", "오후 9:07", "오후 9:07:09" },
    };
    for (const auto& row : rows) {
        IcuLocaleFormats formats(row.locale);
        EXPECT_EQ(formats.ShortDate(October3), row.shortDate);
        EXPECT_EQ(formats.LongDate(October3), row.longDate);
        EXPECT_EQ(formats.MediumDate(October3), row.mediumDate);
        EXPECT_EQ(formats.ShortTime(October3), row.shortTime);
        EXPECT_EQ(formats.LongTime(October3), row.longTime);
    }
}

TEST_F(IcuLocaleFormatsTest, Parse_WhatWasFormatted_ComesBackInEachLocale)
{
    for (const auto* locale : { "en_US", "de_DE", "sv_SE", "ja_JP", "en_GB", "fr_CA", "da_DK", "ko_KR", "ar_EG",
             "th_TH", "fa_IR", "zh_TW", "bg_BG", "es_419", "fi_FI", "he_IL", "hi_IN", "tr_TR", "vi_VN", "lt_LT" }) {
        IcuLocaleFormats formats(locale);
        for (int step = 0; step < 400; ++step) {
            const auto moment
                = Date::FromParts({ 1930, 1, 1, 0, 0, 0 }).AddDays(step * 91).AddSeconds(step * 6151 % 86400);
            const auto time = Date::FromSeconds(moment.SecondOfDay());
            ASSERT_EQ(formats.Parse(formats.ShortDate(moment)), moment.Day()) << locale << formats.ShortDate(moment);
            ASSERT_EQ(formats.Parse(formats.LongDate(moment)), moment.Day()) << locale << formats.LongDate(moment);
            ASSERT_EQ(formats.Parse(formats.MediumDate(moment)), moment.Day()) << locale << formats.MediumDate(moment);
            ASSERT_EQ(formats.Parse(formats.ShortTime(moment)), time.Minute()) << locale << formats.ShortTime(moment);
            ASSERT_EQ(formats.Parse(formats.LongTime(moment)), time) << locale << formats.LongTime(moment);
            ASSERT_EQ(formats.Parse(formats.General(moment)), moment) << locale << formats.General(moment);
            ASSERT_EQ(formats.Parse(formats.Moment(moment)), moment.Minute()) << locale << formats.Moment(moment);
            ASSERT_EQ(formats.Parse(moment.HourMinute()), time.Minute()) << locale << moment.HourMinute();
        }
    }
}

TEST_F(IcuLocaleFormatsTest, FirstDayOfWeek_Locales_AreTold)
{
    EXPECT_EQ(IcuLocaleFormats::FirstDayOfWeek("en_US"), 1);
    EXPECT_EQ(IcuLocaleFormats::FirstDayOfWeek("C"), 1);
    EXPECT_EQ(IcuLocaleFormats::FirstDayOfWeek("de_DE.UTF-8"), 2);
    EXPECT_EQ(IcuLocaleFormats::FirstDayOfWeek("ar_EG"), 7);
    EXPECT_EQ(FailureNumber([] { IcuLocaleFormats::FirstDayOfWeek("xx_XX"); }), 5);
}

TEST_F(IcuLocaleFormatsTest, IsKnown_NamesOfLocales_AreToldFromOthers)
{
    for (const auto* name : { "en_US", "de_DE", "de_DE.UTF-8", "de_DE@euro", "sv", "ja_JP.eucJP", "C", "POSIX",
             "C.UTF-8", "en-GB", "es_419", "sr_Latn_RS", "zh_TW", "en_DE" }) {
        EXPECT_TRUE(IcuLocaleFormats::IsKnown(name)) << name;
    }
    for (const auto* name : { "", "xx_YY", "german", "en_QQ", "en_US_NOWHERE", "_US", "../../etc", "1", "." }) {
        EXPECT_FALSE(IcuLocaleFormats::IsKnown(name)) << name;
    }
    EXPECT_EQ(FailureNumber([] { IcuLocaleFormats("xx_YY"); }), 5);
    EXPECT_EQ(IcuLocaleFormats("C.UTF-8").ShortDate(October3), "10/3/2006");
}

class LocaleEnvironmentTest : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const auto* name : { "LC_ALL", "LC_TIME", "LANG" }) {
            const auto* value = std::getenv(name);
            if (value != nullptr) {
                mFormer[name] = value;
            }
            ::unsetenv(name);
        }
    }
    void TearDown() override
    {
        for (const auto* name : { "LC_ALL", "LC_TIME", "LANG" }) {
            ::unsetenv(name);
        }
        for (const auto& [name, value] : mFormer) {
            ::setenv(name.c_str(), value.c_str(), 1);
        }
    }

private:
    std::map<std::string, std::string> mFormer;
};

TEST_F(LocaleEnvironmentTest, FromEnvironment_SeveralVariables_TakesTheStrongest)
{
    EXPECT_EQ(IcuLocaleFormats::FromEnvironment(), "en_US");
    ::setenv("LANG", "ja_JP.UTF-8", 1);
    EXPECT_EQ(IcuLocaleFormats::FromEnvironment(), "ja_JP.UTF-8");
    ::setenv("LC_TIME", "sv_SE.UTF-8", 1);
    EXPECT_EQ(IcuLocaleFormats::FromEnvironment(), "sv_SE.UTF-8");
    ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    EXPECT_EQ(IcuLocaleFormats::FromEnvironment(), "de_DE.UTF-8");
    ::setenv("LC_ALL", "", 1);
    EXPECT_EQ(IcuLocaleFormats::FromEnvironment(), "sv_SE.UTF-8");
    ::setenv("LC_ALL", "nowhere", 1);
    EXPECT_EQ(IcuLocaleFormats::FromEnvironment(), "en_US");
}

}
}
