#include "addin/win32/forms/EmptyDialog.h"

#include "addin/base/CommonControls.h"
#include "addin/win32/forms/ScreenScale.h"
#include "base/Failure.h"

#include <algorithm>

namespace tempodial {

namespace {

constexpr DWORD DialogStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
constexpr DWORD DialogExtendedStyle = WS_EX_DLGMODALFRAME;

/// The dialog as the dialog manager reads it.
struct DialogTemplate
{
    alignas(DWORD) DLGTEMPLATE dialog {
        .style = DialogStyle, .dwExtendedStyle = DialogExtendedStyle, .cdit = 0, .x = 0, .y = 0, .cx = 0, .cy = 0
    };
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
};

}

HWND EmptyDialog::Make(HWND owner, DLGPROC procedure, LPARAM parameter)
{
    const INITCOMMONCONTROLSEX wanted { .dwSize = sizeof wanted, .dwICC = ICC_PROGRESS_CLASS | ICC_BAR_CLASSES };
    InitCommonControlsEx(&wanted);
    const DialogTemplate empty;
    auto* const window = CreateDialogIndirectParamW(nullptr, &empty.dialog, owner, procedure, parameter);
    if (window == nullptr) {
        throw Failure(Error::CannotCreateObject);
    }
    return window;
}

void EmptyDialog::Resize(HWND dialog, PixelSize inside, unsigned dpi)
{
    const auto around = WindowAround(
        { .left = 0, .top = 0, .right = inside.width, .bottom = inside.height }, DialogStyle, DialogExtendedStyle, dpi);
    SetWindowPos(dialog, nullptr, 0, 0, around.right - around.left, around.bottom - around.top,
        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void EmptyDialog::Center(HWND dialog, HWND owner)
{
    const auto isOver = owner != nullptr && IsWindowVisible(owner) != FALSE && IsIconic(owner) == FALSE;
    MONITORINFO monitor {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromWindow(isOver ? owner : dialog, MONITOR_DEFAULTTONEAREST), &monitor);
    const auto& screen = monitor.rcWork;
    RECT around = screen;
    if (isOver) {
        GetWindowRect(owner, &around);
    }
    RECT own {};
    GetWindowRect(dialog, &own);
    const auto x = (around.left + around.right - (own.right - own.left)) / 2;
    const auto y = (around.top + around.bottom - (own.bottom - own.top)) / 2;
    SetWindowPos(dialog, nullptr, static_cast<int>(std::max(x, screen.left)), static_cast<int>(std::max(y, screen.top)),
        0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}
