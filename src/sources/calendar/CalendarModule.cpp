#include "sources/calendar/CalendarModule.h"

#include <algorithm>
#include <functional>
#include <libical/ical.h>
#include <memory>
#include <set>
#include <string_view>
#include <type_traits>
#include <utility>

namespace tempodial {

namespace {

struct FreeComponent
{
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};

struct FreeIterator
{
    void operator()(icalrecur_iterator* iterator) const { icalrecur_iterator_free(iterator); }
};

std::string TextOf(const char* text)
{
    return text == nullptr ? std::string() : std::string(text);
}

/// Seconds since 1970, local ones for a time without a zone.
std::int64_t SecondsOf(icaltimetype time)
{
    return icaltime_as_timet_with_zone(time, time.zone);
}

bool IsLocal(icaltimetype time)
{
    return time.zone == nullptr && icaltime_is_utc(time) == 0;
}

/// The address of a person, without what stands in front of it.
std::string AddressOf(const char* address)
{
    auto text = TextOf(address);
    std::transform(text.begin(), text.end(), text.begin(),
        [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter; });
    constexpr std::string_view Mailto = "mailto:";
    return text.starts_with(Mailto) ? text.substr(Mailto.size()) : text;
}

/// Stands for the event and all that repeat it, and is never 0.
std::size_t SeriesOf(icalcomponent* event)
{
    return std::hash<std::string> {}(TextOf(icalcomponent_get_uid(event))) | 1;
}

/// Reads one calendar.
class CalendarReading
{
public:
    CalendarReading(icalcomponent* calendar, const CalendarSpan& span, CalendarContent& content)
        : mSpan(span)
        , mContent(content)
    {
        ReadOwner(calendar);
        NoteMoved(calendar);
        for (auto* event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT);
             event != nullptr && !mContent.HasTooMany();
             event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
            Read(event);
        }
    }

private:
    /// Calendars of one person are often called by the address.
    void ReadOwner(icalcomponent* calendar)
    {
        for (auto* property = icalcomponent_get_first_property(calendar, ICAL_X_PROPERTY); property != nullptr;
             property = icalcomponent_get_next_property(calendar, ICAL_X_PROPERTY)) {
            if (TextOf(icalproperty_get_x_name(property)) == "X-WR-CALNAME") {
                mOwner = AddressOf(icalproperty_get_x(property));
            }
        }
    }

    /// Notes the times of repeated events that have an event of their own.
    void NoteMoved(icalcomponent* calendar)
    {
        for (auto* event = icalcomponent_get_first_component(calendar, ICAL_VEVENT_COMPONENT); event != nullptr;
             event = icalcomponent_get_next_component(calendar, ICAL_VEVENT_COMPONENT)) {
            const auto moved = icalcomponent_get_recurrenceid(event);
            if (icaltime_is_null_time(moved) == 0) {
                mContent.moved.emplace(SeriesOf(event), SecondsOf(moved));
            }
        }
    }

    void Read(icalcomponent* event)
    {
        const auto start = icalcomponent_get_dtstart(event);
        const auto end = icalcomponent_get_dtend(event);
        auto* transparency = icalcomponent_get_first_property(event, ICAL_TRANSP_PROPERTY);
        if (icaltime_is_null_time(start) != 0 || icaltime_is_valid_time(start) == 0) {
            ++mContent.unreadable;
        } else if (icaltime_is_date(start) != 0) {
            ++mContent.allDay;
        } else if (icalcomponent_get_status(event) == ICAL_STATUS_CANCELLED) {
            ++mContent.cancelled;
        } else if (transparency != nullptr && icalproperty_get_transp(transparency) == ICAL_TRANSP_TRANSPARENT) {
            ++mContent.transparent;
        } else if (IsDeclined(event)) {
            ++mContent.declined;
        } else {
            const auto length = icaltime_is_null_time(end) != 0 ? 0 : SecondsOf(end) - SecondsOf(start);
            ReadTimes(event, start, length);
        }
    }

    bool IsDeclined(icalcomponent* event) const
    {
        bool hasAttendee = false;
        bool isDeclinedByAll = true;
        for (auto* attendee = icalcomponent_get_first_property(event, ICAL_ATTENDEE_PROPERTY); attendee != nullptr;
             attendee = icalcomponent_get_next_property(event, ICAL_ATTENDEE_PROPERTY)) {
            auto* status = icalproperty_get_first_parameter(attendee, ICAL_PARTSTAT_PARAMETER);
            const bool isDeclined = status != nullptr && icalparameter_get_partstat(status) == ICAL_PARTSTAT_DECLINED;
            if (!mOwner.empty() && AddressOf(icalproperty_get_attendee(attendee)) == mOwner) {
                return isDeclined;
            }
            hasAttendee = true;
            isDeclinedByAll = isDeclinedByAll && isDeclined;
        }
        return hasAttendee && isDeclinedByAll;
    }

