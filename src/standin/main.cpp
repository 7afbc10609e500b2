#include "standin/StandIn.h"

#include <chrono>
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
            const auto waited = std::chrono::duration_cast<std::chrono::microseconds>(standIn.InCalls());
            (void)std::fprintf(stderr, "%lld us in calls\n", static_cast<long long>(waited.count()));
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
