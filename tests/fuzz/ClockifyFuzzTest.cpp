#include "fuzz/FuzzTarget.h"
#include "fuzz/SourceFuzz.h"

namespace tempodial {

namespace {

void PlanClockify(std::string_view input)
{
    PlanSource("clockify", input);
}

}

TEMPODIAL_FUZZ_TARGET(Clockify, PlanClockify)

}
