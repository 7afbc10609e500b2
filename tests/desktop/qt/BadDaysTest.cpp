#include "DesktopFixture.h"
#include "desktop/qt/ActivityList.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/ShownLine.h"
#include "desktop/qt/SortOutView.h"

#include <QTest>
#include <chrono>
#include <ctime>
#include <set>

namespace tempodial {

/// Days such as nobody should have, at which the windows stay quick and right.
class BadDaysTest : public DesktopFixture
{
protected:
    using View = DesktopSettings::View;

    /// The processor time of something, in milliseconds.
    template <class Work> static double Milliseconds(const Work& work)
    {
        const auto begin = std::clock();
        work();
        return 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    }
    /// Draws all views, with one of them in each.
    static void DrawAll(MainWindow& window)
    {
        for (const auto view : { View::Day, View::Week, View::List, View::SortOut }) {
            window.Show(view, On(15, 0));
            EXPECT_FALSE(window.grab().isNull());
        }
    }
};

TEST_F(BadDaysTest, HostileCaption_IsDrawnAsALineAndQuickly)
{
    const auto hostile = "<img src=\"file:///etc/passwd\"><b>\u202Eevil\r\n\t" + std::string(100000, 'W') + "\u4e2d";
    Add("", hostile, "<i>App</i>", On(15, 9), On(15, 10));
    auto& window = Open();
    EXPECT_LT(Milliseconds([&] { DrawAll(window); }), 4000);
    window.Show(View::Week, On(15, 0));
    const auto& card = window.Agenda().Cards().front();
    EXPECT_LE(card.title.size(), 410);
    EXPECT_FALSE(card.title.contains('\n'));
    window.SelectAll();
    EXPECT_LE(window.Foot().Title().size(), 410);
    const auto tip = window.Agenda().ToolTipOf(window.Agenda().ActivityOf(0));
    EXPECT_LE(tip.size(), 1000);
    EXPECT_TRUE(PlainToolTip(tip).contains("&lt;img"));
    EXPECT_FALSE(PlainToolTip(tip).contains("<img"));
    EXPECT_LT(window.minimumSizeHint().width(), 2000);
    Picture(window, "hostile-caption");
}

TEST_F(BadDaysTest, NoFontForTheLetters_SaysWhichToInstallOnce)
{
    Add("", "Agenda", "Writer", On(15, 9), On(15, 10));
    Add("", "\u4f1a\u8bae\u8bb0\u5f55", "Writer", On(1, 9), On(1, 10));
    auto& window = Open();
    EXPECT_EQ(window.Foot().Said(), "") << "those letters aren't shown in this week";
    window.Show(View::Week, On(1, 0));
    EXPECT_EQ(window.Foot().Said(),
        "Some titles can't be drawn: install a font for Chinese, Japanese and Korean, such as fonts-noto-cjk, and "
        "start "
        "again.");
    window.Say({});
    window.Show(View::Day, On(1, 0));
    EXPECT_EQ(window.Foot().Said(), "");
}

TEST_F(BadDaysTest, NoFontForTheLettersOfToday_IsSaidAtTheStart)
{
    Add("", "\u4f1a\u8bae", "Writer", On(17, 9), On(17, 10));
    EXPECT_TRUE(Open().Foot().Said().startsWith("Some titles can't be drawn"));
}

TEST_F(BadDaysTest, TwoHundredInAnHour_EachHasItsLaneAndAllAreQuick)
{
    for (int i = 0; i < 200; ++i) {
        Add("Project " + std::to_string(i % 20), "Task " + std::to_string(i), "Writer", On(15, 9, i % 3),
            On(15, 10, i % 5));
    }
    auto& window = Open();
    window.resize(1440, 900);
    EXPECT_LT(Milliseconds([&] { DrawAll(window); }), 8000);
    window.Show(View::Day, On(15, 0));
    const auto& scene = window.Agenda().Scene();
    ASSERT_EQ(scene.Layout().Pieces().size(), 200U);
    std::set<double> lefts;
    for (const auto& piece : scene.Layout().Pieces()) {
        const auto box = scene.Geometry().BoxOf(piece);
        EXPECT_GT(box.width, 0);
        lefts.insert(box.left);
    }
    EXPECT_EQ(lefts.size(), 200U) << "no two lie in one place";
    const auto& last = scene.Layout().Pieces().back();
    const auto place = window.Agenda().InView(scene.Geometry().BoxOf(last)).center().toPoint();
    QTest::mouseClick(window.Agenda().viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(window.Selected(), std::set<std::int64_t> { scene.ActivityOf(last).number });
    Picture(window, "crowded-hour");
}

}
