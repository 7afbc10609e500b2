#pragma once

#include "platform/controls/EventPump.h"

namespace tempodial {

/// The messages that wait for this thread.
class Win32EventPump final : public EventPump
{
public:
    void ProcessPending() override;
};

}
