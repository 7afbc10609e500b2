#pragma once

#include <string>

class QWidget;

namespace tempodial {

/// True unless a field is empty and is to stay so, for which there is no key.
bool CanBeTyped(const QWidget& field, const std::string& text);

/// Types a text over all that a field holds, as one input. The field is one of a line or of several, or a combo box.
void TypeOver(QWidget& field, const std::string& text);

/// Leaves a field by a key; one whose window isn't in front, where no key moves the focus, takes what was typed by
/// Enter.
void LeaveField(QWidget& field);

}