    void ReadTimes(icalcomponent* event, icaltimetype start, std::int64_t length)
    {
        const bool isMoved = icaltime_is_null_time(icalcomponent_get_recurrenceid(event)) == 0;
        std::set<std::int64_t> times { SecondsOf(start) };
        if (!isMoved) {
            AddRepeated(event, start, times);
            AddDates(event, times);
            for (auto* except = icalcomponent_get_first_property(event, ICAL_EXDATE_PROPERTY); except != nullptr;
                 except = icalcomponent_get_next_property(event, ICAL_EXDATE_PROPERTY)) {
                Remove(icalproperty_get_datetime_with_component(except, event), start, times);
            }
        }
        for (const auto time : times) {
            if (time < mSpan.from) {
                ++mContent.early;
            } else if (time <= mSpan.until) {
                mContent.events.push_back({ time, time + length, IsLocal(start),
                    TextOf(icalcomponent_get_summary(event)), isMoved ? 0 : SeriesOf(event) });
            }
        }
    }

    void AddRepeated(icalcomponent* event, icaltimetype start, std::set<std::int64_t>& times)
    {
        for (auto* property = icalcomponent_get_first_property(event, ICAL_RRULE_PROPERTY); property != nullptr;
             property = icalcomponent_get_next_property(event, ICAL_RRULE_PROPERTY)) {
            const auto rule = icalproperty_get_rrule(property);
            const std::unique_ptr<icalrecur_iterator, FreeIterator> iterator(icalrecur_iterator_new(rule, start));
            if (iterator) {
                PassEarlyTimes(rule, start, *iterator);
            }
            while (iterator && !mContent.HasTooMany()) {
                auto next = icalrecur_iterator_next(iterator.get());
                if (icaltime_is_null_time(next) != 0) {
                    break;
                }
                next.zone = start.zone;
                if (SecondsOf(next) > mSpan.until) {
                    break;
                }
                times.insert(SecondsOf(next));
                ++mContent.repeated;
            }
        }
    }

    /// What repeats by the hour or faster has so many times that those before the span are passed uncounted.
    void PassEarlyTimes(const icalrecurrencetype& rule, icaltimetype start, icalrecur_iterator& iterator) const
    {
        const bool isFast = rule.freq == ICAL_SECONDLY_RECURRENCE || rule.freq == ICAL_MINUTELY_RECURRENCE
            || rule.freq == ICAL_HOURLY_RECURRENCE;
        if (isFast && rule.count == 0 && SecondsOf(start) < mSpan.from) {
            auto from = icaltime_from_timet_with_zone(mSpan.from, 0, start.zone);
            from.zone = start.zone;
            icalrecur_iterator_set_start(&iterator, from);
        }
    }

    void AddDates(icalcomponent* event, std::set<std::int64_t>& times)
    {
        for (auto* date = icalcomponent_get_first_property(event, ICAL_RDATE_PROPERTY); date != nullptr;
             date = icalcomponent_get_next_property(event, ICAL_RDATE_PROPERTY)) {
            const auto period = icalproperty_get_rdate(date);
            const auto time = icaltime_is_null_time(period.time) != 0
                ? period.period.start
                : icalproperty_get_datetime_with_component(date, event);
            if (icaltime_is_null_time(time) == 0) {
                times.insert(SecondsOf(time));
                ++mContent.repeated;
            }
        }
    }

    /// Takes a time out, or all of a day.
    static void Remove(icaltimetype except, icaltimetype start, std::set<std::int64_t>& times)
    {
        if (icaltime_is_date(except) != 0) {
            except.is_date = 0;
            except.hour = start.hour;
            except.minute = start.minute;
            except.second = start.second;
            except.zone = start.zone;
        }
        times.erase(SecondsOf(except));
    }

    CalendarSpan mSpan;
    CalendarContent& mContent;
    std::string mOwner;
};

bool ReadCalendars(const std::string& text, const CalendarSpan& span, CalendarContent& content)
{
    const std::unique_ptr<icalcomponent, FreeComponent> root(icalparser_parse_string(text.c_str()));
    if (!root) {
        return false;
    }
    if (icalcomponent_isa(root.get()) == ICAL_VCALENDAR_COMPONENT) {
        const CalendarReading reading(root.get(), span, content);
        return true;
    }
    bool hasCalendar = false;
    for (auto* calendar = icalcomponent_get_first_component(root.get(), ICAL_VCALENDAR_COMPONENT); calendar != nullptr;
         calendar = icalcomponent_get_next_component(root.get(), ICAL_VCALENDAR_COMPONENT)) {
        const CalendarReading reading(calendar, span, content);
        hasCalendar = true;
    }
    return hasCalendar;
}

}

}

extern "C" __attribute__((visibility("default"))) bool TempodialReadCalendar(
    const std::string& text, const tempodial::CalendarSpan& span, tempodial::CalendarContent& content)
{
    // What can't be read is an answer and no reason to end the program.
    icalerror_set_errors_are_fatal(0);
    return tempodial::ReadCalendars(text, span, content);
}

static_assert(std::is_same_v<decltype(&TempodialReadCalendar), tempodial::CalendarTextReader>);
