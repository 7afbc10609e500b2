#pragma once

#include <vector>

class QWidget;

namespace tempodial {

/// Gives the focus to the next of these parts of a window that can have it, or to the one before with a step of -1.
void FocusNextPane(const std::vector<QWidget*>& panes, int step);

}
