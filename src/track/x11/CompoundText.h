#pragma once

#include <string>
#include <string_view>

namespace tempodial {

/// A text in the encoding of X11's COMPOUND_TEXT as UTF-8: ASCII and Latin-1, what is said to be UTF-8, and the
/// national sets that iconv knows. What belongs to no known set is left out.
std::string FromCompoundText(std::string_view text);
/// A text in Latin-1 as UTF-8.
std::string FromLatin1(std::string_view text);

}
