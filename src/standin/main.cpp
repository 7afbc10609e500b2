#include "standin/StandIn.h"

#include <cstdio>
#include <cstdlib>
#include <exception>

int main()
{
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
        return 1;
    }
    int status = 0;
    try {
        tempodial::StandIn standIn;
        standIn.Run();
        if (std::getenv("TEMPODIAL_STANDIN_FIGURES") != nullptr) {
            (void)std::fprintf(stderr, "object calls: %zu\n", standIn.ObjectCalls());
        }
    } catch (const std::exception& error) {
        (void)std::fprintf(stderr, "tempodial-standin: %s\n", error.what());
        status = 1;
    }
    CoUninitialize();
    return status;
}
