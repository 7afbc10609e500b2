#pragma once

#include "addin/base/Windows.h"

namespace tempodial {

/// The dots per inch for which everything is sized.
inline constexpr unsigned UsualDpi = 96;

/// The dots per inch of the screen that a window is on, as the thread sees it.
unsigned DpiOf(HWND window);
/// The font of the system's own messages at so many dots per inch.
LOGFONTW MessageFont(unsigned dpi);
/// How large a window is around an area, at so many dots per inch.
RECT WindowAround(RECT area, DWORD style, DWORD extendedStyle, unsigned dpi);

}
