#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// The host that the address of a web page names, without account and port; empty for what is no such address.
std::string PageHost(std::string_view url);

}
