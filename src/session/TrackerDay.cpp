#include "session/TrackerDay.h"

#include "engine/core/ProductWords.h"

#include <algorithm>
#include <string_view>

namespace tempodial {

std::string TrackerDay(const std::string& fileName)
{
    constexpr std::string_view Prefix = TrackerFilePrefix;
    constexpr std::size_t KeyLength = 8;
    if (!fileName.starts_with(Prefix)) {
        return {};
    }
    auto key = fileName.substr(Prefix.size(), KeyLength);
    const bool isKey = key.size() == KeyLength
        && std::all_of(key.begin(), key.end(), [](char digit) { return digit >= '0' && digit <= '9'; });
    return isKey && fileName == TrackerFileName(key) ? key : std::string();
}

Date DayOfKey(const std::string& key)
{
    constexpr std::size_t YearDigits = 4;
    constexpr std::size_t MonthDigits = 2;
    return Date::FromTexts(key.substr(0, YearDigits), std::stoi(key.substr(YearDigits, MonthDigits)),
        key.substr(YearDigits + MonthDigits));
}

}
