#include "desktop/qt/drive/DeskDriver.h"

#include "desktop/qt/QtEventPump.h"
#include "desktop/qt/drive/ClickedMessages.h"
#include "desktop/qt/drive/ShownState.h"
#include "desktop/qt/drive/WidgetForms.h"
#include "desktop/qt/drive/WidgetHand.h"

#include <QCoreApplication>
#include <QEvent>

namespace tempodial {

namespace {

/// Lets everything happen that is due, and what comes of it, such as a window that is in front and tells so.
void Settle()
{
    constexpr int Rounds = 3;
    for (int round = 0; round < Rounds; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}

DeskDriver::DeskDriver(const ProfileOptions& options, const std::string& settingsPath)
    : mDesk(options, settingsPath, mAppearance)
{
    DriverSurroundings surroundings;
    surroundings.eventPump = MakeRef<QtEventPump>(mDesk.Profile().Surroundings().eventPump, [this] { mDesk.Follow(); });
    surroundings.showMessage = ClickedMessages(mDesk.Session().Mailbox());
    surroundings.person = [this](DriverHost& host) {
        return Ref<Hand>(MakeRef<WidgetHand>(host, mDesk, [this] { return mWindows.get(); }));
    };
    surroundings.forms = MakeRef<WidgetForms>(mDesk, [this] { return mWindows.get(); });
    surroundings.differences = [this] { return Follow(); };
    mDriver = std::make_unique<tempodial::Driver>(mDesk.Session(), std::move(surroundings));
}

DeskDriver::~DeskDriver()
{
    mDesk.Exit();
    mWindows.reset();
    Settle();
}

MainWindow* DeskDriver::WindowOf(const Ref<HostExplorer>& explorer) const
{
    return mWindows ? mWindows->WindowOf(explorer) : nullptr;
}

std::vector<std::string> DeskDriver::Follow()
{
    if (!mDesk.Session().IsStarted()) {
        return {};
    }
    if (mShown != &mDesk.Windows()) {
        mWindows.reset();
        mShown = &mDesk.Windows();
        mWindows = std::make_unique<HostWindows>(mDesk);
        // What the desktop adds to the host's own commands isn't the driver's: printing would wait for a person.
        mDesk.Windows().SetOwnerCommands({});
    }
    mDesk.Do([] {});
    Settle();
    return ShownState(mDesk, *mWindows).Differences();
}

}
