#pragma once

#include "addin/base/Windows.h"

#include <string>
#include <string_view>

namespace tempodial {

/// A text as the system takes it; bytes that are no UTF-8 become the replacement character.
std::wstring Wide(std::string_view text);
/// A text of the system in UTF-8; half a pair becomes the replacement character.
std::string Narrow(std::wstring_view text);
/// A text as automation passes it, which the caller frees or gives away; fails (7) without memory.
BSTR NewBstr(std::string_view text);
/// A text that automation passed, "" for none.
std::string FromBstr(BSTR text);

}
