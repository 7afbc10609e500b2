#include "addin/win32/forms/FormToolTips.h"

#include "addin/base/SystemText.h"
#include "addin/win32/forms/WindowParts.h"

#include <bit>
#include <cstdint>

namespace tempodial {

FormToolTips::FormToolTips(HWND form)
    : mForm(form)
    , mWindow(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
          0, form, nullptr, nullptr, nullptr))
{
}

void FormToolTips::Add(HWND control, const std::string& text) const
{
    for (auto* const window : WithItsParts(control)) {
        AddTo(window, Wide(text));
    }
}

void FormToolTips::SetWidth(int widest) const
{
    SendMessageW(mWindow, TTM_SETMAXTIPWIDTH, 0, widest);
}

void FormToolTips::AddTo(HWND window, std::wstring text) const
{
    TTTOOLINFOW tool {};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    tool.hwnd = mForm;
    tool.uId = std::bit_cast<std::uintptr_t>(window);
    tool.lpszText = text.data();
    SendMessageW(mWindow, TTM_ADDTOOLW, 0, std::bit_cast<LPARAM>(&tool));
}

}
