#pragma once

#include "addin/win32/forms/ControlWindow.h"

#include <string>

namespace tempodial {

/// A label. Only a text that is defined with a key has one, so that other texts are shown as they are.
class LabelWindow final : public ControlWindow
{
public:
    LabelWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group)
        : ControlWindow(form, definition, number, { L"STATIC", SS_LEFT | KeyStyle(definition) | group })
    {
    }

private:
    static DWORD KeyStyle(const ControlDefinition& definition)
    {
        return definition.text.find('&') == std::string::npos ? SS_NOPREFIX : 0;
    }

    void DrawKind(const ControlSnapshot& now) override { ShowText(now.text); }
};

}
