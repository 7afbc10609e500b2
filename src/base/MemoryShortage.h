#pragma once

#include <cstddef>

namespace tempodial {

/// The want of memory in this process. From `Watch` on a reserve is kept for what has to be done when memory has run
/// out: it goes to the first request that can't be met, and that one is noted.
class MemoryShortage
{
public:
    /// Sets the reserve aside and watches from now on.
    static void Watch();
    /// Notes that memory was wanting, as a library tells it.
    static void Note() noexcept;
    /// True once memory was wanting.
    static bool HasCome() noexcept;
    /// Fails with `std::bad_alloc` once memory was wanting.
    static void RequireNone();
    /// Fails with `std::bad_alloc` unless so many bytes are to be had, for a library that ends the process without
    /// them.
    static void Require(std::size_t bytes);
};

}
