#include "fuzz/FuzzTarget.h"
#include "fuzz/SourceFuzz.h"

namespace tempodial {

namespace {

void PlanArbtt(std::string_view input)
{
    PlanSource("arbtt", input);
}

}

TEMPODIAL_FUZZ_TARGET(Arbtt, PlanArbtt)

}
