#include "desktop/qt/MainWindow.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/ViewDays.h"
#include "desktop/WhyWords.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"
#include "host/windows/BuiltInCommand.h"
#include "review/ActivityReader.h"
#include "review/LikelyProjects.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

namespace tempodial {

namespace {

constexpr QSize UsualSize(1440, 900);
/// Below it the side panel gives way to the days.
constexpr int LeastWidthWithPanel = 900;
/// The days whose activities say which projects are likely.
constexpr int DaysLookedBack = 28;

}

MainWindow::MainWindow(Desk& desk, Ref<HostExplorer> explorer)
    : mDesk(desk)
    , mExplorer(std::move(explorer))
    , mDoings(desk.Session())
    , mLog([&desk](const Period& days) { return ActivitiesTouching(desk.Profile(), days); })
    , mView(desk.Settings().view)
    , mDay(desk.Now().Day())
    , mBar(new NavigationBar(desk, this))
    , mClock(new QTimer(this))
{
    setWindowTitle(ProductName);
    mLog.Colour(desk.Settings().colours);
    mLog.Show(DaysOfView(mView, mDay, mDesk.WeekStart()));
    Assemble();
    Connect();
    ConnectAgenda();
    MakeActions();
    MakeViewActions();
    mMenu = std::make_unique<MainMenu>(desk, mExplorer, *menuBar(), mBar->Buttons(), mActions.All());
    mEvents = desk.Subscribe({ .Changed = [this] { Follow(); },
        .Restyled = [this] { Follow(); },
        .Failed = [this](const std::string& message) { mFoot->Say(ToQt(message)); } });
    FollowLog();
    const auto& settings = desk.Settings();
    resize(
        settings.width == 0 ? UsualSize : QSize(static_cast<int>(settings.width), static_cast<int>(settings.height)));
    mAgenda->setFocus();
}

MainWindow::~MainWindow() = default;

void MainWindow::Assemble()
{
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(0);
    mSide = new SidePanel(mDesk, mLog, content);
    mAgenda = new AgendaView(mDesk, mLog, content);
    mFoot = new SelectionBar(mDesk, content);
    middle->addWidget(mSide);
    middle->addWidget(mAgenda, 1);
    layout->addWidget(mBar);
    layout->addLayout(middle, 1);
    layout->addWidget(mFoot);
    setCentralWidget(content);
    constexpr int Minute = 60000;
    mClock->start(Minute);
    connect(mClock, &QTimer::timeout, this, [this] { mAgenda->FollowClock(); });
}

void MainWindow::Connect()
{
    mBar->mPage = [this](int pages) { Page(pages); };
    mBar->mGoToToday = [this] { Show(mView, mDesk.Now().Day()); };
    mBar->mShow = [this](View view) { Show(view, mDay); };
    mBar->mSearch = [this](const QString& words) {
        mLog.Search(SearchTerms(FromQt(words)));
        FollowLog();
    };
    mBar->mSearchAll = [] {};
    mSide->Month().mGoTo = [this](Date day) { Show(mView, day); };
    mSide->Projects().mShowOnly = [this](const auto& names) { mAgenda->ShowOnly(names); };
    mSide->Projects().mSortOut = [this] { Show(View::SortOut, mDay); };
    mFoot->mWishes = { .setProject = [this](const std::string& project) { SetProject(project); },
        .makeRule = [this] { MakeRule(); },
        .askWhy = [this] { AskWhy(); },
        .open = [this] { OpenSelected(); },
        .remove = [this] { DeleteSelected(); },
        .sortOut = [this] { Show(View::SortOut, mDay); },
        .showSettings = [this] { mDesk.Do([this] { mDesk.Session().AddIn().ShowSettingsForm("", nullptr); }); } };
}

void MainWindow::ConnectAgenda()
{
    auto& wishes = mAgenda->mWishes;
    wishes.select = [this](const Numbers& numbers) { Select(numbers); };
    wishes.open = [this](std::int64_t number) { mDesk.Do([&] { mDoings.Open(number); }); };
    wishes.move = [this](std::int64_t number, const TimeSpan& times) {
        bool isMoved = true;
        mDesk.Do([&] { isMoved = mDoings.Move(number, times); });
        if (!isMoved) {
            mFoot->Say("It stays where it was, since its move was refused.");
        }
    };
    wishes.create = [this](const TimeSpan& times) { mDesk.Do([&] { mDoings.Create(times); }); };
    wishes.drop = [this](const QPoint& place) {
        if (const auto project = mSide->Projects().ProjectAt(place)) {
            SetProject(*project);
        }
    };
    wishes.menu = [this](const QPoint& place) { ShowMenu(place); };
    wishes.key = [this](QKeyEvent& event) { return TakeKey(event); };
    wishes.say = [this](const QString& text) { mFoot->Say(text); };
    wishes.followLink = [this] {
        if (const auto last = LastStartBefore(mDesk.Profile(), mLog.Days().first)) {
            Show(mView, last->Day());
        }
    };
    mAgenda->Head().mWhenChosen
        = [this](std::size_t day) { Show(View::Day, mLog.Days().first.AddDays(static_cast<int>(day))); };
}

void MainWindow::MakeActions()
{
    using Command = BuiltInCommand;
    mActions.Add(Command::FileMenu, "New &Window", QKeySequence::New,
        [this] { mDesk.Do([this] { mDesk.Windows().OpenExplorer(mExplorer->CurrentFolder()); }); });
    mActions.Add(Command::FileMenu, "&Close", QKeySequence::Close, [this] { close(); });
    mActions.Add(Command::FileMenu, "&Quit", QKeySequence::Quit, [] { QCoreApplication::quit(); });
    mActions.Add(Command::EditMenu, "&Undo", QKeySequence::Undo, [this] { Undo(); });
    mActions.Add(Command::EditMenu, "&Redo", QKeySequence("Ctrl+Shift+Z"), [this] { Redo(); });
    mActions.AddLine(Command::EditMenu);
    mActions.Add(Command::EditMenu, "Select &All", QKeySequence::SelectAll, [this] { SelectAll(); });
    mActions.Add(Command::EditMenu, "&Search", QKeySequence::Find, [this] {
        mBar->SearchField().setFocus(Qt::ShortcutFocusReason);
        mBar->SearchField().selectAll();
    });
    mActions.Add(Command::GoMenu, "&Today", {}, [this] { Show(mView, mDesk.Now().Day()); });
    mActions.Add(Command::GoMenu, "&Back", QKeySequence("Alt+Left"), [this] { Page(-1); });
    mActions.Add(Command::GoMenu, "&Forward", QKeySequence("Alt+Right"), [this] { Page(1); });
    mActions.Add(Command::GoMenu, "&Date\u2026", QKeySequence("Ctrl+G"), [this] { GoToDate(); });
    mActions.Add(Command::ActionsMenu, "&Open", {}, [this] { OpenSelected(); });
    mActions.Add(Command::ActionsMenu, "Set &Project\u2026", QKeySequence("F2"), [this] {
        if (!mSelected.empty()) {
            mFoot->ShowAllProjects();
        }
    });
    mActions.Add(Command::ActionsMenu, "&Why This Project?", {}, [this] { AskWhy(); });
    mActions.Add(Command::ActionsMenu, "Make a &Rule\u2026", {}, [this] { MakeRule(); });
    mActions.Add(Command::ToolsMenu, "Refresh &Now", QKeySequence("F5"),
        [this] { mDesk.Do([this] { mDesk.Session().AddIn().SyncData(SavedDataDays, true); }); });
}

void MainWindow::MakeViewActions()
{
    constexpr auto Menu = BuiltInCommand::ViewMenu;
    constexpr std::array views { std::pair(View::Day, "&Day"), std::pair(View::Week, "&Week"),
        std::pair(View::List, "&List"), std::pair(View::SortOut, "&Sort Out") };
    for (const auto& [view, text] : views) {
        const auto key = QKeySequence("Ctrl+" + QString::number(static_cast<int>(view) + 1));
        mActions.AddSwitch(
            Menu, text, key, [this, view = view] { return mView == view; },
            [this, view = view](bool) { Show(view, mDay); });
    }
    mActions.AddLine(Menu);
    mActions.Add(Menu, "Zoom &In", QKeySequence::ZoomIn, [this] { mAgenda->Zoom(1); });
    mActions.Add(Menu, "Zoom &Out", QKeySequence::ZoomOut, [this] { mAgenda->Zoom(-1); });
    mActions.Add(Menu, "Zoom to &Fit", QKeySequence("Ctrl+0"), [this] { mAgenda->ZoomToFit(); });
    mActions.AddLine(Menu);
    const auto addSetting = [this](const char* text, const char* keys, bool DesktopSettings::*setting) {
        mActions.AddSwitch(
            Menu, text, QKeySequence(keys), [this, setting] { return mDesk.Settings().*setting; },
            [this, setting](
                bool on) { mDesk.Change([setting, on](DesktopSettings& settings) { settings.*setting = on; }); });
    };
    addSetting("Fold Short &Ones", "", &DesktopSettings::foldsShortOnes);
    addSetting("Hide &Titles", "Ctrl+Shift+H", &DesktopSettings::hidesTitles);
    addSetting("Side &Panel", "F9", &DesktopSettings::hasSidePanel);
    mActions.AddLine(Menu);
    using Look = DesktopSettings::Appearance;
    for (const auto& [look, text] :
        { std::pair(Look::System, "Colours of the S&ystem"), std::pair(Look::Light, "L&ight"),
            std::pair(Look::Dark, "Dar&k"), std::pair(Look::HighContrast, "&High Contrast") }) {
        mActions.AddSwitch(
            Menu, text, {}, [this, look = look] { return mDesk.Settings().appearance == look; },
            [this, look = look](
                bool) { mDesk.Change([look](DesktopSettings& settings) { settings.appearance = look; }); });
    }
}

void MainWindow::Show(View view, Date day)
{
    mDesk.Do([&] {
        mLog.Show(DaysOfView(view, day, mDesk.WeekStart()));
        mView = view;
        mDay = day;
        mDesk.Remember([view](DesktopSettings& settings) { settings.view = view; });
    });
}

void MainWindow::Page(int pages)
{
    Show(mView, PagedDay(mView, mDay, pages));
}

void MainWindow::GoToDate()
{
    bool isDone = false;
    const auto text = QInputDialog::getText(
        this, "Go to Date", "Date:", QLineEdit::Normal, ToQt(mDesk.Formats()->ShortDate(mDay)), &isDone);
    if (isDone) {
        mDesk.Do([&] { Show(mView, mDesk.Formats()->Parse(FromQt(text)).Day()); });
    }
}

void MainWindow::Select(const Numbers& numbers)
{
    mSelected = numbers;
    mDesk.Do([&] { mDoings.Select(*mExplorer, { numbers.begin(), numbers.end() }); });
}

void MainWindow::SelectAll()
{
    Numbers all;
    for (const auto& activity : mLog.Activities()) {
        all.insert(activity.number);
    }
    Select(all);
}

void MainWindow::SetProject(const std::string& project)
{
    if (!mSelected.empty()) {
        mDesk.Do([&] { mDoings.SetProject(*mExplorer, project); });
    }
}

void MainWindow::DeleteSelected()
{
    const std::vector<std::int64_t> numbers(mSelected.begin(), mSelected.end());
    if (!numbers.empty()) {
        mDesk.Do([&] { mDoings.Delete(numbers); });
    }
}

void MainWindow::Undo()
{
    std::string said;
    mDesk.Do([&] { said = mDoings.Undo(); });
    if (!said.empty()) {
        mFoot->Say(ToQt(said));
    }
}

void MainWindow::Redo()
{
    std::string said;
    mDesk.Do([&] { said = mDoings.Redo(); });
    if (!said.empty()) {
        mFoot->Say(ToQt(said));
    }
}

void MainWindow::AskWhy()
{
    const auto selected = SelectedActivities();
    if (!selected.empty()) {
        mFoot->Say(ToQt(WhySentence(selected.front(), RuleTrial(RuledProject::ReadAll(mDesk.Profile())))));
    }
}

void MainWindow::MakeRule()
{
    const auto selected = SelectedActivities();
    if (selected.empty()) {
        return;
    }
    const auto& likely = mFoot->Projects();
    const auto project = IsUnassigned(selected.front()) && !likely.empty() ? likely.front() : selected.front().project;
    mDesk.Do([&] { mDesk.Session().AddIn().ShowSettingsForm(project, nullptr); });
}

void MainWindow::OpenSelected()
{
    if (mSelected.size() == 1) {
        mDesk.Do([this] { mDoings.Open(*mSelected.begin()); });
    }
}

std::vector<Activity> MainWindow::SelectedActivities() const
{
    std::vector<Activity> selected;
    for (const auto& activity : mLog.Activities()) {
        if (mSelected.count(activity.number) > 0) {
            selected.push_back(activity);
        }
    }
    return selected;
}

void MainWindow::Follow()
{
    if (mExplorer->IsGone()) {
        return;
    }
    mLog.Colour(mDesk.Settings().colours);
    mLog.Read();
    FollowLog();
}

void MainWindow::FollowLog()
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    const auto days = ToQt(words.PeriodTitle(mLog.Days()));
    mBar->Follow(days, ToQt(ActivityWords::WeekTitle(mLog.Days())), mView, mLog.UnassignedMinutes());
    const auto isNow = mDesk.Now().Day() >= mLog.Days().first && mDesk.Now().Day() <= mLog.Days().last;
    mSide->Follow(!isNow ? days : (mLog.DayCount() == 1 ? QString("Today") : QString("This week")));
    mAgenda->Follow();
    FollowSelection();
    ShowSidePanel();
    ShowEmpty();
    mActions.Follow();
    if (mMenu) {
        mMenu->Follow();
    }
}

