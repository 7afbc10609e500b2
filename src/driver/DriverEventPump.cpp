#include "driver/DriverEventPump.h"

#include <algorithm>

namespace tempodial {

void DriverEventPump::ProcessPending()
{
    const auto moment = ++mMoments;
    mInner->ProcessPending();
    // One at a time, since what is done may let messages be processed itself.
    const auto isDue = [moment](const Deferred& deferred) { return deferred.moment == moment; };
    for (auto due = std::find_if(mDeferred.begin(), mDeferred.end(), isDue); due != mDeferred.end();
         due = std::find_if(mDeferred.begin(), mDeferred.end(), isDue)) {
        const auto action = std::move(due->action);
        mDeferred.erase(due);
        action();
    }
}

void DriverEventPump::Defer(std::int64_t moments, std::function<void()> action)
{
    mDeferred.push_back({ mMoments + moments, std::move(action) });
}

}
