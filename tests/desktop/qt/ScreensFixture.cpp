#include "ScreensFixture.h"

#include "desktop/LogDoings.h"
#include "desktop/qt/FormWindow.h"
#include "desktop/qt/ItemWindow.h"
#include "desktop/qt/QtText.h"

#include <QLabel>
#include <algorithm>

namespace tempodial {

const std::vector<ScreensFixture::Screen>& ScreensFixture::Screens()
{
    static const std::vector<Screen> screens {
        { "welcome", [](ScreensFixture& it) -> QWidget& { return it.Welcome(); } },
        { "first-week", [](ScreensFixture& it) -> QWidget& { return it.FirstWeek(); } },
        { "week", [](ScreensFixture& it) -> QWidget& { return it.OpenWeek(); } },
        { "day", [](ScreensFixture& it) -> QWidget& { return it.Day(); } },
        { "list", [](ScreensFixture& it) -> QWidget& { return it.List(); } },
        { "sort-out", [](ScreensFixture& it) -> QWidget& { return it.SortOut(); } },
        { "selection", [](ScreensFixture& it) -> QWidget& { return it.Selection(); } },
        { "why", [](ScreensFixture& it) -> QWidget& { return it.Why(); } },
        { "projects", [](ScreensFixture& it) -> QWidget& { return it.ProjectSettings(); } },
        { "activity", [](ScreensFixture& it) -> QWidget& { return it.ActivityWindow(); } },
        { "report", [](ScreensFixture& it) -> QWidget& { return it.Report(); } },
        { "settings", [](ScreensFixture& it) -> QWidget& { return it.Settings(); } },
    };
    return screens;
}

std::string ScreensFixture::TestName(const Screen& screen)
{
    auto name = screen.name;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

MainWindow& ScreensFixture::OpenWeek()
{
    AddWeek();
    auto& window = Open();
    window.resize(WindowSize);
    Settle();
    mDesk->Do([this] {
        constexpr auto Medium = "2";
        for (const auto& [name, words] : { std::pair("Riverside", "riverside, \"site plan\""),
                 std::pair("Annual review", "annual, goals"), std::pair("Support", "ticket, printer"),
                 std::pair("Hiring", "interview"), std::pair("Admin", "timesheets"), std::pair("Personal", "") }) {
            EXPECT_EQ(mDesk->Session().AddIn().UpdateorAddProject(name, words, "", "", Medium, true), "") << name;
        }
    });
    Settle();
    return window;
}

std::int64_t ScreensFixture::NumberOf(MainWindow& window, const std::string& description)
{
    const auto& activities = window.Log().Activities();
    const auto found = std::find_if(activities.begin(), activities.end(),
        [&](const Activity& activity) { return activity.description == description && activity.duration > 30; });
    EXPECT_NE(found, activities.end()) << description;
    return found->number;
}

QWidget& ScreensFixture::Welcome()
{
    auto& window = Open();
    window.resize(WindowSize);
    // The folder of this run has a name of its own.
    for (auto* label : window.findChildren<QLabel*>()) {
        if (label->text().startsWith(ToQt(mFolder.Path("")))) {
            label->setText("/home/anna/.local/share/tempodial/Tempodial");
        }
    }
    return window;
}

QWidget& ScreensFixture::FirstWeek()
{
    for (const auto* application : { "Writer", "Firefox", "Thunderbird" }) {
        const auto day = 13 + static_cast<int>(*application) % 5;
        Add("", std::string("Work in ") + application, application, On(day, 9), On(day, 11));
        Add("", std::string("More in ") + application, application, On(day, 13, 15), On(day, 14));
    }
    auto& window = Open();
    window.resize(WindowSize);
    return window;
}

QWidget& ScreensFixture::Day()
{
    auto& window = OpenWeek();
    window.Show(DesktopSettings::View::Day, On(15, 0));
    return window;
}

QWidget& ScreensFixture::List()
{
    auto& window = OpenWeek();
    window.Show(DesktopSettings::View::List);
    return window;
}

QWidget& ScreensFixture::SortOut()
{
    auto& window = OpenWeek();
    window.Show(DesktopSettings::View::SortOut);
    return window;
}

QWidget& ScreensFixture::Selection()
{
    auto& window = OpenWeek();
    window.Select({ NumberOf(window, "Inbox"), NumberOf(window, "Goals.md") });
    return window;
}

QWidget& ScreensFixture::Why()
{
    auto& window = OpenWeek();
    window.Select({ NumberOf(window, "Goals.md") });
    window.AskWhy();
    return window;
}

QWidget& ScreensFixture::ProjectSettings()
{
    OpenWeek();
    mDesk->Do([this] { mDesk->Session().AddIn().ShowSettingsForm("Riverside", nullptr); });
    Settle();
    return *mWindows->WindowOf(mDesk->Session().Forms()->NewestVisible("ProjectSettingsForm"));
}

QWidget& ScreensFixture::ActivityWindow()
{
    auto& window = OpenWeek();
    mDesk->Do([&] { LogDoings(mDesk->Session()).Open(NumberOf(window, "Goals.md")); });
    Settle();
    return *mWindows->WindowOf(mDesk->Windows().OpenInspectors().back());
}

QWidget& ScreensFixture::Report()
{
    constexpr std::int32_t ByProject = 1;
    OpenWeek();
    mDesk->Do(
        [this] { mDesk->Session().AddIn().CreateReport(On(13, 0), On(19, 0), ByProject, true, true, true, false); });
    Settle();
    return *mWindows->WindowOf(mDesk->Windows().OpenInspectors().back());
}

QWidget& ScreensFixture::Settings()
{
    mAutostart = std::make_unique<Autostart>(mFolder.Path(), "/bin/a", std::nullopt);
    mDialog = std::make_unique<SettingsDialog>(*mDesk, *mAutostart, nullptr);
    mDialog->setAttribute(Qt::WA_DeleteOnClose, false);
    mDialog->show();
    return *mDialog;
}

}
