#pragma once

#include <QIcon>

namespace tempodial {

/// The program's picture: that of the desktop's theme, or one that is painted where it isn't installed.
QIcon ProgramIcon();

}
