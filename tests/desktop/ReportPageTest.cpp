#include "desktop/ReportPage.h"

#include <gtest/gtest.h>

namespace tempodial {

namespace {

std::string Bar(const std::string& percent)
{
    return "<table class=\"bar\" role=\"presentation\" width=\"" + percent + "%\"><tr><td>&nbsp;</td></tr></table>";
}

}

TEST(ReportPageTest, Bars_AreImagesAsLongAsTheirShares)
{
    EXPECT_EQ(ReportPage::ForViewer("<th>A" + Bar("84") + "</th><th>B" + Bar("16") + "</th>"),
        "<th>A<br><img src=\"bar:\" width=\"403\" height=\"9\"></th>"
        "<th>B<br><img src=\"bar:\" width=\"77\" height=\"9\"></th>");
}

TEST(ReportPageTest, BarWidth_AnyShare_IsInProportionAndCanBeSeen)
{
    for (int percent = 1; percent <= 100; ++percent) {
        EXPECT_NEAR(ReportPage::BarWidth(percent), ReportPage::FullBar * percent / 100.0, 0.5) << percent;
    }
    EXPECT_EQ(ReportPage::BarWidth(0), ReportPage::LeastBar);
    EXPECT_EQ(ReportPage::BarWidth(120), ReportPage::FullBar);
}

TEST(ReportPageTest, Styles_LengthsOfTheRoot_AreInPixels)
{
    EXPECT_EQ(ReportPage::ForViewer("<style>h1 { margin: 2.75rem 0 .25rem; } .remark {} </style>1rem"),
        "<style>h1 { margin: 44px 0 4px; } .remark {} </style>1rem");
}

TEST(ReportPageTest, Styles_OfOtherMedia_AreLeftOut)
{
    EXPECT_EQ(ReportPage::ForViewer("<style>a {}@media print {b { c: d; }e {}}f {}@media x {g {}}</style>"),
        "<style>a {}f {}</style>");
    EXPECT_EQ(ReportPage::ForViewer("<style>a {}@media print {b {</style>"), "<style>a {}</style>");
}

TEST(ReportPageTest, TooLong_IsItsSummary)
{
    const std::string summary = "<html><body><h1>Report</h1>";
    const auto page = summary + "<h2>Activity List</h2>" + std::string(ReportPage::MostBytes, 'x') + "</body></html>";
    EXPECT_TRUE(ReportPage::IsTooLong(page));
    EXPECT_EQ(ReportPage::ForViewer(page), summary + "</body>\n</html>\n");
    EXPECT_FALSE(ReportPage::IsTooLong(summary));
}

TEST(ReportPageTest, BrokenPage_StaysAsItIs)
{
    const std::string bar = "<table class=\"bar\"><tr></tr></table><table class=\"bar\" width=\"5%\">";
    EXPECT_EQ(ReportPage::ForViewer(bar), bar);
}

}
