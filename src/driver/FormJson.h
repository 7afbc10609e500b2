#pragma once

#include "driver/Json.h"
#include "forms/FormSnapshot.h"

namespace tempodial {

/// A form with its controls as a person sees them.
Json FormJson(const FormSnapshot& form);

}
