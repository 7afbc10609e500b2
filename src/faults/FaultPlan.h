#pragma once

#include "base/Failure.h"
#include "faults/Interposer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tempodial {

/// Which of the add-in's calls to its surroundings are to fail. It counts all of them.
class FaultPlan final : public Interposer
{
public:
    /// Calls of one operation that are to fail.
    struct Fault
    {
        /// The operation as `Class.Member`, or `Class.Member:Key` for its calls with that key, in any case.
        std::string call;
        /// How many calls pass first.
        std::int64_t skip = 0;
        /// How many calls fail then.
        std::int64_t times = 1;
        Failure failure = Failure(Error::Automation);
    };

    /// Lets calls of an operation fail, counted from now on, whatever else is planned.
    void Add(Fault fault);
    /// Lets one call fail (440): that of a number in the count of all calls.
    void FailCall(std::int64_t call) { mFailingCall = call; }
    /// The operation of that call, "" until it was made.
    const std::string& FailedCall() const { return mFailedCall; }
    /// The calls made so far.
    std::int64_t CallCount() const { return mCalls; }

    /// Counts a call. A planned failure is thrown.
    void Before(const InterposedCall& call) override;

private:
    static bool Fits(const std::string& planned, const InterposedCall& call);

    std::vector<Fault> mFaults;
    std::int64_t mCalls = 0;
    /// 0 for none.
    std::int64_t mFailingCall = 0;
    std::string mFailedCall;
};

}
