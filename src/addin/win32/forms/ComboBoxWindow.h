#pragma once

#include "addin/win32/forms/ControlWindow.h"

#include <string>
#include <vector>

namespace tempodial {

/// A text box with a list.
class ComboBoxWindow final : public ControlWindow
{
public:
    ComboBoxWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group);

    void Move(const FormPlace& place) override;
    void Tell(unsigned code, const Ref<Control>& model) override;

private:
    void DrawKind(const ControlSnapshot& now) override;
    void DrawList(const std::vector<std::string>& list) const;
};

}
