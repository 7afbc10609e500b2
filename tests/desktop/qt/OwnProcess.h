#pragma once

#include <string>

namespace tempodial {

/// Tests of this program in a process of their own, for what is settled when one begins.
class OwnProcess
{
public:
    /// Runs the tests of a filter to their end, with a variable of their environment.
    OwnProcess(const char* filter, const char* variable, const char* value);

    /// True when there are such tests, and none failed.
    bool HasPassed() const { return mIsDone && mSaid.find("Running 0 tests") == std::string::npos; }
    /// What they said.
    const std::string& Said() const { return mSaid; }

private:
    bool mIsDone = false;
    std::string mSaid;
};

}
