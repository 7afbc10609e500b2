#include "KeptPicture.h"
#include "OwnProcess.h"
#include "ScreensFixture.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <cstdlib>

namespace tempodial {

/// The screens as they are drawn, against pictures that were looked at and kept. A picture that is not as it was is
/// left in a folder, from which tools/accept-pictures takes it over.
class PicturesTest : public ScreensFixture, public testing::WithParamInterface<std::size_t>
{
public:
    static std::size_t Count() { return Screens().size(); }
    static std::string NameOf(const testing::TestParamInfo<std::size_t>& place)
    {
        return TestName(Screens()[place.param]);
    }

protected:
    using Look = DesktopSettings::Appearance;

    void SetUp() override
    {
        ASSERT_TRUE(QFontDatabase::families().contains("DejaVu Sans"))
            << "the font is not there: install fonts-dejavu-core";
        const KeptPicture letters("letters", Letters());
        if (mWanted != nullptr) {
            ASSERT_FALSE(letters.Leave(mWanted).empty());
        } else if (letters.Difference() > 0) {
            GTEST_SKIP() << "letters are drawn otherwise here than where the pictures were kept, so that all would "
                            "differ: another version of the toolkit or of its fonts";
        }
        QApplication::setCursorFlashTime(0);
    }
    /// Letters as they are drawn here, which is a matter of the machine and not of the program.
    static QImage Letters()
    {
        constexpr QSize Size(360, 40);
        const auto devicePixels = qGuiApp->devicePixelRatio();
        QImage drawn(Size * devicePixels, QImage::Format_RGB32);
        drawn.setDevicePixelRatio(devicePixels);
        drawn.fill(Qt::white);
        QPainter painter(&drawn);
        auto bold = QApplication::font();
        bold.setWeight(QFont::DemiBold);
        for (const auto& [font, line] : { std::pair(QApplication::font(), 15), std::pair(bold, 35) }) {
            painter.setFont(font);
            painter.drawText(0, line, "Tempodial keeps 0123456789 hours, \u00e4\u00f6\u00fc \u2026");
        }
        return drawn;
    }
    void Hold(const std::string& name, QWidget& window)
    {
        const KeptPicture picture(name, window.grab().toImage());
        if (mWanted != nullptr) {
            EXPECT_FALSE(picture.Leave(mWanted).empty());
        } else if (picture.Difference() > KeptPicture::Tolerated) {
            ADD_FAILURE() << name << ": " << picture.Difference() * 100 << " % of its pixels are others: look at "
                          << picture.Leave(Left) << ", and tools/accept-pictures takes it over";
        }
    }

    /// The folder in which all pictures are wanted, if they are.
    const char* mWanted = std::getenv("TEMPODIAL_PICTURES");

    static constexpr auto Left = "desktop-pictures";
    /// A scale at which paper and ink are not held: they are as at the whole ones.
    static constexpr double BrokenScale = 1.5;
};

TEST_P(PicturesTest, Screen_IsAsItWasKept)
{
    const auto& screen = Screens()[GetParam()];
    auto& window = screen.open(*this);
    for (const auto& [look, name] : { std::pair(Look::Light, "-light"), std::pair(Look::Dark, "-dark"),
             std::pair(Look::HighContrast, "-contrast") }) {
        mDesk->Change([look = look](DesktopSettings& settings) { settings.appearance = look; });
        Settle();
        if (look != Look::HighContrast || window.devicePixelRatioF() != BrokenScale) {
            Hold(screen.name + name, window);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Screens, PicturesTest, testing::Range<std::size_t>(0, PicturesTest::Count()), PicturesTest::NameOf);

/// The scale is settled when a process begins.
TEST(PicturesAtOtherScalesTest, Scale_OneAndAHalf_IsHeldToo)
{
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        GTEST_SKIP() << "this is another scale";
    }
    const OwnProcess alone("*/PicturesTest.*", "QT_SCALE_FACTOR", "1.5");
    EXPECT_TRUE(alone.HasPassed()) << alone.Said();
}

}
