#pragma once

#include "base/Date.h"

namespace tempodial {

/// Days from the first to the last, both included, each as its midnight.
struct DayRange
{
    Date first;
    Date last;
};

}
