#include "track/bus/KWinDesktop.h"

#include <type_traits>

extern "C" __attribute__((visibility("default"))) std::unique_ptr<tempodial::DesktopSource> TempodialOpenDesktop(
    const tempodial::WatchSettings& settings, tempodial::DesktopSight& sight)
{
    return tempodial::KWinDesktop::Open(settings, sight);
}

static_assert(std::is_same_v<decltype(&TempodialOpenDesktop), tempodial::DesktopOpener>);
