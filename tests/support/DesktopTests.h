#pragma once

#include <cstdlib>

/// Leaves a test out that runs a whole desktop, unless `./check --desktops` asks for it.
#define TEMPODIAL_DESKTOP_TEST()                                                                                       \
    if (std::getenv("TEMPODIAL_DESKTOP_TESTS") == nullptr) {                                                           \
        GTEST_SKIP() << "./check --desktops runs it";                                                                  \
    }
