#pragma once

#include "platform/system/Shell.h"

#include <string>

namespace tempodial {

/// The desktop of the user.
class Win32Shell final : public Shell
{
public:
    void Open(const std::string& document) override;
    std::int32_t ThreadId() override;
};

}
