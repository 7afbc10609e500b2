#include "sources/CalendarReader.h"

#include "base/Utf8.h"
#include "slots/PlainText.h"
#include "sources/CalendarPieces.h"
#include "sources/MomentText.h"
#include "sources/SourceProblem.h"

#include <string>
#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t LongestMeeting = 86400;

/// All that the pieces of a calendar hold.
CalendarContent ContentOf(CalendarPieces& pieces, const SourceSettings& settings)
{
    CalendarContent content;
    const auto until = settings.zone.MomentOf(settings.now) + LongestMeeting;
    while (pieces.Next()) {
        const auto& piece = pieces.Piece();
        if (!settings.readCalendar(IsUtf8(piece) ? piece : settings.decode(piece), until, content)) {
            throw BrokenSource("the calendar can't be read: export it again");
        }
        if (static_cast<std::int64_t>(content.events.size()) > MostSourceRecords) {
            throw BrokenSource("the calendar has more than 20 million meetings: export it in parts");
        }
    }
    if (!pieces.HasCalendar()) {
        throw WrongSource("this is no calendar, which begins with BEGIN:VCALENDAR: export one as iCalendar");
    }
    // An event that has moved may stand in front of those that it is one of, or far behind them.
    std::erase_if(content.events, [&content](const CalendarEvent& event) {
        return content.moved.contains({ event.series, event.begin });
    });
    return content;
}

}

SourceData CalendarReader::Read(std::istream& stream, const SourceSettings& settings)
{
    SourceData data;
    CalendarPieces pieces(stream, data.skipped);
    auto content = ContentOf(pieces, settings);
    data.skipped.Add(Skipped::AllDay, content.allDay);
    data.skipped.Add(Skipped::Transparent, content.transparent);
    data.skipped.Add(Skipped::Cancelled, content.cancelled);
    data.skipped.Add(Skipped::Declined, content.declined);
    data.skipped.Add(Skipped::Unreadable, content.unreadable);
    for (auto& event : content.events) {
        const auto length = event.end - event.begin;
        if (length <= 0 || length > LongestMeeting) {
            data.skipped.Add(length == 0 ? Skipped::ZeroLength : length < 0 ? Skipped::Unreadable : Skipped::TooLong);
            continue;
        }
        SourceEntry entry;
        // A time without a zone is that of the wall, wherever that was.
        entry.start = event.isLocal ? WallSeconds(event.begin) : LocalSeconds(settings.zone, event.begin);
        entry.end = entry.start + length;
        entry.words.program = "Meeting";
        entry.words.title = std::move(event.summary);
        data.entries.push_back(std::move(entry));
    }
    return data;
}

}
