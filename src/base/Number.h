#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tempodial {

/// A text as whole number: blanks around it, a sign, comma groups and a fraction after a point (rounded, a half to the
/// even number) are taken; any other text fails (13), a number too large fails (6).
std::int32_t ToInt32(std::string_view text);
/// The same within 16 bits.
std::int16_t ToInt16(std::string_view text);
/// The leading digits of the first two characters of a version text; none fails (13).
std::int32_t MajorVersion(std::string_view version);
/// A real number as whole number, a half going to the even number.
std::int32_t RoundHalfEven(double value);
/// Decimal text with at least that many digits.
std::string Padded(std::int32_t number, int digits);
/// "True" or "False".
std::string_view BooleanText(bool value);

}
