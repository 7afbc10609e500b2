#include "addin/win32/forms/ComboBoxWindow.h"

#include "addin/base/SystemText.h"
#include "addin/base/WindowText.h"
#include "forms/ComboBoxModel.h"

#include <algorithm>
#include <bit>

namespace tempodial {

namespace {

/// How many boxes high the list is that opens.
constexpr int OpenHeight = 9;

}

ComboBoxWindow::ComboBoxWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group)
    : ControlWindow(
        form, definition, number, { L"COMBOBOX", WS_TABSTOP | group | CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL })
{
    // As long as can be; the system would stop the person earlier than the engine does.
    Send(CB_LIMITTEXT);
}

void ComboBoxWindow::Move(const FormPlace& place)
{
    ControlWindow::Move({ place.x, place.y, place.width, place.height * OpenHeight });
}

void ComboBoxWindow::Tell(unsigned code, const Ref<Control>& model)
{
    const auto box = model.As<ComboBoxModel>();
    if (code == CBN_EDITCHANGE) {
        box->Type(TextOf(Window()));
    } else if (code == CBN_SELCHANGE) {
        const auto index = static_cast<std::int32_t>(Send(CB_GETCURSEL));
        if (index >= 0) {
            box->Choose(index);
        }
    }
}

void ComboBoxWindow::DrawKind(const ControlSnapshot& now)
{
    if (now.list != Drawn().list) {
        DrawList(now.list);
    }
    const auto index = static_cast<std::int32_t>(Send(CB_GETCURSEL));
    const auto showsText = TextOf(Window()) == now.text;
    // While the list is open, it goes along with what a person types.
    const auto goesAlong = now.index < 0 && Send(CB_GETDROPPEDSTATE) != FALSE;
    if (showsText && (index == now.index || goesAlong)) {
        return;
    }
    Send(CB_SETCURSEL, static_cast<WPARAM>(now.index));
    ShowText(now.text);
}

void ComboBoxWindow::DrawList(const std::vector<std::string>& list) const
{
    const auto& drawn = Drawn().list;
    auto entry = list.begin();
    if (drawn.size() <= list.size() && std::equal(drawn.begin(), drawn.end(), list.begin())) {
        entry += static_cast<std::ptrdiff_t>(drawn.size());
    } else {
        Send(CB_RESETCONTENT);
    }
    for (; entry != list.end(); ++entry) {
        Send(CB_ADDSTRING, 0, std::bit_cast<LPARAM>(Wide(*entry).c_str()));
    }
}

}