void MainWindow::FollowSelection()
{
    const auto selected = SelectedActivities();
    mSelected.clear();
    for (const auto& activity : selected) {
        mSelected.insert(activity.number);
    }
    mAgenda->ShowSelected(mSelected);
    if (selected.empty()) {
        const bool hasNoProjects
            = mLog.HasAny() && ColouredBy(ColourChoice::Automatic, mLog.Activities()) == Coloured::Application;
        const auto count = ActivitiesText(static_cast<std::int64_t>(mLog.Activities().size()));
        mFoot->ShowNothing(
            hasNoProjects ? NoProjectsYet : ToQt(count), hasNoProjects ? NoProjectsYetHelp : "", hasNoProjects);
        return;
    }
    const auto today = mDesk.Now().Day();
    const Period past { today.AddDays(-DaysLookedBack), today };
    mFoot->Show(selected, LikelyProjects(mDoings.Projects(), selected, ActivitiesStartingIn(mDesk.Profile(), past)));
}

void MainWindow::ShowEmpty()
{
    if (!mLog.Activities().empty()) {
        mAgenda->ShowNote({}, {});
        return;
    }
    const auto before = LastStartBefore(mDesk.Profile(), mLog.Days().first);
    if (mLog.HasAny()) {
        mAgenda->ShowNote(ToQt(EmptyText(EmptyView::NothingFound)), {});
    } else if (before || LastStartBefore(mDesk.Profile(), Period::Always().last)) {
        mAgenda->ShowNote(ToQt(EmptyText(EmptyView::NothingInPeriod)),
            before ? "Show " + ToQt(mDesk.Formats()->LongDate(*before)) : QString());
    } else {
        mAgenda->ShowNote(ToQt(EmptyText(EmptyView::NothingRecorded)), {});
    }
}

