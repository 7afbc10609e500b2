#pragma once

#include "addin/base/Windows.h"
#include "addin/win32/forms/TextMeasure.h"

namespace tempodial {

/// A window of the dialog manager's without controls.
class EmptyDialog
{
public:
    /// A hidden one; fails with `Failure` (429) when the system makes none. The procedure gets the parameter when the
    /// window begins.
    static HWND Make(HWND owner, DLGPROC procedure, LPARAM parameter);
    /// Makes it as large as controls need that take so many pixels, on a screen of so many dots per inch.
    static void Resize(HWND dialog, PixelSize inside, unsigned dpi);
    /// Moves it to the middle of its owner, or of the screen when it has none that can be seen.
    static void Center(HWND dialog, HWND owner);
};

}
