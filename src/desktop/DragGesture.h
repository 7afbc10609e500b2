#pragma once

#include "desktop/TimeSpan.h"

#include <cstdint>

namespace tempodial {

/// An activity that is being moved, or whose start or end is, by the pointer or by keys.
class DragGesture
{
public:
    /// What is moved.
    enum class Part { Whole, Start, End };
    /// The minutes to which times are brought.
    enum class Step : std::int32_t { Fine = 1, Usual = 5 };

    /// Takes the activity's times and the moment at which it was grabbed.
    DragGesture(Part part, const TimeSpan& span, Date grabbed)
        : mPart(part)
        , mSpan(span)
        , mGrabbed(grabbed)
    {
    }

    /// The times that it would have with the pointer at a moment. What is moved to another day alone keeps its time of
    /// day, and no end comes to lie before the other.
    TimeSpan To(Date pointer, Step step) const;
    /// The times before.
    const TimeSpan& Before() const { return mSpan; }

    /// Times moved by keys: later by steps, or earlier by negative ones. What would leave no time stays as it is.
    static TimeSpan Nudged(Part part, const TimeSpan& span, std::int32_t steps);
    /// True for an activity that an import may still make longer, so that its end isn't final.
    static bool MayGrow(Date end, Date now);

private:
    Date Moved(Date pointer, Step step) const;

    Part mPart;
    TimeSpan mSpan;
    Date mGrabbed;
};

}
