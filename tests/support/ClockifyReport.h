#pragma once

#include "base/Date.h"

#include <string>
#include <vector>

namespace tempodial {

/// The columns of a detailed report of Clockify, as they come and go.
const std::vector<std::vector<std::string>>& ClockifyForms();

/// A detailed report of Clockify: on 2, 13 and 14 September 2006 an hour and a half, 31 minutes as the clock shows
/// them, and 50 minutes over midnight, the first two of Riverside and the last of Atlas.
class ClockifyReport
{
public:
    ClockifyReport(std::vector<std::string> columns, bool isMonthFirst, bool hasTwelveHours);

    std::string Text() const;

private:
    std::string Day(const Date::Parts& at) const;
    std::string Time(const Date::Parts& at) const;
    void AddRow(std::string& text, const std::string& project, const std::string& words, const Date::Parts& from,
        const Date::Parts& to) const;

    std::vector<std::string> mColumns;
    bool mIsMonthFirst;
    bool mHasTwelveHours;
};

}
