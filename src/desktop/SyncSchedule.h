#pragma once

#include "base/Date.h"

#include <cstdint>

namespace tempodial {

/// When the program imports by itself. The owner asks again and again, and holds an import back while a job, a drag or
/// a message box is on.
class SyncSchedule
{
public:
    /// Takes the moment of the program's start: the first import is a little later.
    explicit SyncSchedule(Date start);

    /// True when an import is due. Sees by the time since the last question or run that the machine has slept, and that
    /// the clock was set back.
    bool IsDue(Date now);
    /// The seconds after which to ask again.
    std::int64_t SecondsToWait(Date now) const;

    /// An import has run, whoever wanted it.
    void Ran(Date now);
    /// The window came to the front.
    void CameToFront(Date now);
    /// Today's tracker file grew, or is there now.
    void FileGrew(Date now);

private:
    void BringForward(Date moment);

    Date mEarliest;
    Date mDue;
    Date mLastRun;
    Date mLastAsked;
};

}
