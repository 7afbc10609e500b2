#pragma once

#include "addin/base/SystemText.h"
#include "addin/base/WindowText.h"
#include "addin/win32/forms/ControlWindow.h"
#include "forms/TextBoxModel.h"

#include <string>

namespace tempodial {

/// A box for a line or several.
class TextBoxWindow final : public ControlWindow
{
public:
    TextBoxWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group)
        : ControlWindow(form, definition, number,
            { L"EDIT",
                WS_TABSTOP | group
                    | (definition.severalLines ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL
                                               : ES_AUTOHSCROLL),
                WS_EX_CLIENTEDGE })
    {
        // As long as can be; the system would stop the person earlier than the engine does.
        Send(EM_SETLIMITTEXT);
    }

    void Tell(unsigned code, const Ref<Control>& model) override
    {
        if (code == EN_CHANGE) {
            model.As<TextBoxModel>()->Type(TextOf(Window()));
        }
    }

private:
    void DrawKind(const ControlSnapshot& now) override
    {
        if (TextOf(Window()) != now.text) {
            SetWindowTextW(Window(), Wide(WithSystemLines(now.text)).c_str());
        }
    }

    /// A text with its lines parted as the box does it.
    static std::string WithSystemLines(const std::string& text)
    {
        std::string lines;
        for (const auto character : text) {
            if (character == '\n') {
                lines += '\r';
            }
            lines += character;
        }
        return lines;
    }
};

}
