#pragma once

#include <string>

namespace tempodial {

class TempodialMain;

/// Where problem reports go unless something else is set.
std::string UsualSupportAddress();
/// Lets problem reports go to another address from now on.
void SetSupportAddress(TempodialMain& main, const std::string& address);

}
