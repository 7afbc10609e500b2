#pragma once

#include "desktop/qt/Appearance.h"
#include "desktop/qt/Desk.h"
#include "desktop/qt/HostWindows.h"
#include "desktop/qt/MainWindow.h"

#include <QObject>
#include <memory>
#include <string>

namespace tempodial {

/// The desktop program's windows over a profile, opened as the program opens them, with a count of how often the agenda
/// was painted.
class ShownDesk final : public QObject
{
public:
    /// Opens the profile at a moment in the way of the United States; fails as the program does.
    ShownDesk(const std::string& profile, Date now);
    ~ShownDesk() override;

    tempodial::Desk& Desk() { return *mDesk; }
    MainWindow& Window() { return *mWindow; }
    /// Lets everything happen that is due, and answers whether that painted the agenda.
    bool Settle();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Appearance mLook;
    std::unique_ptr<tempodial::Desk> mDesk;
    std::unique_ptr<HostWindows> mWindows;
    MainWindow* mWindow = nullptr;
    int mPaints = 0;
};

}
