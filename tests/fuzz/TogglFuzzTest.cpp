#include "fuzz/FuzzTarget.h"
#include "fuzz/SourceFuzz.h"

namespace tempodial {

namespace {

void PlanToggl(std::string_view input)
{
    PlanSource("toggl", input);
}

}

TEMPODIAL_FUZZ_TARGET(Toggl, PlanToggl)

}
