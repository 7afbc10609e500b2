#pragma once

#include "addin/win32/forms/ControlWindow.h"
#include "forms/ButtonModel.h"

namespace tempodial {

/// A push button.
class ButtonWindow final : public ControlWindow
{
public:
    ButtonWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group)
        : ControlWindow(form, definition, number,
            { L"BUTTON",
                WS_TABSTOP | group | (definition.role == ButtonRole::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) })
    {
    }

    void Tell(unsigned code, const Ref<Control>& model) override
    {
        if (code == BN_CLICKED) {
            model.As<ButtonModel>()->Click();
        }
    }

private:
    void DrawKind(const ControlSnapshot& now) override { ShowText(now.text); }
};

}
