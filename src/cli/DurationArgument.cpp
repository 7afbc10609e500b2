#include "cli/DurationArgument.h"

#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <charconv>
#include <string_view>

namespace tempodial {

namespace {

constexpr std::int64_t MinuteSeconds = 60;
constexpr std::int64_t HourSeconds = 60 * MinuteSeconds;
constexpr std::int64_t DayLength = 24 * HourSeconds;
constexpr std::int64_t LongestDuration = 366 * DayLength;

/// The seconds of a unit, 0 for a letter that is none.
std::int64_t SecondsOfUnit(char unit)
{
    switch (unit) {
    case 's':
        return 1;
    case 'm':
        return MinuteSeconds;
    case 'h':
        return HourSeconds;
    case 'd':
        return DayLength;
    default:
        return 0;
    }
}

}

std::int64_t ToSeconds(const std::string& name, const std::string& text)
{
    std::int64_t seconds = 0;
    bool isGood = !text.empty();
    for (std::string_view rest = text; isGood && !rest.empty();) {
        std::int64_t number = 0;
        const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), number);
        rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
        const auto unit = rest.empty() ? 0 : SecondsOfUnit(rest.front());
        isGood = error == std::errc() && number >= 0 && number <= LongestDuration && unit > 0;
        seconds += isGood ? number * unit : 0;
        rest.remove_prefix(rest.empty() ? 0 : 1);
        isGood = isGood && seconds <= LongestDuration;
    }
    if (!isGood || seconds == 0) {
        throw UsageError(name + " can't be " + InQuotes(text) + ": give a time such as 30m, 2h or 1h30m");
    }
    return seconds;
}

}
