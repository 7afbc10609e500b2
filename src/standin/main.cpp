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
            for (const auto& [member, figures] : standIn.ObjectCalls()) {
                const auto waited = std::chrono::duration_cast<std::chrono::microseconds>(figures.waited);
                (void)std::fprintf(stderr, "%zu calls, %lld us: %s\n", figures.count,
                    static_cast<long long>(waited.count()), member.c_str());
            }
        }
    } catch (const std::exception& error) {
        (void)std::fprintf(stderr, "tempodial-standin: %s\n", error.what());
        status = 1;
    }
    CoUninitialize();
    return status;
}
