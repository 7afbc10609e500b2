#pragma once

#include <QString>
#include <string>

namespace tempodial {

/// A text of somebody else's as a line on the screen: harmless, with its direction kept to itself, and no longer than
/// any line can be.
QString ShownLine(const std::string& text);
/// A text as a tool tip that shows its marks as they are, line by line; the toolkit would take some for markup.
QString PlainToolTip(const QString& text);

}
