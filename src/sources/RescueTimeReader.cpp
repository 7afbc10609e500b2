#include "sources/RescueTimeReader.h"

#include "slots/SlotTimes.h"
#include "sources/CsvRecords.h"
#include "sources/MomentText.h"
#include "sources/SourceProblem.h"

#include <algorithm>
#include <charconv>
#include <map>

namespace tempodial {

namespace {

/// What an export looks like whose rows say hours or days.
constexpr auto NotFiveMinutes = "these rows are by hours or days, which say nothing of the time: export them with "
                                "resolution_time=minute";

std::optional<std::int64_t> ReadSeconds(std::string_view text)
{
    std::int64_t seconds = 0;
    const auto* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, seconds);
    return read.ec == std::errc() && read.ptr == end && seconds >= 0 ? std::optional(seconds) : std::nullopt;
}

}

SourceData RescueTimeReader::Read(std::istream& stream, const SourceSettings& settings)
{
    SourceData data;
    CsvRecords records(stream, settings, data.skipped);
    const auto date = records.Column({ "Date" });
    const auto seconds = records.Column({ "Time Spent (seconds)" });
    const auto activity = records.Column({ "Activity" });
    if (!seconds || !activity) {
        throw WrongSource(
            "the first line must name the columns Date, Time Spent (seconds) and Activity: export the rows "
            "as CSV");
    }
    if (!date) {
        throw WrongSource(NotFiveMinutes);
    }
    const auto category = records.Column({ "Category" });
    const auto document = records.Column({ "Document" });
    data.computers.emplace_back();
    data.computers.front().isTold = true;
    // Seconds of each slot that are given away already.
    std::map<std::int64_t, std::int64_t> used;
    std::int64_t offGrid = 0;
    std::int64_t onTheHour = 0;
    std::int64_t rows = 0;
    while (records.Next()) {
        const auto moment = ReadMoment(records.Field(date));
        const auto spent = ReadSeconds(records.Field(seconds));
        if (!moment || !spent) {
            data.skipped.AddUnreadable(records.Line());
            continue;
        }
        ++rows;
        const auto slot = moment->written.Seconds();
        constexpr std::int64_t Hour = 3600;
        onTheHour += slot % Hour == 0 ? 1 : 0;
        if (*spent > SlotSeconds) {
            ++offGrid;
            continue;
        }
        const auto begin = slot - slot % SlotSeconds;
        auto& taken = used[begin];
        const auto length = std::min(*spent, SlotSeconds - taken);
        if (length <= 0) {
            data.skipped.Add(Skipped::ZeroLength, *spent == 0 ? 1 : 0);
            continue;
        }
        Sighting sighting;
        sighting.program = records.Field(activity);
        sighting.programName = sighting.program;
        sighting.title = records.Field(document);
        if (sighting.title.empty() || sighting.title == "No Details") {
            sighting.title = records.Field(category);
        }
        data.windows.push_back({ begin + taken, begin + taken + length, 0, data.sightings.NumberOf(sighting) });
        data.computers.front().presence.Add(begin + taken, begin + taken + length);
        taken += length;
    }
    constexpr std::size_t HoursThatTell = 3;
    if (offGrid > 0 || (used.size() >= HoursThatTell && onTheHour == rows)) {
        throw WrongSource(NotFiveMinutes);
    }
    return data;
}

}
