#pragma once

#include <csignal>

namespace tempodial {

/// Takes the first Ctrl-C as a request to stop, to be looked at in time; a second one ends the process at once, as does
/// the first when this object is gone. There is one at a time.
class Interruption
{
public:
    Interruption();
    ~Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    /// True once the user has asked to stop.
    static bool IsRequested();

private:
    struct sigaction mFormer
    {
    };
};

}
