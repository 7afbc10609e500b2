#pragma once

#include "desktop/AgendaLayout.h"
#include "desktop/PixelBox.h"
#include "desktop/TimeScale.h"

#include <optional>

namespace tempodial {

/// Where the columns of an agenda's days are, and the activities in them: what is drawn and what is clicked.
class AgendaGeometry
{
public:
    /// The width of what is too low for a line of text.
    static constexpr double StripeWidth = 26;

    /// Takes the scale, how many days there are, and the place and width of all their columns.
    AgendaGeometry(const TimeScale& scale, int days, double left, double width);

    const TimeScale& Scale() const { return mScale; }
    /// The column of a day, from midnight to midnight.
    PixelBox Column(int day) const;
    /// The day at a place; nothing beside the columns.
    std::optional<int> DayAt(double x) const;
    /// Where a piece is drawn: its lane from its start to its end, or a stripe at the left of that.
    PixelBox BoxOf(const AgendaPiece& piece) const;
    /// The same with the whole width of its lane.
    PixelBox LaneOf(const AgendaPiece& piece) const;
    /// True when a piece is too low for a line of text.
    bool IsStripe(const AgendaPiece& piece) const;

private:
    double EdgeOf(int day) const;
    double HeightOf(const AgendaPiece& piece) const;

    TimeScale mScale;
    int mDays;
    double mLeft;
    double mWidth;
};

}
