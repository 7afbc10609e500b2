#pragma once

#include "addin/base/Windows.h"
#include "base/Failure.h"

namespace tempodial {

/// The failure that an error of the system stands for in work on files.
Failure FailureOfError(DWORD error);
/// The failure of the call that failed last.
Failure FailureOfLastError();

}
