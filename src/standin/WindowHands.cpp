#include "standin/WindowHands.h"

#include "addin/base/SystemText.h"
#include "addin/base/WindowText.h"
#include "forms/FormRefusal.h"
#include "standin/WindowEyes.h"

#include <algorithm>
#include <bit>
#include <initializer_list>

namespace tempodial {

namespace {

HWND VisibleForm(const FormKey& key)
{
    WindowHands::HandleMessages();
    auto windows = WindowEyes::Windows();
    // The newest of a class comes last.
    const auto found = std::find_if(windows.rbegin(), windows.rend(), [&key](HWND window) {
        const auto* name = std::get_if<std::string>(&key);
        return name == nullptr ? WindowEyes::NumberOf(window) == std::get<std::int32_t>(key)
                               : NameOf(window, FormProperty) == *name;
    });
    if (found == windows.rend()) {
        throw FormRefusal("no window shows such a form");
    }
    return *found;
}

/// The control of one of the kinds that a person can work now.
HWND WorkableWindow(const FormKey& form, const std::string& name, std::initializer_list<ControlKind> kinds)
{
    auto* const control = WindowEyes::Control(VisibleForm(form), name);
    if (control == nullptr || IsWindowVisible(control) == FALSE || IsWindowEnabled(control) == FALSE) {
        throw FormRefusal("the window shows no control \"" + name + "\" that can be worked");
    }
    if (std::find(kinds.begin(), kinds.end(), WindowEyes::See(control).kind) == kinds.end()) {
        throw FormRefusal("the control \"" + name + "\" is of another kind");
    }
    return control;
}

void ClickWindow(HWND control)
{
    SendMessageW(control, BM_CLICK, 0, 0);
    WindowHands::HandleMessages();
}

}

std::vector<FormSnapshot> WindowHands::Forms()
{
    HandleMessages();
    return WindowEyes::Forms();
}

void WindowHands::Type(const FormKey& form, const std::string& control, const std::string& text)
{
    auto* box = WorkableWindow(form, control, { ControlKind::TextBox, ControlKind::ComboBox });
    if (auto* const inside = FindWindowExW(box, nullptr, L"Edit", nullptr)) {
        box = inside;
    }
    SendMessageW(box, EM_SETSEL, 0, -1);
    SendMessageW(box, EM_REPLACESEL, TRUE, std::bit_cast<LPARAM>(Wide(text).c_str()));
    HandleMessages();
}

void WindowHands::Choose(const FormKey& form, const std::string& control, const EntryKey& entry)
{
    auto* const box = WorkableWindow(form, control, { ControlKind::ComboBox });
    const auto index = PositionOf(WindowEyes::See(box).list, control, entry);
    SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    // The box tells its form only of what a person chooses.
    SendMessageW(GetParent(box), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(box), CBN_SELCHANGE), std::bit_cast<LPARAM>(box));
    HandleMessages();
}

void WindowHands::Check(const FormKey& form, const std::string& control, bool checked)
{
    auto* const box = WorkableWindow(form, control, { ControlKind::CheckBox, ControlKind::OptionButton });
    const auto seen = WindowEyes::See(box);
    if (seen.kind == ControlKind::OptionButton && !checked) {
        throw FormRefusal("an option button is given up by choosing another one");
    }
    if (seen.checked != checked) {
        ClickWindow(box);
    }
}

void WindowHands::Click(const FormKey& form, const std::string& control)
{
    ClickWindow(WorkableWindow(form, control, { ControlKind::Button }));
}

bool WindowHands::Close(const FormKey& form)
{
    auto* const window = VisibleForm(form);
    SendMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    HandleMessages();
    return IsWindow(window) == FALSE || IsWindowVisible(window) == FALSE;
}

void WindowHands::HandleMessages()
{
    MSG message {};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

}
