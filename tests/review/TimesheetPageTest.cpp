#include "review/TimesheetPage.h"

#include "review/Activities.h"

#include <gmock/gmock.h>

namespace tempodial {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

Timesheet Sheet(const std::string& project, const std::vector<std::string>& descriptions)
{
    std::vector<Activity> activities;
    int minute = 540;
    for (const auto& description : descriptions) {
        activities.push_back(ActivityOn(9, minute, minute + 5, project, "Word", description));
        minute += 5;
    }
    return Timesheet::Of(project, OctoberDays(1, 31), activities, { .step = 15, .rate = HourlyRate::Read("100") });
}

}

TEST(TimesheetPageTest, Page_Heading_HasClientPeriodAuthorAndTotals)
{
    const auto page = TimesheetPage(Sheet("Plan", { "a", "b" }), "Zoë Müller", "EUR");
    EXPECT_THAT(page, HasSubstr("<title>Plan, 2006-10-01 to 2006-10-31</title>"));
    EXPECT_THAT(page,
        HasSubstr("<h1><bdi>Plan</bdi></h1>\n<p>Timesheet, 2006-10-01 to 2006-10-31</p>\n"
                  "<p><bdi>Zoë Müller</bdi></p>"));
    EXPECT_THAT(page, HasSubstr("<dt>Billed hours</dt><dd>0:15</dd>"));
    EXPECT_THAT(page, HasSubstr("<dt>Measured hours</dt><dd>0:10</dd>"));
    EXPECT_THAT(page, HasSubstr("<dt>Amount</dt><dd>25.00 <bdi>EUR</bdi></dd>"));
}

TEST(TimesheetPageTest, Page_Table_HasARowForEachDay)
{
    EXPECT_THAT(TimesheetPage(Sheet("Plan", { "a", "b" }), "", ""),
        HasSubstr("<tr><th scope=\"row\">2006-10-09</th><td class=\"time\">0:10</td><td class=\"time\">0:15</td>"
                  "<td class=\"what\"><ul><li><bdi>a</bdi></li><li><bdi>b</bdi></li></ul></td></tr>\n"
                  "<tr class=\"total\"><th scope=\"row\">Total</th><td class=\"time\">0:10</td>"
                  "<td class=\"time\">0:15</td><td class=\"what\"></td></tr>\n"));
    EXPECT_THAT(TimesheetPage(Sheet("Plan", {}), "", ""), Not(HasSubstr("<td class=\"what\">")))
        << "without texts there is no column for them";
}

TEST(TimesheetPageTest, Page_ForeignTexts_AreHarmless)
{
    const auto page = TimesheetPage(Sheet("<b>&", { "<script>x</script>", "a\x01\nb\xff" }), "<i>", "\">");
    EXPECT_THAT(page, HasSubstr("<title>&lt;b&gt;&amp;, "));
    EXPECT_THAT(page, HasSubstr("<h1><bdi>&lt;b&gt;&amp;</bdi></h1>"));
    EXPECT_THAT(page, HasSubstr("&lt;script&gt;x&lt;/script&gt;"));
    EXPECT_THAT(page, HasSubstr("<bdi>a  b\uFFFD</bdi>"));
    EXPECT_THAT(page, Not(HasSubstr("<script")));
    EXPECT_THAT(page, Not(HasSubstr("<i>")));
}

TEST(TimesheetPageTest, Page_Anything_LoadsNothing)
{
    const auto page = TimesheetPage(Sheet("Plan", { "http://x.example/a.png" }), "", "");
    for (const auto* part : { "src=", "href=", "url(", "@import" }) {
        EXPECT_THAT(page, Not(HasSubstr(part)));
    }
}

TEST(TimesheetPageTest, ShownTexts_ManyTexts_AreThreeAndASign)
{
    EXPECT_THAT(ShownTexts({ .what = { "a", "b", "c" } }), ElementsAre("a", "b", "c"));
    EXPECT_THAT(ShownTexts({ .what = { "a", "b", "c", "d" } }), ElementsAre("a", "b", "c", "…"));
}

}
