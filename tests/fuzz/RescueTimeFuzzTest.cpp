#include "fuzz/FuzzTarget.h"
#include "fuzz/SourceFuzz.h"

namespace tempodial {

namespace {

void PlanRescueTime(std::string_view input)
{
    PlanSource("rescuetime", input);
}

}

TEMPODIAL_FUZZ_TARGET(RescueTime, PlanRescueTime)

}
