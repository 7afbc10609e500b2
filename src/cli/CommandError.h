#pragma once

#include <stdexcept>

namespace tempodial {

/// A command that couldn't do its work; the message says what went wrong and what to do.
class CommandError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}
