#pragma once

#include "addin/base/CommonControls.h"
#include "addin/win32/forms/ControlWindow.h"

namespace tempodial {

/// A bar that shows how far a job is.
class ProgressBarWindow final : public ControlWindow
{
public:
    ProgressBarWindow(HWND form, const ControlDefinition& definition, WORD number, DWORD group)
        : ControlWindow(form, definition, number, { PROGRESS_CLASSW, group })
    {
    }

private:
    void DrawKind(const ControlSnapshot& now) override
    {
        if (now.min != Drawn().min || now.max != Drawn().max) {
            Send(PBM_SETRANGE32, static_cast<WPARAM>(now.min), now.max);
        }
        if (now.value != Send(PBM_GETPOS)) {
            Send(PBM_SETPOS, static_cast<WPARAM>(now.value));
        }
    }
};

}
