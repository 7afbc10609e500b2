#include "addin/win32/forms/ScreenScale.h"

#include <bit>

namespace tempodial {

namespace {

/// A call of the system that older versions don't have, null there.
template <class Function> Function NewerCall(const char* name)
{
    const auto found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
    return found == nullptr ? nullptr : std::bit_cast<Function>(found);
}

unsigned DpiOfSystem()
{
    auto* const screen = GetDC(nullptr);
    const auto dpi = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dpi > 0 ? static_cast<unsigned>(dpi) : UsualDpi;
}

}

unsigned DpiOf(HWND window)
{
    using Call = UINT(WINAPI*)(HWND);
    static const auto call = NewerCall<Call>("GetDpiForWindow");
    const auto dpi = call == nullptr ? 0U : call(window);
    return dpi != 0 ? dpi : DpiOfSystem();
}

LOGFONTW MessageFont(unsigned dpi)
{
    using Call = BOOL(WINAPI*)(UINT, UINT, PVOID, UINT, UINT);
    static const auto call = NewerCall<Call>("SystemParametersInfoForDpi");
    NONCLIENTMETRICSW metrics {};
    metrics.cbSize = sizeof metrics;
    if (call != nullptr && call(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi) != FALSE) {
        return metrics.lfMessageFont;
    }
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    auto& height = metrics.lfMessageFont.lfHeight;
    height = MulDiv(height, static_cast<int>(dpi), static_cast<int>(DpiOfSystem()));
    return metrics.lfMessageFont;
}

RECT WindowAround(RECT area, DWORD style, DWORD extendedStyle, unsigned dpi)
{
    using Call = BOOL(WINAPI*)(LPRECT, DWORD, BOOL, DWORD, UINT);
    static const auto call = NewerCall<Call>("AdjustWindowRectExForDpi");
    if (call == nullptr || call(&area, style, FALSE, extendedStyle, dpi) == FALSE) {
        AdjustWindowRectEx(&area, style, FALSE, extendedStyle);
    }
    return area;
}

}
