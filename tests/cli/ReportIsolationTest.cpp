#include "cli/ReportIsolation.h"

#include <gtest/gtest.h>

namespace tempodial {

TEST(ReportIsolationTest, IsolatedReportText_NothingTurns_IsAsItWas)
{
    for (const auto* text : { "", "\r\n", "a - 0 hours 05 minutes (100%)\r\n\x01\n\r\n" }) {
        EXPECT_EQ(IsolatedReportText(text), text);
    }
}

TEST(ReportIsolationTest, IsolatedReportText_NamesAndTexts_AreIsolatedAlone)
{
    EXPECT_EQ(IsolatedReportText("\r\nשלום - א - 0 hours 05 minutes (5%)\r\n"
                                 "a - 0 hours 05 minutes (5%)\r\n"
                                 "שלום Activity List\r\n"
                                 "10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    [שלום] \"a - b\"\r\n"
                                 "9:00 AM - 9:05 AM  (05 mins)    a\u202Eb\r\n"
                                 "שלום"),
        "\r\n\u2068שלום - א\u2069 - 0 hours 05 minutes (5%)\r\n"
        "a - 0 hours 05 minutes (5%)\r\n"
        "\u2068שלום\u2069 Activity List\r\n"
        "10-Oct-06  9:00 AM - 9:05 AM  (05 mins)    \u2068[שלום] \"a - b\"\u2069\r\n"
        "9:00 AM - 9:05 AM  (05 mins)    \u2068ab\u2069\r\n"
        "\u2068שלום\u2069");
}

TEST(ReportIsolationTest, IsolatedReportPage_NamesAndTexts_AreIsolatedAlone)
{
    EXPECT_EQ(IsolatedReportPage("<p>a</p>"), "<p>a</p>");
    EXPECT_EQ(IsolatedReportPage("<th><bdi>שלום - 0 hours 05 minutes</bdi><table></table></th>\r\n"
                                 "<th><bdi>a - 0 hours 05 minutes</bdi><table></table></th>\r\n"
                                 "<h3><bdi>שלום</bdi></h3>\r\n"
                                 "9:00 AM&nbsp;&nbsp;(05 mins)&nbsp;&nbsp;&nbsp;&nbsp;[שלום] a<br>\r\n"
                                 "9:00 AM&nbsp;&nbsp;(05 mins)&nbsp;&nbsp;&nbsp;&nbsp;a<br>"),
        "<th><bdi><bdi>שלום</bdi> - 0 hours 05 minutes</bdi><table></table></th>\r\n"
        "<th><bdi>a - 0 hours 05 minutes</bdi><table></table></th>\r\n"
        "<h3><bdi><bdi>שלום</bdi></bdi></h3>\r\n"
        "9:00 AM&nbsp;&nbsp;(05 mins)&nbsp;&nbsp;&nbsp;&nbsp;<bdi>[שלום] a</bdi><br>\r\n"
        "9:00 AM&nbsp;&nbsp;(05 mins)&nbsp;&nbsp;&nbsp;&nbsp;a<br>");
    EXPECT_EQ(IsolatedReportPage("שלום<bdi>א"), "שלום<bdi><bdi>א</bdi>") << "a template of somebody's own";
}

}
