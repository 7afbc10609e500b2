#include "base/Number.h"

#include "base/Failure.h"
#include "base/Text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <system_error>

namespace tempodial {

namespace {

constexpr bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Takes the leading digits off a text.
std::string_view TakeDigits(std::string_view& text)
{
    std::size_t count = 0;
    while (count < text.size() && IsDigit(text[count])) {
        ++count;
    }
    const auto digits = text.substr(0, count);
    text.remove_prefix(count);
    return digits;
}

bool TakeComma(std::string_view& text)
{
    const bool found = text.starts_with(',');
    text.remove_prefix(found ? 1 : 0);
    return found;
}

/// Appends digits to a number, which stays at a limit far outside 32 bits once it got there.
void Append(std::int64_t& number, std::string_view digits)
{
    constexpr std::int64_t Limit = std::int64_t(1) << 40;
    for (const char digit : digits) {
        number = std::min(Limit, number * 10 + (digit - '0'));
    }
}

bool IsRoundedUp(std::int64_t number, std::string_view fraction)
{
    if (fraction.empty() || fraction[0] < '5') {
        return false;
    }
    const bool isHalf = fraction[0] == '5' && fraction.find_first_not_of('0', 1) == std::string_view::npos;
    return !isHalf || number % 2 != 0;
}

std::int64_t ToWhole(std::string_view text)
{
    constexpr std::size_t GroupSize = 3;
    std::int64_t plain = 0;
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), plain);
    if (problem == std::errc() && end == text.data() + text.size()) {
        return plain;
    }
    const auto trimmed = Trim(text);
    std::string_view rest = trimmed;
    const bool isNegative = rest.starts_with('-');
    if (isNegative || rest.starts_with('+')) {
        rest.remove_prefix(1);
    }

    std::int64_t number = 0;
    const auto head = TakeDigits(rest);
    Append(number, head);
    if (!head.empty() && head.size() <= GroupSize) {
        while (TakeComma(rest)) {
            const auto group = TakeDigits(rest);
            if (group.size() != GroupSize) {
                throw Failure(Error::TypeMismatch);
            }
            Append(number, group);
        }
    }
    std::string_view fraction;
    if (rest.starts_with('.')) {
        rest.remove_prefix(1);
        fraction = TakeDigits(rest);
    }
    if (!rest.empty() || (head.empty() && fraction.empty())) {
        throw Failure(Error::TypeMismatch);
    }
    if (IsRoundedUp(number, fraction)) {
        ++number;
    }
    return isNegative ? -number : number;
}

template <class Whole> Whole Narrow(std::int64_t number)
{
    if (number < std::numeric_limits<Whole>::min() || number > std::numeric_limits<Whole>::max()) {
        throw Failure(Error::Overflow);
    }
    return static_cast<Whole>(number);
}

}

std::int32_t ToInt32(std::string_view text)
{
    return Narrow<std::int32_t>(ToWhole(text));
}

std::int16_t ToInt16(std::string_view text)
{
    return Narrow<std::int16_t>(ToWhole(text));
}

std::int32_t MajorVersion(std::string_view version)
{
    auto start = version.substr(0, 2);
    const auto digits = TakeDigits(start);
    if (digits.empty()) {
        throw Failure(Error::TypeMismatch);
    }
    std::int64_t number = 0;
    Append(number, digits);
    return static_cast<std::int32_t>(number);
}

std::int32_t RoundHalfEven(double value)
{
    const auto rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max())) {
        throw Failure(Error::Overflow);
    }
    return static_cast<std::int32_t>(rounded);
}

std::string Padded(std::int32_t number, int digits)
{
    auto text = std::to_string(std::abs(std::int64_t(number)));
    if (text.size() < static_cast<std::size_t>(std::max(digits, 0))) {
        text.insert(0, static_cast<std::size_t>(digits) - text.size(), '0');
    }
    return number < 0 ? "-" + text : text;
}

std::string_view BooleanText(bool value)
{
    return value ? "True" : "False";
}

}
