#include "addin/win32/Win32Shell.h"

#include "addin/base/Shell.h"
#include "addin/base/SystemText.h"

namespace tempodial {

void Win32Shell::Open(const std::string& document)
{
    ShellExecuteW(nullptr, nullptr, Wide(document).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

std::int32_t Win32Shell::ThreadId()
{
    return static_cast<std::int32_t>(GetCurrentThreadId());
}

}
