#pragma once

#include "base/Date.h"

namespace tempodial {

/// A moment as automation has it: days since 1899-12-30, in which the time of day counts away from zero.
double ToAutomationDate(Date moment);
/// The moment, rounded to the second; one outside the years 100 to 9999 fails (6).
Date FromAutomationDate(double days);

}
