#include "cli/Interruption.h"

namespace tempodial {

namespace {

volatile std::sig_atomic_t requested = 0;

void Request(int)
{
    requested = 1;
}

}

Interruption::Interruption()
{
    requested = 0;
    struct sigaction action
    {
    };
    action.sa_handler = Request;
    sigemptyset(&action.sa_mask);
    // The default action comes back with the first signal; calls that it reaches go on.
    action.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    sigaction(SIGINT, &action, &mFormer);
}

Interruption::~Interruption()
{
    sigaction(SIGINT, &mFormer, nullptr);
}

bool Interruption::IsRequested()
{
    return requested != 0;
}

}
