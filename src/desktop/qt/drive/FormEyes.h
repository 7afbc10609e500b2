#pragma once

#include "forms/FormModelFactory.h"

#include <string>
#include <vector>

namespace tempodial {

class HostWindows;

/// What the windows of forms show otherwise than the forms have it, each a sentence. How far a job is has no window.
std::vector<std::string> ShownFormDifferences(const FormModelFactory& forms, const HostWindows& windows);

}
