#pragma once

#include "addin/base/Windows.h"
#include "base/Failure.h"

namespace tempodial {

/// The failure that a result stands for, with the system's text where the number has none of its own.
Failure FailureOf(HRESULT result);
/// The failure of a call that told more of itself; frees what was told.
Failure FailureOf(HRESULT result, EXCEPINFO& told);
/// Fails unless a result is one of success.
void Check(HRESULT result);

}
