#pragma once

/// What the system tells screen readers, which few sources need.

#include "addin/base/Windows.h" // comes first: the other needs it

#include <oleacc.h>
