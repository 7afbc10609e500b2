#include "addin/base/AutomationDate.h"

#include "base/Failure.h"

#include <cmath>
#include <cstdint>

namespace tempodial {

namespace {

constexpr std::int64_t SecondsOfDay = 86400;
/// The first day of the year 100, and the last of the year 9999.
constexpr double FirstDay = -657434;
constexpr double LastDay = 2958465;

}

double ToAutomationDate(Date moment)
{
    const auto days = moment.Day().Seconds() / SecondsOfDay;
    const auto part = static_cast<double>(moment.SecondOfDay()) / static_cast<double>(SecondsOfDay);
    return static_cast<double>(days) + (days < 0 ? -part : part);
}

Date FromAutomationDate(double days)
{
    if (!(days > FirstDay - 1 && days < LastDay + 1)) {
        throw Failure(Error::Overflow);
    }
    const auto day = std::trunc(days);
    const auto second = std::llround(std::fabs(days - day) * static_cast<double>(SecondsOfDay));
    return Date().AddDays(static_cast<std::int64_t>(day)).AddSeconds(second);
}

}
