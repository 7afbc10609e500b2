#include "workload/TrackerDay.h"

#include "slots/SlotLine.h"

#include <stdexcept>
#include <string_view>
#include <utility>

namespace tempodial {

namespace {

constexpr std::int64_t SlotSeconds = 300;
constexpr std::int64_t FirstSecond = 3600;
constexpr std::string_view Filler = "window behind the window that is looked at, one of many on a full desk, with a "
                                    "caption as long as such captions are when a path of folders stands in them, and "
                                    "a few words more so that there is always enough to fill the line up to its end";

}

TrackerDay::TrackerDay(std::uint32_t seed)
    : mActivities(seed)
    , mEnd(FirstSecond)
{
}

const std::string& TrackerDay::NextLine()
{
    mKind = NextKind();
    switch (mKind) {
    case Kind::New:
        mActivity = mActivities.Next();
        mStart = mEnd;
        mEnd += 60 + 30 * std::int64_t { mActivities.Below(4) };
        break;
    case Kind::Continuation:
        mStart = mEnd;
        mEnd += SlotSeconds;
        break;
    case Kind::Detail:
        mDetail = mActivities.Next();
        break;
    }
    const auto& activity = mKind == Kind::Detail ? mDetail : mActivity;
    SlotLine line(mStart, mEnd);
    if (mKind == Kind::Continuation) {
        line.Continuation();
    } else if (mKind == Kind::Detail) {
        line.Detail();
    }
    line.Application(activity.application);
    for (const auto& [name, text] : activity.values) {
        line.Node(name, text);
    }
    const std::string owner = "OwnedWindowText";
    const auto taken = SlotLine(line).Node(owner, "").Text().size();
    if (taken > LineSize) {
        throw std::length_error("a slot line is longer than the lines of the benchmarks");
    }
    mLine = line.Node(owner, Filler.substr(0, LineSize - taken)).Text();
    return mLine;
}

TrackerDay::Kind TrackerDay::NextKind()
{
    if (mPlace == mTen.size()) {
        mTen = { Kind::New, Kind::New, Kind::New, Kind::New, Kind::New, Kind::New, Kind::Continuation,
            Kind::Continuation, Kind::Continuation, Kind::Detail };
        // The first of each ten stays new, since there is nothing yet that the first line of a day could go on with.
        for (auto last = static_cast<std::uint32_t>(mTen.size()) - 1; last > 1; --last) {
            std::swap(mTen[last], mTen[1 + mActivities.Below(last)]);
        }
        // A detail at the very end of a file would be taken again at each sync.
        if (mTen.back() == Kind::Detail) {
            std::swap(mTen.back(), mTen[1]);
        }
        mPlace = 0;
    }
    return mTen[mPlace++];
}

}
