#pragma once

#include "addin/base/CommonControls.h"

#include <string>

namespace tempodial {

/// What a form tells of its controls when the pointer rests on them. The window goes with the form's.
class FormToolTips
{
public:
    explicit FormToolTips(HWND form);

    /// Tells a text of a control, also on the parts that it is made of.
    void Add(HWND control, const std::string& text) const;
    /// Breaks texts into lines of at most so many pixels.
    void SetWidth(int widest) const;

private:
    void AddTo(HWND window, std::wstring text) const;

    HWND mForm;
    HWND mWindow;
};

}
