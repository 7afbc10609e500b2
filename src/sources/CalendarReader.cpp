#include "sources/CalendarReader.h"

#include "base/Utf8.h"
#include "slots/PlainText.h"
#include "sources/MomentText.h"
#include "sources/SourceProblem.h"

#include <string>
#include <utility>

namespace tempodial {

namespace {

constexpr std::size_t LargestCalendar = std::size_t { 256 } << 20;
constexpr std::int64_t LongestMeeting = 86400;

std::string AllOf(std::istream& stream)
{
    std::string text;
    std::string piece(MostFieldBytes, '\0');
    while (stream.read(piece.data(), static_cast<std::streamsize>(piece.size())) || stream.gcount() > 0) {
        text.append(piece, 0, static_cast<std::size_t>(stream.gcount()));
        if (text.size() > LargestCalendar) {
            throw BrokenSource("the calendar is larger than 256 MiB: export it in parts");
        }
    }
    return text;
}

}

SourceData CalendarReader::Read(std::istream& stream, const SourceSettings& settings)
{
    auto text = AllOf(stream);
    if (text.find("BEGIN:VCALENDAR") == std::string::npos) {
        throw WrongSource("this is no calendar, which begins with BEGIN:VCALENDAR: export one as iCalendar");
    }
    text = IsUtf8(text) ? text : settings.decode(text);
    CalendarContent content;
    const auto until = settings.zone.MomentOf(settings.now) + LongestMeeting;
    if (!settings.readCalendar(text, until, content)) {
        throw BrokenSource("the calendar can't be read: export it again");
    }
    SourceData data;
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
