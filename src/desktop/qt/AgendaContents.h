#pragma once

#include "desktop/AgendaScene.h"
#include "desktop/ShownLog.h"
#include "desktop/qt/AgendaPainter.h"
#include "desktop/qt/DayHead.h"
#include "desktop/qt/Desk.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace tempodial {

/// What an agenda writes: on its cards, beside short ones, in gaps, at the hours and above the days.
class AgendaContents
{
public:
    using Numbers = std::set<std::int64_t>;
    using Names = std::set<std::string>;

    /// Both must live as long as this.
    AgendaContents(Desk& desk, const ShownLog& log)
        : mDesk(desk)
        , mLog(log)
    {
    }

    /// The log has changed, or how things look.
    void Fill();
    /// The scene lies elsewhere.
    void FillPlaced(const AgendaScene& scene);
    /// The activities of those numbers are selected.
    void Select(const Numbers& numbers);
    /// All fade but those with such names of what gives them their colour; none for all.
    void ShowOnly(const Names& names);
    /// The present moment has moved on.
    void FollowClock();
    /// Nothing is written until the log is shown again.
    void Clear();

    const std::vector<AgendaCard>& Cards() const { return mCards; }
    const std::vector<QString>& Labels() const { return mLabels; }
    const std::vector<QString>& Gaps() const { return mGaps; }
    const std::vector<QString>& HourNames() const { return mHourNames; }
    std::vector<DayHead::Day> Heads(const AgendaScene& scene) const;
    /// An activity in a line of a list.
    QString LineOf(const Activity& activity) const;
    /// What is said of an activity to who rests on it.
    QString ToolTipOf(const Activity& activity) const;
    /// What a screen reader says of an activity, and what it says besides.
    QString SpokenOf(const Activity& activity) const;
    QString DescribedOf(const Activity& activity) const;
    /// What it says of a day's bar: where the time went.
    QString DescribedDay(int day) const;
    /// What is said of times that something would have, and of the end that it has.
    QString WordsOf(const TimeSpan& times, Date endBefore) const;

private:
    /// What other programs show of an activity; project and application alone where titles are hidden.
    std::string SubjectOf(const Activity& activity) const;
    void FillHours();
    StackedBar BarOf(std::size_t day) const;
    bool IsFaded(const Activity& activity) const;

    Desk& mDesk;
    const ShownLog& mLog;
    Numbers mSelected;
    Names mOnly;
    std::vector<AgendaCard> mCards;
    std::vector<QString> mLabels;
    std::vector<QString> mGaps;
    std::vector<QString> mHourNames;
};

}
