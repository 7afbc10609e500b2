#include "workload/WatchedYear.h"

#include <cstdio>
#include <stdexcept>
#include <string_view>

namespace tempodial {

namespace {

constexpr auto WindowBucket = "currentwindow";
constexpr auto PageBucket = "web.tab.current";
constexpr auto IdleBucket = "afkstatus";
constexpr std::int64_t MorningSeconds = 8 * 3600;
constexpr std::int64_t DayLength = 11 * 3600;
constexpr std::uint32_t KnownTitles = 20000;

std::string Timestamp(Date day, double seconds)
{
    constexpr double Hour = 3600;
    constexpr double Minute = 60;
    const auto hours = static_cast<int>(seconds / Hour);
    const auto minutes = static_cast<int>((seconds - hours * Hour) / Minute);
    const auto key = day.DayKey();
    char time[64];
    std::snprintf(
        time, sizeof time, "T%02d:%02d:%09.6f+00:00", hours, minutes, seconds - hours * Hour - minutes * Minute);
    return key.substr(0, 4) + "-" + key.substr(4, 2) + "-" + key.substr(6) + time;
}

}

void WatchedYear::Write(const std::string& path, std::int64_t days, std::int64_t eventsOfDay)
{
    mFile.open(path, std::ios::binary);
    mFile << "{\"buckets\": {";
    constexpr std::int64_t Stretches = 8;
    const auto pages = eventsOfDay * 3 / 10;
    WriteBucket(WindowBucket, days, eventsOfDay - pages - Stretches);
    mFile << ", ";
    WriteBucket(PageBucket, days, pages);
    mFile << ", ";
    WriteBucket(IdleBucket, days, Stretches);
    mFile << "}}\n";
    mFile.close();
    if (!mFile) {
        throw std::runtime_error(path + " can't be written");
    }
}

void WatchedYear::WriteBucket(const char* type, std::int64_t days, std::int64_t events)
{
    mFile << "\"" << type << "_box\": {\"id\": \"" << type << "_box\", \"created\": \"2020-01-01T00:00:00+00:00\", "
          << "\"name\": null, \"type\": \"" << type << "\", \"client\": \"" << type
          << "\", \"hostname\": \"box\", \"data\": {}, \"events\": [";
    auto number = days * events;
    // Exports begin with the newest.
    for (std::int64_t back = 0; back < days; ++back) {
        const auto length = static_cast<double>(DayLength) / static_cast<double>(events);
        for (auto event = events - 1; event >= 0; --event) {
            mFile << "{\"id\": " << number << ", \"timestamp\": \""
                  << Timestamp(mLast.AddDays(-back),
                         static_cast<double>(MorningSeconds) + length * static_cast<double>(event))
                  << "\", \"duration\": " << length * 0.999 << ", \"data\": {" << DataOf(type, number) << "}}"
                  << (number > 1 ? ", " : "");
            --number;
        }
    }
    mFile << "]}";
}

std::string WatchedYear::DataOf(const char* type, std::int64_t number)
{
    if (std::string_view(type) == IdleBucket) {
        return R"("status": "not-afk")";
    }
    constexpr std::uint32_t Ten = 10;
    constexpr std::uint32_t NewOfTen = 3;
    const bool isNew = mChance.Below(Ten) < NewOfTen;
    const auto name = isNew ? "issue " + std::to_string(number) : "page " + std::to_string(mChance.Below(KnownTitles));
    const auto title = "How the valves of " + name
        + " are set when the river rises, and who has to be told \\u2013 Bramford waterworks handbook";
    if (std::string_view(type) == PageBucket) {
        return R"("url": "https://handbook.example.com/bramford/valves?of=)" + name + R"(&rev=41", "title": ")" + title
            + R"(", "audible": false, "incognito": false, "tabCount": 12)";
    }
    static constexpr const char* Programs[]
        = { "firefox", "firefox", "Code", "gnome-terminal-server", "Slack", "soffice.bin" };
    return std::string(R"("app": ")") + Programs[mChance.Below(std::size(Programs))] + R"(", "title": ")" + title
        + " \\u2014 Mozilla Firefox\"";
}

}
