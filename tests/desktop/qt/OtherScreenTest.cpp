#include "DesktopFixture.h"
#include "OwnProcess.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/CardCache.h"
#include "desktop/qt/TextCache.h"

#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>

namespace tempodial {

namespace {

/// What is drawn on a screen of so many device pixels a pixel.
template <class Draw> QImage Drawn(int devicePixels, const Draw& draw)
{
    QImage image(QSize(160, 60) * devicePixels, QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixels);
    image.fill(Qt::white);
    QPainter painter(&image);
    draw(painter);
    return image;
}

/// A picture as one of plain pixels, enlarged.
QImage Enlarged(const QImage& image)
{
    auto enlarged = image.scaled(image.size() * 2);
    enlarged.setDevicePixelRatio(2);
    return enlarged;
}

}

/// A window that comes from a plain screen to a dense one, and what keeps pictures in it.
class OtherScreenTest : public DesktopFixture
{
protected:
    /// The screen of so many device pixels a pixel.
    static QScreen* ScreenOf(qreal devicePixels)
    {
        const auto screens = QGuiApplication::screens();
        return *std::find_if(screens.begin(), screens.end(),
            [&](const QScreen* screen) { return screen->devicePixelRatio() == devicePixels; });
    }
    /// Moves a window to a screen, and lets it draw there.
    static QImage DrawnOn(QScreen* screen, MainWindow& window)
    {
        window.windowHandle()->setScreen(screen);
        window.resize(1000, 700);
        Settle();
        EXPECT_EQ(window.devicePixelRatioF(), screen->devicePixelRatio());
        // What is kept is let go of when it is drawn.
        window.Agenda().grab();
        Settle();
        return window.Agenda().grab().toImage();
    }
};

TEST_F(OtherScreenTest, Texts_UsedForAnotherRatio_AreAsSharpAsFreshOnes)
{
    const auto draw = [](TextCache& texts) {
        return [&texts](QPainter& painter) {
            texts.Draw(painter, TextRole::Bold, Qt::black, { 3, 4 }, 150, "Quarterly figures");
        };
    };
    TextCache texts;
    texts.Use(QFont(), 1);
    const auto plain = Drawn(1, draw(texts));
    texts.Use(QFont(), 2);
    EXPECT_EQ(texts.DevicePixels(), 2);
    TextCache fresh;
    fresh.Use(QFont(), 2);
    const auto dense = Drawn(2, draw(texts));
    EXPECT_EQ(dense, Drawn(2, draw(fresh)));
    EXPECT_NE(dense, Enlarged(plain)) << "it is more than the plain one enlarged";
}

TEST_F(OtherScreenTest, Cards_UsedForAnotherRatio_AreAsSharpAsFreshOnes)
{
    const CardStyle style { .colours = { .mark = { 20, 80, 160 }, .fill = { 220, 230, 250 }, .ink = {} },
        .isHatched = true,
        .hatch = { 90, 90, 90 } };
    const auto draw = [&style](CardCache& cards) {
        return [&](QPainter& painter) { cards.Draw(painter, QRectF(4, 4, 120, 40), style); };
    };
    CardCache cards;
    cards.Use(1);
    const auto plain = Drawn(1, draw(cards));
    cards.Use(2);
    CardCache fresh;
    fresh.Use(2);
    const auto dense = Drawn(2, draw(cards));
    EXPECT_EQ(dense, Drawn(2, draw(fresh)));
    EXPECT_NE(dense, Enlarged(plain));
}

TEST_F(OtherScreenTest, Window_ComesToADenseScreenAndBack_IsSharpOnBoth)
{
    if (QGuiApplication::screens().size() < 2) {
        GTEST_SKIP() << "there is one screen";
    }
    AddWeek();
    auto& moved = Open();
    const auto plain = DrawnOn(ScreenOf(1), moved);
    const auto dense = DrawnOn(ScreenOf(2), moved);
    EXPECT_EQ(dense.size(), plain.size() * 2);
    EXPECT_EQ(DrawnOn(ScreenOf(1), moved), plain);
    mWindows.reset();
    Settle();
    EXPECT_EQ(DrawnOn(ScreenOf(2), Open()), dense);
}

/// What screens there are is settled when a process begins.
TEST(ScreensTest, TwoOfThem_AreTriedInAProcessOfTheirOwn)
{
    const OwnProcess alone("OtherScreenTest.*", "QT_QPA_PLATFORM",
        "offscreen:configfile=" TEMPODIAL_SOURCE_DIR "/tests/desktop/qt/data/screens.json");
    EXPECT_TRUE(alone.HasPassed()) << alone.Said();
    EXPECT_EQ(alone.Said().find("SKIPPED"), std::string::npos) << alone.Said();
}

}
