#pragma once

/// The system's XML parser, which few sources need.

#include "addin/base/Windows.h" // comes first: the other needs it

#include <msxml2.h>
