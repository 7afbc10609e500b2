#pragma once

#include "base/Failure.h"

namespace tempodial {

/// The failure that an error number of the system stands for; the one place in which these are mapped.
Failure SystemFailure(int error);

}
