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
            for (const auto& [member, count] : standIn.ObjectCalls()) {
                (void)std::fprintf(stderr, "%zu %s\n", count, member.c_str());
            }
        }
    } catch (const std::exception& error) {
        (void)std::fprintf(stderr, "tempodial-standin: %s\n", error.what());
        status = 1;
    }
    CoUninitialize();
    return status;
}
