#pragma once

namespace tempodial {

/// True for a character that is a letter or a digit in any script.
bool IsLetterOrDigit(char32_t character);

}
