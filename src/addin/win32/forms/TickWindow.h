#pragma once

#include "addin/win32/forms/ControlWindow.h"

namespace tempodial {

/// A check box or an option button.
class TickWindow final : public ControlWindow
{
public:
    TickWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group);

    void Tell(unsigned code, const Ref<Control>& model) override;

private:
    void DrawKind(const ControlSnapshot& now) override;
    bool IsTicked() const { return Send(BM_GETCHECK) == BST_CHECKED; }
};

}
