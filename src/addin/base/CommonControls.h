#pragma once

/// The controls that aren't the system's oldest, which few sources need.

#include "addin/base/Windows.h" // comes first: the other needs it

#include <commctrl.h>
