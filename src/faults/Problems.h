#pragma once

#include <string>
#include <vector>

namespace tempodial {

/// What went wrong during a run and has to be told to the user, in order and each message once.
class Problems
{
public:
    /// Takes a message that says what went wrong and what to do.
    void Note(const std::string& message);
    const std::vector<std::string>& Messages() const { return mMessages; }

private:
    std::vector<std::string> mMessages;
};

}
