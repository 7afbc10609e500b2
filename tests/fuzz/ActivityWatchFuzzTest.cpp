#include "fuzz/FuzzTarget.h"
#include "fuzz/SourceFuzz.h"

namespace tempodial {

namespace {

void PlanActivityWatch(std::string_view input)
{
    PlanSource("activitywatch", input);
}

}

TEMPODIAL_FUZZ_TARGET(ActivityWatch, PlanActivityWatch)

}
