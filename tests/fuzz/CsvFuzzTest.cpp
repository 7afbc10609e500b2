#include "fuzz/FuzzTarget.h"
#include "fuzz/SourceFuzz.h"

namespace tempodial {

namespace {

void PlanCsv(std::string_view input)
{
    PlanSource("csv", input);
}

}

TEMPODIAL_FUZZ_TARGET(Csv, PlanCsv)

}
