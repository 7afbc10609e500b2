#include "fuzz/FuzzTarget.h"
#include "fuzz/SourceFuzz.h"

namespace tempodial {

namespace {

void PlanCalendar(std::string_view input)
{
    PlanSource("ics", input);
}

}

TEMPODIAL_FUZZ_TARGET(Calendar, PlanCalendar)

}
