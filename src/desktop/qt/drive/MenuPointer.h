#pragma once

#include <string>
#include <vector>

class QMenuBar;

namespace tempodial {

/// Opens the menus of a bar along captions, one by one, and clicks the entry to which they lead. Fails with
/// `RequestError` when a person can't get there.
void ClickInMenus(QMenuBar& bar, const std::vector<std::string>& captions);

}
