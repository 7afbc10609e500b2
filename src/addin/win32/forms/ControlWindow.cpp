#include "addin/win32/forms/ControlWindow.h"

#include "addin/base/SystemText.h"
#include "addin/base/WindowText.h"
#include "addin/win32/forms/ButtonWindow.h"
#include "addin/win32/forms/ComboBoxWindow.h"
#include "addin/win32/forms/LabelWindow.h"
#include "addin/win32/forms/ProgressBarWindow.h"
#include "addin/win32/forms/TextBoxWindow.h"
#include "addin/win32/forms/TickWindow.h"
#include "base/Failure.h"

#include <bit>
#include <cstdint>

namespace tempodial {

ControlWindow::ControlWindow(HWND form, const ControlDefinition& definition, WORD number, const Look& look)
    : mWindow(CreateWindowExW(look.extendedStyle, look.windowClass, nullptr, WS_CHILD | look.style, 0, 0, 0, 0, form,
        std::bit_cast<HMENU>(std::uintptr_t { number }), nullptr, nullptr))
    , mName(definition.name)
    , mNumber(number)
{
    if (mWindow == nullptr) {
        throw Failure(Error::CannotCreateObject);
    }
    SetName(mWindow, ControlProperty, mName);
}

ControlWindow::~ControlWindow()
{
    RemoveName(mWindow, ControlProperty);
}

void ControlWindow::Draw(const ControlSnapshot& now)
{
    DrawKind(now);
    if ((IsWindowEnabled(mWindow) != FALSE) != now.enabled) {
        if (!now.enabled) {
            GiveUpFocus();
        }
        EnableWindow(mWindow, now.enabled ? TRUE : FALSE);
    }
    const auto isVisible = (GetWindowLongPtrW(mWindow, GWL_STYLE) & WS_VISIBLE) != 0;
    if (isVisible != now.visible) {
        if (!now.visible) {
            GiveUpFocus();
        }
        ShowWindow(mWindow, now.visible ? SW_SHOWNA : SW_HIDE);
    }
    mDrawn = now;
}

void ControlWindow::SetTabStop(bool isStop) const
{
    const auto style = GetWindowLongPtrW(mWindow, GWL_STYLE);
    SetWindowLongPtrW(mWindow, GWL_STYLE, isStop ? style | WS_TABSTOP : style & ~LONG_PTR { WS_TABSTOP });
}

void ControlWindow::Move(const FormPlace& place)
{
    SetWindowPos(mWindow, nullptr, place.x, place.y, place.width, place.height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ControlWindow::Tell(unsigned /*code*/, const Ref<Control>& /*model*/) { }

void ControlWindow::ShowText(const std::string& text) const
{
    if (TextOf(mWindow) != text) {
        SetWindowTextW(mWindow, Wide(text).c_str());
    }
}

void ControlWindow::GiveUpFocus() const
{
    const auto focus = GetFocus();
    if (focus == mWindow || IsChild(mWindow, focus) != FALSE) {
        SendMessageW(GetParent(mWindow), WM_NEXTDLGCTL, 0, FALSE);
    }
}

std::unique_ptr<ControlWindow> MakeControlWindow(
    HWND form, const ControlDefinition& definition, WORD number, bool beginsGroup)
{
    const DWORD group = beginsGroup ? WS_GROUP : 0;
    switch (definition.kind) {
    case ControlKind::Label:
        return std::make_unique<LabelWindow>(form, definition, number, group);
    case ControlKind::Button:
        return std::make_unique<ButtonWindow>(form, definition, number, group);
    case ControlKind::TextBox:
        return std::make_unique<TextBoxWindow>(form, definition, number, group);
    case ControlKind::ComboBox:
        return std::make_unique<ComboBoxWindow>(form, definition, number, group);
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
        return std::make_unique<TickWindow>(form, definition, number, group);
    case ControlKind::ProgressBar:
        return std::make_unique<ProgressBarWindow>(form, definition, number, group);
    }
    throw Failure(Error::InvalidCall);
}

}
