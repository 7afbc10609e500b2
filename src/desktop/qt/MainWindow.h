#pragma once

#include "base/Ref.h"
#include "desktop/ShownLog.h"
#include "desktop/qt/Desk.h"
#include "host/windows/HostExplorer.h"

#include <QMainWindow>

namespace tempodial {

class AgendaView;
class NavigationBar;

/// The window of an explorer: the activities of some days, and what can be done with them.
class MainWindow final : public QMainWindow
{
public:
    MainWindow(Desk& desk, Ref<HostExplorer> explorer);
    ~MainWindow() override;

    NavigationBar& Bar() { return *mBar; }
    AgendaView& Agenda() { return *mAgenda; }
    const ShownLog& Log() const { return mLog; }

    /// Shows the days around one of them in a view.
    void Show(DesktopSettings::View view, Date day);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    /// The model has changed, or how things look.
    void Follow();
    void FollowLog();

    Desk& mDesk;
    Ref<HostExplorer> mExplorer;
    ShownLog mLog;
    DesktopSettings::View mView;
    Date mDay;
    NavigationBar* mBar;
    AgendaView* mAgenda = nullptr;
    Subscription mEvents;
};

}
