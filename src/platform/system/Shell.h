#pragma once

#include <cstdint>
#include <string>

namespace tempodial {

/// The desktop around the program.
class Shell
{
public:
    virtual ~Shell() = default;

    /// Opens a document or an address in its default program; the outcome isn't known.
    virtual void Open(const std::string& document) = 0;
    /// The decimal id of the calling thread.
    virtual std::int32_t ThreadId() = 0;
};

}
