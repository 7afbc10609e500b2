#include "desktop/qt/MainWindow.h"

#include "desktop/ActivityWords.h"
#include "desktop/ViewDays.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "review/ActivityReader.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QTimer>

namespace tempodial {

namespace {

constexpr QSize UsualSize(1440, 900);

}

MainWindow::MainWindow(Desk& desk, Ref<HostExplorer> explorer)
    : mDesk(desk)
    , mExplorer(std::move(explorer))
    , mLog([&desk](const Period& days) { return ActivitiesTouching(desk.Profile(), days); })
    , mView(desk.Settings().view)
    , mDay(desk.Now().Day())
    , mBar(new NavigationBar(desk, this))
{
    setWindowTitle(ProductName);
    const auto& settings = desk.Settings();
    resize(
        settings.width == 0 ? UsualSize : QSize(static_cast<int>(settings.width), static_cast<int>(settings.height)));
    mLog.Colour(settings.colours);
    mLog.Show(DaysOfView(mView, mDay, mDesk.WeekStart()));
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    mAgenda = new AgendaView(desk, mLog, content);
    layout->addWidget(mBar);
    layout->addWidget(mAgenda, 1);
    setCentralWidget(content);
    mBar->mPage = [this](int pages) { Show(mView, PagedDay(mView, mDay, pages)); };
    mBar->mGoToToday = [this] { Show(mView, mDesk.Now().Day()); };
    mBar->mShow = [this](DesktopSettings::View view) { Show(view, mDay); };
    mBar->mSearch = [this](const QString& words) {
        mLog.Search(SearchTerms(FromQt(words)));
        FollowLog();
    };
    mBar->mSearchAll = [] {};
    mAgenda->Head().mWhenChosen = [this](std::size_t day) {
        Show(DesktopSettings::View::Day, mLog.Days().first.AddDays(static_cast<int>(day)));
    };
    mEvents = desk.Subscribe({ .Changed = [this] { Follow(); }, .Restyled = [this] { Follow(); } });
    FollowLog();
    mAgenda->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::Show(DesktopSettings::View view, Date day)
{
    mDesk.Do([&] {
        mLog.Show(DaysOfView(view, day, mDesk.WeekStart()));
        mView = view;
        mDay = day;
        mDesk.Remember([view](DesktopSettings& settings) { settings.view = view; });
    });
}

void MainWindow::Follow()
{
    mLog.Colour(mDesk.Settings().colours);
    mLog.Read();
    FollowLog();
}

void MainWindow::FollowLog()
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    mBar->Follow(ToQt(words.PeriodTitle(mLog.Days())), ToQt(ActivityWords::WeekTitle(mLog.Days())), mView,
        mLog.UnassignedMinutes());
    mAgenda->Follow();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    mDesk.Remember([this](DesktopSettings& settings) {
        settings.width = width();
        settings.height = height();
    });
    // The model says whether the window goes.
    event->ignore();
    mDesk.Do([this] { mDesk.Windows().CloseExplorer(mExplorer); });
}

}
