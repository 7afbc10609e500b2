#pragma once

#include "base/Ref.h"
#include "desktop/LogDoings.h"
#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/WindowActions.h"
#include "host/windows/HostExplorer.h"

#include <QMainWindow>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

class QTimer;

namespace tempodial {

class AgendaView;
class NavigationBar;
class SelectionBar;
class SidePanel;

/// The window of an explorer: the activities of some days, and what can be done with them.
class MainWindow final : public QMainWindow
{
public:
    using Numbers = std::set<std::int64_t>;
    using View = DesktopSettings::View;

    MainWindow(Desk& desk, Ref<HostExplorer> explorer);
    ~MainWindow() override;

    NavigationBar& Bar() { return *mBar; }
    SidePanel& Side() { return *mSide; }
    SelectionBar& Foot() { return *mFoot; }
    AgendaView& Agenda() { return *mAgenda; }
    const ShownLog& Log() const { return mLog; }
    const Numbers& Selected() const { return mSelected; }

    /// Shows the days around one of them in a view.
    void Show(View view, Date day);
    void Page(int pages);
    /// Selects activities in the model, which tells the product.
    void Select(const Numbers& numbers);
    void SelectAll();
    /// Sets a project on what is selected.
    void SetProject(const std::string& project);
    void DeleteSelected();
    void Undo();
    void Redo();
    void AskWhy();
    /// Opens the settings of the project that is likeliest for what is selected.
    void MakeRule();
    /// Opens what has the focus, or the one that is selected.
    void OpenSelected();

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Assemble();
    void MakeActions();
    void MakeViewActions();
    void Connect();
    void ConnectAgenda();
    /// The model has changed, or how things look.
    void Follow();
    void FollowLog();
    void FollowSelection();
    void ShowEmpty();
    void ShowMenu(const QPoint& place);
    void ShowSidePanel();
    bool TakeKey(const QKeyEvent& event);
    bool TakeLetter(int key);
    std::vector<Activity> SelectedActivities() const;
    void GoToDate();

    Desk& mDesk;
    Ref<HostExplorer> mExplorer;
    LogDoings mDoings;
    ShownLog mLog;
    View mView;
    Date mDay;
    Numbers mSelected;
    NavigationBar* mBar;
    SidePanel* mSide = nullptr;
    SelectionBar* mFoot = nullptr;
    AgendaView* mAgenda = nullptr;
    WindowActions mActions { *this };
    std::unique_ptr<MainMenu> mMenu;
    QTimer* mClock;
    Subscription mEvents;
};

}
