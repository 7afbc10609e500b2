#include "session/WorkWeek.h"

#include "base/Failure.h"
#include "base/Number.h"
#include "base/Text.h"
#include "host/windows/HostApplication.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace tempodial {

namespace {

constexpr std::size_t DayCount = 7;
constexpr std::array<std::string_view, DayCount> DayNames { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" };
constexpr std::int32_t SundayBit = 128;
constexpr std::int32_t HourMinutes = 60;
constexpr std::int32_t DayMinutes = 24 * HourMinutes;

constexpr auto StartValue = "CalDefStart";
constexpr auto EndValue = "CalDefEnd";
constexpr auto DaysValue = "WorkDay";

/// The bit of a day, Monday 0 to Sunday 6.
std::int32_t BitOf(std::size_t day)
{
    return SundayBit >> ((day + 1) % DayCount);
}

/// The key of the host's calendar, which bears its version.
std::string CalendarKey()
{
    return R"(Software\Microsoft\Office\)" + std::string(HostApplication::DefaultVersion).substr(0, 2)
        + R"(.0\Outlook\Options\Calendar)";
}

std::optional<std::size_t> DayNamed(const std::string& name)
{
    const auto* const found = std::find_if(
        DayNames.begin(), DayNames.end(), [&name](std::string_view known) { return EqualIgnoringCase(known, name); });
    return found == DayNames.end() ? std::nullopt : std::optional(static_cast<std::size_t>(found - DayNames.begin()));
}

/// The bits of days as "Mon-Wed,Fri" has them, nothing for another text.
std::optional<std::int32_t> DaysIn(const std::string& text)
{
    std::int32_t days = 0;
    for (const auto& part : Split(text, ",")) {
        const auto ends = Split(part, "-");
        const auto first = DayNamed(ends.empty() ? "" : ends.front());
        const auto last = DayNamed(ends.empty() ? "" : ends.back());
        if (!first || !last || ends.size() > 2) {
            return std::nullopt;
        }
        for (auto day = *first;; day = (day + 1) % DayCount) {
            days |= BitOf(day);
            if (day == *last) {
                break;
            }
        }
    }
    return days == 0 ? std::nullopt : std::optional(days);
}

std::optional<std::int32_t> MinuteIn(const std::string& text)
{
    constexpr std::string_view form = "00:00";
    constexpr std::int32_t ten = 10;
    if (text.size() != form.size()) {
        return std::nullopt;
    }
    for (std::size_t i = 0; i < text.size(); ++i) {
        if ((text[i] >= '0' && text[i] <= '9') != (form[i] == '0') || (form[i] == ':' && text[i] != ':')) {
            return std::nullopt;
        }
    }
    const auto digit = [&text](std::size_t at) { return text[at] - '0'; };
    const auto hour = digit(0) * ten + digit(1);
    const auto minute = digit(3) * ten + digit(4);
    const auto time = hour * HourMinutes + minute;
    return minute < HourMinutes && time <= DayMinutes ? std::optional(time) : std::nullopt;
}

std::string MinuteText(std::int32_t time)
{
    const auto twoDigits = [](std::int32_t number) {
        return (number < 10 ? "0" : "") + std::to_string(number); // NOLINT(readability-magic-numbers): two digits
    };
    return twoDigits(time / HourMinutes) + ":" + twoDigits(time % HourMinutes);
}

std::string DaysText(std::int32_t days)
{
    const auto has = [days](std::size_t day) { return (days & BitOf(day % DayCount)) != 0; };
    // A run of days that goes over the end of the week is told from its begin.
    std::size_t begin = 0;
    while (begin < DayCount && has(begin) && has(begin + DayCount - 1)) {
        ++begin;
    }
    begin %= DayCount;
    std::string text;
    for (std::size_t day = begin; day < begin + DayCount;) {
        if (!has(day)) {
            ++day;
            continue;
        }
        const auto first = day;
        while (day < begin + DayCount && has(day)) {
            ++day;
        }
        text += (text.empty() ? "" : ",") + std::string(DayNames[first % DayCount]);
        if (day - first > 1) {
            text += "-" + std::string(DayNames[(day - 1) % DayCount]);
        }
    }
    return text.empty() ? "none" : text;
}

}

std::optional<WorkWeek> WorkWeek::FromText(const std::string& text)
{
    const auto parts = Split(Trim(text), " ");
    const auto times = parts.size() == 2 ? Split(parts.back(), "-") : std::vector<std::string>();
    if (times.size() != 2) {
        return std::nullopt;
    }
    const auto days = DaysIn(parts.front());
    const auto start = MinuteIn(times.front());
    const auto end = MinuteIn(times.back());
    if (!days || !start || !end || *start >= *end) {
        return std::nullopt;
    }
    return WorkWeek { *start, *end, *days };
}

std::string WorkWeek::Text() const
{
    return DaysText(days) + " " + MinuteText(start) + "-" + MinuteText(end);
}

WorkWeek WorkWeek::In(const TomlRegistry& registry)
{
    WorkWeek week;
    const auto read = [&](std::int32_t& part, const char* value) {
        try {
            part = ToInt16(registry.Get(Hive::CurrentUser, CalendarKey(), value).ToText());
        } catch (const Failure&) {
            // What is no number stays as usual, as it does for reports.
        }
    };
    read(week.start, StartValue);
    read(week.end, EndValue);
    read(week.days, DaysValue);
    return week;
}

void WorkWeek::Keep(TomlRegistry& registry) const
{
    const auto keep = [&](const char* value, std::int32_t part, std::int32_t usual) {
        if (part == usual) {
            registry.Delete(Hive::CurrentUser, CalendarKey(), value);
        } else {
            registry.WriteNumber(Hive::CurrentUser, CalendarKey(), value, part);
        }
    };
    registry.AllOrNothing([&] {
        const WorkWeek usual;
        keep(StartValue, start, usual.start);
        keep(EndValue, end, usual.end);
        keep(DaysValue, days, usual.days);
    });
}

}
