#include "sources/Sources.h"

#include "base/Text.h"
#include "base/Utf8.h"
#include "sources/ActivityWatchReader.h"
#include "sources/ArbttReader.h"
#include "sources/CalendarReader.h"
#include "sources/EntryTable.h"
#include "sources/RescueTimeReader.h"

#include <array>

namespace tempodial {

namespace {

template <class Reader> std::unique_ptr<SourceReader> Made()
{
    return std::make_unique<Reader>();
}

template <EntryTableKind Kind> std::unique_ptr<SourceReader> MadeTable()
{
    return std::make_unique<EntryTable>(Kind);
}

constexpr std::array Known {
    Source { "activitywatch", "ActivityWatch's export of all buckets (JSON), also awatcher's", false, true,
        Made<ActivityWatchReader> },
    Source { "rescuetime", "RescueTime's rows of five minutes (CSV)", false, true, Made<RescueTimeReader> },
    Source { "arbtt", "arbtt's dump (arbtt-dump -t json)", false, true, Made<ArbttReader> },
    Source { "toggl", "Toggl's detailed report (CSV)", true, false, MadeTable<EntryTableKind::Toggl> },
    Source { "clockify", "Clockify's detailed report (CSV)", true, false, MadeTable<EntryTableKind::Clockify> },
    Source { "ics", "a calendar; meetings come only into free time", true, false, Made<CalendarReader> },
    Source { "csv", "a table with the columns start, end, program, and title, project, url if you have them", true,
        true, MadeTable<EntryTableKind::Csv> },
};

}

std::span<const Source> AllSources()
{
    return Known;
}

std::string_view SourceThatBegins(std::string_view beginning)
{
    if (beginning.starts_with(Utf8ByteOrderMark)) {
        beginning.remove_prefix(Utf8ByteOrderMark.size());
    }
    const auto first = beginning.find_first_not_of(" \t\r\n");
    beginning.remove_prefix(first == std::string_view::npos ? beginning.size() : first);
    if (beginning.starts_with('{')) {
        return beginning.find("\"buckets\"") == std::string_view::npos ? "" : "activitywatch";
    }
    if (beginning.starts_with('[')) {
        return beginning.find("\"inactive\"") == std::string_view::npos ? "" : "arbtt";
    }
    if (beginning.starts_with("BEGIN:VCALENDAR")) {
        return "ics";
    }
    const auto written = beginning.substr(0, beginning.find_first_of("\r\n"));
    const auto heading = Fold(written);
    const auto has = [&heading](std::string_view words) { return heading.find(words) != std::string::npos; };
    if (has("time spent (seconds)")) {
        return "rescuetime";
    }
    if (has("start date") && has("start time")) {
        const bool isClockify = has("duration (h)") || written.find("Start Date") != std::string_view::npos;
        return isClockify ? "clockify" : "toggl";
    }
    if (has("timestamp") && has("duration")) {
        return "activitywatch's csv";
    }
    return has("start") && has("end") && has("program") ? "csv" : "";
}

}
