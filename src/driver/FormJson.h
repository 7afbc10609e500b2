#pragma once

#include "driver/Json.h"
#include "forms/FormModel.h"

namespace tempodial {

/// A form with its controls as a person sees them.
Json FormJson(FormModel& form);

}
