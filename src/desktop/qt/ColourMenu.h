#pragma once

#include "desktop/ColourBook.h"

#include <string>

class QMenu;

namespace tempodial {

class Desk;

/// Fills a menu with what activities can be coloured by; the one that is on is checked whenever it opens. The desk must
/// live as long as the menu.
void FillColouredBy(QMenu& menu, Desk& desk);

/// Fills a menu with all tones, of which a project or an application gets the one that is chosen. The desk must live as
/// long as the menu.
void FillTones(QMenu& menu, Desk& desk, Coloured kind, const std::string& name);

}
