#include "review/ActivityCalendar.h"

#include "base/Number.h"
#include "base/Text.h"
#include "base/Utf8.h"
#include "session/ProductFacts.h"

#include <cstddef>
#include <string_view>

namespace tempodial {

namespace {

/// A text as the value of a property: marks of the format are escaped, line ends become "\n" and tabs blanks, and
/// control characters, which a value may not hold, go.
std::string TextValue(const std::string& text)
{
    std::string value;
    for (const char character : Replace(text, CrLf, "\n")) {
        const auto byte = static_cast<unsigned char>(character);
        if (character == '\n' || character == '\r') {
            value += R"(\n)";
        } else if (character == '\\' || character == ';' || character == ',') {
            value += { '\\', character };
        } else if (character == '\t') {
            value += ' ';
        } else if (byte >= 0x20 && byte != 0x7f) {
            value += character;
        }
    }
    return value;
}

std::string WallClock(Date moment)
{
    const auto parts = moment.ToParts();
    return Padded(parts.year, 4) + Padded(parts.month, 2) + Padded(parts.day, 2) + "T" + Padded(parts.hour, 2)
        + Padded(parts.minute, 2) + Padded(parts.second, 2);
}

/// A calendar document as it grows.
class CalendarText
{
public:
    /// Adds a property. A line holds 75 bytes; the rest goes on in the next, behind a blank, no character being cut.
    void Add(const std::string& name, const std::string& value)
    {
        constexpr std::size_t LongestLine = 75;
        const auto line = name + ":" + value;
        std::size_t begin = 0;
        std::size_t room = LongestLine;
        while (line.size() - begin > room) {
            auto end = begin + room;
            while (end > begin + 1 && IsUtf8Tail(line[end])) {
                --end;
            }
            mText += std::string_view(line).substr(begin, end - begin);
            mText += "\r\n ";
            begin = end;
            room = LongestLine - 1;
        }
        mText += std::string_view(line).substr(begin);
        mText += CrLf;
    }
    /// Adds a property with a text, none when it is empty.
    void AddText(const std::string& name, const std::string& text)
    {
        if (!text.empty()) {
            Add(name, TextValue(text));
        }
    }
    const std::string& Text() const { return mText; }

private:
    std::string mText;
};

void AddEvent(CalendarText& calendar, const ActivityRecord& activity)
{
    calendar.Add("BEGIN", "VEVENT");
    calendar.AddText("UID", activity.entryId + "@tempodial");
    // A later save is a later version for whoever took the calendar in before; the export itself is none.
    calendar.Add("DTSTAMP", WallClock(activity.saved) + "Z");
    calendar.Add("LAST-MODIFIED", WallClock(activity.saved) + "Z");
    calendar.Add("DTSTART", WallClock(activity.start));
    // An end at the start isn't allowed; without one the event is of no length.
    if (activity.end > activity.start) {
        calendar.Add("DTEND", WallClock(activity.end));
    }
    calendar.AddText("SUMMARY", activity.subject);
    calendar.AddText("DESCRIPTION", activity.body);
    if (activity.project != NoProject) {
        calendar.AddText("CATEGORIES", activity.project);
    }
    calendar.Add("TRANSP", "TRANSPARENT");
    calendar.AddText("X-TEMPODIAL-APPLICATION", activity.application);
    calendar.AddText("X-TEMPODIAL-DESCRIPTION", activity.description);
    calendar.AddText("X-TEMPODIAL-PEOPLE", activity.people);
    calendar.Add("END", "VEVENT");
}

}

std::string ActivityCalendar(const std::vector<ActivityRecord>& activities)
{
    CalendarText calendar;
    calendar.Add("BEGIN", "VCALENDAR");
    calendar.Add("VERSION", "2.0");
    calendar.Add("PRODID", std::string("-//Tempodial//Tempodial ") + ProductVersion + "//EN");
    calendar.Add("X-WR-CALNAME", ProductName);
    for (const auto& activity : activities) {
        AddEvent(calendar, activity);
    }
    calendar.Add("END", "VCALENDAR");
    return calendar.Text();
}

}
