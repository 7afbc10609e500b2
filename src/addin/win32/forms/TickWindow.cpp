#include "addin/win32/forms/TickWindow.h"

#include "forms/CheckBoxModel.h"
#include "forms/OptionButtonModel.h"

namespace tempodial {

TickWindow::TickWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group)
    : ControlWindow(form, definition, number,
        { L"BUTTON",
            WS_TABSTOP | group | BS_MULTILINE
                | (definition.kind == ControlKind::CheckBox ? BS_AUTOCHECKBOX : BS_AUTORADIOBUTTON) })
{
}

void TickWindow::Tell(unsigned code, const Ref<Control>& model)
{
    if (code != BN_CLICKED) {
        return;
    }
    if (const auto box = model.As<CheckBoxModel>()) {
        box->Check(IsTicked());
    } else if (IsTicked()) {
        // An option button says so also when it only gets the keys.
        model.As<OptionButtonModel>()->Choose();
    }
}

void TickWindow::DrawKind(const ControlSnapshot& now)
{
    ShowText(now.text);
    if (IsTicked() != now.checked) {
        Send(BM_SETCHECK, now.checked ? BST_CHECKED : BST_UNCHECKED);
    }
}

}
