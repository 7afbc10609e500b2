#include "desktop/qt/QtEventPump.h"

#include <QCoreApplication>

namespace tempodial {

namespace {

/// So many milliseconds a job goes on between two turns of the windows.
constexpr qint64 BetweenTurns = 12;

}

void QtEventPump::ProcessPending()
{
    mInner->ProcessPending();
    if (mSince.isValid() && !mSince.hasExpired(BetweenTurns)) {
        return;
    }
    mFollow();
    QCoreApplication::processEvents();
    mSince.start();
}

}
