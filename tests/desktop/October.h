#pragma once

#include "base/Date.h"

namespace tempodial {

/// A moment of October 2006, whose 9th was a Monday.
inline Date On(int day, int hour, int minute = 0)
{
    return Date::FromParts({ 2006, 10, day, hour, minute, 0 });
}

}
