#pragma once

#include "desktop/SyncSchedule.h"
#include "desktop/qt/Desk.h"

#include <QFileSystemWatcher>
#include <QTimer>

namespace tempodial {

/// Imports what the tracker writes, without being asked: when it is time, when the program comes to the front, and when
/// today's file has grown. Never while something else goes on.
class PeriodicImport
{
public:
    /// The desk must live as long as this.
    explicit PeriodicImport(Desk& desk);

private:
    void Ask();
    void Wait();
    void Watch();
    void Import();

    Desk& mDesk;
    SyncSchedule mSchedule;
    QTimer mTimer;
    QFileSystemWatcher mWatcher;
};

}
