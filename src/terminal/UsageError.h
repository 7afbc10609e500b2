#pragma once

#include <stdexcept>

namespace tempodial {

/// Arguments that can't be used; the message says what is wrong and what to do.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

}
