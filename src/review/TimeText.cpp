#include "review/TimeText.h"

#include "base/Number.h"

namespace tempodial {

namespace {

constexpr std::int64_t HourMinutes = 60;

std::string TwoDigits(std::int64_t number)
{
    return Padded(static_cast<std::int32_t>(number), 2);
}

}

std::string HourText(std::int64_t minutes)
{
    return std::to_string(minutes / HourMinutes) + ":" + TwoDigits(minutes % HourMinutes);
}

std::string DecimalHours(std::int64_t minutes)
{
    constexpr std::int64_t Hundred = 100;
    const auto hundredths = (minutes * Hundred + HourMinutes / 2) / HourMinutes;
    return std::to_string(hundredths / Hundred) + "." + TwoDigits(hundredths % Hundred);
}

}
