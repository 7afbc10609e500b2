#include "DesktopFixture.h"
#include "KeptPicture.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/ItemWindow.h"
#include "desktop/qt/SettingsDialog.h"

#include <QFontDatabase>
#include <QProcess>
#include <algorithm>
#include <cstdlib>

namespace tempodial {

/// The screens as they are drawn, against pictures that were looked at and kept. A picture that is not as it was is
/// left in a folder, from which tools/accept-pictures takes it over.
class PicturesTest : public DesktopFixture
{
protected:
    using View = DesktopSettings::View;
    using Look = DesktopSettings::Appearance;

    static constexpr QSize WindowSize { 1120, 700 };

    void SetUp() override
    {
        if (!QFontDatabase::families().contains("DejaVu Sans")) {
            GTEST_SKIP() << "the font is not there: see fonts-dejavu-core";
        }
        if (!KeptPicture::AreComparable() && std::getenv("TEMPODIAL_PICTURES") == nullptr) {
            GTEST_SKIP() << "no pictures are kept for this version of the toolkit: see tools/accept-pictures";
        }
        QApplication::setCursorFlashTime(0);
    }
    MainWindow& OpenWeek()
    {
        AddWeek();
        auto& window = Open();
        window.resize(WindowSize);
        Settle();
        return window;
    }
    std::int64_t NumberOf(MainWindow& window, const std::string& description)
    {
        const auto& activities = window.Log().Activities();
        const auto found = std::find_if(activities.begin(), activities.end(),
            [&](const Activity& activity) { return activity.description == description && activity.duration > 30; });
        EXPECT_NE(found, activities.end()) << description;
        return found->number;
    }
    /// Holds a window in its appearances against its pictures.
    void Hold(const std::string& name, const std::function<QWidget&()>& show)
    {
        const auto* wanted = std::getenv("TEMPODIAL_PICTURES");
        for (const auto& [look, lookName] : { std::pair(Look::Light, "light"), std::pair(Look::Dark, "dark"),
                 std::pair(Look::HighContrast, "contrast") }) {
            mDesk->Change([look = look](DesktopSettings& settings) { settings.appearance = look; });
            auto& window = show();
            Settle();
            const KeptPicture picture(name + "-" + lookName, window.grab().toImage());
            if (wanted != nullptr) {
                EXPECT_FALSE(picture.Leave(wanted).empty());
            } else if (picture.Difference() > KeptPicture::Tolerated) {
                ADD_FAILURE() << name << ", " << lookName << ": " << picture.Difference() * 100
                              << " % of its pixels are others: look at " << picture.Leave(Left)
                              << ", and tools/accept-pictures takes it over";
            }
        }
    }
    void Hold(const std::string& name, QWidget& window)
    {
        Hold(name, [&window]() -> QWidget& { return window; });
    }

    static constexpr auto Left = "desktop-pictures";
};

TEST_F(PicturesTest, Welcome)
{
    auto& window = Open();
    window.resize(WindowSize);
    Hold("welcome", window);
}

TEST_F(PicturesTest, FirstWeek)
{
    for (const auto* application : { "Writer", "Firefox", "Thunderbird" }) {
        const auto day = 13 + static_cast<int>(*application) % 5;
        Add("", std::string("Work in ") + application, application, On(day, 9), On(day, 11));
        Add("", std::string("More in ") + application, application, On(day, 13, 15), On(day, 14));
    }
    auto& window = Open();
    window.resize(WindowSize);
    Hold("first-week", window);
}

TEST_F(PicturesTest, Week)
{
    Hold("week", OpenWeek());
}

TEST_F(PicturesTest, Day)
{
    auto& window = OpenWeek();
    window.Show(View::Day, On(15, 0));
    Hold("day", window);
}

TEST_F(PicturesTest, List)
{
    auto& window = OpenWeek();
    window.Show(View::List);
    Hold("list", window);
}

TEST_F(PicturesTest, SortOut)
{
    auto& window = OpenWeek();
    window.Show(View::SortOut);
    Hold("sort-out", window);
}

TEST_F(PicturesTest, Selection)
{
    auto& window = OpenWeek();
    window.Select({ NumberOf(window, "Inbox"), NumberOf(window, "Goals.md") });
    Hold("selection", window);
}

TEST_F(PicturesTest, Why)
{
    auto& window = OpenWeek();
    window.Select({ NumberOf(window, "Goals.md") });
    Hold("why", [&window]() -> QWidget& {
        window.AskWhy();
        return window;
    });
}

TEST_F(PicturesTest, ProjectSettings)
{
    Open();
    mDesk->Do([this] { mDesk->Session().AddIn().ShowSettingsForm("Riverside", nullptr); });
    Settle();
    Hold("projects", *mWindows->WindowOf(mDesk->Session().Forms()->NewestVisible("ProjectSettingsForm")));
}

TEST_F(PicturesTest, ActivityWindow)
{
    auto& window = OpenWeek();
    mDesk->Do([&] { LogDoings(mDesk->Session()).Open(NumberOf(window, "Goals.md")); });
    Settle();
    Hold("activity", *mWindows->WindowOf(mDesk->Windows().OpenInspectors().back()));
}

TEST_F(PicturesTest, Report)
{
    constexpr std::int32_t ByProject = 1;
    OpenWeek();
    mDesk->Do(
        [this] { mDesk->Session().AddIn().CreateReport(On(13, 0), On(19, 0), ByProject, true, true, true, false); });
    Settle();
    Hold("report", *mWindows->WindowOf(mDesk->Windows().OpenInspectors().back()));
}

TEST_F(PicturesTest, Settings)
{
    const Autostart autostart(mFolder.Path("autostart/a.desktop"), "/bin/a");
    SettingsDialog dialog(*mDesk, autostart, nullptr);
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    Hold("settings", dialog);
}

/// The scale is settled when a process begins.
TEST(PicturesAtOtherScalesTest, Scale_OneAndAHalf_IsHeldToo)
{
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
        GTEST_SKIP() << "this is another scale";
    }
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", "1.5");
    for (const auto* shard : { "GTEST_TOTAL_SHARDS", "GTEST_SHARD_INDEX", "GTEST_OUTPUT" }) {
        environment.remove(shard);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start("/proc/self/exe", { "--gtest_brief=1", "--gtest_filter=PicturesTest.*" });
    constexpr int Long = 300000;
    ASSERT_TRUE(process.waitForFinished(Long));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardOutput().toStdString();
}

}
