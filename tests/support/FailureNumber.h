#pragma once

#include "base/Failure.h"

#include <cstdint>
#include <functional>

namespace tempodial {

/// The number of the failure of a statement, 0 when it succeeds.
inline std::int32_t FailureNumber(const std::function<void()>& statement)
{
    try {
        statement();
    } catch (const Failure& failure) {
        return failure.Number();
    }
    return 0;
}

}
