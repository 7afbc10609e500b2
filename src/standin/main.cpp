#include "standin/StandIn.h"

#include <cstdio>
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
    } catch (const std::exception& error) {
        (void)std::fprintf(stderr, "tempodial-standin: %s\n", error.what());
        status = 1;
    }
    CoUninitialize();
    return status;
}
