#pragma once

#include <cerrno>

namespace tempodial {

/// Repeats a system call for as long as a signal comes in between.
template <class Call> auto Uninterrupted(Call&& call)
{
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

}