void MainWindow::ShowSidePanel()
{
    mSide->setVisible(mDesk.Settings().hasSidePanel && width() >= LeastWidthWithPanel);
}

void MainWindow::ShowMenu(const QPoint& place)
{
    if (mSelected.empty()) {
        return;
    }
    QMenu menu(this);
    connect(menu.addAction("&Open"), &QAction::triggered, this, [this] { OpenSelected(); });
    mFoot->FillMenu(*menu.addMenu("Set &Project"));
    connect(menu.addAction("&Why This Project?"), &QAction::triggered, this, [this] { AskWhy(); });
    connect(menu.addAction("Make a &Rule\u2026"), &QAction::triggered, this, [this] { MakeRule(); });
    menu.addSeparator();
    connect(menu.addAction("&Delete"), &QAction::triggered, this, [this] { DeleteSelected(); });
    menu.exec(place);
}

bool MainWindow::TakeKey(const QKeyEvent& event)
{
    if (event.modifiers() != Qt::NoModifier && event.modifiers() != Qt::KeypadModifier) {
        return false;
    }
    switch (event.key()) {
    case Qt::Key_PageUp:
        Page(-1);
        return true;
    case Qt::Key_PageDown:
        Page(1);
        return true;
    case Qt::Key_Delete:
        DeleteSelected();
        return true;
    case Qt::Key_Escape:
        if (!mBar->SearchField().text().isEmpty()) {
            mBar->SearchField().clear();
            return true;
        }
        return mSide->Projects().ShowAll();
    default:
        break;
    }
    const auto place = event.key() - Qt::Key_1;
    if (place >= 0 && place < 9) {
        const auto& projects = mFoot->Projects();
        if (!mSelected.empty() && static_cast<std::size_t>(place) < projects.size()) {
            // The list changes when the project is set.
            SetProject(std::string(projects[static_cast<std::size_t>(place)]));
        }
        return true;
    }
    return mDesk.Settings().hasLetterKeys && TakeLetter(event.key());
}

bool MainWindow::TakeLetter(int key)
{
    switch (key) {
    case Qt::Key_T:
        Show(mView, mDesk.Now().Day());
        return true;
    case Qt::Key_D:
        Show(View::Day, mDay);
        return true;
    case Qt::Key_W:
        Show(View::Week, mDay);
        return true;
    case Qt::Key_L:
        Show(View::List, mDay);
        return true;
    case Qt::Key_S:
        Show(View::SortOut, mDay);
        return true;
    case Qt::Key_R:
        MakeRule();
        return true;
    case Qt::Key_Y:
        AskWhy();
        return true;
    default:
        return false;
    }
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    ShowSidePanel();
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
