#pragma once

#include "base/Ref.h"
#include "desktop/LogDoings.h"
#include "desktop/ModelView.h"
#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/LogSearch.h"
#include "desktop/qt/MainCommands.h"
#include "desktop/qt/MainMenu.h"
#include "host/windows/HostExplorer.h"

#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

class QStackedWidget;
class QTimer;

namespace tempodial {

class ActivityList;
class AgendaView;
class ExampleRibbon;
class JobStrip;
class NavigationBar;
class SelectionBar;
class SidePanel;
class SortOutView;
class WelcomePage;
class WhyBubble;

/// The window of an explorer: the activities of some days, and what can be done with them.
class MainWindow final : public QMainWindow
{
public:
    using Numbers = std::set<std::int64_t>;
    using View = DesktopSettings::View;

    MainWindow(Desk& desk, Ref<HostExplorer> explorer);
    ~MainWindow() override;

    /// A person wants the example to go that is shown.
    std::function<void()> mRemoveExample;

    NavigationBar& Bar() { return *mBar; }
    SidePanel& Side() { return *mSide; }
    SelectionBar& Foot() { return *mFoot; }
    AgendaView& Agenda() { return *mAgenda; }
    ActivityList& List() { return *mList; }
    SortOutView& SortOut() { return *mSortOut; }
    JobStrip& Job() { return *mJob; }
    WelcomePage& Welcome() { return *mWelcome; }
    /// The ribbon of an example; null above a real log.
    ExampleRibbon* Ribbon() { return mRibbon; }
    const ShownLog& Log() const { return mLog; }
    const Numbers& Selected() const { return mSelected; }
    const Ref<HostExplorer>& Explorer() const { return mExplorer; }

    /// Shows the days around one of them in a view.
    void Show(View view, Date day);
    /// The same days in another view, and the same view around another day.
    void Show(View view) { Show(view, mDay); }
    /// The same as a person's choice, which the model hears of.
    void Choose(View view);
    void Page(int pages);
    void GoToToday();
    /// Goes to a day that a person types.
    void GoToDate();
    View ShownView() const { return mView; }
    /// Selects activities in the model, which tells the product.
    void Select(const Numbers& numbers);
    /// Shows only what those words find.
    void Search(const QString& words);
    void SelectAll();
    /// Sets a project on what is selected.
    void SetProject(const std::string& project);
    void DeleteSelected();
    void Undo();
    void Redo();
    /// Says why the first one that is selected has its project; asked again, shows what the rules of all projects say.
    void AskWhy();
    void ShowWhyTable();
    /// Opens the settings of the project that is likeliest for what is selected.
    void MakeRule();
    /// Opens what has the focus, or the one that is selected.
    void OpenSelected();
    /// Sets a project that a person names on what is selected, and puts it on the list.
    void SetNewProject();
    /// Gives the focus to the next part of the window, or to the one before.
    void NextPane(int step);
    /// Says something at the foot.
    void Say(const QString& text);
    /// The table that is open; null when none is.
    WhyBubble* WhyTable() const;
    MainCommands& Commands() { return mCommands; }
    /// What is shown: the days, or what a search has found.
    const std::vector<Activity>& ShownActivities() const;
    /// True when that is what a search has found.
    bool IsSearched() const { return mSearch.IsOn() || mLog.IsSearched(); }
    std::vector<Activity> SelectedActivities() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Shows the days around one of them in a view, as this window alone does.
    void Turn(View view, Date day);
    void Assemble();
    void Connect();
    void ConnectAgenda();
    void ConnectOthers();
    void FollowPages();
    /// True while there is neither an activity nor a tracker's file.
    bool IsNew() const;
    void SearchAll();
    /// The model has changed, or how things look.
    void Follow();
    /// The settings have changed, or how things look.
    void FollowSettings();
    /// What isn't shown isn't selected either, so that nothing is done to it unseen.
    void DropUnseen();
    /// The same with what was selected and isn't shown any more, since the log has changed.
    void DropLost(const Numbers& selected);
    /// Selects no more than what of the selection is shown.
    Numbers SeenOnes() const;
    /// Says how many the product has passed over since they are open.
    void SayPassedOver(std::int64_t count);
    /// Reads the log again when what is shown has changed.
    void ReadChanges();
    /// What is shown of the log has changed, or how it looks.
    void FollowLog();
    /// A minute has gone.
    void FollowClock();
    /// The days that are shown, as they stand above their time.
    QString TitleOfDays() const;
    /// Anything else may have changed.
    void FollowModel();
    void FollowSelection();
    /// Why what is shown is empty, and the step that helps; nothing when there is something.
    std::pair<QString, QString> WhyEmpty() const;
    void ShowEmpty();
    /// Says so when letters are shown for which there is no font.
    void SeeToFonts();
    void ShowSidePanel();
    /// The activities by which projects are likely.
    const std::vector<Activity>& PastActivities();

    Desk& mDesk;
    Ref<HostExplorer> mExplorer;
    LogDoings mDoings;
    ModelView mModelView;
    ShownLog mLog;
    View mView;
    Date mDay;
    Numbers mSelected;
    /// What of the selection isn't shown any more, until nothing goes on in which that may not change.
    Numbers mLost;
    /// The change of the log up to which it was read.
    std::int64_t mRead = 0;
    /// The windows show what was read.
    bool mIsDrawn = false;
    /// It was looked whether there are fonts for what is shown, as far as that needs any.
    bool mKnowsFonts = false;
    /// The activities before today, as they were at a change of the log.
    std::vector<Activity> mPast;
    std::optional<std::pair<std::int64_t, Date>> mPastRead;
    ExampleRibbon* mRibbon = nullptr;
    NavigationBar* mBar;
    SidePanel* mSide = nullptr;
    SelectionBar* mFoot = nullptr;
    AgendaView* mAgenda = nullptr;
    QStackedWidget* mPages = nullptr;
    ActivityList* mList = nullptr;
    SortOutView* mSortOut = nullptr;
    WelcomePage* mWelcome = nullptr;
    JobStrip* mJob = nullptr;
    MainCommands mCommands;
    std::unique_ptr<MainMenu> mMenu;
    LogSearch mSearch;
    QTimer* mClock;
    QPointer<WhyBubble> mWhyTable;
    bool mComesToFront = false;
    bool mHasOtherView = false;
    Subscription mChanges;
    Subscription mEvents;
};

}
