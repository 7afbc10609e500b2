#pragma once

/// The desktop's calls, which few sources need.

#include "addin/base/Windows.h" // comes first: the other needs it

#include <shellapi.h>
