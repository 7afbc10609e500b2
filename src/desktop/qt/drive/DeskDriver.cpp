#include "desktop/qt/drive/DeskDriver.h"

#include "desktop/qt/QtEventPump.h"
#include "desktop/qt/drive/ClickedMessages.h"
#include "desktop/qt/drive/ShownState.h"
#include "desktop/qt/drive/WidgetForms.h"
#include "desktop/qt/drive/WidgetHand.h"

#include <QCoreApplication>
#include <QEvent>
#include <exception>
#include <utility>

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

DeskDriver::DeskDriver(GuardedApplication& application, const ProfileOptions& options, const std::string& settingsPath)
    : mApplication(application)
    , mDesk(options, settingsPath, mAppearance)
{
    mApplication.mFailed = [this](const std::exception& failure) {
        mFailures.push_back(std::string("an event failed: ") + failure.what());
        mDesk.Fail(failure);
    };
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
    mApplication.mFailed = nullptr;
}

MainWindow* DeskDriver::WindowOf(const Ref<HostExplorer>& explorer) const
{
    return mWindows ? mWindows->WindowOf(explorer) : nullptr;
}

std::vector<std::string> DeskDriver::Follow()
{
    if (!mDesk.Session().IsStarted()) {
        return std::exchange(mFailures, {});
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
    auto differences = ShownState(mDesk, *mWindows).Differences();
    const auto failures = std::exchange(mFailures, {});
    differences.insert(differences.end(), failures.begin(), failures.end());
    return differences;
}

}
