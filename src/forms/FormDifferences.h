#pragma once

#include "forms/FormSnapshot.h"

#include <string>
#include <vector>

namespace tempodial {

/// Where the forms that can be seen differ from what their windows show, each in words; both in the same order.
std::vector<std::string> FormDifferences(
    const std::vector<FormSnapshot>& visible, const std::vector<FormSnapshot>& seen);

}
