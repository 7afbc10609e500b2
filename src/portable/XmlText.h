#pragma once

#include <string_view>

namespace tempodial {

/// True when XML can hold each character of a text.
bool IsXmlText(std::string_view text);

}
