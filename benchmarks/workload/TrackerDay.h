#pragma once

#include "workload/Activities.h"

#include <array>
#include <cstdint>
#include <string>

namespace tempodial {

/// The slot lines of a day as a tracker writes them: of each ten lines six begin an activity, three go on with one and
/// one tells a detail of it, in changing order. A line is an XML document of 350 bytes. Times only go up, by the five
/// minutes of a slot for each that goes on, and past midnight when there are more lines than a day has room for.
class TrackerDay
{
public:
    /// The bytes of a line without its end.
    static constexpr std::size_t LineSize = 350;

    /// What a line is.
    enum class Kind { New, Continuation, Detail };

    explicit TrackerDay(std::uint32_t seed);

    /// The next line, without its end; it stays as it is until the next call. Fails with `std::length_error` when the
    /// texts of an activity leave no room.
    const std::string& NextLine();
    /// What that line is.
    Kind LastKind() const { return mKind; }

private:
    Kind NextKind();

    Activities mActivities;
    Activity mActivity;
    Activity mDetail;
    std::array<Kind, 10> mTen {};
    std::size_t mPlace = mTen.size();
    Kind mKind = Kind::New;
    std::int64_t mStart = 0;
    std::int64_t mEnd = 0;
    std::string mLine;
};

}
