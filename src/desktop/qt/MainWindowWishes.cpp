#include "desktop/ActivityWords.h"
#include "desktop/DesktopStrings.h"
#include "desktop/ViewDays.h"
#include "desktop/WhyWords.h"
#include "desktop/qt/ActivityList.h"
#include "desktop/qt/AgendaView.h"
#include "desktop/qt/ExampleProgram.h"
#include "desktop/qt/MainWindow.h"
#include "desktop/qt/NavigationBar.h"
#include "desktop/qt/QtText.h"
#include "desktop/qt/SelectionBar.h"
#include "desktop/qt/SidePanel.h"
#include "desktop/qt/SortOutView.h"
#include "desktop/qt/WelcomePage.h"
#include "desktop/qt/WhyBubble.h"
#include "review/ActivityReader.h"
#include "session/ActivityGesture.h"
#include "terminal/TerminalText.h"

#include <QInputDialog>
#include <QLineEdit>
#include <algorithm>
#include <iterator>

namespace tempodial {

void MainWindow::Connect()
{
    mBar->mPage = [this](int pages) { Page(pages); };
    mBar->mGoToToday = [this] { GoToToday(); };
    mBar->mShow = [this](View view) { Choose(view); };
    mBar->mSearch = [this](const QString& words) { Search(words); };
    mBar->mSearchAll = [this] { SearchAll(); };
    mSearch.mWhenFound = [this] {
        FollowPages();
        FollowSelection();
        ShowEmpty();
    };
    mSide->Month().mGoTo = [this](Date day) { Show(mView, day); };
    mSide->Projects().mShowOnly = [this](const auto& names) { mAgenda->ShowOnly(names); };
    mSide->Projects().mSortOut = [this] { Show(View::SortOut, mDay); };
    mFoot->mWishes = { .setProject = [this](const std::string& project) { SetProject(project); },
        .setNewProject = [this] { SetNewProject(); },
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
    wishes.menu = [this](const QPoint& place) { mCommands.ShowMenu(place); };
    wishes.key = [this](QKeyEvent& event) { return mCommands.TakeKey(event); };
    wishes.say = [this](const QString& text) { mFoot->Say(text); };
    wishes.chooseProject = [this] { mFoot->ShowAllProjects(); };
    wishes.remove = [this] { DeleteSelected(); };
    const auto goBack = [this] {
        if (const auto last = LastStartBefore(mDesk.Profile(), mLog.Days().first)) {
            Show(mView, last->Day());
        }
    };
    for (auto* note : { &mAgenda->Note(), &mList->Note(), &mSortOut->Note() }) {
        note->mFollowLink = goBack;
    }
    mAgenda->Head().mWhenChosen
        = [this](std::size_t day) { Show(View::Day, mLog.Days().first.AddDays(static_cast<int>(day))); };
}

void MainWindow::ConnectOthers()
{
    const auto select = [this](const Numbers& numbers) { Select(numbers); };
    const auto open = [this](std::int64_t number) { mDesk.Do([&] { mDoings.Open(number); }); };
    const auto key = [this](QKeyEvent& event) { return mCommands.TakeKey(event); };
    mList->mWishes = {
        .select = select, .open = open, .menu = [this](const QPoint& place) { mCommands.ShowMenu(place); }, .key = key
    };
    mWelcome->mOpenFolder
        = [this](const std::string& path) { mDesk.Do([&] { mDesk.Profile().Surroundings().shell->Open(path); }); };
    mWelcome->mShowExample = [this] { mDesk.Do([this] { ExampleProgram::Open(mDesk.Profile()); }); };
    mSortOut->mSelect = select;
    mSortOut->mOpen = open;
    mSortOut->mMenu = [this](const QPoint& place) { mCommands.ShowMenu(place); };
    mSortOut->mKey = key;
}

void MainWindow::Show(View view, Date day)
{
    Turn(view, day);
    mDesk.Remember([this](DesktopSettings& settings) { settings.view = mView; });
}

void MainWindow::Choose(View view)
{
    Show(view);
    mDesk.Do([&] { mModelView.Choose(view); });
}

void MainWindow::SearchAll()
{
    const SearchTerms terms(FromQt(mBar->SearchField().text()));
    if (!terms.AreEmpty()) {
        Show(View::List, mDay);
        mSearch.Begin(terms);
    }
}

void MainWindow::GoToDate()
{
    const auto& formats = mDesk.Formats();
    bool isDone = false;
    const auto text = QInputDialog::getText(
        this, "Go to Date", "Date:", QLineEdit::Normal, ToQt(formats->ShortDate(mDay)), &isDone);
    if (!isDone) {
        return;
    }
    Date day;
    try {
        day = formats->Parse(FromQt(text)).Day();
    } catch (const Failure&) {
        mDesk.Fail(InQuotes(FromQt(text)) + " is no date: type one such as " + formats->ShortDate(mDay) + ".");
        return;
    }
    Show(mView, day);
}

void MainWindow::DropUnseen()
{
    mSelected = SelectedNumbers(*mExplorer);
    const auto seen = SeenOnes();
    if (seen != mSelected) {
        mDoings.Select(*mExplorer, { seen.begin(), seen.end() });
    }
}

void MainWindow::DropLost(const Numbers& selected)
{
    const auto seen = SeenOnes();
    std::set_difference(selected.begin(), selected.end(), seen.begin(), seen.end(), std::inserter(mLost, mLost.end()));
    if (mDesk.IsBusy()) {
        return;
    }
    Numbers kept;
    for (const auto number : mSelected) {
        if (mLost.count(number) == 0 || seen.count(number) > 0) {
            kept.insert(number);
        }
    }
    mLost.clear();
    if (kept != mSelected) {
        mDoings.Select(*mExplorer, { kept.begin(), kept.end() });
        mSelected = kept;
    }
}

MainWindow::Numbers MainWindow::SeenOnes() const
{
    Numbers seen;
    for (const auto& activity : SelectedActivities()) {
        seen.insert(activity.number);
    }
    return seen;
}

void MainWindow::FollowSettings()
{
    if (mExplorer->IsGone()) {
        return;
    }
    mIsDrawn = false;
    // The week may begin with another day.
    mLog.Show(DaysOfView(mView, mDesk.Settings().SpanOf(mView), mDay, mDesk.WeekStart()));
    mDesk.Do([this] { DropUnseen(); });
}

void MainWindow::SayPassedOver(std::int64_t count)
{
    if (count > 0) {
        mFoot->Say(ToQt(PassedOverText(count)));
    }
}

void MainWindow::Search(const QString& words)
{
    mSearch.End();
    mLog.Search(SearchTerms(FromQt(words)));
    mIsDrawn = false;
    mDesk.Do([this] { DropUnseen(); });
}

void MainWindow::AskWhy()
{
    const auto selected = SelectedActivities();
    if (selected.empty()) {
        return;
    }
    const RuleTrial rules(RuledProject::ReadAll(mDesk.Profile()));
    const auto sentence = ToQt(WhySentence(selected.front(), rules, mDesk.ShownTitles()));
    if (mFoot->Said() == sentence) {
        ShowWhyTable();
    } else {
        mFoot->Say(sentence);
    }
}

void MainWindow::ShowWhyTable()
{
    const auto selected = SelectedActivities();
    if (selected.empty()) {
        return;
    }
    const RuleTrial rules(RuledProject::ReadAll(mDesk.Profile()));
    const auto titles = mDesk.ShownTitles();
    mWhyTable
        = new WhyBubble(WhySentence(selected.front(), rules, titles), WhyLines(selected.front(), rules, titles), this);
    mWhyTable->OpenAbove(mFoot->mapToGlobal(QPoint(0, 0)));
}

WhyBubble* MainWindow::WhyTable() const
{
    return mWhyTable;
}

std::pair<QString, QString> MainWindow::WhyEmpty() const
{
    if (mSearch.IsOn()) {
        const bool isVain = mSearch.IsDone() && mSearch.Found().empty();
        return { isVain ? ToQt(EmptyText(EmptyView::NothingInLog)) : QString(), QString() };
    }
    if (!mLog.Activities().empty()) {
        return {};
    }
    if (mLog.HasAny()) {
        return { ToQt(EmptyText(EmptyView::NothingFound)), QString() };
    }
    const auto before = LastStartBefore(mDesk.Profile(), mLog.Days().first);
    if (before || LastStartBefore(mDesk.Profile(), Period::Always().last)) {
        return { ToQt(EmptyText(EmptyView::NothingInPeriod)),
            before ? "Show " + ToQt(mDesk.Formats()->LongDate(*before)) : QString() };
    }
    return { ToQt(EmptyText(EmptyView::NothingRecorded)), QString() };
}

void MainWindow::ShowEmpty()
{
    const auto [text, link] = WhyEmpty();
    for (auto* note : { &mAgenda->Note(), &mList->Note(), &mSortOut->Note() }) {
        note->Say(text, link);
    }
}

QString MainWindow::TitleOfDays() const
{
    constexpr int DaysOfWeek = 7;
    const auto today = mDesk.Now().Day();
    const bool isNow = today >= mLog.Days().first && today <= mLog.Days().last;
    if (isNow && mLog.DayCount() == 1) {
        return "Today";
    }
    if (isNow && mLog.DayCount() == DaysOfWeek) {
        return "This week";
    }
    return ToQt(ActivityWords(mDesk.Formats(), mDesk.ShownTitles()).PeriodTitle(mLog.Days()));
}

void MainWindow::FollowClock()
{
    // What was read and isn't drawn yet is drawn with the time that it is then.
    if (mIsDrawn) {
        mAgenda->FollowClock();
        mSide->Follow(TitleOfDays());
        mSide->Month().update();
    }
}

}
