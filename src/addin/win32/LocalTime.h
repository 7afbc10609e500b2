#pragma once

#include "addin/base/Windows.h"
#include "base/Date.h"

namespace tempodial {

/// A moment of the system's, cut to seconds.
inline Date FromSystemTime(const SYSTEMTIME& time)
{
    return Date::FromParts({ time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond });
}

}
