#include "faults/FaultPlan.h"

#include "base/Text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tempodial {

void FaultPlan::Add(Fault fault)
{
    if (fault.times > 0) {
        mFaults.push_back(std::move(fault));
    }
}

void FaultPlan::Before(const InterposedCall& call)
{
    ++mCalls;
    std::optional<Failure> failure;
    for (auto& fault : mFaults) {
        if (!Fits(fault.call, call)) {
            continue;
        }
        if (fault.skip > 0) {
            --fault.skip;
            continue;
        }
        --fault.times;
        if (!failure) {
            failure = fault.failure;
        }
    }
    std::erase_if(mFaults, [](const Fault& fault) { return fault.times == 0; });
    if (mCalls == mFailingCall) {
        mFailedCall = std::string(call.classes.front()) + "." + std::string(call.member) + ":" + std::string(call.key);
        throw Failure(Error::Automation);
    }
    if (failure) {
        throw Failure(*failure);
    }
}

bool FaultPlan::Fits(const std::string& planned, const InterposedCall& call)
{
    return std::any_of(call.classes.begin(), call.classes.end(), [&](std::string_view name) {
        const auto operation = std::string(name) + "." + std::string(call.member);
        return EqualIgnoringCase(planned, operation)
            || (!call.key.empty() && EqualIgnoringCase(planned, operation + ":" + std::string(call.key)));
    });
}

}
