#include "desktop/qt/MainWindow.h"

#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/EastAsianLetters.h"
#include "desktop/ViewDays.h"
#include "desktop/WindowTitle.h"
#include "desktop/qt/ActivityList.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/ExampleProgram.h"
#include "desktop/qt/ExampleRibbon.h"
#include "desktop/qt/JobStrip.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/PaneWalk.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"
#include "desktop/qt/SortOutView.h"
#include "desktop/qt/WelcomePage.h"
#include "desktop/qt/WindowPlace.h"
#include "review/ActivityReader.h"
#include "review/LikelyProjects.h"
#include "session/ActivityGesture.h"
#include "session/TrackerFiles.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QStackedWidget>
#include <QTimer>

namespace tempodial {

namespace {

/// The days before today whose week an example shows, so that some of its work is seen on every day of the week.
constexpr int ExampleDaysBack = 3;
/// Below it the side panel gives way to the days.
constexpr int LeastWidthWithPanel = 900;
/// The days whose activities say which projects are likely.
constexpr int DaysLookedBack = 28;

}

MainWindow::MainWindow(Desk& desk, Ref<HostExplorer> explorer)
    : mDesk(desk)
    , mExplorer(std::move(explorer))
    , mDoings(desk.Session())
    , mModelView(desk.Profile(), mExplorer)
    , mLog([&desk](const Period& days) { return ActivitiesTouching(desk.Profile(), days); })
    , mView(desk.Settings().view)
    , mDay(ExampleProgram::Is(desk.Profile()) ? desk.Now().Day().AddDays(-ExampleDaysBack) : desk.Now().Day())
    , mBar(new NavigationBar(desk, this))
    , mCommands(*this, desk)
    , mSearch(desk)
    , mClock(new QTimer(this))
{
    setWindowTitle(ToQt(WindowTitle(desk.Profile(), *mExplorer).value_or(ProductName)));
    mLog.Colour(desk.Settings().colours);
    mRead = desk.Log().Count();
    mLog.Show(DaysOfView(mView, mDesk.Settings().SpanOf(mView), mDay, mDesk.WeekStart()));
    Assemble();
    Connect();
    ConnectAgenda();
    ConnectOthers();
    mMenu = std::make_unique<MainMenu>(desk, mExplorer, *menuBar(), mBar->Buttons(), mCommands.Actions().All());
    mModelView.Begin(mView);
    mChanges = mExplorer->SubscribeToChanges(
        { .BroughtToFront = [this] { mComesToFront = true; }, .ViewApplied = [this] { mHasOtherView = true; } });
    mEvents = desk.Subscribe({ .Changed = [this] { Follow(); },
        .Restyled = [this] { FollowSettings(); },
        .Failed = [this](const std::string& message) { mFoot->Say(ToQt(message)); } });
    FollowLog();
    PutWhereLeft(*this, desk.Settings());
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
    mPages = new QStackedWidget(content);
    mList = new ActivityList(mDesk, mPages);
    mSortOut = new SortOutView(mDesk, mLog, mPages);
    for (auto* page :
        { static_cast<QWidget*>(mAgenda), static_cast<QWidget*>(mList), static_cast<QWidget*>(mSortOut) }) {
        mPages->addWidget(page);
    }
    mWelcome = new WelcomePage(mDesk, mPages);
    mPages->addWidget(mWelcome);
    mJob = new JobStrip(mDesk, content);
    middle->addWidget(mPages, 1);
    if (ExampleProgram::Is(mDesk.Profile())) {
        mRibbon = new ExampleRibbon(mDesk.Look(), content);
        mRibbon->mRemove = [this] { mRemoveExample(); };
        layout->addWidget(mRibbon);
    }
    layout->addWidget(mBar);
    layout->addLayout(middle, 1);
    layout->addWidget(mJob);
    layout->addWidget(mFoot);
    setCentralWidget(content);
    constexpr int Minute = 60000;
    mClock->start(Minute);
    connect(mClock, &QTimer::timeout, this, [this] { FollowClock(); });
}

const std::vector<Activity>& MainWindow::ShownActivities() const
{
    return mSearch.IsOn() ? mSearch.Found() : mLog.Activities();
}

void MainWindow::Turn(View view, Date day)
{
    const bool isOther = view != mView;
    mSearch.End();
    mDesk.Do([&] {
        mLog.Show(DaysOfView(view, mDesk.Settings().SpanOf(view), day, mDesk.WeekStart()));
        mIsDrawn = false;
        DropUnseen();
        mView = view;
        mDay = day;
    });
    if (isOther && view == View::SortOut) {
        mSortOut->Begin();
    } else if (isOther) {
        mPages->currentWidget()->setFocus();
    }
}

void MainWindow::GoToToday()
{
    Show(mView, mDesk.Now().Day());
}

void MainWindow::Page(int pages)
{
    Show(mView, PagedDay(mView, mDesk.Settings().SpanOf(mView), mDay, pages));
}

void MainWindow::Select(const Numbers& numbers)
{
    mSelected = numbers;
    mDesk.Do([&] { mDoings.Select(*mExplorer, { numbers.begin(), numbers.end() }); });
}

void MainWindow::SelectAll()
{
    Numbers all;
    for (const auto& activity : ShownActivities()) {
        if (mView != View::SortOut || IsUnassigned(activity)) {
            all.insert(activity.number);
        }
    }
    Select(all);
}

void MainWindow::SetProject(const std::string& project)
{
    if (!mSelected.empty()) {
        std::int64_t open = 0;
        mDesk.Do([&] { open = mDoings.SetProject(mExplorer, project); });
        SayPassedOver(open);
    }
}

void MainWindow::SetNewProject()
{
    if (mSelected.empty()) {
        return;
    }
    bool isDone = false;
    const auto name
        = QInputDialog::getText(this, "New Project", "Name of the project:", QLineEdit::Normal, "", &isDone);
    if (isDone && !name.trimmed().isEmpty()) {
        std::int64_t open = 0;
        mDesk.Do([&] { open = mDoings.SetNewProject(mExplorer, FromQt(name.trimmed())); });
        SayPassedOver(open);
    }
}

void MainWindow::NextPane(int step)
{
    FocusNextPane({ mBar, mSide, mPages->currentWidget(), mFoot }, step);
}

void MainWindow::Say(const QString& text)
{
    mFoot->Say(text);
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

void MainWindow::MakeRule()
{
    const auto selected = SelectedActivities();
    if (selected.empty()) {
        return;
    }
    const auto& likely = mFoot->Projects();
    const auto project = IsUnassigned(selected.front()) && !likely.empty() ? likely.front() : selected.front().project;
    mDesk.Do([&] { mDoings.ShowRules(project); });
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
    for (const auto& activity : ShownActivities()) {
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
    // A command that applies a view may go on behind that.
    if (mHasOtherView && !mDesk.IsBusy()) {
        mHasOtherView = false;
        if (const auto wanted = mModelView.Wanted(mView); wanted != mView) {
            Turn(wanted, mDay);
        }
    }
    const auto selected = mSelected;
    ReadChanges();
    // The product may have selected something else, as by going to another folder.
    mSelected = SelectedNumbers(*mExplorer);
    DropLost(selected);
    if (mIsDrawn) {
        FollowModel();
    } else {
        mLog.Colour(mDesk.Settings().colours);
        FollowLog();
    }
    setWindowTitle(ToQt(WindowTitle(mDesk.Profile(), *mExplorer).value_or(FromQt(windowTitle()))));
    if (std::exchange(mComesToFront, false) && isVisible() && !isActiveWindow()) {
        raise();
        activateWindow();
    }
}

void MainWindow::ReadChanges()
{
    const auto count = mDesk.Log().Count();
    if (mSearch.IsOn() && count != mRead) {
        mIsDrawn = false;
        mSearch.Refresh();
    }
    if (mDesk.Log().HasChanged(mRead, mLog.Days(), mLog.All())) {
        mIsDrawn = false;
        mLog.Read();
    }
    mRead = count;
}

void MainWindow::FollowLog()
{
    const ActivityWords words(mDesk.Formats(), mDesk.ShownTitles());
    mBar->Follow(ToQt(words.PeriodTitle(mLog.Days())), ToQt(ActivityWords::WeekTitle(mLog.Days())), mView,
        mLog.UnassignedMinutes());
    mIsDrawn = true;
    FollowPages();
    mSide->Follow(TitleOfDays());
    FollowModel();
    SeeToFonts();
}

void MainWindow::SeeToFonts()
{
    if (mKnowsFonts || !HoldEastAsianLetters(mLog.All())) {
        return;
    }
    mKnowsFonts = true;
    const auto hasFont = [](QFontDatabase::WritingSystem system) { return !QFontDatabase::families(system).isEmpty(); };
    if (!hasFont(QFontDatabase::SimplifiedChinese) && !hasFont(QFontDatabase::Japanese)
        && !hasFont(QFontDatabase::Korean)) {
        Say("Some titles can't be drawn: install a font for Chinese, Japanese and Korean, such as fonts-noto-cjk, and "
            "start again.");
    }
}

void MainWindow::FollowModel()
{
    if (mPages->currentWidget() == mWelcome && !IsNew()) {
        FollowPages();
    }
    mSide->Month().Follow(mLog.Days());
    FollowSelection();
    mJob->Follow();
    ShowSidePanel();
    ShowEmpty();
    mCommands.Actions().Follow();
    if (mMenu) {
        mMenu->Follow();
    }
}

bool MainWindow::IsNew() const
{
    return !mLog.HasAny() && !LastStartBefore(mDesk.Profile(), Period::Always().last)
        && !TrackerFiles::Of(mDesk.Profile()).latest;
}

void MainWindow::FollowPages()
{
    static const std::vector<Activity> none;
    QWidget* page = mAgenda;
    if (mView == View::List) {
        page = mList;
    } else if (mView == View::SortOut) {
        page = mSortOut;
    }
    if (IsNew()) {
        page = mWelcome;
    }
    mPages->setCurrentWidget(page);
    // Those that aren't seen hold nothing of the log, which may change without them.
    if (page == mAgenda) {
        mAgenda->Follow();
    } else {
        mAgenda->Rest();
    }
    mList->Show(page == mList ? ShownActivities() : none, mLog.ColouredBy());
    if (page == mSortOut) {
        mSortOut->Follow();
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
    mList->ShowSelected(mSelected);
    if (selected.empty()) {
        const bool hasFewProjects = !IsSearched() && mLog.HasAny()
            && ColouredBy(ColourChoice::Automatic, mLog.All()) == Coloured::Application;
        const bool hasNone = mLog.UnassignedMinutes() == mLog.Sums().total;
        auto count = ActivitiesText(static_cast<std::int64_t>(ShownActivities().size()));
        if (mSearch.IsOn()) {
            count += mSearch.IsFull() ? " found, the newest ones: add a word to see older ones"
                                      : (mSearch.IsDone() ? " found in the whole log" : " found so far");
        }
        mFoot->ShowNothing(hasFewProjects ? (hasNone ? NoProjectsYet : FewProjectsYet) : ToQt(count),
            hasFewProjects ? NoProjectsYetHelp : "", hasFewProjects);
        return;
    }
    mFoot->Show(selected, LikelyProjects(mDoings.Projects(), selected, PastActivities()), mLog.Days());
}

const std::vector<Activity>& MainWindow::PastActivities()
{
    const auto today = mDesk.Now().Day();
    const std::pair now(mDesk.Log().Count(), today);
    if (mPastRead != now) {
        mPast = ActivitiesStartingIn(mDesk.Profile(), { today.AddDays(-DaysLookedBack), today });
        mPastRead = now;
    }
    return mPast;
}

void MainWindow::ShowSidePanel()
{
    mSide->setVisible(mDesk.Settings().hasSidePanel && width() >= LeastWidthWithPanel);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    ShowSidePanel();
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        // Of several windows that come up together only the last one stays in front.
        QTimer::singleShot(0, this, [this] {
            if (isActiveWindow() && !mExplorer->IsGone() && mDesk.Windows().ActiveExplorer() != mExplorer) {
                mDesk.Do([this] { mDesk.Windows().ActivateExplorer(mExplorer); });
            }
        });
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    mDesk.Remember([this](DesktopSettings& settings) { NotePlace(*this, settings); });
    if (mDesk.StaysWhenClosed() && mDesk.Windows().OpenExplorers().size() == 1) {
        event->ignore();
        hide();
        return;
    }
    // With its last window the product ends, and asks about nothing any more.
    if (mDesk.Windows().OpenExplorers().size() == 1 && !mDesk.CloseItems()) {
        event->ignore();
        return;
    }
    mDesk.Do([this] { mDesk.Windows().CloseExplorer(mExplorer); });
    // The model says whether the window goes.
    event->setAccepted(mExplorer->IsGone());
}

}
