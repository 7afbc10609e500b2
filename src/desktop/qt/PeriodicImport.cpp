#include "desktop/qt/PeriodicImport.h"

#include "desktop/qt/QtText.h"

#include <QApplication>
#include <QFileInfo>
#include <algorithm>

namespace tempodial {

PeriodicImport::PeriodicImport(Desk& desk)
    : mDesk(desk)
    , mSchedule(desk.Now())
{
    mTimer.setSingleShot(true);
    QObject::connect(&mTimer, &QTimer::timeout, [this] { Ask(); });
    QObject::connect(&mWatcher, &QFileSystemWatcher::fileChanged, &mTimer, [this] {
        mSchedule.FileGrew(mDesk.Now());
        Wait();
    });
    QObject::connect(qApp, &QApplication::applicationStateChanged, &mTimer, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) {
            mSchedule.CameToFront(mDesk.Now());
            Wait();
        }
    });
    Wait();
}

void PeriodicImport::Ask()
{
    // A message or a drag is not interrupted; it is asked again soon.
    const bool isHeldBack = mDesk.IsBusy() || QApplication::activeModalWidget() != nullptr
        || QApplication::mouseButtons() != Qt::NoButton;
    if (!isHeldBack && mSchedule.IsDue(mDesk.Now())) {
        Import();
    }
    Wait();
}

void PeriodicImport::Import()
{
    mDesk.Do([this] { mDesk.Session().AddIn().SyncData(SavedDataDays, false); });
    mSchedule.Ran(mDesk.Now());
}

void PeriodicImport::Wait()
{
    constexpr std::int64_t Soonest = 1;
    constexpr std::int64_t Latest = 60;
    constexpr int Millisecond = 1000;
    Watch();
    const auto seconds = std::clamp(mSchedule.SecondsToWait(mDesk.Now()), Soonest, Latest);
    mTimer.start(static_cast<int>(seconds) * Millisecond);
}

void PeriodicImport::Watch()
{
    const auto path = ToQt(mDesk.Profile().DataFolder() + "/" + TrackerFileName(mDesk.Now().DayKey()));
    const auto watched = mWatcher.files();
    if (watched.contains(path)) {
        return;
    }
    if (!watched.isEmpty()) {
        mWatcher.removePaths(watched);
    }
    if (QFileInfo::exists(path) && mWatcher.addPath(path)) {
        mSchedule.FileGrew(mDesk.Now());
    }
}

}
