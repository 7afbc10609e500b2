#include "terminal/Arguments.h"

#include "base/Text.h"
#include "terminal/TerminalText.h"
#include "terminal/UsageError.h"

#include <charconv>
#include <chrono>
#include <optional>
#include <system_error>

namespace tempodial {

namespace {

constexpr std::string_view TimeForm = "00:00";
constexpr std::string_view MomentForm = "0000-00-00T00:00";
constexpr std::string_view MomentWithSecondsForm = "0000-00-00T00:00:00";

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// True when the text has digits where the form has them, and the form's own characters elsewhere.
bool Fits(std::string_view text, std::string_view form)
{
    bool fits = text.size() == form.size();
    for (std::size_t i = 0; fits && i < form.size(); ++i) {
        fits = IsDigit(form[i]) ? IsDigit(text[i]) : text[i] == form[i];
    }
    return fits;
}

int NumberAt(std::string_view text, std::size_t position, std::size_t length)
{
    int number = 0;
    if (position < text.size()) {
        std::from_chars(text.data() + position, text.data() + position + length, number);
    }
    return number;
}

std::optional<Date> Read(std::string_view text, std::string_view form)
{
    if (!Fits(text, form)) {
        return std::nullopt;
    }
    const Date::Parts parts { NumberAt(text, 0, 4), NumberAt(text, 5, 2), NumberAt(text, 8, 2), NumberAt(text, 11, 2),
        NumberAt(text, 14, 2), NumberAt(text, 17, 2) };
    const std::chrono::year_month_day date { std::chrono::year(parts.year),
        std::chrono::month(static_cast<unsigned>(parts.month)), std::chrono::day(static_cast<unsigned>(parts.day)) };
    constexpr int FirstYear = 100;
    if (parts.year < FirstYear || !date.ok() || parts.hour > 23 || parts.minute > 59 || parts.second > 59) {
        return std::nullopt;
    }
    return Date::FromParts(parts);
}

[[noreturn]] void Refuse(std::string_view name, std::string_view text, std::string_view advice)
{
    throw UsageError(std::string(name) + " can't be " + InQuotes(text) + ": " + std::string(advice));
}

}

Date ToMoment(std::string_view name, std::string_view text)
{
    const auto moment = Read(text, MomentForm);
    if (!moment) {
        Refuse(name, text, "give a moment as YYYY-MM-DDTHH:MM, such as 2006-10-10T09:05");
    }
    return *moment;
}

Date ToMomentOn(Date day, std::string_view name, std::string_view text)
{
    const auto moment
        = Read(Fits(text, TimeForm) ? IsoDay(day) + "T" + std::string(text) : std::string(text), MomentForm);
    if (!moment) {
        Refuse(name, text, "give a moment as YYYY-MM-DDTHH:MM, such as 2006-10-10T09:05, or a time as HH:MM");
    }
    return *moment;
}

Date ToMomentWithSeconds(std::string_view name, std::string_view text)
{
    const auto moment = Read(text, MomentWithSecondsForm);
    if (!moment) {
        Refuse(name, text, "give a moment as YYYY-MM-DDTHH:MM:SS, such as 2006-10-10T09:05:00");
    }
    return *moment;
}

std::int32_t ToCount(std::string_view name, std::string_view text, std::int32_t least, std::int32_t most)
{
    std::int32_t count = 0;
    const auto* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc() || stop != end || count < least || count > most) {
        Refuse(name, text, "give a whole number from " + std::to_string(least) + " to " + std::to_string(most));
    }
    return count;
}

std::int64_t ToActivityNumber(std::string_view text)
{
    std::int64_t number = 0;
    const auto* const end = text.data() + text.size();
    if (text.starts_with('@') && text.size() > 1 && IsDigit(text[1])) {
        const auto [stop, problem] = std::from_chars(text.data() + 1, end, number);
        if (stop == end && problem == std::errc()) {
            return number;
        }
    }
    throw UsageError("\"" + std::string(text) + "\" names no activity: give its number, such as @12, which "
        + "\"tempodial list --ids\" shows");
}

Hive ToHive(std::string_view text)
{
    if (EqualIgnoringCase(text, "HKCU")) {
        return Hive::CurrentUser;
    }
    if (EqualIgnoringCase(text, "HKLM")) {
        return Hive::LocalMachine;
    }
    throw UsageError("there is no hive " + InQuotes(text) + ": give HKCU or HKLM");
}

}
