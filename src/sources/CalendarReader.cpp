#include "sources/CalendarReader.h"

#include "base/Utf8.h"
#include "slots/PlainText.h"
#include "sources/CalendarPieces.h"
#include "sources/MomentText.h"
#include "sources/SourceProblem.h"

#include <algorithm>
#include <string>
#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t LongestMeeting = 86400;

/// A calendar's text with each field in one line, as it was before it was folded.
std::string Unfolded(const std::string& text)
{
    std::string unfolded;
    unfolded.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.compare(at, 2, "\r\n") == 0 && at + 2 < text.size() && (text[at + 2] == ' ' || text[at + 2] == '\t')) {
            at += 2;
        } else {
            unfolded += text[at];
        }
    }
    return unfolded;
}

/// A piece of a calendar in UTF-8. A line may be folded in the middle of a letter.
std::string Decoded(const std::string& piece, const SourceSettings& settings)
{
    return IsUtf8(piece) || IsUtf8(Unfolded(piece)) ? piece : settings.decode(piece);
}

/// The times that can be of use: a meeting may have begun a day before, in whatever zone it is told.
CalendarSpan SpanOf(const SourceSettings& settings)
{
    const auto first = Date::FromYearMonthDay(1990, 1, 1);
    const auto from = settings.from ? std::max(*settings.from, first) : first;
    return { settings.zone.MomentOf(from) - LongestMeeting, settings.zone.MomentOf(settings.now) + LongestMeeting };
}

/// All that the pieces of a calendar hold.
CalendarContent ContentOf(CalendarPieces& pieces, const SourceSettings& settings)
{
    CalendarContent content;
    const auto span = SpanOf(settings);
    while (pieces.Next()) {
        if (!settings.readCalendar(Decoded(pieces.Piece(), settings), span, content)) {
            throw BrokenSource("the calendar can't be read: export it again");
        }
        if (content.HasTooMany()) {
            throw BrokenSource("the calendar's repeated events come to more than 500000 times: take out those that "
                               "repeat by the minute or the second, or export them by themselves");
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
    data.skipped.Add(settings.from ? Skipped::Outside : Skipped::Before1990, content.early);
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
