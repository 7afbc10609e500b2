#include "cli/DemoTracker.h"

#include "cli/DemoActivities.h"
#include "session/ProductFacts.h"
#include "slots/DayFile.h"
#include "slots/SlotLine.h"
#include "terminal/Arguments.h"

#include <algorithm>
#include <random>

namespace tempodial {

namespace {

// Times in this file count slots of five minutes from midnight.
constexpr int SecondsOfSlot = 300;
constexpr int SlotsOfHour = 12;

constexpr int At(int hour, int minute = 0)
{
    return hour * SlotsOfHour + minute * SlotsOfHour / 60;
}

/// A stretch of the day that is spent at the PC.
struct DemoSession
{
    int begin, end;
};

/// One day: decides when work was done and writes down what.
class DemoDay
{
public:
    DemoDay(std::uint32_t seed, Date day)
        : mDay(day)
        , mDayNumber(DaysBetween(Date(), day))
        , mRandom(seed ^ static_cast<std::uint32_t>(mDayNumber) * 2654435761U)
    {
    }

    DemoFile File(const std::vector<DemoSession>& sessions)
    {
        DemoFile file { TrackerFileName(mDay.DayKey()), { DayFile::Heading(mDay, 0) } };
        // The day begins with another kind of application each time, so that all of them occur.
        const auto* activity = &AnyOfKind(static_cast<std::size_t>(mDayNumber) % DemoKinds);
        for (const auto& session : sessions) {
            auto slot = session.begin;
            while (slot < session.end) {
                const auto length = std::min(Length(), session.end - slot);
                for (int part = 0; part < length; ++part, ++slot) {
                    AddSlot(file.lines, *activity, slot, part > 0);
                }
                activity = &Another(activity);
            }
        }
        return file;
    }

    /// The sessions of a day that is over, none when it was free.
    std::vector<DemoSession> WholeDay()
    {
        constexpr int Saturday = 7;
        constexpr int DaysOfTwoWeeks = 14;
        constexpr int DaysOfWeek = 7;
        const auto weekday = mDay.Weekday();
        if (weekday == Saturday && mDayNumber % DaysOfTwoWeeks < DaysOfWeek) {
            return MorningAtHome();
        }
        if (weekday == Saturday || weekday == 1) {
            return {};
        }
        return WorkDay();
    }

    /// The sessions of a day that has come to this slot: work up to now, whatever the hour.
    std::vector<DemoSession> DayUpTo(int now)
    {
        auto sessions = WholeDay();
        if (sessions.empty()) {
            sessions = MorningAtHome();
        }
        std::erase_if(sessions, [now](const auto& session) { return session.begin >= now; });
        if (!sessions.empty() && sessions.back().end >= now) {
            sessions.back().end = now;
        } else if (now > 0) {
            const auto free = sessions.empty() ? 0 : sessions.back().end;
            sessions.push_back({ std::max(free, now - Between(SlotsOfHour / 2, SlotsOfHour)), now });
        }
        return sessions;
    }

private:
    int Between(int least, int most)
    {
        return least + static_cast<int>(mRandom() % static_cast<unsigned>(most - least + 1));
    }
    bool OneIn(int times) { return Between(1, times) == 1; }

    std::vector<DemoSession> MorningAtHome()
    {
        const auto begin = Between(At(9), At(10, 30));
        return { { begin, begin + Between(At(1), At(2, 30)) } };
    }

    std::vector<DemoSession> WorkDay()
    {
        const auto begin = Between(At(8), At(9, 15));
        const auto coffee = Between(At(10), At(10, 30));
        const auto lunch = Between(At(12), At(12, 45));
        const auto afternoon = lunch + Between(At(0, 30), At(1, 15));
        std::vector<DemoSession> sessions { { begin, coffee }, { coffee + Between(1, 4), lunch },
            { afternoon, Between(At(16, 30), At(18, 30)) } };
        if (OneIn(6)) {
            const auto evening = Between(At(20), At(21));
            sessions.push_back({ evening, evening + Between(2, SlotsOfHour) });
        }
        return sessions;
    }

    int Length()
    {
        // Mostly short glances, some half hours, now and then a long stretch.
        if (OneIn(8)) {
            return Between(SlotsOfHour, 2 * SlotsOfHour);
        }
        return OneIn(3) ? Between(4, 9) : Between(1, 3);
    }

    const DemoActivity& AnyOfKind(std::size_t kind)
    {
        std::vector<const DemoActivity*> found;
        for (const auto& activity : DemoActivities()) {
            if (activity.application == static_cast<int>(kind)) {
                found.push_back(&activity);
            }
        }
        return *found[static_cast<std::size_t>(Between(0, static_cast<int>(found.size()) - 1))];
    }

    const DemoActivity& Another(const DemoActivity* than)
    {
        const auto all = DemoActivities();
        const DemoActivity* activity = than;
        while (activity == than) {
            activity = &all[static_cast<std::size_t>(Between(0, static_cast<int>(all.size()) - 1))];
        }
        return *activity;
    }

    void AddSlot(std::vector<std::string>& lines, const DemoActivity& activity, int slot, bool continues)
    {
        const auto begin = slot * SecondsOfSlot;
        if (continues && OneIn(6)) {
            // What came besides stands in front of the line that goes on, behind the activity's own words, so that
            // these and the project stay.
            lines.push_back(Line(activity, begin - SecondsOfSlot, begin).Detail().Text());
            lines.push_back(Line(Another(&activity), begin - Between(1, 4) * SecondsOfSlot / 5, begin).Detail().Text());
        }
        auto line = Line(activity, begin, begin + SecondsOfSlot);
        lines.push_back(continues ? line.Continuation().Text() : line.Text());
    }

    static SlotLine Line(const DemoActivity& activity, int begin, int end)
    {
        SlotLine line(begin, end);
        line.Application(activity.application);
        for (const auto& [name, text] : activity.nodes) {
            if (!name.empty()) {
                line.Node(name, text);
            }
        }
        return line;
    }

    Date mDay;
    std::int32_t mDayNumber;
    std::mt19937 mRandom;
};

}

std::vector<DemoFile> DemoTracker::Files(std::int32_t days) const
{
    std::vector<DemoFile> files;
    const auto today = mNow.Day();
    for (auto back = days - 1; back > 0; --back) {
        DemoDay day(mSeed, today.AddDays(-back));
        if (const auto sessions = day.WholeDay(); !sessions.empty()) {
            files.push_back(day.File(sessions));
        }
    }
    DemoDay day(mSeed, today);
    files.push_back(day.File(day.DayUpTo(static_cast<int>(mNow.SecondOfDay() / SecondsOfSlot))));
    return files;
}

}
