#include "review/Timesheet.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace tempodial {

namespace {

std::int64_t RoundedUp(std::int64_t minutes, std::int64_t step)
{
    return (minutes + step - 1) / step * step;
}

/// What was done in the course of a day, with the time that it took.
class DoneTexts
{
public:
    void Note(const Activity& activity, TimesheetTerms::What what)
    {
        if (what == TimesheetTerms::What::None) {
            return;
        }
        const auto& text = what == TimesheetTerms::What::Descriptions ? activity.description : activity.type;
        if (!text.empty()) {
            mMinutes[text] += activity.duration;
        }
    }

    /// The texts, of which the longest lasting comes first.
    std::vector<std::string> Take()
    {
        std::vector<std::pair<std::string, std::int64_t>> entries(mMinutes.begin(), mMinutes.end());
        std::stable_sort(entries.begin(), entries.end(),
            [](const auto& one, const auto& other) { return one.second > other.second; });
        std::vector<std::string> texts;
        std::transform(entries.begin(), entries.end(), std::back_inserter(texts),
            [](auto& entry) { return std::move(entry.first); });
        mMinutes.clear();
        return texts;
    }

private:
    std::map<std::string, std::int64_t> mMinutes;
};

}

Timesheet Timesheet::Of(const std::string& project, const Period& period, const std::vector<Activity>& activities,
    const TimesheetTerms& terms)
{
    using Rounding = TimesheetTerms::Rounding;
    Timesheet sheet { .project = project, .period = period };
    DoneTexts done;
    for (auto activity = activities.begin(); activity != activities.end();) {
        Day day { .date = activity->start.Day() };
        for (; activity != activities.end() && activity->start.Day() == day.date; ++activity) {
            day.minutes += activity->duration;
            day.billedMinutes
                += terms.rounding == Rounding::Entry ? RoundedUp(activity->duration, terms.step) : activity->duration;
            done.Note(*activity, terms.what);
        }
        if (terms.rounding == Rounding::Day) {
            day.billedMinutes = RoundedUp(day.minutes, terms.step);
        }
        day.what = done.Take();
        if (day.minutes > 0) {
            sheet.minutes += day.minutes;
            sheet.billedMinutes += day.billedMinutes;
            sheet.days.push_back(std::move(day));
        }
    }
    if (terms.rounding == Rounding::Total) {
        sheet.billedMinutes = RoundedUp(sheet.billedMinutes, terms.step);
    }
    if (terms.rate) {
        sheet.amount = terms.rate->Of(sheet.billedMinutes);
    }
    return sheet;
}

}
