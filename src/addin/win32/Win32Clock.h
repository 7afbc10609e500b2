#pragma once

#include "addin/win32/LocalTime.h"
#include "platform/system/Clock.h"

namespace tempodial {

/// The clock of the system.
class Win32Clock final : public Clock
{
public:
    Date Now() override
    {
        SYSTEMTIME now {};
        GetLocalTime(&now);
        return FromSystemTime(now);
    }
};

}
