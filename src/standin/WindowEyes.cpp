#include "standin/WindowEyes.h"

#include "addin/base/CommonControls.h"
#include "addin/base/SystemText.h"
#include "addin/base/WindowText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <functional>
#include <utility>

namespace tempodial {

namespace {

BOOL CALLBACK TakeWindow(HWND window, LPARAM windows)
{
    std::bit_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

std::vector<HWND> WindowsOfThread()
{
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), &TakeWindow, std::bit_cast<LPARAM>(&windows));
    return windows;
}

/// The controls of a form, and not what they are made of.
std::vector<HWND> ControlsOf(HWND form)
{
    std::vector<HWND> windows;
    EnumChildWindows(form, &TakeWindow, std::bit_cast<LPARAM>(&windows));
    std::erase_if(windows, [](HWND window) { return NameOf(window, ControlProperty).empty(); });
    return windows;
}

std::wstring ClassOf(HWND window)
{
    constexpr int LongestClass = 64;
    std::array<wchar_t, LongestClass> name {};
    return { name.data(), static_cast<std::size_t>(GetClassNameW(window, name.data(), LongestClass)) };
}

DWORD StyleOf(HWND window)
{
    return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE));
}

ControlKind KindOf(HWND control)
{
    const auto name = ClassOf(control);
    if (name == L"Edit") {
        return ControlKind::TextBox;
    }
    if (name == L"ComboBox") {
        return ControlKind::ComboBox;
    }
    if (name == PROGRESS_CLASSW) {
        return ControlKind::ProgressBar;
    }
    if (name != L"Button") {
        return ControlKind::Label;
    }
    const auto kind = StyleOf(control) & BS_TYPEMASK;
    return kind == BS_AUTOCHECKBOX   ? ControlKind::CheckBox
        : kind == BS_AUTORADIOBUTTON ? ControlKind::OptionButton
                                     : ControlKind::Button;
}

std::vector<std::string> ListOf(HWND box)
{
    std::vector<std::string> list;
    const auto count = SendMessageW(box, CB_GETCOUNT, 0, 0);
    for (LRESULT index = 0; index < count; ++index) {
        const auto at = static_cast<WPARAM>(index);
        std::wstring entry(static_cast<std::size_t>(SendMessageW(box, CB_GETLBTEXTLEN, at, 0)), L'\0');
        SendMessageW(box, CB_GETLBTEXT, at, std::bit_cast<LPARAM>(entry.data()));
        list.push_back(Narrow(entry));
    }
    return list;
}

/// What is told of a control when the pointer rests on it.
std::string TipOf(HWND control)
{
    constexpr int LongestTip = 1024;
    auto* const form = GetParent(control);
    for (auto* const window : WindowsOfThread()) {
        if (ClassOf(window) != TOOLTIPS_CLASSW || GetWindow(window, GW_OWNER) != form) {
            continue;
        }
        std::array<wchar_t, LongestTip> text {};
        TTTOOLINFOW tool {};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.hwnd = form;
        tool.uId = std::bit_cast<std::uintptr_t>(control);
        tool.lpszText = text.data();
        SendMessageW(window, TTM_GETTEXTW, LongestTip, std::bit_cast<LPARAM>(&tool));
        if (text.front() != L'\0') {
            return Narrow(text.data());
        }
    }
    return {};
}

FormSnapshot SeeForm(HWND form)
{
    FormSnapshot seen { .number = WindowEyes::NumberOf(form),
        .className = NameOf(form, FormProperty),
        .title = TextOf(form),
        .visible = true };
    for (auto* const control : ControlsOf(form)) {
        seen.controls.push_back(WindowEyes::See(control));
    }
    return seen;
}

}

std::vector<FormSnapshot> WindowEyes::Forms()
{
    std::vector<FormSnapshot> forms;
    for (auto* const window : Windows()) {
        forms.push_back(SeeForm(window));
    }
    return forms;
}

std::vector<HWND> WindowEyes::Windows()
{
    auto windows = WindowsOfThread();
    std::erase_if(
        windows, [](HWND window) { return NameOf(window, FormProperty).empty() || IsWindowVisible(window) == FALSE; });
    std::sort(windows.begin(), windows.end(), [](HWND a, HWND b) { return NumberOf(a) < NumberOf(b); });
    return windows;
}

std::int32_t WindowEyes::NumberOf(HWND form)
{
    return static_cast<std::int32_t>(std::bit_cast<std::intptr_t>(GetPropW(form, FormNumberProperty)));
}

HWND WindowEyes::Control(HWND form, const std::string& name)
{
    const auto controls = ControlsOf(form);
    const auto found = std::find_if(
        controls.begin(), controls.end(), [&name](HWND control) { return NameOf(control, ControlProperty) == name; });
    return found == controls.end() ? nullptr : *found;
}

ControlSnapshot WindowEyes::See(HWND control)
{
    ControlSnapshot seen { .name = NameOf(control, ControlProperty),
        .kind = KindOf(control),
        .enabled = IsWindowEnabled(control) != FALSE,
        .visible = (StyleOf(control) & WS_VISIBLE) != 0,
        .tip = TipOf(control) };
    if (seen.kind == ControlKind::ProgressBar) {
        PBRANGE range {};
        SendMessageW(control, PBM_GETRANGE, FALSE, std::bit_cast<LPARAM>(&range));
        seen.min = range.iLow;
        seen.max = range.iHigh;
        seen.value = static_cast<std::int32_t>(SendMessageW(control, PBM_GETPOS, 0, 0));
        return seen;
    }
    seen.text = TextOf(control);
    if (seen.kind == ControlKind::ComboBox) {
        seen.list = ListOf(control);
        seen.index = static_cast<std::int32_t>(SendMessageW(control, CB_GETCURSEL, 0, 0));
    }
    seen.checked = (seen.kind == ControlKind::CheckBox || seen.kind == ControlKind::OptionButton)
        && SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED;
    return seen;
}

}
