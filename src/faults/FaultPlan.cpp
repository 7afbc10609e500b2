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

void FaultPlan::Call(std::span<const std::string_view> classes, std::string_view member, std::string_view key)
{
    ++mCalls;
    std::optional<Failure> failure;
    for (auto& fault : mFaults) {
        if (!Fits(fault.call, classes, member, key)) {
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
        mFailedCall = std::string(classes.front()) + "." + std::string(member) + ":" + std::string(key);
        throw Failure(Error::Automation);
    }
    if (failure) {
        throw Failure(*failure);
    }
}

bool FaultPlan::Fits(
    const std::string& call, std::span<const std::string_view> classes, std::string_view member, std::string_view key)
{
    return std::any_of(classes.begin(), classes.end(), [&](std::string_view name) {
        const auto operation = std::string(name) + "." + std::string(member);
        return EqualIgnoringCase(call, operation)
            || (!key.empty() && EqualIgnoringCase(call, operation + ":" + std::string(key)));
    });
}

}
