#pragma once

#include "desktop/DesktopSettings.h"

class QWidget;

namespace tempodial {

/// Gives a window that isn't shown yet the size and the screen with which it was left, as far as there is room for it
/// and such a screen.
void PutWhereLeft(QWidget& window, const DesktopSettings& settings);

/// Notes size and screen of a window, and whether it fills that.
void NotePlace(const QWidget& window, DesktopSettings& settings);

}
